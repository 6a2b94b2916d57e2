#include "cli/Applied.h"
#include "cli/BeamInput.h"
#include "cli/BeamResult.h"
#include "cli/BeamSeats.h"
#include "cli/Beams.h"
#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/TypeTitles.h"
#include "cli/Verb.h"
#include "cli/Written.h"

namespace orvcad {

namespace {

QString textOfWritten(const QString &what, const std::vector<IHBXFloor *> &floors)
{
    return Message::tr("Wrote %1 of %2").arg(what, counted(static_cast<int>(floors.size()), Message::tr("floor")));
}

Summary exportBeams(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = pickFloors(*project, arguments);
    BeamCounts counts;
    const QJsonObject document = beamDocument(*project, floors, counts);
    QJsonObject json = counts.toJson();
    json["floors"] = static_cast<int>(floors.size());
    return writeDocument(arguments, document, {textOfWritten(counts.text(), floors), json});
}

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    return saveApplied(*project, applyBeams(*project, readJsonFile(input).object(), input), arguments.strict);
}

Summary writeInput(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const BeamInput input(*project, pickFloor(*project, arguments));
    return writeDocument(arguments, input.document(), {Message::tr("Wrote %1").arg(input.text()), input.summary()});
}

Summary showResult(const Arguments &arguments)
{
    const BeamResult result = readBeamResult(Arguments::text(arguments.input));
    return {result.table(), result.toJson(), result.leftOut.isEmpty() ? kDone : kLeftOut};
}

Summary exportSeats(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = pickFloors(*project, arguments);
    std::vector<SeatOutcome::Kind> kinds;
    const QJsonObject document = seatDocument(*project, floors, kinds);
    QStringList parts;
    QJsonObject json{{"floors", static_cast<int>(floors.size())}};
    for (const SeatOutcome::Kind &kind : kinds) {
        parts.append(counted(kind.placed, shownTypeTitle(kind.type)));
        json[QString::number(kind.type)] = kind.placed;
    }
    return writeDocument(arguments, document, {textOfWritten(parts.join(QStringLiteral(", ")), floors), json});
}

Summary applySeatDocument(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    return saveApplied(*project, applySeats(*project, readJsonFile(input).object(), input), arguments.strict);
}

void addExport(CLI::App &group, Command &command, const std::string &description, const std::string &ending,
               const Action &run)
{
    Verb(group, command, "export", description, run)
        .projects()
        .anyFloors()
        .output(Message::help("File to write the document to"), ending);
}

void addApply(CLI::App &group, Command &command, const std::string &description, const std::string &document,
              const Action &run)
{
    Verb(group, command, "apply", description, run)
        .project()
        .input(document, Message::help("Document to write into the project"))
        .strict(Message::help("document"));
}

} // namespace

void addBeamCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "beam", Message::help("Beams and what they rest on"));
    addExport(group, command, Message::help("Write the beams that are collected for recognition"), ".beams.json",
              exportBeams);
    addApply(group, command, Message::help("Write a reply into a project and save it"), "REPLY", applyReply);
    Verb(group, command, "identify-input", Message::help("Write what the recognition of beams is told of a floor"),
         writeInput)
        .projects()
        .pickedFloor()
        .output(Message::help("File to write the input to"), ".beam-input.json");
    Verb(group, command, "result", Message::help("Read a result document and print its labels and their seats"),
         showResult)
        .inputs("RESULT", Message::help("Result document"));

    CLI::App &seats =
        addGroup(group, "seats", Message::help("Foundations, pile caps, piles and tie beams under beams"));
    addExport(seats, command, Message::help("Write the seats that can be made anew"), ".seats.json", exportSeats);
    addApply(seats, command, Message::help("Make the seats of a document in a project and save it"), "SEATS",
             applySeatDocument);
}

} // namespace orvcad
