#include "cli/Applied.h"
#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/WallReply.h"
#include "cli/Walls.h"

#include <QJsonDocument>

namespace orvcad {

namespace {

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    const WallKind &kind = wallKindOf(Arguments::text(arguments.kind));
    const WallOutcome outcome = applyWalls(*project, kind, readJsonFile(input).object(), input);
    return saveApplied(*project, outcome.leftOut.empty(), arguments.strict, outcome.text(), outcome.toJson());
}

Summary writeReply(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = pickFloors(*project, Arguments::text(arguments.region), Arguments::text(arguments.floor));
    const WallReply reply(*project, wallKindOf(Arguments::text(arguments.kind)), floors);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(reply.document()).toJson());
    QJsonObject json = reply.toJson();
    json["output"] = output;
    return {QStringLiteral("Wrote ") + reply.text(), json, reply.leftOut().empty() ? kDone : kLeftOut, onStdout};
}

} // namespace

void addWallReplyCommands(CLI::App &group, Command &command)
{
    auto arguments = newArguments();
    CLI::App *verb = group.add_subcommand("reply", "Write walls in the form of a reply");
    addProject(verb, arguments);
    addWallKind(verb, arguments);
    addPlace(verb, arguments, false);
    addOutput(verb, arguments, "File to write the reply to");
    verb->callback([&command, arguments] { command = [arguments] { return writeReply(*arguments); }; });

    arguments = newArguments();
    verb = group.add_subcommand("apply", "Write a reply into a project and save it");
    addProject(verb, arguments);
    addWallKind(verb, arguments);
    verb->add_option("REPLY", arguments->input, "Reply document")->required();
    verb->add_flag("--strict", arguments->strict, "Save nothing when a member of the reply is left out");
    verb->callback([&command, arguments] { command = [arguments] { return applyReply(*arguments); }; });
}

} // namespace orvcad
