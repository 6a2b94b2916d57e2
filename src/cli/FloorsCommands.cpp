#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/FloorsDocument.h"
#include "cli/ProjectInfo.h"
#include "cli/TextTable.h"
#include "drawing/ORVCADFloor.h"
#include "drawing/ORVCADFloors.h"

#include <QJsonArray>
#include <QJsonDocument>
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

QJsonObject describe(ORVCADFloors &floors)
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

QString shown(const QJsonValue &name) { return name.isString() ? name.toString() : QStringLiteral("-"); }

TextTable tableOf(const QJsonArray &floors)
{
    constexpr auto right = TextTable::Align::Right;
    TextTable table({{"no", right},
                     {"floor"},
                     {"bottom m", right},
                     {"top m", right},
                     {"storeys", right},
                     {"upstairs"},
                     {"downstairs"}});
    int number = 0;
    for (const QJsonValue value : floors) {
        const QJsonObject floor = value.toObject();
        table.add({QString::number(++number), floor["name"].toString(), QString::number(floor["bottomElev"].toDouble()),
                   QString::number(floor["topElev"].toDouble()), QString::number(floor["standardCount"].toInt()),
                   shown(floor["upstairs"]), shown(floor["downstairs"])});
    }
    return table;
}

QString toText(const QJsonObject &description)
{
    QStringList lines{QStringLiteral("Area %1").arg(description["areaName"].toString())};
    lines += tableOf(description["floors"].toArray()).lines();
    lines.append(QStringLiteral("base %1, first %2, highest %3, lowest %4")
                     .arg(shown(description["base"]), shown(description["first"]), shown(description["highest"]),
                          shown(description["lowest"])));
    return lines.join('\n');
}

Summary exportFloors(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXRegion &region = requireRegion(*project, Arguments::text(arguments.region));
    const auto floors = floorsOfRegion(region);
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, QJsonDocument(floors->toJson()).toJson());
    return {QStringLiteral("Wrote %1 of %2")
                .arg(counted(floors->getCount(), QStringLiteral("floor")), floors->getAreaName()),
            {{"output", output}, {"areaName", floors->getAreaName()}, {"floors", floors->getCount()}},
            kDone,
            onStdout};
}

Summary showFloors(const Arguments &arguments)
{
    const FloorsDocument document = readFloorsDocument(Arguments::text(arguments.input));
    QJsonObject json = describe(*document.floors);
    QString text = toText(json);
    json["leftOut"] = QJsonArray::fromStringList(document.leftOut);
    for (const QString &place : document.leftOut)
        text += QStringLiteral("\nleft out: ") + place;
    return {text, json, document.leftOut.isEmpty() ? kDone : kLeftOut};
}

} // namespace

void addFloorsCommands(CLI::App &app, Command &command)
{
    CLI::App *group = app.add_subcommand("floors", "Floors documents");
    group->require_subcommand(1);

    auto arguments = newArguments();
    CLI::App *verb = group->add_subcommand("export", "Write the floors of a region as a floors document");
    addProject(verb, arguments);
    verb->add_option("--region", arguments->region, "Name of the region; may be absent where there is only one");
    addOutput(verb, arguments, "File to write the document to");
    verb->callback([&command, arguments] { command = [arguments] { return exportFloors(*arguments); }; });

    arguments = newArguments();
    verb = group->add_subcommand("show", "Read a floors document and print how its floors stand to each other");
    verb->add_option("FLOORS", arguments->input, "Floors document")->required();
    verb->callback([&command, arguments] { command = [arguments] { return showFloors(*arguments); }; });
}

} // namespace orvcad
