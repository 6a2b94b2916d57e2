#include "cli/Files.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/ProjectInfo.h"
#include "cli/Verb.h"
#include "cli/Written.h"

namespace orvcad {

namespace {

Summary importProject(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const QString output = Arguments::text(arguments.output);
    const auto project = projectOfBuilding(readFile(input), input);
    saveProjectAs(*project, output);

    const ProjectInfo info = projectInfo(*project);
    return {Message::tr("Imported %1 into %2: %3").arg(input, output, info.counts()),
            {{"input", input}, {"output", output}, {"project", info.toJson()}}};
}

Summary exportProject(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const ProjectInfo info = projectInfo(*project);
    return writeDocument(arguments, project->toJson(),
                         {Message::tr("Exported %1: %2").arg(project->path(), info.counts()),
                          {{"input", project->path()}, {"project", info.toJson()}}});
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
    CLI::App &group = addGroup(app, "project", Message::help("Project files of the embedded host"));
    Verb(group, command, "import", Message::help("Make a project file from a building (hbx-project JSON)"),
         importProject)
        .inputs("BUILDING", Message::help("Building as hbx-project JSON"))
        .output(Message::help("Project file to make (.hbxdb)"), ".hbxdb", Verb::NoOutput::WrongUsage);
    Verb(group, command, "export", Message::help("Write a project as hbx-project JSON"), exportProject)
        .projects()
        .output(Message::help("File to write the building to"), ".json");
    Verb(group, command, "info", Message::help("What is in a project: per region and floor the counts by type"),
         showInfo)
        .projects();
}

} // namespace orvcad
