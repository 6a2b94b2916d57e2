#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/FloorsDocument.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/TextTable.h"
#include "cli/Verb.h"
#include "cli/Written.h"
#include "drawing/ORVCADFloor.h"
#include "drawing/ORVCADFloors.h"

#include <QJsonArray>
#include <QStringList>

namespace orvcad {

namespace {

QJsonValue nameOf(ORVCADFloor *floor) { return floor ? QJsonValue(floor->name()) : QJsonValue(QJsonValue::Null); }

QJsonObject floorToJson(ORVCADFloors &floors, ORVCADFloor &floor)
{
    return {{"name", floor.name()},
            {"bottomElev", floor.btmElev()},
            {"topElev", floor.topElev()},
            {"height", floor.height()},
            {"standardCount", floor.stdCount()},
            {"upstairs", nameOf(floors.getUpstairFloor(&floor))},
            {"downstairs", nameOf(floors.getDownstairFloor(&floor))}};
}

QJsonObject floorsToJson(ORVCADFloors &floors)
{
    QJsonArray list;
    for (ORVCADFloor *floor : qAsConst(floors.getFloors()))
        list.append(floorToJson(floors, *floor));
    return {{"areaName", floors.getAreaName()},
            {"floors", list},
            {"base", nameOf(floors.getBaseFloor())},
            {"first", nameOf(floors.getFirstFloor())},
            {"highest", nameOf(floors.getHighestFloor())},
            {"lowest", nameOf(floors.getLowestFloor())}};
}

QString shown(ORVCADFloor *floor) { return floor ? floor->name() : QStringLiteral("-"); }

QStringList floorLines(ORVCADFloors &floors)
{
    constexpr auto right = TextTable::Align::Right;
    TextTable table({{Message::tr("no"), right},
                     {Message::tr("floor")},
                     {Message::tr("bottom m"), right},
                     {Message::tr("top m"), right},
                     {Message::tr("storeys"), right},
                     {Message::tr("upstairs")},
                     {Message::tr("downstairs")}});
    int number = 0;
    for (ORVCADFloor *floor : qAsConst(floors.getFloors()))
        table.add({QString::number(++number), floor->name(), QString::number(floor->btmElev()),
                   QString::number(floor->topElev()), QString::number(floor->stdCount()),
                   shown(floors.getUpstairFloor(floor)), shown(floors.getDownstairFloor(floor))});
    return table.lines();
}

QString floorsText(ORVCADFloors &floors)
{
    QStringList lines{Message::tr("Area %1").arg(floors.getAreaName())};
    lines += floorLines(floors);
    lines.append(Message::tr("base %1, first %2, highest %3, lowest %4")
                     .arg(shown(floors.getBaseFloor()), shown(floors.getFirstFloor()), shown(floors.getHighestFloor()),
                          shown(floors.getLowestFloor())));
    return lines.join('\n');
}

Summary exportFloors(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = floorsOfRegion(requireRegion(*project, Arguments::text(arguments.region)));
    return writeDocument(
        arguments, floors->toJson(),
        {Message::tr("Wrote %1 of %2").arg(counted(floors->getCount(), Message::tr("floor")), floors->getAreaName()),
         {{"areaName", floors->getAreaName()}, {"floors", floors->getCount()}}});
}

Summary showFloors(const Arguments &arguments)
{
    const FloorsDocument document = readFloorsDocument(Arguments::text(arguments.input));
    QJsonObject json = floorsToJson(*document.floors);
    QString text = floorsText(*document.floors);
    json["leftOut"] = QJsonArray::fromStringList(document.leftOut);
    for (const QString &place : document.leftOut)
        text += u'\n' + Message::tr("left out: %1").arg(place);
    return {text, json, document.leftOut.isEmpty() ? kDone : kLeftOut};
}

} // namespace

void addFloorsCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "floors", Message::help("Floors documents"));
    Verb(group, command, "export", Message::help("Write the floors of a region as a floors document"), exportFloors)
        .projects()
        .region()
        .output(Message::help("File to write the document to"), ".floors.json");
    Verb(group, command, "show", Message::help("Read a floors document and print how its floors stand to each other"),
         showFloors)
        .inputs("FLOORS", Message::help("Floors document"));
}

} // namespace orvcad
