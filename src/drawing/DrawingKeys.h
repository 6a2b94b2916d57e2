#pragma once

#include "encoding/LayerFileKeys.h"
#include "encoding/RecordKey.h"

/** Names that the drawing-set records have in JSON. */
namespace drawing::key {

using encoding::operator""_key;

// Floors.
constexpr QLatin1String areaName = "AreaName"_key;
constexpr QLatin1String floors = "Floors"_key;

constexpr QLatin1String name = "Name"_key;
constexpr QLatin1String code = "Code"_key;
constexpr QLatin1String bottomElev = "BottomElev"_key;
constexpr QLatin1String height = "Height"_key;
constexpr QLatin1String stdCount = "StdCount"_key;
constexpr QLatin1String remark = "Remark"_key;

// Layers and mappings of one drawing, by element type.
constexpr QLatin1String drawingName = "DrawingName"_key;
constexpr QLatin1String elementType = "ElementType"_key;
constexpr QLatin1String elementTypes = "ElementTypes"_key;

constexpr QLatin1String layers = "Layers"_key;
constexpr QLatin1String classifiedLayers = "ClassifiedLayers"_key;
using encoding::layerfile::layerName;
constexpr QLatin1String cadEdoIds = "CADEdoIds"_key;

constexpr QLatin1String layerClassifyItems = "LayerClassifyItems"_key;
constexpr QLatin1String classifiedJsonFilePath = "ClassifiedJsonFilePath"_key;

// The same as drawing analysis writes it.
constexpr QLatin1String fileName = "FileName"_key;
using encoding::layerfile::edoId;
using encoding::layerfile::edoIdList;

// Drawings of a floor.
constexpr QLatin1String regionId = "regionID"_key;
constexpr QLatin1String floorName = "FloorName"_key;
constexpr QLatin1String drawingNames = "DrawingNames"_key;
constexpr QLatin1String drawingFloorMappings = "DrawingFloorMappings"_key;

// Parsed tables: "table0", "table1" and so on.
constexpr QLatin1String table = "table"_key;
constexpr QLatin1String type = "type"_key;
constexpr QLatin1String lowerDrawingName = "drawingName"_key;
constexpr QLatin1String range = "range"_key;
constexpr QLatin1String data = "data"_key;
constexpr QLatin1String concrete = "concrete"_key;

// Stages of the drawing-set file.
constexpr QLatin1String splitDrawing = "splitDrawing"_key;
constexpr QLatin1String parseDrawing = "parseDrawing"_key;
constexpr QLatin1String floorInfos = "floorInfos"_key;
constexpr QLatin1String matchFloorInfo = "matchFloorInfo"_key;
constexpr QLatin1String matchElementInfo = "matchElementInfo"_key;
constexpr QLatin1String classifyLayer = "classifyLayer"_key;
constexpr QLatin1String reviseScale = "reviseScale"_key;
constexpr QLatin1String locateDrawing = "locateDrawing"_key;

// Sub-drawings.
constexpr QLatin1String savePath = "savePath"_key;
constexpr QLatin1String drawingInfo = "drawingInfo"_key;
constexpr QLatin1String parentDrawing = "parenDrawing"_key; // as readers know it
constexpr QLatin1String subDrawing = "subDrawing"_key;
constexpr QLatin1String count = "count"_key;

// Scales and locations.
constexpr QLatin1String originScale = "originScale"_key;
constexpr QLatin1String newScale = "newScale"_key;
constexpr QLatin1String axisInfo = "axisInfo"_key;
constexpr QLatin1String bayNum = "bayNum"_key;
constexpr QLatin1String depthNum = "depthNum"_key;
constexpr QLatin1String point = "point"_key;

// The floor exchange: floors, then the settings of an element type.
constexpr QLatin1String floorSdcData = "FloorSDCData"_key;
constexpr QLatin1String region = "Region"_key;
constexpr QLatin1String concreteAnchorJoint = "ConcreteAnchorJoint"_key;

constexpr QLatin1String id = "ID"_key;
constexpr QLatin1String description = "Description"_key;
constexpr QLatin1String stdFloorCount = "StdFloorCount"_key;
constexpr QLatin1String structuralElevation = "StructuralElevation"_key;
constexpr QLatin1String startFloorNo = "StartFloorNo"_key;
constexpr QLatin1String slabThickness = "SlabThickness"_key;
constexpr QLatin1String floorArea = "FloorArea"_key;
constexpr QLatin1String relatedFloorId = "RelatedFloorID"_key;

constexpr QLatin1String typeId = "TypeID"_key;
constexpr QLatin1String basicElementTypeId = "BasicElementTypeID"_key;
constexpr QLatin1String concGradeId = "ConcGradeID"_key;
constexpr QLatin1String concTypeId = "ConcTypeID"_key;
constexpr QLatin1String mortarGradeId = "MortarGradeID"_key;
constexpr QLatin1String mortarTypeId = "MortarTypeID"_key;
constexpr QLatin1String aseismicLevelId = "AseismicLevelID"_key;
constexpr QLatin1String anchor1 = "Anchor1"_key;
constexpr QLatin1String anchor2 = "Anchor2"_key;
constexpr QLatin1String anchor3 = "Anchor3"_key;
constexpr QLatin1String anchor4 = "Anchor4"_key;
constexpr QLatin1String anchor5 = "Anchor5"_key;
constexpr QLatin1String anchor6 = "Anchor6"_key;
constexpr QLatin1String joint1 = "Joint1"_key;
constexpr QLatin1String joint2 = "Joint2"_key;
constexpr QLatin1String joint3 = "Joint3"_key;
constexpr QLatin1String joint4 = "Joint4"_key;
constexpr QLatin1String joint5 = "Joint5"_key;
constexpr QLatin1String joint6 = "Joint6"_key;
constexpr QLatin1String protectiveLayerThickness = "ProtectiveLayerThickness"_key;

} // namespace drawing::key
