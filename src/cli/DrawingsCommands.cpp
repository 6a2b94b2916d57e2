#include "cli/Counted.h"
#include "cli/DrawingSetInfo.h"
#include "cli/DrawingSetShape.h"
#include "cli/Files.h"
#include "cli/FloorExchange.h"
#include "cli/FloorWords.h"
#include "cli/TextTable.h"
#include "cli/Verb.h"

#include <QJsonArray>
#include <QStringList>

namespace orvcad {

namespace {

using Align = TextTable::Align;
using Floor = ORVCADFloorSDCData::Floor;

// A field of the exchange that has no value is null, and a dash for people.

template <typename T> QJsonValue valueOf(const ORVCADFloorSDCData::Data<T> &data)
{
    return data.null ? QJsonValue(QJsonValue::Null) : QJsonValue(data.value);
}

QString shown(const QJsonValue &value) { return value.isNull() ? QStringLiteral("-") : value.toVariant().toString(); }

/** What is told of a floor: to machines under a key, to people in a column. */
struct FloorField
{
    const char *key;
    const char *heading; ///< null for what people are not told
    Align align;
    QJsonValue (*value)(const Floor &);
};
const FloorField kFloorFields[] = {
    {"id", "id", Align::Right, [](const Floor &floor) { return valueOf(floor.ID); }},
    {"description", "floor", Align::Left, [](const Floor &floor) { return valueOf(floor.Description); }},
    {"code", "code", Align::Left, [](const Floor &floor) { return valueOf(floor.Code); }},
    {"height", "height", Align::Right, [](const Floor &floor) { return valueOf(floor.Height); }},
    {"structuralElevation", "elevation", Align::Right,
     [](const Floor &floor) { return valueOf(floor.StructuralElevation); }},
    {"standardCount", "storeys", Align::Right, [](const Floor &floor) { return valueOf(floor.StdFloorCount); }},
    {"regionID", nullptr, Align::Right, [](const Floor &floor) { return valueOf(floor.Region.ID); }},
    {"region", "region", Align::Left, [](const Floor &floor) { return valueOf(floor.Region.Description); }},
    {"settings", "settings", Align::Right,
     [](const Floor &floor) { return QJsonValue(static_cast<int>(floor.ConcreteAnchorJoints.size())); }},
};

QJsonArray floorsToJson(const std::vector<Floor> &floors)
{
    QJsonArray array;
    for (const Floor &floor : floors) {
        QJsonObject json;
        for (const FloorField &field : kFloorFields)
            json[QLatin1String(field.key)] = field.value(floor);
        array.append(json);
    }
    return array;
}

QStringList floorLines(const std::vector<Floor> &floors)
{
    std::vector<TextTable::Column> columns;
    for (const FloorField &field : kFloorFields)
        if (field.heading)
            columns.push_back({field.heading, field.align});
    TextTable table(columns);
    for (const Floor &floor : floors) {
        QStringList cells;
        for (const FloorField &field : kFloorFields)
            if (field.heading)
                cells.append(shown(field.value(floor)));
        table.add(cells);
    }
    return table.isEmpty() ? QStringList() : table.lines();
}

Summary showDrawingSet(const Arguments &arguments)
{
    const QJsonObject set = readDrawingSet(Arguments::text(arguments.input));
    const DrawingSetInfo info(set);
    const std::vector<JsonFault> notRead = unreadInDrawingSet(set);
    QJsonObject json = info.toJson();
    json["notRead"] = faultsToJson(notRead);
    const QStringList lines = QStringList(info.text()) + faultLines(QStringLiteral("not read"), notRead);
    return {lines.join('\n'), json, notRead.empty() ? kDone : kLeftOut};
}

Summary showFloorExchange(const Arguments &arguments)
{
    const FloorExchange exchange = readFloorExchange(Arguments::text(arguments.input));
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = !output.isEmpty() && writeResult(output, exchange.written);
    const std::size_t differences = exchange.notKept.size() + exchange.notStable.size();
    QStringList lines{QStringLiteral("Floor exchange of %1: %2")
                          .arg(counted(static_cast<int>(exchange.floors.size()), QStringLiteral("floor")),
                               writtenAgainText(differences))};
    lines += floorLines(exchange.floors);
    lines += faultLines(QStringLiteral("not kept"), exchange.notKept);
    lines += faultLines(QStringLiteral("not stable"), exchange.notStable);
    return {lines.join('\n'),
            {{"floors", floorsToJson(exchange.floors)},
             {"same", differences == 0},
             {"notKept", faultsToJson(exchange.notKept)},
             {"notStable", faultsToJson(exchange.notStable)}},
            exchange.lost == 0 ? kDone : kLeftOut,
            onStdout};
}

Summary showWords(const Arguments &arguments)
{
    const FloorWords words = floorWords(Arguments::text(arguments.input));
    return {words.text(), words.toJson()};
}

} // namespace

void addDrawingsCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "drawings", "Sets of drawings and the names of floors on them");
    Verb(group, command, "show", "What a drawing-set file holds: stages, floors, drawings, layers", showDrawingSet)
        .inputs("SET", "Drawing-set file");
    Verb(group, command, "floors", "Read a floor exchange, write it again and compare the two", showFloorExchange)
        .inputs("FLOORS", "Floor exchange")
        .output("File to write the document to as it is written again", ".floor-sdc.json",
                Verb::NoOutput::NothingIsWritten);
    Verb(group, command, "words", "The ways in which drawings write a floor", showWords)
        .input("FLOOR", "Number of a floor, or a word for one");
}

} // namespace orvcad
