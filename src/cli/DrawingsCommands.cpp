#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/DrawingSetInfo.h"
#include "cli/DrawingSetShape.h"
#include "cli/Files.h"
#include "cli/FloorExchange.h"
#include "cli/FloorWords.h"
#include "cli/ProjectInfo.h"
#include "cli/TextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
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

QJsonObject floorToJson(const Floor &floor)
{
    return {{"id", valueOf(floor.ID)},
            {"description", valueOf(floor.Description)},
            {"code", valueOf(floor.Code)},
            {"height", valueOf(floor.Height)},
            {"structuralElevation", valueOf(floor.StructuralElevation)},
            {"standardCount", valueOf(floor.StdFloorCount)},
            {"regionID", valueOf(floor.Region.ID)},
            {"region", valueOf(floor.Region.Description)},
            {"settings", static_cast<int>(floor.ConcreteAnchorJoints.size())}};
}

QJsonArray floorsToJson(const std::vector<Floor> &floors)
{
    QJsonArray array;
    for (const Floor &floor : floors)
        array.append(floorToJson(floor));
    return array;
}

QStringList floorLines(const QJsonArray &floors)
{
    TextTable table({{"id", Align::Right},
                     {"floor"},
                     {"code"},
                     {"height", Align::Right},
                     {"elevation", Align::Right},
                     {"storeys", Align::Right},
                     {"region"},
                     {"settings", Align::Right}});
    for (const QJsonValue value : floors) {
        QStringList cells;
        for (const char *key :
             {"id", "description", "code", "height", "structuralElevation", "standardCount", "region", "settings"})
            cells.append(shown(value.toObject().value(QLatin1String(key))));
        table.add(cells);
    }
    return table.isEmpty() ? QStringList() : table.lines();
}

void appendFaults(const QString &what, const std::vector<JsonFault> &faults, QStringList &lines)
{
    for (const JsonFault &fault : faults)
        lines.append(QStringLiteral("%1: %2: %3").arg(what, fault.place, fault.reason));
}

QString verdict(const FloorExchange &exchange)
{
    return exchange.notKept.empty() && exchange.notStable.empty()
               ? QStringLiteral("written again, it is the same document")
               : QStringLiteral("written again, it differs at %1")
                     .arg(counted(static_cast<int>(exchange.notKept.size() + exchange.notStable.size()),
                                  QStringLiteral("place")));
}

Summary showDrawingSet(const Arguments &arguments)
{
    const DrawingSetInfo info(readDrawingSet(Arguments::text(arguments.input)));
    return {info.text(), info.toJson()};
}

Summary showFloorExchange(const Arguments &arguments)
{
    const FloorExchange exchange = readFloorExchange(Arguments::text(arguments.input));
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = !output.isEmpty() && writeResult(output, QJsonDocument(exchange.written).toJson());
    const QJsonArray floors = floorsToJson(exchange.floors);
    QStringList lines{QStringLiteral("Floor exchange of %1: %2")
                          .arg(counted(floors.size(), QStringLiteral("floor")), verdict(exchange))};
    lines += floorLines(floors);
    appendFaults(QStringLiteral("not kept"), exchange.notKept, lines);
    appendFaults(QStringLiteral("not stable"), exchange.notStable, lines);
    return {lines.join('\n'),
            {{"floors", floors},
             {"same", exchange.notKept.empty() && exchange.notStable.empty()},
             {"notKept", faultsToJson(exchange.notKept)},
             {"notStable", faultsToJson(exchange.notStable)}},
            kDone,
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
    CLI::App *group = app.add_subcommand("drawings", "Sets of drawings and the names of floors on them");
    group->require_subcommand(1);

    auto arguments = newArguments();
    CLI::App *verb = group->add_subcommand("show", "What a drawing-set file holds: stages, floors, drawings, layers");
    verb->add_option("SET", arguments->input, "Drawing-set file")->required();
    verb->callback([&command, arguments] { command = [arguments] { return showDrawingSet(*arguments); }; });

    arguments = newArguments();
    verb = group->add_subcommand("floors", "Read a floor exchange, write it again and compare the two");
    verb->add_option("FLOORS", arguments->input, "Floor exchange")->required();
    verb->add_option("-o,--output", arguments->output, "File to write the document to as it is written again");
    verb->callback([&command, arguments] { command = [arguments] { return showFloorExchange(*arguments); }; });

    arguments = newArguments();
    verb = group->add_subcommand("words", "The ways in which drawings write a floor");
    verb->add_option("FLOOR", arguments->input, "Number of a floor, or a word for one")->required();
    verb->callback([&command, arguments] { command = [arguments] { return showWords(*arguments); }; });
}

} // namespace orvcad
