#pragma once

#include "platform/embedded/HBXProject.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QString>

#include <memory>
#include <vector>

class IHBXFloor;
class IHBXRegion;

namespace orvcad {

/** All bytes of a file; throws CommandFailure when it is missing or cannot be read. */
QByteArray readFile(const QString &path);
/** A JSON document of a file; throws CommandFailure with line and column when it is none. */
QJsonDocument readJsonFile(const QString &path);
/** Writes bytes to a file by way of a temporary one beside it, or to standard output for an empty path or "-".
 *  @return true when they went to standard output */
bool writeResult(const QString &path, const QByteArray &bytes);

/** Opens a project file; throws CommandFailure with file, place and reason. */
std::unique_ptr<hbx::embedded::HBXProject> openProject(const QString &path);
/** Saves into the project's own file or into another one; throws CommandFailure. */
void saveProject(hbx::embedded::HBXProject &project);
void saveProjectAs(hbx::embedded::HBXProject &project, const QString &path);

/** The region of that name; throws CommandFailure with the known names. An empty name is the only region there is. */
IHBXRegion &requireRegion(const hbx::embedded::HBXProject &project, const QString &name);
/** The floor of that name or code; throws CommandFailure with the known names. */
IHBXFloor &requireFloor(const hbx::embedded::HBXProject &project, IHBXRegion &region, const QString &name);
/** The floors that --region and --floor pick: one, all of a region without a floor, all of all regions without both. */
std::vector<IHBXFloor *> pickFloors(const hbx::embedded::HBXProject &project, const QString &region,
                                    const QString &floor);

/** A path with a directory made for it. */
QString fileIn(const QString &directory, const QString &name);

} // namespace orvcad
