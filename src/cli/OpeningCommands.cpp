#include "cli/Applied.h"
#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/Openings.h"
#include "cli/ProjectInfo.h"
#include "doorwindow/ORVCADWindoorDataInputModel.h"
#include "platform/host/IHBXService.h"

#include <QJsonDocument>

namespace orvcad {

namespace {

Summary exportOpenings(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = pickFloors(*project, Arguments::text(arguments.region), Arguments::text(arguments.floor));
    OpeningOutcome counts;
    const QJsonObject reply = openingReply(*project->service()->model(), floors, counts);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(reply).toJson());
    return {QStringLiteral("Wrote %1 and %2 (%3 in a wall) of %4")
                .arg(counted(counts.elements, QStringLiteral("element")),
                     counted(counts.placed, QStringLiteral("placed opening")))
                .arg(counts.attached)
                .arg(counted(static_cast<int>(floors.size()), QStringLiteral("floor"))),
            {{"output", output},
             {"floors", static_cast<int>(floors.size())},
             {"elements", counts.elements},
             {"placed", counts.placed},
             {"attached", counts.attached}},
            kDone,
            onStdout};
}

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    const QJsonArray members = openingMembers(readJsonFile(input).object(), input);
    const OpeningOutcome outcome = applyOpenings(*project, members);
    return saveApplied(*project, outcome.leftOut.empty(), arguments.strict, outcome.text(), outcome.toJson());
}

Summary showOptions(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    ORVCADWindoorDataInputModel model;
    model.parseIdentifyOption(project->service());
    QJsonObject document;
    model.saveToJason(&document);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(document).toJson());
    return {QStringLiteral("Wrote %1").arg(counted(model.identifyOptions.size(), QStringLiteral("option"))),
            {{"output", output}, {"options", model.identifyOptions.size()}},
            kDone,
            onStdout};
}

} // namespace

void addOpeningCommands(CLI::App &app, Command &command)
{
    CLI::App *group = app.add_subcommand("opening", "Doors and windows");
    group->require_subcommand(1);

    auto arguments = newArguments();
    CLI::App *verb = group->add_subcommand("export", "Write doors and windows in the form of a reply");
    addProject(verb, arguments);
    addPlace(verb, arguments, false);
    addOutput(verb, arguments, "File to write the reply to");
    verb->callback([&command, arguments] { command = [arguments] { return exportOpenings(*arguments); }; });

    arguments = newArguments();
    verb = group->add_subcommand("apply", "Write a reply into a project and save it");
    addProject(verb, arguments);
    verb->add_option("REPLY", arguments->input, "Reply document")->required();
    verb->add_flag("--strict", arguments->strict, "Save nothing when a member of the reply is left out");
    verb->callback([&command, arguments] { command = [arguments] { return applyReply(*arguments); }; });

    arguments = newArguments();
    verb = group->add_subcommand("options", "Write the identify options of doors and windows");
    addProject(verb, arguments);
    addOutput(verb, arguments, "File to write the options to");
    verb->callback([&command, arguments] { command = [arguments] { return showOptions(*arguments); }; });
}

} // namespace orvcad
