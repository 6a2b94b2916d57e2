#pragma once

#include "encoding/KeyLiteral.h"

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
constexpr QLatin1String layerName = "LayerName"_key;
constexpr QLatin1String cadEdoIds = "CADEdoIds"_key;

constexpr QLatin1String layerClassifyItems = "LayerClassifyItems"_key;
constexpr QLatin1String classifiedJsonFilePath = "ClassifiedJsonFilePath"_key;

// The same as drawing analysis writes it.
constexpr QLatin1String fileName = "FileName"_key;
constexpr QLatin1String edoIdList = "EdoIDList"_key;
constexpr QLatin1String edoId = "EdoID"_key;

// Drawings of a floor.
constexpr QLatin1String regionId = "regionID"_key;
constexpr QLatin1String floorName = "FloorName"_key;
constexpr QLatin1String drawingNames = "DrawingNames"_key;
constexpr QLatin1String drawingFloorMappings = "DrawingFloorMappings"_key;

// Parsed tables: "table0", "table1" and so on.
constexpr QLatin1String table = "table"_key;
constexpr QLatin1String type = "type"_key;
constexpr QLatin1String parsedDrawingName = "drawingName"_key;
constexpr QLatin1String range = "range"_key;
constexpr QLatin1String data = "data"_key;
constexpr QLatin1String concrete = "concrete"_key;

} // namespace drawing::key
