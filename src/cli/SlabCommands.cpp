#include "cli/Applied.h"
#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/SlabArrays.h"
#include "cli/SlabExport.h"
#include "cli/SlabNewIdentities.h"
#include "cli/SlabReplyCheck.h"
#include "cli/Slabs.h"
#include "platform/host/IHBXFloor.h"

#include <QFile>
#include <QJsonDocument>

namespace orvcad {

namespace {

IHBXFloor &floorOf(const hbx::embedded::HBXProject &project, const Arguments &arguments)
{
    IHBXRegion &region = requireRegion(project, Arguments::text(arguments.region));
    return requireFloor(project, region, Arguments::text(arguments.floor));
}

Summary exportSlabs(const Arguments &arguments)
{
    const SlabParts parts(arguments.parts);
    const auto project = openProject(Arguments::text(arguments.project));
    const IHBXFloor &floor = floorOf(*project, arguments);
    const QString drawing = Arguments::text(arguments.drawing);
    const QJsonObject document =
        drawing.isEmpty() ? slabDocument(*project, floor, parts) : slabIoDocument(*project, floor, drawing);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(document).toJson());
    const QJsonObject model = slabModelOf(document, output);
    QJsonObject json{{"output", output}, {"floor", floor.name()}, {"arrays", slabCounts(model)}};
    if (!drawing.isEmpty())
        json["drawing"] = drawing;
    return {QStringLiteral("Wrote %1 of %2%3")
                .arg(slabCountsText(model), floor.name(),
                     drawing.isEmpty() ? QString() : QStringLiteral(", with the drawing ") + drawing),
            json, kDone, onStdout};
}

/** Writes the map of what was made, unless --strict keeps it from being saved. A map of what then cannot be saved goes
 *  again. */
Summary saveWithIds(hbx::embedded::HBXProject &project, const SlabOutcome &outcome, const Arguments &arguments)
{
    const QString ids = Arguments::text(arguments.ids);
    const bool isComplete = outcome.leftOut.empty();
    const bool isTold = !ids.isEmpty() && (isComplete || !arguments.strict);
    const bool onStdout = isTold && writeResult(ids, QJsonDocument(outcome.idMap()).toJson());
    QJsonObject json = outcome.toJson();
    if (isTold)
        json["ids"] = ids;
    try {
        Summary summary = saveApplied(project, isComplete, arguments.strict, outcome.text(), json);
        summary.documentOnStdout = onStdout;
        return summary;
    } catch (const CommandFailure &) {
        if (isTold && !onStdout)
            QFile::remove(ids);
        throw;
    }
}

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXFloor &floor = floorOf(*project, arguments);
    const QJsonObject reply = readJsonFile(input).object();
    const SlabOutcome outcome = applySlabs(*project, floor, arguments.asNew ? withNewIdentities(reply) : reply, input);
    return saveWithIds(*project, outcome, arguments);
}

void addFloor(CLI::App *verb, const std::shared_ptr<Arguments> &arguments)
{
    addProject(verb, arguments);
    addPlace(verb, arguments, true);
}

} // namespace

void addSlabCommands(CLI::App &app, Command &command)
{
    CLI::App *group = app.add_subcommand("slab", "Slabs, rafts, their holes and bars");
    group->require_subcommand(1);

    auto arguments = newArguments();
    arguments->parts = SlabParts::kEverything;
    CLI::App *verb =
        addVerb(*group, command, "export", "Write what recognition gets of a floor's slabs", arguments, exportSlabs);
    addFloor(verb, arguments);
    CLI::Option *parts =
        verb->add_option("--parts", arguments->parts,
                         "Sum of what is written: 2 supports, 4 slabs and holes, 8 bars of slabs, 32 rafts, 64 bars of "
                         "rafts, 128 axis grids; everything if absent");
    verb->add_option("--drawing", arguments->drawing, "Drawing to write along (.cadi2), with options and floor")
        ->excludes(parts);
    addOutput(verb, arguments, "File to write the payload to");

    arguments = newArguments();
    verb = addVerb(*group, command, "apply", "Write a reply into a floor and save the project", arguments, applyReply);
    addFloor(verb, arguments);
    verb->add_option("REPLY", arguments->input, "Reply document")->required();
    verb->add_flag("--as-new", arguments->asNew,
                   "Take everything in the document as new, so that an export is a reply");
    verb->add_option("--ids", arguments->ids, "File to write the ids of what was made to, with the reply's identities");
    verb->add_flag("--strict", arguments->strict, "Save nothing when a member of the reply is left out");
}

} // namespace orvcad
