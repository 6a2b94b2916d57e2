#include "drawing/DrawingSetRecords.h"

#include "drawing/ORVCADClassifiedLayersData.h"
#include "drawing/ORVCADDisposeInfoData.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingLocationData.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADScaleReviseData.h"
#include "drawing/ORVCADSubDrawingDataSet.h"
#include "suite/Road.h"

#include <QHash>
#include <QJsonArray>
#include <QVector>

#include <memory>

namespace bench {

namespace {

constexpr int kLayersOfADrawing = 4;
constexpr int kIdsOfALayer = 20;
constexpr int kRowsOfATable = 20;
constexpr int kCellsOfARow = 6;
constexpr double kFloorHeight = 3.0; // m
constexpr int kBeam = 15;
constexpr int kColumn = 25;
constexpr qint64 kRegion = 7;

QString numbered(const char *word, int number) { return QString::fromUtf8(word) + QString::number(number); }

Drawing drawingOf(int number, const QString &floor)
{
    Drawing drawing;
    drawing.name = numbered("S-", number);
    drawing.path = QStringLiteral("/project/drawings/") + drawing.name + QStringLiteral(".dwg");
    drawing.floor = floor;
    for (int layer = 0; layer < kLayersOfADrawing; ++layer)
        drawing.layers.append(numbered("S-BEAM-", layer));
    for (int cell = 0; cell < kCellsOfARow; ++cell)
        drawing.cells.append(numbered("KZ", cell));
    return drawing;
}

/** An array with an entry for each drawing. */
template <typename Entry> QJsonArray arrayOf(const Drawings &drawings, Entry entry)
{
    QJsonArray array;
    for (const Drawing &drawing : drawings.list)
        array.append(entry(drawing));
    return array;
}

// Sub-drawings: one of each drawing.

void fillParts(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    static ORVCADSubDrawingDataSet parts; // which the set does not own
    parts = {};
    for (const Drawing &drawing : drawings.list) {
        ORVCADSubDrawingInfo part;
        part.drawingPath = drawing.path;
        parts.addSubDrawing(drawing.path, part);
    }
    set.subDrawings = &parts;
}

QJsonValue partsByHand(const Drawings &drawings)
{
    QJsonArray parents;
    for (const Drawing *drawing : drawings.hashed)
        parents.append(QJsonObject{{QLatin1String("count"), 1},
                                   {QLatin1String("parenDrawing"), drawing->name},
                                   {QLatin1String("subDrawing"), QJsonArray{drawing->name}}});
    return QJsonObject{{QLatin1String("savePath"), QString()}, {QLatin1String("drawingInfo"), parents}};
}

// Tables: one of each drawing.

void fillTables(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    static ORVCADDrawingParseData tables; // which the set does not own
    tables = {};
    for (const Drawing &drawing : drawings.list) {
        ORVCADTableData table;
        table.drawingName = drawing.name;
        table.range = {{0, 0, 100, 50}};
        for (int row = 0; row < kRowsOfATable; ++row)
            table.rows.append({row, drawing.cells});
        tables.getTables().append(table);
    }
    set.parseData = &tables;
}

QJsonObject tableByHand(const Drawing &drawing, const QStringList &rowNumbers)
{
    QJsonObject rows;
    for (const QString &row : rowNumbers)
        rows.insert(row, QJsonArray::fromStringList(drawing.cells));
    return {{QLatin1String("type"), QStringLiteral("楼层表")},
            {QLatin1String("drawingName"), drawing.name},
            {QLatin1String("range"), QJsonArray{0, 0, 100, 50}},
            {QLatin1String("data"), rows},
            {QLatin1String("concrete"), QJsonObject()}};
}

QJsonValue tablesByHand(const Drawings &drawings)
{
    QJsonObject tables;
    for (std::size_t i = 0; i < drawings.list.size(); ++i)
        tables.insert(drawings.tableNames.at(static_cast<int>(i)), tableByHand(drawings.list[i], drawings.rowNumbers));
    return tables;
}

void readTables(const QJsonValue &json) { keep(ORVCADDrawingParseData::fromJson(json.toObject())); }

// Floors.

void fillFloors(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    set.floors = new ORVCADFloors;
    for (int i = 0; i < drawings.floorNames.size(); ++i)
        set.floors->addFloor(new ORVCADFloor(drawings.floorNames.at(i), kFloorHeight * i, kFloorHeight));
}

QJsonValue floorsByHand(const Drawings &drawings)
{
    QJsonArray floors;
    for (int i = 0; i < drawings.floorNames.size(); ++i)
        floors.append(QJsonObject{{QLatin1String("Name"), drawings.floorNames.at(i)},
                                  {QLatin1String("Code"), QString()},
                                  {QLatin1String("BottomElev"), kFloorHeight * i},
                                  {QLatin1String("Height"), kFloorHeight},
                                  {QLatin1String("StdCount"), 1},
                                  {QLatin1String("Remark"), QString()}});
    return QJsonObject{{QLatin1String("AreaName"), QString()}, {QLatin1String("Floors"), floors}};
}

void readFloors(const QJsonValue &json)
{
    keep(std::unique_ptr<ORVCADFloors>(ORVCADFloors::fromJson(json.toObject())));
}

// Floors of drawings.

void fillFloorMappings(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    set.floorMappings = new ORVCADDrawingFloorMappings;
    for (const Drawing &drawing : drawings.list)
        set.floorMappings->addMapping(kRegion, drawing.floor, drawing.name);
}

QJsonValue floorMappingsByHand(const Drawings &drawings)
{
    const int floors = drawings.floorNames.size();
    QVector<QJsonArray> names(floors);
    for (std::size_t i = 0; i < drawings.list.size(); ++i)
        names[static_cast<int>(i) % floors].append(drawings.list[i].name);
    QJsonArray mappings;
    for (int floor = 0; floor < floors; ++floor)
        mappings.append(QJsonObject{{QLatin1String("regionID"), kRegion},
                                    {QLatin1String("FloorName"), drawings.floorNames.at(floor)},
                                    {QLatin1String("DrawingNames"), names.at(floor)}});
    return mappings;
}

void readFloorMappings(const QJsonValue &json)
{
    keep(std::unique_ptr<ORVCADDrawingFloorMappings>(ORVCADDrawingFloorMappings::fromJson(json)));
}

// Element types of drawings.

void fillElementMappings(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    set.elementMappings = new ORVCADDrawingElementMappings;
    for (const Drawing &drawing : drawings.list)
        set.elementMappings->addMapping(drawing.name, QSet<int>{kBeam, kColumn});
}

QJsonValue elementMappingsByHand(const Drawings &drawings)
{
    return arrayOf(drawings, [](const Drawing &drawing) {
        return QJsonObject{{QLatin1String("DrawingName"), drawing.name},
                           {QLatin1String("ElementTypes"), QJsonArray{QStringLiteral("梁"), QStringLiteral("柱")}}};
    });
}

void readElementMappings(const QJsonValue &json)
{
    keep(std::unique_ptr<ORVCADDrawingElementMappings>(ORVCADDrawingElementMappings::fromJson(json)));
}

// Layers: a group of each drawing.

ORVCADClassifiedLayers *newLayers(const Drawing &drawing)
{
    auto *group = new ORVCADClassifiedLayers(drawing.name, kBeam);
    for (const QString &name : drawing.layers) {
        auto *layer = new ORVCADClassifiedLayer(name);
        for (int id = 0; id < kIdsOfALayer; ++id)
            layer->addEdoId(id * 7);
        group->add(layer);
    }
    return group;
}

void fillLayers(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    set.classifiedLayers = new ORVCADClassifiedLayersData;
    for (const Drawing &drawing : drawings.list)
        set.classifiedLayers->addLayers(newLayers(drawing));
}

QJsonObject groupByHand(const Drawing &drawing)
{
    QJsonArray layers;
    for (const QString &name : drawing.layers) {
        QJsonArray ids;
        for (int id = 0; id < kIdsOfALayer; ++id)
            ids.append(id * 7);
        layers.append(QJsonObject{{QLatin1String("LayerName"), name}, {QLatin1String("CADEdoIds"), ids}});
    }
    return {{QLatin1String("DrawingName"), drawing.name},
            {QLatin1String("ElementType"), QStringLiteral("梁")},
            {QLatin1String("Layers"), layers}};
}

QJsonValue layersByHand(const Drawings &drawings) { return arrayOf(drawings, &groupByHand); }

void readLayers(const QJsonValue &json)
{
    ORVCADClassifiedLayersData layers;
    const QJsonArray groups = json.toArray();
    for (const QJsonValue group : groups)
        layers.addLayers(ORVCADClassifiedLayers::fromJson(group.toObject()));
    keep(layers);
}

// Scales: one of each drawing.

void fillScales(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    set.scaleRevision = new ORVCADScaleReviseData;
    for (const Drawing &drawing : drawings.list)
        set.scaleRevision->addItem(new ORVCADScaleReviseDataItem(drawing.name));
}

QJsonValue scalesByHand(const Drawings &drawings)
{
    return arrayOf(drawings, [](const Drawing &drawing) {
        return QJsonObject{{QLatin1String("drawingName"), drawing.name},
                           {QLatin1String("originScale"), 0.0},
                           {QLatin1String("newScale"), 1.0}};
    });
}

// Locations: one of each drawing, at one crossing of axes.

void fillLocations(const Drawings &drawings, ORVCADDisposeInfoData &set)
{
    set.location = new ORVCADDrawingLocationData;
    for (const Drawing &drawing : drawings.list) {
        auto *item = new ORVCADDrawingLocationDataItem(drawing.name);
        item->addAxisInfo({QStringLiteral("1"), QStringLiteral("A"), 100.5, 200.25});
        set.location->addItem(item);
    }
}

QJsonValue locationsByHand(const Drawings &drawings)
{
    return arrayOf(drawings, [](const Drawing &drawing) {
        const QJsonObject axis{{QLatin1String("bayNum"), QStringLiteral("1")},
                               {QLatin1String("depthNum"), QStringLiteral("A")},
                               {QLatin1String("point"), QJsonArray{100.5, 200.25}}};
        return QJsonObject{{QLatin1String("drawingName"), drawing.name}, {QLatin1String("axisInfo"), QJsonArray{axis}}};
    });
}

} // namespace

Drawings::Drawings(std::size_t drawings, std::size_t floors)
{
    for (int i = 0; i < static_cast<int>(floors); ++i)
        floorNames.append(numbered("F", i));
    for (int i = 0; i < static_cast<int>(drawings); ++i) {
        list.push_back(drawingOf(i, floorNames.at(i % floorNames.size())));
        tableNames.append(numbered("table", i));
    }
    for (int i = 0; i < kRowsOfATable; ++i)
        rowNumbers.append(QString::number(i));
    QHash<QString, const Drawing *> byPath;
    for (const Drawing &drawing : list)
        byPath.insert(drawing.path, &drawing);
    for (const Drawing *drawing : qAsConst(byPath))
        hashed.push_back(drawing);
}

const std::vector<DrawingSetFamily> &drawingSetFamilies()
{
    static const std::vector<DrawingSetFamily> families{
        {"sub-drawings", "splitDrawing", 1, 0, &fillParts, &partsByHand, nullptr},
        {"rows of tables", "parseDrawing", kRowsOfATable, 0, &fillTables, &tablesByHand, &readTables},
        {"floors", "floorInfos", 0, 1, &fillFloors, &floorsByHand, &readFloors},
        {"floors of drawings", "matchFloorInfo", 1, 0, &fillFloorMappings, &floorMappingsByHand, &readFloorMappings},
        {"element types of drawings", "matchElementInfo", 1, 0, &fillElementMappings, &elementMappingsByHand,
         &readElementMappings},
        {"layers", "classifyLayer", kLayersOfADrawing, 0, &fillLayers, &layersByHand, &readLayers},
        {"scales", "reviseScale", 1, 0, &fillScales, &scalesByHand, nullptr},
        {"locations", "locateDrawing", 1, 0, &fillLocations, &locationsByHand, nullptr}};
    return families;
}

QJsonObject readable(QJsonObject document)
{
    const QLatin1String key("classifyLayer");
    QJsonArray groups = document.value(key).toArray();
    for (QJsonValueRef group : groups) {
        QJsonObject object = group.toObject();
        object.insert(QLatin1String("ClassifiedLayers"), 0);
        group = object;
    }
    if (document.contains(key))
        document.insert(key, groups);
    return document;
}

} // namespace bench
