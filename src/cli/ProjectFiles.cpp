#include "cli/ProjectFiles.h"

#include "cli/Command.h"
#include "cli/Files.h"

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace orvcad {

namespace {

[[noreturn]] void fail(const ProjectError &error)
{
    throw CommandFailure(kBadInput, error.file, error.place, error.reason);
}

/** The project, unless there is none. */
std::unique_ptr<HBXProject> required(std::unique_ptr<HBXProject> project, const ProjectError &error)
{
    if (!project)
        fail(error);
    return project;
}

} // namespace

std::unique_ptr<HBXProject> projectOfBuilding(const QByteArray &building, const QString &file)
{
    requireStrictJson(building, file);
    ProjectError error;
    auto project = HBXProject::fromJson(building, file, error);
    return required(std::move(project), error);
}

std::unique_ptr<HBXProject> openProject(const QString &path)
{
    ProjectError error;
    auto project = HBXProject::open(path, error);
    return required(std::move(project), error);
}

void saveProject(HBXProject &project)
{
    ProjectError error;
    if (!project.save(error))
        fail(error);
}

void saveProjectAs(HBXProject &project, const QString &path)
{
    ProjectError error;
    if (!project.saveAs(path, error))
        fail(error);
}

} // namespace orvcad
