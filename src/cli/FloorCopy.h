#pragma once

#include "cli/CopyRoads.h"
#include "cli/FloorMove.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvcad {

/** A floor on its way to another one through the text of the roads: taken out of a project, which may then be closed, and put
 *  into the same or another one. */
class FloorCopy
{
public:
    /** Takes a floor along the roads of those words. */
    FloorCopy(hbx::embedded::HBXProject &project, IHBXFloor &floor, const std::vector<std::string> &roads);

    /** Makes what was taken on a floor, which is made current with its project. Nothing is saved. Throws CommandFailure when
     *  a text cannot be read. */
    void put(hbx::embedded::HBXProject &project, IHBXFloor &floor);

    /** Whether all that the roads carry arrived as it was. */
    bool isComplete() const { return m_isComplete; }
    QString text() const;
    /** {"from", "to", "roads", "notCarried"}. */
    QJsonObject toJson() const;

private:
    struct Load
    {
        const CopyRoad *road;
        QByteArray text;
        std::vector<LeftOut> leftOut;
    };

    void noteNotCarried(const hbx::embedded::HBXProject &project, const IHBXFloor &floor);
    void note(const Load &load, const CopyRoad::Outcome &outcome);

    QString m_source; // what the texts are called
    FloorPlace m_from;
    FloorPlace m_to;
    std::vector<Load> m_loads;
    bool m_isComplete = true;
    QStringList m_lines;
    QStringList m_notCarriedTitles;
    QJsonArray m_roads;
    QJsonArray m_notCarried; // types that no road of the copy carries
};

} // namespace orvcad
