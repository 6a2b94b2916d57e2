#include "cli/Counted.h"
#include "cli/DrawingSetInfo.h"
#include "cli/DrawingSetShape.h"
#include "cli/Files.h"
#include "cli/FloorExchange.h"
#include "cli/FloorWords.h"
#include "cli/Message.h"
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
    {"id", QT_TRANSLATE_NOOP("orvcad", "id"), Align::Right, [](const Floor &floor) { return valueOf(floor.ID); }},
    {"description", QT_TRANSLATE_NOOP("orvcad", "floor"), Align::Left,
     [](const Floor &floor) { return valueOf(floor.Description); }},
    {"code", QT_TRANSLATE_NOOP("orvcad", "code"), Align::Left, [](const Floor &floor) { return valueOf(floor.Code); }},
    {"height", QT_TRANSLATE_NOOP("orvcad", "height"), Align::Right,
     [](const Floor &floor) { return valueOf(floor.Height); }},
    {"structuralElevation", QT_TRANSLATE_NOOP("orvcad", "elevation"), Align::Right,
     [](const Floor &floor) { return valueOf(floor.StructuralElevation); }},
    {"standardCount", QT_TRANSLATE_NOOP("orvcad", "storeys"), Align::Right,
     [](const Floor &floor) { return valueOf(floor.StdFloorCount); }},
    {"regionID", nullptr, Align::Right, [](const Floor &floor) { return valueOf(floor.Region.ID); }},
    {"region", QT_TRANSLATE_NOOP("orvcad", "region"), Align::Left,
     [](const Floor &floor) { return valueOf(floor.Region.Description); }},
    {"settings", QT_TRANSLATE_NOOP("orvcad", "settings"), Align::Right,
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
            columns.push_back({Message::tr(field.heading), field.align});
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
    const QStringList lines = QStringList(info.text()) + faultLines(Message::tr("not read"), notRead);
    return {lines.join('\n'), json, notRead.empty() ? kDone : kLeftOut};
}

Summary showFloorExchange(const Arguments &arguments)
{
    const FloorExchange exchange = readFloorExchange(Arguments::text(arguments.input));
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = !output.isEmpty() && writeResult(output, exchange.written);
    const std::size_t differences = exchange.notKept.size() + exchange.notStable.size();
    QStringList lines{Message::tr("Floor exchange of %1: %2")
                          .arg(counted(static_cast<int>(exchange.floors.size()), Message::tr("floor")),
                               writtenAgainText(differences))};
    lines += floorLines(exchange.floors);
    lines += faultLines(Message::tr("not kept"), exchange.notKept);
    lines += faultLines(Message::tr("not stable"), exchange.notStable);
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
    CLI::App &group = addGroup(app, "drawings", Message::help("Sets of drawings and the names of floors on them"));
    Verb(group, command, "show", Message::help("What a drawing-set file holds: stages, floors, drawings, layers"),
         showDrawingSet)
        .inputs("SET", Message::help("Drawing-set file"));
    Verb(group, command, "floors", Message::help("Read a floor exchange, write it again and compare the two"),
         showFloorExchange)
        .inputs("FLOORS", Message::help("Floor exchange"))
        .output(Message::help("File to write the document to as it is written again"), ".floor-sdc.json",
                Verb::NoOutput::NothingIsWritten);
    Verb(group, command, "words", Message::help("The ways in which drawings write a floor"), showWords)
        .input("FLOOR", Message::help("Number of a floor, or a word for one"));
}

} // namespace orvcad
