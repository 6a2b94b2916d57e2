#pragma once

#include "platform/embedded/HBXProject.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace orvcad {

// What fails here throws CommandFailure with file, place and reason.

/** A new project of a building as hbx-project JSON, which has no file yet.
 *  @param file  what the building is called when it is refused */
std::unique_ptr<hbx::embedded::HBXProject> projectOfBuilding(const QByteArray &building, const QString &file);
/** Opens a project file. */
std::unique_ptr<hbx::embedded::HBXProject> openProject(const QString &path);
/** Saves into the project's own file or into another one. */
void saveProject(hbx::embedded::HBXProject &project);
void saveProjectAs(hbx::embedded::HBXProject &project, const QString &path);

} // namespace orvcad
