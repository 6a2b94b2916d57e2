#pragma once

#include <QMap>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace orvcad {

/** Shades of areas by their elevation: the lower, the darker. Few elevations get a shade each, many share shades. */
class PlanShades
{
public:
    struct Band
    {
        double from = 0.0; ///< lowest elevation, mm
        double to = 0.0;   ///< highest, mm
        int number = 0;    ///< of areas
        double opacity = 0.0;

        /** "+3.600 m", or "+2.950 … +3.200 m" for several. */
        QString text() const;
    };

    /** @param elevation  of one more area, mm; told apart by whole millimetres */
    void add(double elevation);
    /** From the highest down. */
    std::vector<Band> bands() const;
    /** Of the band that holds an elevation. */
    double opacity(double elevation) const;

private:
    QMap<qint64, int> m_numbers; // areas by elevation, mm
};

} // namespace orvcad
