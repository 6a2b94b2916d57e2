#pragma once

#include "encoding/RecordKey.h"

/** Names that walls have in the documents of the identification. */
namespace wall {

/** Keys at the top of a document. */
namespace document {
using encoding::operator""_key;

constexpr QLatin1String brickWalls = "CadEntBrickWallDataInfo"_key;
constexpr QLatin1String forceWalls = "CadEntForceWallDataInfo"_key;
constexpr QLatin1String filterTexts = "CadFilterTextEdoDataInfo"_key;
constexpr QLatin1String layers = "CadLayerInfo"_key;
constexpr QLatin1String lines = "CadLineEdoDataInfo"_key;
constexpr QLatin1String texts = "CadTextEdoDataInfo"_key;
constexpr QLatin1String axisLines = "CurFloorModelAxisLineEntDataInfo"_key;
constexpr QLatin1String brickLines = "CurFloorModelBrickLineEntDataInfo"_key;
constexpr QLatin1String forceLines = "CurFloorModelForceLineEntDataInfo"_key;
constexpr QLatin1String points = "CurFloorModelPointEntDataInfo"_key;
constexpr QLatin1String options = "DWGXBaseOptions"_key;
constexpr QLatin1String identifyType = "IdentifyType"_key;
constexpr QLatin1String projectName = "ProjectName"_key;
constexpr QLatin1String floorCode = "floorCode"_key;
constexpr QLatin1String floorName = "floorName"_key;
constexpr QLatin1String drawingName = "drawingName"_key;

constexpr QLatin1String brickReply = "BrickWallIdentifyData"_key;
constexpr QLatin1String forceReply = "ForceWallIdentifyData"_key;
} // namespace document

/** Keys above the document in a reply. */
namespace reply {
using encoding::operator""_key;

constexpr QLatin1String brickWalls = "eBrickWall"_key;
constexpr QLatin1String forceWalls = "eWall"_key;
constexpr QLatin1String elementsAndEdos = "ElementsAndEdos"_key;
} // namespace reply

/** Keys of items. */
namespace key {
using encoding::operator""_key;

constexpr QLatin1String edoId = "edoId"_key;
constexpr QLatin1String entName = "entName"_key;
constexpr QLatin1String elementType = "elementType"_key;
constexpr QLatin1String elementSubType = "elementSubType"_key;
constexpr QLatin1String width = "width"_key;
constexpr QLatin1String floorCode = "floorCode"_key;
constexpr QLatin1String region = "region"_key;

constexpr QLatin1String material = "material"_key;
constexpr QLatin1String throughBar = "throughBar"_key;
constexpr QLatin1String transverseBar = "transverseBar"_key;
constexpr QLatin1String typePropertyValue = "typePropertyValue"_key;

constexpr QLatin1String hreBar = "hreBar"_key;
constexpr QLatin1String vreBar = "vreBar"_key;
constexpr QLatin1String tieBar = "tieBar"_key;

constexpr QLatin1String worldLine = "Worldline"_key; // meant: one capital letter only
constexpr QLatin1String worldPoly = "worldPoly"_key;
constexpr QLatin1String modelEdoType = "modelEdoType"_key;
constexpr QLatin1String sectionTypeId = "SectionTypeID"_key;

constexpr QLatin1String color = "color"_key;
constexpr QLatin1String blockId = "blockID"_key;
constexpr QLatin1String line = "line"_key;
constexpr QLatin1String text = "text"_key;
constexpr QLatin1String direction = "dir"_key;
constexpr QLatin1String anglePoints = "anglePts"_key;
constexpr QLatin1String filterTextEdo = "filterTextEdo"_key;

constexpr QLatin1String layerPrefix = "layer_"_key; // followed by the layer kind
constexpr QLatin1String maxOpeningWidth = "maxOpeningWidth"_key;
constexpr QLatin1String maxWallLineWidth = "maxWallLineWidth"_key;
constexpr QLatin1String wallLineWidthDeviationRange = "wallLineWidthDeviationRange"_key;
constexpr QLatin1String wallEndExtensionRange = "wallEndExtensionRange"_key;
constexpr QLatin1String wallAndWindowExtenHRange = "wallAndWindowExtenHRange"_key;
constexpr QLatin1String wallAndWindowExtenVRange = "wallAndWindowExtenVRange"_key;

constexpr QLatin1String identifyType = "identifyTpe"_key; // meant: spelled so
constexpr QLatin1String projectName = "projectName"_key;
constexpr QLatin1String floorName = "floorName"_key;
constexpr QLatin1String drawingName = "drawingName"_key;

constexpr QLatin1String pieceLine = "sWorldLine"_key;
constexpr QLatin1String piecePolygon = "sPolys"_key;
constexpr QLatin1String pieceText = "sStrTextInfo"_key;
constexpr QLatin1String pieceWidth = "sWidth"_key;
constexpr QLatin1String startTopElev = "sPfnStartPtTopElev"_key;
constexpr QLatin1String startBottomElev = "sPfnStartPtBottomElev"_key;
constexpr QLatin1String endTopElev = "sPfnEndPtTopElev"_key;
constexpr QLatin1String endBottomElev = "sPfnEndPtBottomElev"_key;
constexpr QLatin1String pieceEntName = "sStrEntName"_key;
constexpr QLatin1String segments = "sSegmentEntityDataList"_key;
} // namespace key

} // namespace wall
