#include "cli/Applied.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"
#include "cli/WallReply.h"
#include "cli/Walls.h"

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
    const auto floors = pickFloors(*project, arguments);
    const WallReply reply(*project, wallKindOf(Arguments::text(arguments.kind)), floors);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, reply.document());
    QJsonObject json = reply.toJson();
    json["output"] = output;
    return {QStringLiteral("Wrote ") + reply.text(), json, reply.leftOut().empty() ? kDone : kLeftOut, onStdout};
}

} // namespace

void addWallReplyCommands(CLI::App &group, Command &command)
{
    Verb(group, command, "reply", "Write walls in the form of a reply", writeReply)
        .project()
        .wallKind()
        .anyFloors()
        .output("File to write the reply to");
    Verb(group, command, "apply", "Write a reply into a project and save it", applyReply)
        .project()
        .wallKind()
        .input("REPLY", "Reply document")
        .strict("reply");
}

} // namespace orvcad
