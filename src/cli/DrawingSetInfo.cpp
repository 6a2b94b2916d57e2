#include "cli/DrawingSetInfo.h"

#include "cli/Counted.h"
#include "cli/Message.h"
#include "cli/TextTable.h"
#include "drawing/DrawingKeys.h"
#include "platform/services/dwgxCommonUtil.h"

#include <QJsonArray>

#include <algorithm>

namespace orvcad {

namespace {

namespace key = drawing::key;
using Align = TextTable::Align;

QStringList textsOf(const QJsonValue &array)
{
    QStringList texts;
    for (const QJsonValue text : array.toArray())
        texts.append(text.toString());
    return texts;
}

qint64 wholeOf(const QJsonValue &number) { return number.toVariant().toLongLong(); }

/** A name as people are shown it: one without letters would be overlooked. */
QString shown(const QString &name) { return name.trimmed().isEmpty() ? '"' + name + '"' : name; }

QString shownList(const QStringList &names)
{
    QStringList texts;
    for (const QString &name : names)
        texts.append(shown(name));
    return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(", "));
}

QString shownNumber(const QJsonValue &number)
{
    return number.isDouble() ? QString::number(number.toDouble()) : QStringLiteral("-");
}

QString shownCount(int count) { return count == 0 ? QStringLiteral("-") : QString::number(count); }

template <typename Record, typename ToJson> QJsonArray jsonArrayOf(const std::vector<Record> &records, ToJson toJson)
{
    QJsonArray array;
    for (const Record &record : records)
        array.append(toJson(record));
    return array;
}

QStringList titled(const QString &title, const TextTable &table)
{
    return table.isEmpty() ? QStringList() : QStringList{QString(), title} + table.lines();
}

} // namespace

DrawingSetInfo::DrawingSetInfo(const QJsonObject &set)
    : m_stages{
          {key::splitDrawing, QT_TRANSLATE_NOOP("orvcad", "drawings split"),
           QT_TRANSLATE_NOOP("orvcad", "sub-drawing")},
          {key::parseDrawing, QT_TRANSLATE_NOOP("orvcad", "tables parsed"), QT_TRANSLATE_NOOP("orvcad", "table")},
          {key::floorInfos, QT_TRANSLATE_NOOP("orvcad", "floors taken"), QT_TRANSLATE_NOOP("orvcad", "floor")},
          {key::matchFloorInfo, QT_TRANSLATE_NOOP("orvcad", "floors matched"), QT_TRANSLATE_NOOP("orvcad", "mapping")},
          {key::matchElementInfo, QT_TRANSLATE_NOOP("orvcad", "element types matched"),
           QT_TRANSLATE_NOOP("orvcad", "mapping")},
          {key::classifyLayer, QT_TRANSLATE_NOOP("orvcad", "layers classified"), QT_TRANSLATE_NOOP("orvcad", "group")},
          {key::reviseScale, QT_TRANSLATE_NOOP("orvcad", "scales revised"), QT_TRANSLATE_NOOP("orvcad", "drawing")},
          {key::locateDrawing, QT_TRANSLATE_NOOP("orvcad", "drawings located"), QT_TRANSLATE_NOOP("orvcad", "drawing")}}
{
    takeParts(set.value(key::splitDrawing).toObject());
    takeTables(set.value(key::parseDrawing).toObject());
    takeFloors(set.value(key::floorInfos).toObject());
    takePlaces(set.value(key::matchFloorInfo));
    takeTypes(set.value(key::matchElementInfo));
    takeLayers(set.value(key::classifyLayer));
    takeScales(set.value(key::reviseScale));
    takeLocations(set.value(key::locateDrawing));
}

// The stages.

void DrawingSetInfo::note(QLatin1String key, bool present, int entries)
{
    const auto stage = std::find_if(m_stages.begin(), m_stages.end(), [&](const Stage &one) { return one.key == key; });
    stage->present = present;
    stage->entries = entries;
}

void DrawingSetInfo::takeParts(const QJsonObject &split)
{
    int parts = 0;
    for (const QJsonValue value : split.value(key::drawingInfo).toArray()) {
        const QJsonObject parent = value.toObject();
        for (const QString &name : textsOf(parent.value(key::subDrawing))) {
            m_drawings.of(name).parent = parent.value(key::parentDrawing).toString();
            ++parts;
        }
    }
    note(key::splitDrawing, !split.isEmpty(), parts);
}

void DrawingSetInfo::takeTables(const QJsonObject &tables)
{
    for (const QJsonValue table : tables)
        ++m_drawings.of(table.toObject().value(key::lowerDrawingName).toString()).tables;
    note(key::parseDrawing, !tables.isEmpty(), tables.size());
}

void DrawingSetInfo::takeFloors(const QJsonObject &document)
{
    m_areaName = document.value(key::areaName).toString();
    const QJsonArray floors = document.value(key::floors).toArray();
    for (const QJsonValue floor : floors)
        m_floors.append(floor.toObject().value(key::name).toString()).record = floor.toObject();
    note(key::floorInfos, !document.isEmpty(), floors.size());
}

void DrawingSetInfo::takePlaces(const QJsonValue &mappings)
{
    const QJsonArray array = mappings.toArray();
    for (const QJsonValue value : array) {
        const QJsonObject mapping = value.toObject();
        const Place place{wholeOf(mapping.value(key::regionId)), mapping.value(key::floorName).toString()};
        const QStringList names = textsOf(mapping.value(key::drawingNames));
        m_floors.of(place.floor).drawings += names;
        for (const QString &name : names)
            m_drawings.of(name).places.push_back(place);
    }
    note(key::matchFloorInfo, mappings.isArray(), array.size());
}

void DrawingSetInfo::takeTypes(const QJsonValue &mappings)
{
    const QJsonArray array = mappings.toArray();
    for (const QJsonValue mapping : array)
        m_drawings.of(mapping.toObject().value(key::drawingName).toString()).types +=
            textsOf(mapping.toObject().value(key::elementTypes));
    note(key::matchElementInfo, mappings.isArray(), array.size());
}

void DrawingSetInfo::takeLayers(const QJsonValue &groups)
{
    const QJsonArray array = groups.toArray();
    for (const QJsonValue value : array) {
        const QJsonObject group = value.toObject();
        Drawing &drawing = m_drawings.of(group.value(key::drawingName).toString());
        TypeLayers &type = m_types.of(group.value(key::elementType).toString());
        type.drawings.insert(drawing.name);
        for (const QJsonValue layer : group.value(key::layers).toArray()) {
            const int objects = layer.toObject().value(key::cadEdoIds).toArray().size();
            type.layerNames.append(layer.toObject().value(key::layerName).toString());
            ++drawing.layers;
            ++type.layers;
            drawing.objects += objects;
            type.objects += objects;
        }
    }
    for (TypeLayers &type : m_types.list)
        type.layerNames.removeDuplicates();
    note(key::classifyLayer, groups.isArray(), array.size());
}

void DrawingSetInfo::takeScales(const QJsonValue &scales)
{
    const QJsonArray array = scales.toArray();
    for (const QJsonValue value : array) {
        Drawing &drawing = m_drawings.of(value.toObject().value(key::lowerDrawingName).toString());
        drawing.originScale = value.toObject().value(key::originScale);
        drawing.newScale = value.toObject().value(key::newScale);
    }
    note(key::reviseScale, scales.isArray(), array.size());
}

void DrawingSetInfo::takeLocations(const QJsonValue &locations)
{
    const QJsonArray array = locations.toArray();
    for (const QJsonValue location : array)
        m_drawings.of(location.toObject().value(key::lowerDrawingName).toString()).crossings +=
            location.toObject().value(key::axisInfo).toArray().size();
    note(key::locateDrawing, locations.isArray(), array.size());
}

// For machines.

QJsonObject DrawingSetInfo::toJson(const Stage &stage)
{
    return {{"key", stage.key}, {"present", stage.present}, {"entries", stage.entries}};
}

QJsonObject DrawingSetInfo::toJson(const Drawing &drawing)
{
    const auto placeToJson = [](const Place &place) {
        return QJsonObject{{"regionID", place.region}, {"floor", place.floor}};
    };
    return {{"name", drawing.name},
            {"parent", drawing.parent},
            {"floors", jsonArrayOf(drawing.places, placeToJson)},
            {"types", QJsonArray::fromStringList(drawing.types)},
            {"tables", drawing.tables},
            {"layers", drawing.layers},
            {"objects", drawing.objects},
            {"originScale", drawing.originScale},
            {"newScale", drawing.newScale},
            {"crossings", drawing.crossings}};
}

QJsonObject DrawingSetInfo::toJson(const Floor &floor)
{
    const auto value = [&](QLatin1String key) {
        return floor.record.contains(key) ? floor.record.value(key) : QJsonValue(QJsonValue::Null);
    };
    return {{"name", floor.name},
            {"code", value(key::code)},
            {"bottomElev", value(key::bottomElev)},
            {"height", value(key::height)},
            {"standardCount", value(key::stdCount)},
            {"drawings", QJsonArray::fromStringList(floor.drawings)}};
}

QJsonObject DrawingSetInfo::toJson(const TypeLayers &layers)
{
    return {{"type", layers.name},
            {"number", dwgxCommonUtil::getElementTypeByName(layers.name)},
            {"drawings", layers.drawings.size()},
            {"layers", layers.layers},
            {"objects", layers.objects},
            {"names", QJsonArray::fromStringList(layers.layerNames)}};
}

QJsonObject DrawingSetInfo::toJson() const
{
    const auto each = [](const auto &record) { return toJson(record); };
    return {{"areaName", m_areaName},
            {"stages", jsonArrayOf(m_stages, each)},
            {"floors", jsonArrayOf(m_floors.list, each)},
            {"drawings", jsonArrayOf(m_drawings.list, each)},
            {"layers", jsonArrayOf(m_types.list, each)}};
}

// For people.

QString DrawingSetInfo::headline() const
{
    const auto run = std::count_if(m_stages.begin(), m_stages.end(), [](const Stage &stage) { return stage.present; });
    const QString set =
        m_areaName.isEmpty() ? Message::tr("Drawing set") : Message::tr("Drawing set of %1").arg(m_areaName);
    return Message::tr("%1: %2 of %3 stages, %4, %5")
        .arg(set, QString::number(run), QString::number(m_stages.size()),
             counted(static_cast<int>(m_drawings.list.size()), Message::tr("drawing")),
             counted(static_cast<int>(m_floors.list.size()), Message::tr("floor")));
}

QStringList DrawingSetInfo::stageLines() const
{
    TextTable table({{Message::tr("stage")}, {Message::tr("key")}, {Message::tr("holds")}});
    for (const Stage &stage : m_stages)
        table.add({Message::tr(stage.title), stage.key,
                   stage.present ? counted(stage.entries, Message::tr(stage.entry)) : Message::tr("has not run")});
    return titled(Message::tr("Stages"), table);
}

QStringList DrawingSetInfo::floorLines() const
{
    TextTable table({{Message::tr("floor")},
                     {Message::tr("code")},
                     {Message::tr("bottom m"), Align::Right},
                     {Message::tr("height m"), Align::Right},
                     {Message::tr("storeys"), Align::Right},
                     {Message::tr("drawings")}});
    for (const Floor &floor : m_floors.list)
        table.add({shown(floor.name), floor.record.value(key::code).toString(),
                   shownNumber(floor.record.value(key::bottomElev)), shownNumber(floor.record.value(key::height)),
                   shownNumber(floor.record.value(key::stdCount)), shownList(floor.drawings)});
    return titled(Message::tr("Floors"), table);
}

QStringList DrawingSetInfo::drawingLines() const
{
    TextTable table({{Message::tr("drawing")},
                     {Message::tr("cut from")},
                     {Message::tr("floors")},
                     {Message::tr("element types")},
                     {Message::tr("tables"), Align::Right},
                     {Message::tr("layers"), Align::Right},
                     {Message::tr("objects"), Align::Right},
                     {Message::tr("scale"), Align::Right},
                     {Message::tr("axis points"), Align::Right}});
    for (const Drawing &drawing : m_drawings.list) {
        QStringList floors;
        for (const Place &place : drawing.places)
            floors.append(place.floor);
        table.add({shown(drawing.name), drawing.parent.isEmpty() ? QStringLiteral("-") : drawing.parent,
                   shownList(floors), shownList(drawing.types), shownCount(drawing.tables), shownCount(drawing.layers),
                   shownCount(drawing.objects), shownNumber(drawing.originScale), shownCount(drawing.crossings)});
    }
    return titled(Message::tr("Drawings"), table);
}

QStringList DrawingSetInfo::layerLines() const
{
    TextTable table({{Message::tr("element type")},
                     {Message::tr("drawings"), Align::Right},
                     {Message::tr("layers"), Align::Right},
                     {Message::tr("objects"), Align::Right},
                     {Message::tr("names")}});
    for (const TypeLayers &type : m_types.list)
        table.add({shown(type.name), QString::number(type.drawings.size()), QString::number(type.layers),
                   QString::number(type.objects), shownList(type.layerNames)});
    return titled(Message::tr("Layers by element type"), table);
}

QString DrawingSetInfo::text() const
{
    return (QStringList{headline()} + stageLines() + floorLines() + drawingLines() + layerLines()).join('\n');
}

} // namespace orvcad
