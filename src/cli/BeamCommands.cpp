#include "cli/Applied.h"
#include "cli/Arguments.h"
#include "cli/BeamInput.h"
#include "cli/BeamResult.h"
#include "cli/BeamSeats.h"
#include "cli/Beams.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/ProjectInfo.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace orvcad {

namespace {

std::vector<IHBXFloor *> pickedFloors(const hbx::embedded::HBXProject &project, const Arguments &arguments)
{
    return pickFloors(project, Arguments::text(arguments.region), Arguments::text(arguments.floor));
}

Summary exportBeams(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = pickedFloors(*project, arguments);
    BeamCounts counts;
    const QJsonObject document = beamDocument(*project, floors, counts);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(document).toJson());
    QJsonObject json = counts.toJson();
    json["output"] = output;
    json["floors"] = static_cast<int>(floors.size());
    return {QStringLiteral("Wrote %1 of %2")
                .arg(counts.text(), counted(static_cast<int>(floors.size()), QStringLiteral("floor"))),
            json, kDone, onStdout};
}

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    const BeamOutcome outcome = applyBeams(*project, readJsonFile(input).object(), input);
    return saveApplied(*project, outcome.leftOut.empty(), arguments.strict, outcome.text(), outcome.toJson());
}

Summary writeInput(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXRegion &region = requireRegion(*project, Arguments::text(arguments.region));
    const BeamInput input(*project, requireFloor(*project, region, Arguments::text(arguments.floor)));
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(input.document()).toJson());
    QJsonObject json = input.summary();
    json["output"] = output;
    return {QStringLiteral("Wrote ") + input.text(), json, kDone, onStdout};
}

Summary showResult(const Arguments &arguments)
{
    const BeamResult result = readBeamResult(Arguments::text(arguments.input));
    return {result.table(), result.toJson(), result.leftOut.isEmpty() ? kDone : kLeftOut};
}

Summary exportSeats(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = pickedFloors(*project, arguments);
    std::vector<SeatOutcome::Kind> kinds;
    const QJsonObject document = seatDocument(*project, floors, kinds);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(document).toJson());
    QStringList parts;
    QJsonObject json{{"output", output}, {"floors", static_cast<int>(floors.size())}};
    for (const SeatOutcome::Kind &kind : kinds) {
        parts.append(counted(kind.placed, typeTitle(kind.type)));
        json[QString::number(kind.type)] = kind.placed;
    }
    return {
        QStringLiteral("Wrote %1 of %2")
            .arg(parts.join(QStringLiteral(", ")), counted(static_cast<int>(floors.size()), QStringLiteral("floor"))),
        json, kDone, onStdout};
}

Summary applySeatDocument(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    const SeatOutcome outcome = applySeats(*project, readJsonFile(input).object(), input);
    return saveApplied(*project, outcome.leftOut.empty(), arguments.strict, outcome.text(), outcome.toJson());
}

void addExport(CLI::App &group, Command &command, const std::string &description, Verb run)
{
    const auto arguments = newArguments();
    CLI::App *verb = addVerb(group, command, "export", description, arguments, run);
    addProject(verb, arguments);
    addPlace(verb, arguments, false);
    addOutput(verb, arguments, "File to write the document to");
}

void addApply(CLI::App &group, Command &command, const std::string &description, const std::string &document, Verb run)
{
    const auto arguments = newArguments();
    CLI::App *verb = addVerb(group, command, "apply", description, arguments, run);
    addProject(verb, arguments);
    verb->add_option(document, arguments->input, "Document to write into the project")->required();
    verb->add_flag("--strict", arguments->strict, "Save nothing when a member of the document is left out");
}

} // namespace

void addBeamCommands(CLI::App &app, Command &command)
{
    CLI::App *group = app.add_subcommand("beam", "Beams and what they rest on");
    group->require_subcommand(1);
    addExport(*group, command, "Write the beams that are collected for recognition", exportBeams);
    addApply(*group, command, "Write a reply into a project and save it", "REPLY", applyReply);

    auto arguments = newArguments();
    CLI::App *verb = addVerb(*group, command, "identify-input",
                             "Write what the recognition of beams is told of a floor", arguments, writeInput);
    addProject(verb, arguments);
    addPlace(verb, arguments, true);
    addOutput(verb, arguments, "File to write the input to");

    arguments = newArguments();
    verb = addVerb(*group, command, "result", "Read a result document and print its labels and their seats", arguments,
                   showResult);
    verb->add_option("RESULT", arguments->input, "Result document")->required();

    CLI::App *seats = group->add_subcommand("seats", "Foundations, pile caps, piles and tie beams under beams");
    seats->require_subcommand(1);
    addExport(*seats, command, "Write the seats that can be made anew", exportSeats);
    addApply(*seats, command, "Make the seats of a document in a project and save it", "SEATS", applySeatDocument);
}

} // namespace orvcad
