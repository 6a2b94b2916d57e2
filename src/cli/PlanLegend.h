#pragma once

#include <QMap>
#include <QString>

class IHBXFloor;

namespace orvcad {

class PlanShades;
class SvgPage;

/** The column at the right of a plan, from its top down: title, what each type looks like and how many of it there are, the
 *  shades by elevation, and the scale bar at the bottom. Each is painted once, in that order. */
class PlanLegend
{
public:
    /** What is told of a type. */
    struct Entry
    {
        qint64 type = -1;
        int number = 0;       ///< of placed objects
        bool hasArea = false; ///< some object of it is an area, not a line alone
    };

    /** The page has to outlive the legend. */
    explicit PlanLegend(SvgPage &page);

    /** @param scale  100 for 1:100 */
    void paintTitle(const IHBXFloor &floor, const QString &building, double scale);
    /** @param entries  by place in the legend */
    void paintEntries(const QMap<int, Entry> &entries);
    /** @param shades  by type, of slabs and rafts */
    void paintElevations(const QMap<qint64, PlanShades> &shades);
    void paintScaleBar(double scale);

private:
    void paintTitleLine(double y, double size, const QString &line, const QString &attributes = QString());
    void paintSwatch(const QString &attributes);
    void paintLine(double x, const QString &line, const QString &attributes = QString());
    void paintEntry(const Entry &entry);

    SvgPage &m_page;
    double m_y; // base line of the next line below the title, mm of paper
};

} // namespace orvcad
