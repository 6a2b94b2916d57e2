#include "cli/Applied.h"
#include "cli/DrawingFiles.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"
#include "cli/WallInput.h"
#include "cli/WallKind.h"
#include "cli/WallReply.h"
#include "cli/Walls.h"
#include "cli/Written.h"

#include <CLI/CLI.hpp>

#include <QFileInfo>
#include <QJsonArray>

namespace orvcad {

namespace {

constexpr char kJson[] = "json";
constexpr char kXml[] = "xml";
constexpr char kCloud[] = "cloud";

QByteArray documentOf(const WallInput &input, const std::string &format)
{
    if (format == kJson)
        return input.json();
    return format == kXml ? input.xml() : input.cloud();
}

Summary exportWalls(const Arguments &arguments)
{
    const WallKind &kind = wallKindOf(Arguments::text(arguments.kind));
    if (!kind.isBrick() && arguments.format == kCloud)
        throw CommandFailure(kWrongUsage, Message::tr("there is no cloud document of force walls"));
    const auto project = openProject(Arguments::text(arguments.project));
    WallInput input(*project, pickFloor(*project, arguments), kind);
    const QString drawing = Arguments::text(arguments.drawing);
    if (!drawing.isEmpty())
        input.addDrawing(*readDrawing(drawing), QFileInfo(drawing).fileName());

    const QByteArray document = documentOf(input, arguments.format);
    const QStringList warnings = arguments.format == kXml ? input.unreadable(document) : QStringList();
    QStringList lines;
    for (const QString &warning : warnings)
        lines.append(Message::tr("will not parse again: %1").arg(warning));
    QJsonObject json = input.summary();
    json["format"] = Arguments::text(arguments.format);
    json["warnings"] = QJsonArray::fromStringList(warnings);
    return writeDocument(arguments, document, {Message::tr("Wrote %1").arg(input.text()) + cutLines(lines), json});
}

Summary writeReply(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const WallReply reply(*project, wallKindOf(Arguments::text(arguments.kind)), pickFloors(*project, arguments));
    return writeDocument(
        arguments, reply.document(),
        {Message::tr("Wrote %1").arg(reply.text()), reply.toJson(), reply.leftOut().empty() ? kDone : kLeftOut});
}

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    const WallKind &kind = wallKindOf(Arguments::text(arguments.kind));
    const WallOutcome outcome = applyWalls(*project, kind, readJsonFile(input).object(), input);
    return saveApplied(*project, outcome.leftOut.empty(), arguments.strict, outcome.text(), outcome.toJson());
}

std::string endingOfInput(const Arguments &arguments)
{
    return '.' + arguments.kind + (arguments.format == kXml ? "-walls.xml" : "-walls.json");
}
std::string endingOfReply(const Arguments &arguments) { return '.' + arguments.kind + "-wall-reply.json"; }

void addExport(CLI::App &group, Command &command)
{
    Verb verb(group, command, "export", Message::help("Write what the recognition of walls is told of a floor"),
              exportWalls);
    verb.arguments().format = kJson;
    verb.projects().wallKind();
    verb.app()
        .add_option("--format", verb.arguments().format,
                    Message::help("Form of the document: json, xml or cloud (brick only)"))
        ->check(CLI::IsMember({kJson, kXml, kCloud}))
        ->capture_default_str();
    verb.pickedFloor();
    verb.app().add_option("--drawing", verb.arguments().drawing,
                          Message::help("Drawing of the floor (.cadi2), whose lines and texts are added"));
    verb.output(Message::help("File to write the document to"), endingOfInput);
}

} // namespace

void addWallCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "wall", Message::help("Brick walls and load-bearing concrete walls"));
    addExport(group, command);
    Verb(group, command, "reply", Message::help("Write walls in the form of a reply"), writeReply)
        .projects()
        .wallKind()
        .anyFloors()
        .output(Message::help("File to write the reply to"), endingOfReply);
    Verb(group, command, "apply", Message::help("Write a reply into a project and save it"), applyReply)
        .project()
        .wallKind()
        .input("REPLY", Message::help("Reply document"))
        .strict(Message::help("reply"));
}

} // namespace orvcad
