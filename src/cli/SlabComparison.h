#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

class IHBXFloor;
class IHBXModel;

namespace orvcad {

/** How the slabs, rafts, holes and bars of two floors differ, in what a reply carries: outline or line, name, elevations,
 *  thickness in whole millimetres, and what bars say. Not carried, and not compared, are remarks, bar texts of holes, rows
 *  of bars, and the right hooks of bars that have the left one's on both sides. */
struct SlabComparison
{
    int compared = 0;       ///< members of the first floor
    QStringList deviations; ///< members that are missing, and members that are too many

    bool isSame() const { return deviations.isEmpty(); }
    QString text() const;
    QJsonObject toJson() const;
};

SlabComparison compareSlabs(IHBXModel &expectedModel, const IHBXFloor &expected, IHBXModel &foundModel,
                            const IHBXFloor &found);

} // namespace orvcad
