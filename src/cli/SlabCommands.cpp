#include "cli/Applied.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/SlabArrays.h"
#include "cli/SlabExport.h"
#include "cli/SlabNewIdentities.h"
#include "cli/SlabReplyCheck.h"
#include "cli/Slabs.h"
#include "cli/Verb.h"
#include "cli/Written.h"
#include "platform/host/IHBXFloor.h"

#include <CLI/CLI.hpp>

#include <QJsonDocument>

namespace orvcad {

namespace {

Summary exportSlabs(const Arguments &arguments)
{
    const SlabParts parts(arguments.parts);
    const auto project = openProject(Arguments::text(arguments.project));
    const IHBXFloor &floor = pickFloor(*project, arguments);
    const QString drawing = Arguments::text(arguments.drawing);
    const QJsonObject document =
        drawing.isEmpty() ? slabDocument(*project, floor, parts) : slabIoDocument(*project, floor, drawing);
    const QJsonObject model = slabModelOf(document, Arguments::text(arguments.output));
    QJsonObject json{{"floor", floor.name()}, {"arrays", slabCounts(model)}};
    if (!drawing.isEmpty())
        json["drawing"] = drawing;
    return writeDocument(arguments, document,
                         {Message::tr("Wrote %1 of %2%3")
                              .arg(slabCountsText(model), floor.name(),
                                   drawing.isEmpty() ? QString() : Message::tr(", with the drawing %1").arg(drawing)),
                          json});
}

/** Writes the map of what was made, unless --strict keeps it from being saved. Its file is replaced once the project is
 *  saved, and written before, so that there is room for it. */
Summary saveWithIds(hbx::embedded::HBXProject &project, const SlabOutcome &outcome, const Arguments &arguments)
{
    const QString ids = Arguments::text(arguments.ids);
    const bool isComplete = outcome.leftOut.empty();
    const bool isTold = !ids.isEmpty() && (isComplete || !arguments.strict);
    QJsonObject json = outcome.toJson();
    if (!isTold)
        return saveApplied(project, isComplete, arguments.strict, outcome.text(), json);
    json["ids"] = ids;
    PendingResult map(ids, QJsonDocument(outcome.idMap()).toJson());
    Summary summary = saveApplied(project, isComplete, arguments.strict, outcome.text(), json);
    map.commit();
    summary.documentOnStdout = map.isOnStandardOutput();
    return summary;
}

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXFloor &floor = pickFloor(*project, arguments);
    const QJsonObject reply = readJsonFile(input).object();
    const SlabOutcome outcome = applySlabs(*project, floor, arguments.asNew ? withNewIdentities(reply) : reply, input);
    return saveWithIds(*project, outcome, arguments);
}

void addExport(CLI::App &group, Command &command)
{
    Verb verb(group, command, "export", Message::help("Write what recognition gets of a floor's slabs"), exportSlabs);
    verb.arguments().parts = SlabParts::kEverything;
    verb.projects().pickedFloor();
    CLI::Option *parts = verb.app().add_option(
        "--parts", verb.arguments().parts,
        Message::help("Sum of what is written: 2 supports, 4 slabs and holes, 8 bars of slabs, 32 rafts, 64 bars "
                      "of rafts, 128 axis grids; everything if absent"));
    verb.app()
        .add_option("--drawing", verb.arguments().drawing,
                    Message::help("Drawing to write along (.cadi2), with options and floor"))
        ->excludes(parts);
    verb.output(Message::help("File to write the payload to"), ".slabs.json");
}

void addApply(CLI::App &group, Command &command)
{
    Verb verb(group, command, "apply", Message::help("Write a reply into a floor and save the project"), applyReply);
    verb.project().pickedFloor().input("REPLY", Message::help("Reply document"));
    verb.app().add_flag("--as-new", verb.arguments().asNew,
                        Message::help("Take everything in the document as new, so that an export is a reply"));
    verb.app().add_option("--ids", verb.arguments().ids,
                          Message::help("File to write the ids of what was made to, with the reply's identities"));
    verb.strict(Message::help("reply"));
}

} // namespace

void addSlabCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "slab", Message::help("Slabs, rafts, their holes and bars"));
    addExport(group, command);
    addApply(group, command);
}

} // namespace orvcad
