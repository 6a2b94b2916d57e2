#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/ProjectInfo.h"

#include <QFileInfo>

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace orvcad {

namespace {

Summary importProject(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const QString output = Arguments::text(arguments.output);
    ProjectError error;
    const auto project = HBXProject::fromJson(readFile(input), input, error);
    if (!project)
        throw CommandFailure(kBadInput, error.file, error.place, error.reason);
    saveProjectAs(*project, output);

    const ProjectInfo info = projectInfo(*project);
    return {QStringLiteral("Imported %1 into %2: %3").arg(input, output, info.counts()),
            {{"input", input}, {"output", output}, {"project", info.toJson()}}};
}

Summary exportProject(const Arguments &arguments)
{
    const QString output = Arguments::text(arguments.output);
    const auto project = openProject(Arguments::text(arguments.project));
    const bool onStdout = writeResult(output, project->toJson());

    const ProjectInfo info = projectInfo(*project);
    return {QStringLiteral("Exported %1: %2").arg(project->path(), info.counts()),
            {{"input", project->path()}, {"output", output}, {"project", info.toJson()}},
            kDone,
            onStdout};
}

Summary showInfo(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const ProjectInfo info = projectInfo(*project);
    return {info.table(), info.toJson()};
}

} // namespace

void addProjectCommands(CLI::App &app, Command &command)
{
    CLI::App *group = app.add_subcommand("project", "Project files of the embedded host");
    group->require_subcommand(1);

    auto arguments = newArguments();
    CLI::App *verb = group->add_subcommand("import", "Make a project file from a building (hbx-project JSON)");
    verb->add_option("BUILDING", arguments->input, "Building as hbx-project JSON")->required();
    verb->add_option("-o,--output", arguments->output, "Project file to make (.hbxdb)")->required();
    verb->callback([&command, arguments] { command = [arguments] { return importProject(*arguments); }; });

    arguments = newArguments();
    verb = group->add_subcommand("export", "Write a project as hbx-project JSON");
    addProject(verb, arguments);
    addOutput(verb, arguments, "File to write the building to");
    verb->callback([&command, arguments] { command = [arguments] { return exportProject(*arguments); }; });

    arguments = newArguments();
    verb = group->add_subcommand("info", "What is in a project: per region and floor the counts by type");
    addProject(verb, arguments);
    verb->callback([&command, arguments] { command = [arguments] { return showInfo(*arguments); }; });
}

} // namespace orvcad
