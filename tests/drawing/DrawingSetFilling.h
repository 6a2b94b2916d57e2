#pragma once

#include "drawing/ORVCADClassifiedLayersData.h"
#include "drawing/ORVCADDisposeInfoData.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingLocationData.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADScaleReviseData.h"
#include "drawing/ORVCADSubDrawingDataSet.h"
#include "platform/services/dwgxCommonUtil.h"

#include <QJsonArray>
#include <QJsonObject>

/** Records made one by one, through what callers have for it, of what a drawing-set file says. The library itself has no
 *  reader for the file, and the readers of its parts leave out much of it. */
namespace drawing_test {

inline QStringList texts(const QJsonValue &array)
{
    QStringList texts;
    for (const QJsonValue text : array.toArray())
        texts.append(text.toString());
    return texts;
}

inline void fillParts(const QJsonObject &split, ORVCADSubDrawingDataSet &parts)
{
    parts.setSavePath(split["savePath"].toString());
    for (const QJsonValue parent : split["drawingInfo"].toArray()) {
        QStringList names = texts(parent["subDrawing"]);
        while (!names.isEmpty()) { // the part added last comes first
            ORVCADSubDrawingInfo part;
            part.drawingPath = "/parts/" + names.takeLast() + ".dwg";
            parts.addSubDrawing("/in/" + parent["parenDrawing"].toString() + ".dwg", part);
        }
    }
}

inline void fillTables(const QJsonObject &root, ORVCADDrawingParseData &tables)
{
    for (const QJsonValue json : root) {
        ORVCADTableData table;
        table.type = json["type"] == QStringLiteral("楼层表") ? kFloorTable : kColumnTable;
        table.drawingName = json["drawingName"].toString();
        for (int i = 0; i < 4; ++i)
            table.range[static_cast<std::size_t>(i)] = json["range"].toArray().at(i).toInt();
        const QJsonObject rows = json["data"].toObject();
        for (const QString &row : rows.keys())
            table.rows.append({row.toInt(), texts(rows[row])});
        const QJsonObject grades = json["concrete"].toObject();
        for (const QString &row : grades.keys()) {
            ORVCADConcreteLevel level{row.toInt(), {}};
            for (const QString &part : grades[row].toObject().keys())
                level.values.append({part, grades[row][part].toString()});
            table.concrete.append(level);
        }
        tables.getTables().append(table);
    }
}

inline ORVCADFloors *newFloors(const QJsonObject &document)
{
    auto *floors = new ORVCADFloors;
    floors->setAreaName(document["AreaName"].toString());
    for (const QJsonValue json : document["Floors"].toArray()) {
        auto *floor = new ORVCADFloor(json["Name"].toString(), json["BottomElev"].toDouble(), json["Height"].toDouble(),
                                      json["StdCount"].toInt(), json["Remark"].toString());
        floor->setCode(json["Code"].toString());
        floors->addFloor(floor);
    }
    return floors;
}

inline void fillMappings(const QJsonObject &json, ORVCADDisposeInfoData &set)
{
    set.floorMappings = new ORVCADDrawingFloorMappings;
    for (const QJsonValue mapping : json["matchFloorInfo"].toArray())
        for (const QString &drawing : texts(mapping["DrawingNames"]))
            set.floorMappings->addMapping(mapping["regionID"].toInt(), mapping["FloorName"].toString(), drawing);
    set.elementMappings = new ORVCADDrawingElementMappings;
    for (const QJsonValue mapping : json["matchElementInfo"].toArray())
        for (const QString &type : texts(mapping["ElementTypes"]))
            set.elementMappings->addMapping(mapping["DrawingName"].toString(),
                                            dwgxCommonUtil::getElementTypeByName(type));
}

inline void fillLayers(const QJsonValue &groups, ORVCADClassifiedLayersData &layers)
{
    for (const QJsonValue json : groups.toArray()) {
        auto *group = new ORVCADClassifiedLayers(json["DrawingName"].toString(),
                                                 dwgxCommonUtil::getElementTypeByName(json["ElementType"].toString()));
        for (const QJsonValue layerJson : json["Layers"].toArray()) {
            auto *layer = new ORVCADClassifiedLayer(layerJson["LayerName"].toString());
            for (const QJsonValue id : layerJson["CADEdoIds"].toArray())
                layer->addEdoId(id.toInt());
            group->add(layer);
        }
        layers.addLayers(group);
    }
}

inline void fillPlaces(const QJsonObject &json, ORVCADDisposeInfoData &set)
{
    set.scaleRevision = new ORVCADScaleReviseData;
    for (const QJsonValue scale : json["reviseScale"].toArray()) {
        auto *item = new ORVCADScaleReviseDataItem(scale["drawingName"].toString());
        item->setOriginScale(scale["originScale"].toDouble());
        set.scaleRevision->addItem(item);
    }
    set.location = new ORVCADDrawingLocationData;
    for (const QJsonValue location : json["locateDrawing"].toArray()) {
        auto *item = new ORVCADDrawingLocationDataItem(location["drawingName"].toString());
        for (const QJsonValue axis : location["axisInfo"].toArray())
            item->addAxisInfo({axis["bayNum"].toString(), axis["depthNum"].toString(),
                               axis["point"].toArray().at(0).toDouble(), axis["point"].toArray().at(1).toDouble()});
        set.location->addItem(item);
    }
}

/** All stages of the file; sub-drawings and tables go into the objects that the set has for them. */
inline void fillSet(const QJsonObject &json, ORVCADDisposeInfoData &set)
{
    fillParts(json["splitDrawing"].toObject(), *set.subDrawings);
    fillTables(json["parseDrawing"].toObject(), *set.parseData);
    set.floors = newFloors(json["floorInfos"].toObject());
    fillMappings(json, set);
    set.classifiedLayers = new ORVCADClassifiedLayersData;
    fillLayers(json["classifyLayer"], *set.classifiedLayers);
    fillPlaces(json, set);
}

} // namespace drawing_test
