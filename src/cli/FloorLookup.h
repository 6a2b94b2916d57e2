#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

class IHBXFloor;
class IHBXModel;
class IHBXRegion;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

struct Arguments;

// What users name; a name that a building lacks throws CommandFailure with the names that it has.

/** Names of all regions, in the host's order. */
QStringList regionNames(const hbx::embedded::HBXProject &project);

/** The region of that name. An empty name is the only region there is. */
IHBXRegion &requireRegion(const hbx::embedded::HBXProject &project, const QString &name);
/** The floor of that name or code. */
IHBXFloor &requireFloor(const hbx::embedded::HBXProject &project, IHBXRegion &region, const QString &name);
/** The floors that --region and --floor pick: one, all of a region without a floor, all of all regions without both. */
std::vector<IHBXFloor *> pickFloors(const hbx::embedded::HBXProject &project, const QString &region,
                                    const QString &floor);
/** Those of the arguments of a verb, and the one of a verb that has to be given one. */
std::vector<IHBXFloor *> pickFloors(const hbx::embedded::HBXProject &project, const Arguments &arguments);
IHBXFloor &pickFloor(const hbx::embedded::HBXProject &project, const Arguments &arguments);

QSet<qint64> idsOf(const std::vector<IHBXFloor *> &floors);

// What members of replies name; null, with the reason, where a model has no such floor.

/** The floor of that name in the region of that name. */
IHBXFloor *floorOfNames(IHBXModel &model, const QString &regionName, const QString &floorName, QString &reason);
/** The floor of that code in the region of that name. */
IHBXFloor *floorOfCode(IHBXModel &model, const QString &regionName, const QString &floorCode, QString &reason);

} // namespace orvcad
