#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** What the recognition of beams is told of a floor. */
class BeamInput
{
public:
    /** Gathers it from the host; the floor becomes the current one. */
    BeamInput(hbx::embedded::HBXProject &project, const IHBXFloor &floor);

    /** The document. */
    const QJsonObject &document() const { return m_document; }
    /** "89 seats (40 columns, …), 22 axis lines and 3 beam codes of Level 1". */
    QString text() const;
    /** "floor", "seats" by type, "axisLines" and "beamCodes". */
    QJsonObject summary() const;

private:
    QJsonObject m_document;
    QString m_floor;
    QMap<int, int> m_seats; ///< how many, by element type
    int m_axisLines = 0;
    int m_beamCodes = 0;
};

} // namespace orvcad
