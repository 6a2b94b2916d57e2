#include "drawing/ORVCADClassifiedLayersData.h"
#include "drawing/ORVCADDisposeInfoData.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingLocationData.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADScaleReviseData.h"
#include "drawing/ORVCADSubDrawingDataSet.h"
#include "support/RatioBench.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>

#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constexpr int kFloors = 100;
constexpr int kLayersOfADrawing = 4;
constexpr int kIdsOfALayer = 20;
constexpr int kRowsOfATable = 20;
constexpr int kCellsOfARow = 6;
constexpr int kBeam = 15;
constexpr int kColumn = 25;
constexpr qint64 kRegion = 7;

QString numbered(const char *word, int number) { return QString::fromUtf8(word) + QString::number(number); }

/** The texts of one drawing, made once: both roads take them as they are. */
struct Drawing
{
    QString name;
    QString path;
    QString floor;
    QStringList layers;
    QStringList cells;
};

std::vector<Drawing> makeDrawings(int count)
{
    std::vector<Drawing> drawings;
    for (int i = 0; i < count; ++i) {
        Drawing drawing;
        drawing.name = numbered("S-", i);
        drawing.path = QStringLiteral("/project/drawings/") + drawing.name + QStringLiteral(".dwg");
        drawing.floor = numbered("F", i % kFloors);
        for (int layer = 0; layer < kLayersOfADrawing; ++layer)
            drawing.layers.append(numbered("S-BEAM-", layer));
        for (int cell = 0; cell < kCellsOfARow; ++cell)
            drawing.cells.append(numbered("KZ", cell));
        drawings.push_back(drawing);
    }
    return drawings;
}

// Our records.

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

ORVCADTableData makeTable(const Drawing &drawing)
{
    ORVCADTableData table;
    table.drawingName = drawing.name;
    table.range = {{0, 0, 100, 50}};
    for (int row = 0; row < kRowsOfATable; ++row)
        table.rows.append({row, drawing.cells});
    return table;
}

/** The drawing set of the process, filled. */
class FilledSet
{
public:
    explicit FilledSet(const std::vector<Drawing> &drawings)
    {
        ORVCADDisposeInfoData &set = *ORVCADDisposeInfoData::getData();
        set.subDrawings = &m_subDrawings;
        set.parseData = &m_parseData;
        set.floors = new ORVCADFloors;
        set.floorMappings = new ORVCADDrawingFloorMappings;
        set.elementMappings = new ORVCADDrawingElementMappings;
        set.classifiedLayers = new ORVCADClassifiedLayersData;
        set.scaleRevision = new ORVCADScaleReviseData;
        set.location = new ORVCADDrawingLocationData;
        for (int floor = 0; floor < kFloors; ++floor)
            set.floors->addFloor(new ORVCADFloor(numbered("F", floor), 3.0 * floor, 3.0));
        for (const Drawing &drawing : drawings)
            add(drawing, set);
    }
    ~FilledSet() { ORVCADDisposeInfoData::freeData(); }
    Q_DISABLE_COPY(FilledSet)

private:
    void add(const Drawing &drawing, ORVCADDisposeInfoData &set)
    {
        ORVCADSubDrawingInfo part;
        part.drawingPath = drawing.path;
        m_subDrawings.addSubDrawing(drawing.path, part);
        m_parseData.getTables().append(makeTable(drawing));
        set.floorMappings->addMapping(kRegion, drawing.floor, drawing.name);
        set.elementMappings->addMapping(drawing.name, QSet<int>{kBeam, kColumn});
        set.classifiedLayers->addLayers(newLayers(drawing));
        set.scaleRevision->addItem(new ORVCADScaleReviseDataItem(drawing.name));
        auto *item = new ORVCADDrawingLocationDataItem(drawing.name);
        item->addAxisInfo({QStringLiteral("1"), QStringLiteral("A"), 100.5, 200.25});
        set.location->addItem(item);
    }

    ORVCADSubDrawingDataSet m_subDrawings;
    ORVCADDrawingParseData m_parseData;
};

// The same document by hand, with every text ready.

QJsonObject layersByHand(const Drawing &drawing)
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

QJsonArray floorsByHand()
{
    QJsonArray floors;
    for (int floor = 0; floor < kFloors; ++floor)
        floors.append(QJsonObject{{QLatin1String("Name"), numbered("F", floor)},
                                  {QLatin1String("Code"), QString()},
                                  {QLatin1String("BottomElev"), 3.0 * floor},
                                  {QLatin1String("Height"), 3.0},
                                  {QLatin1String("StdCount"), 1},
                                  {QLatin1String("Remark"), QString()}});
    return floors;
}

QJsonArray floorMappingsByHand(const std::vector<Drawing> &drawings)
{
    QVector<QJsonArray> names(kFloors);
    for (std::size_t i = 0; i < drawings.size(); ++i)
        names[static_cast<int>(i) % kFloors].append(drawings[i].name);
    QJsonArray mappings;
    for (int floor = 0; floor < kFloors; ++floor)
        mappings.append(QJsonObject{{QLatin1String("regionID"), kRegion},
                                    {QLatin1String("FloorName"), numbered("F", floor)},
                                    {QLatin1String("DrawingNames"), names.at(floor)}});
    return mappings;
}

QJsonObject documentByHand(const std::vector<Drawing> &drawings, const QStringList &tableNames,
                           const QStringList &rowNumbers)
{
    QJsonArray parents;
    QJsonArray elements;
    QJsonArray layers;
    QJsonArray scales;
    QJsonArray locations;
    QJsonObject tables;
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        const Drawing &drawing = drawings[i];
        parents.append(QJsonObject{{QLatin1String("parenDrawing"), drawing.name},
                                   {QLatin1String("subDrawing"), QJsonArray{drawing.name}},
                                   {QLatin1String("count"), 1}});
        tables.insert(tableNames.at(static_cast<int>(i)), tableByHand(drawing, rowNumbers));
        elements.append(
            QJsonObject{{QLatin1String("DrawingName"), drawing.name},
                        {QLatin1String("ElementTypes"), QJsonArray{QStringLiteral("梁"), QStringLiteral("柱")}}});
        layers.append(layersByHand(drawing));
        scales.append(QJsonObject{{QLatin1String("drawingName"), drawing.name},
                                  {QLatin1String("originScale"), 0.0},
                                  {QLatin1String("newScale"), 1.0}});
        const QJsonObject axis{{QLatin1String("bayNum"), QStringLiteral("1")},
                               {QLatin1String("depthNum"), QStringLiteral("A")},
                               {QLatin1String("point"), QJsonArray{100.5, 200.25}}};
        locations.append(
            QJsonObject{{QLatin1String("drawingName"), drawing.name}, {QLatin1String("axisInfo"), QJsonArray{axis}}});
    }
    const QJsonObject split{{QLatin1String("savePath"), QString()}, {QLatin1String("drawingInfo"), parents}};
    const QJsonObject floors{{QLatin1String("AreaName"), QString()}, {QLatin1String("Floors"), floorsByHand()}};
    return {
        {QLatin1String("splitDrawing"), split},        {QLatin1String("parseDrawing"), tables},
        {QLatin1String("floorInfos"), floors},         {QLatin1String("matchFloorInfo"), floorMappingsByHand(drawings)},
        {QLatin1String("matchElementInfo"), elements}, {QLatin1String("classifyLayer"), layers},
        {QLatin1String("reviseScale"), scales},        {QLatin1String("locateDrawing"), locations}};
}

QStringList tableNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(numbered("table", i));
    return names;
}

QStringList rowNumbers()
{
    QStringList numbers;
    for (int i = 0; i < kRowsOfATable; ++i)
        numbers.append(QString::number(i));
    return numbers;
}

// Reading: what has a reader, out of the same document; the group of layers with the key that its reader demands.

QByteArray readableDocument(const std::vector<Drawing> &drawings)
{
    QJsonObject document = documentByHand(drawings, tableNames(static_cast<int>(drawings.size())), rowNumbers());
    for (const char *key : {"splitDrawing", "reviseScale", "locateDrawing"})
        document.remove(QLatin1String(key));
    QJsonArray layers = document.value(QLatin1String("classifyLayer")).toArray();
    for (QJsonValueRef group : layers) {
        QJsonObject object = group.toObject();
        object.insert(QLatin1String("ClassifiedLayers"), 0);
        group = object;
    }
    document.insert(QLatin1String("classifyLayer"), layers);
    return QJsonDocument(document).toJson();
}

void readRecords(const QByteArray &bytes)
{
    const QJsonObject document = QJsonDocument::fromJson(bytes).object();
    const auto tables = ORVCADDrawingParseData::fromJson(document.value(QLatin1String("parseDrawing")).toObject());
    const std::unique_ptr<ORVCADFloors> floors(
        ORVCADFloors::fromJson(document.value(QLatin1String("floorInfos")).toObject()));
    const std::unique_ptr<ORVCADDrawingFloorMappings> places(
        ORVCADDrawingFloorMappings::fromJson(document.value(QLatin1String("matchFloorInfo"))));
    const std::unique_ptr<ORVCADDrawingElementMappings> types(
        ORVCADDrawingElementMappings::fromJson(document.value(QLatin1String("matchElementInfo"))));
    ORVCADClassifiedLayersData layers;
    const QJsonArray groups = document.value(QLatin1String("classifyLayer")).toArray();
    for (const QJsonValue group : groups)
        layers.addLayers(ORVCADClassifiedLayers::fromJson(group.toObject()));
    bench::keep(tables.size() + layers.getLayers().size());
}

/** A look at every value, which no reader can avoid. */
double walk(const QJsonValue &value)
{
    double sum = value.toDouble();
    if (value.isString())
        sum += value.toString().size();
    const QJsonArray array = value.toArray();
    for (const QJsonValue entry : array)
        sum += walk(entry);
    const QJsonObject object = value.toObject();
    for (const QJsonValue member : object)
        sum += walk(member);
    return sum;
}

void addReadAndWrite(bench::RatioTable &table)
{
    constexpr int kDrawings = 1000;
    constexpr double kCeiling = 1.25;
    const std::vector<Drawing> drawings = makeDrawings(kDrawings);
    const QStringList tables = tableNames(kDrawings);
    const QStringList rows = rowNumbers();
    const FilledSet filled(drawings);
    const auto ours = [] { return QJsonDocument(ORVCADDisposeInfoData::getData()->toJson()).toJson(); };
    const auto byHand = [&] { return QJsonDocument(documentByHand(drawings, tables, rows)).toJson(); };
    if (ours().size() != byHand().size())
        std::abort(); // the two differ in the order of parents and types, and in nothing else
    table.row(
        "set written / QJsonObjects by hand, toJson", kDrawings, [&] { bench::keep(ours()); },
        [&] { bench::keep(byHand()); }, kCeiling);
    const QByteArray bytes = readableDocument(drawings);
    table.row(
        "set read / QJsonDocument and a walk", kDrawings, [&] { readRecords(bytes); },
        [&] { bench::keep(walk(QJsonDocument::fromJson(bytes).object())); }, kCeiling);
}

// Lookups.

struct Mappings
{
    explicit Mappings(int count)
    {
        for (int i = 0; i < count; ++i) {
            names.append(numbered("S-", i));
            floorNames.append(numbered("F", i));
            elements.addMapping(names.last(), kBeam);
            floors.addMapping(i, floorNames.last(), names.last());
            ORVCADSubDrawingInfo part;
            part.drawingPath = QStringLiteral("/project/drawings/") + names.last() + QStringLiteral(".dwg");
            parts.addSubDrawing(part.drawingPath, part);
        }
    }

    template <typename Look> bench::Work each(Look look) const
    {
        return [this, look] {
            for (int i = 0; i < names.size(); ++i)
                bench::keep(look(*this, i));
        };
    }

    QStringList names;
    QStringList floorNames;
    ORVCADDrawingElementMappings elements;
    ORVCADDrawingFloorMappings floors;
    ORVCADSubDrawingDataSet parts;
};

void addLookups(bench::RatioTable &table)
{
    constexpr int kSmall = 10;
    constexpr int kMiddle = 1000;
    constexpr int kLarge = 10000;
    constexpr double kFlat = 3.0; // what misses of the processor's caches cost; a walk would be some 300
    const Mappings small(kSmall);
    const Mappings large(kLarge);
    const auto add = [&](const char *name, auto look) {
        table.growth(name, kLarge, large.each(look), kSmall, small.each(look), kFlat);
    };
    add("types of a drawing, 10 to 10,000 entries",
        [](const Mappings &one, int i) { return one.elements.getMatchElementType(one.names.at(i)); });
    add("drawings of a floor",
        [](const Mappings &one, int i) { return one.floors.getMappingDrawingNames(i, one.floorNames.at(i)); });
    add("floors of a drawing", [](const Mappings &one, int i) { return one.floors.getMappingFloors(one.names.at(i)); });
    add("floors of a region", [](const Mappings &one, int i) { return one.floors.getMappingFloorNames(i); });
    add("path of a sub-drawing",
        [](const Mappings &one, int i) { return one.parts.getSubDrawingCompletePath(one.names.at(i)); });
    table.growth(
        "mappings added, 1,000 to 10,000 entries", kLarge, [] { bench::keep(Mappings(kLarge)); }, kMiddle,
        [] { bench::keep(Mappings(kMiddle)); }, kFlat);
}

// Every drawing of a large set on every floor of a high building.

struct Building
{
    Building(int drawings, int floors)
    {
        for (int floor = 0; floor < floors; ++floor)
            floorNames.append(numbered("F", floor));
        for (int drawing = 0; drawing < drawings; ++drawing) {
            names.append(numbered("S-", drawing));
            for (const QString &floor : qAsConst(floorNames))
                mappings.addMapping(kRegion, floor, names.last());
        }
        mappings.getMappingFloors(names.last()); // the first lookup indexes
    }

    QStringList names;
    QStringList floorNames;
    ORVCADDrawingFloorMappings mappings;
};

/** The same pairs in hash tables that are made for the two questions. */
struct BuildingByHand
{
    explicit BuildingByHand(const Building &building)
    {
        for (const QString &floor : building.floorNames)
            drawings.insert({kRegion, floor}, building.names);
        for (const QString &name : building.names)
            for (const QString &floor : building.floorNames)
                floors[name].append({kRegion, floor});
    }

    QHash<QPair<qint64, QString>, QStringList> drawings;
    QHash<QString, QList<std::pair<qint64, QString>>> floors;
};

void addBuilding(bench::RatioTable &table)
{
    constexpr int kDrawings = 5000;
    constexpr int kSmall = 50;
    constexpr int kFloorsOfBuilding = 60;
    constexpr double kFlat = 3.0;   // what misses of the processor's caches cost
    constexpr double kLookup = 3.0; // the records are asked for each floor name; the hashes hold ready answers
    const Building large(kDrawings, kFloorsOfBuilding);
    const Building small(kSmall, kFloorsOfBuilding);
    const BuildingByHand byHand(large);
    const auto floorsOfAll = [](const Building &one) {
        return [&one] {
            for (const QString &name : one.names)
                bench::keep(one.mappings.getMappingFloors(name));
        };
    };
    const auto drawingsOfAll = [](const Building &one) {
        return [&one] {
            for (const QString &floor : one.floorNames)
                bench::keep(one.mappings.getMappingDrawingNames(kRegion, floor));
        };
    };
    table.growth("drawings of a floor, 50 to 5,000 by 60", kFloorsOfBuilding, drawingsOfAll(large), kFloorsOfBuilding,
                 drawingsOfAll(small), kFlat);
    table.row(
        "floors of each of 5,000 drawings / two hashes", kDrawings, floorsOfAll(large),
        [&] {
            for (const QString &name : large.names) {
                auto floors = byHand.floors.value(name);
                floors.detach(); // an answer is a list of its own here too
                bench::keep(floors);
            }
        },
        kLookup);
    table.row(
        "drawings of each of 60 floors / two hashes", kFloorsOfBuilding, drawingsOfAll(large),
        [&] {
            for (const QString &floor : large.floorNames)
                bench::keep(byHand.drawings.value({kRegion, floor}));
        },
        kLookup);
}

} // namespace

int main()
{
    bench::RatioTable table("Drawing set");
    addReadAndWrite(table);
    addLookups(table);
    addBuilding(table);
    return table.print();
}
