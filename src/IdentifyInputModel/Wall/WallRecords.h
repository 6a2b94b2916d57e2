#pragma once

#include "IdentifyInputModel/Wall/IdentifyResultData.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudHBXModelLineEdoStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudHBXModelPointEdoStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudLineEdoInfo.h"
#include "IdentifyInputModel/Wall/ORVCADCloudTextEdoInfo.h"
#include "IdentifyInputModel/Wall/ORVCADCloudWalloptionDataStruct.h"
#include "IdentifyInputModel/Wall/WallKeys.h"
#include "encoding/FlatRecordFields.h"

#include <tuple>

/** The items of each kind of record in a wall document, in the order of writing. Each table drives both directions. */
namespace wall::record {

using encoding::field;

/** "CadEntBrickWallDataInfo". */
constexpr auto brickWall =
    std::make_tuple(field(key::edoId, &ORVCADCloudEntBrickWallStruct::edoId),
                    field(key::entName, &ORVCADCloudEntBrickWallStruct::entName),
                    field(key::elementType, &ORVCADCloudEntBrickWallStruct::elementType),
                    field(key::elementSubType, &ORVCADCloudEntBrickWallStruct::elementSubType),
                    field(key::material, &ORVCADCloudEntBrickWallStruct::material),
                    field(key::throughBar, &ORVCADCloudEntBrickWallStruct::throughBar),
                    field(key::transverseBar, &ORVCADCloudEntBrickWallStruct::transverseBar),
                    field(key::width, &ORVCADCloudEntBrickWallStruct::width),
                    field(key::typePropertyValue, &ORVCADCloudEntBrickWallStruct::typePropertyValue));

/** "CadEntForceWallDataInfo". */
constexpr auto forceWall = std::make_tuple(field(key::edoId, &ORVCADCloudEntForceWallStruct::edoId),
                                           field(key::entName, &ORVCADCloudEntForceWallStruct::entName),
                                           field(key::elementType, &ORVCADCloudEntForceWallStruct::elementType),
                                           field(key::elementSubType, &ORVCADCloudEntForceWallStruct::elementSubType),
                                           field(key::hreBar, &ORVCADCloudEntForceWallStruct::hreBar),
                                           field(key::vreBar, &ORVCADCloudEntForceWallStruct::vreBar),
                                           field(key::tieBar, &ORVCADCloudEntForceWallStruct::tieBar),
                                           field(key::width, &ORVCADCloudEntForceWallStruct::width));

/** Map keys of "BrickWallIdentifyData". */
constexpr auto brickWallOfReply =
    std::tuple_cat(brickWall, std::make_tuple(field(key::floorCode, &ORVCADCloudEntBrickWallStruct::floorCode),
                                              field(key::region, &ORVCADCloudEntBrickWallStruct::region)));

/** Map keys of "ForceWallIdentifyData". */
constexpr auto forceWallOfReply =
    std::tuple_cat(forceWall, std::make_tuple(field(key::floorCode, &ORVCADCloudEntForceWallStruct::floorCode),
                                              field(key::region, &ORVCADCloudEntForceWallStruct::region)));

/** Records of "BrickWallIdentifyData" and "ForceWallIdentifyData". */
constexpr auto piece = std::make_tuple(
    field(key::pieceWidth, &IdentifyResultData::sWidth), field(key::pieceText, &IdentifyResultData::sStrTextInfo),
    field(key::startTopElev, &IdentifyResultData::sPfnStartPtTopElev),
    field(key::startBottomElev, &IdentifyResultData::sPfnStartPtBottomElev),
    field(key::endTopElev, &IdentifyResultData::sPfnEndPtTopElev),
    field(key::endBottomElev, &IdentifyResultData::sPfnEndPtBottomElev),
    field(key::pieceEntName, &IdentifyResultData::sStrEntName), field(key::pieceLine, &IdentifyResultData::sWorldLine),
    field(key::piecePolygon, &IdentifyResultData::sPolys), field(key::floorCode, &IdentifyResultData::floorCode),
    field(key::region, &IdentifyResultData::region), field(key::segments, &IdentifyResultData::sSegmentEntityDataList));

/** "CurFloorModelForceLineEntDataInfo", "CurFloorModelBrickLineEntDataInfo", "CurFloorModelAxisLineEntDataInfo". */
constexpr auto modelLine =
    std::make_tuple(field(key::edoId, &ORVCADCloudHBXModelLineEdoStruct::edoId),
                    field(key::width, &ORVCADCloudHBXModelLineEdoStruct::width),
                    field(key::entName, &ORVCADCloudHBXModelLineEdoStruct::entName),
                    field(key::elementType, &ORVCADCloudHBXModelLineEdoStruct::elementType),
                    field(key::elementSubType, &ORVCADCloudHBXModelLineEdoStruct::elementSubType),
                    field(key::worldLine, &ORVCADCloudHBXModelLineEdoStruct::worldLine));

/** "CurFloorModelPointEntDataInfo". */
constexpr auto modelPoint =
    std::make_tuple(field(key::edoId, &ORVCADCloudHBXModelPointEdoStruct::edoId),
                    field(key::modelEdoType, &ORVCADCloudHBXModelPointEdoStruct::modelEdoType),
                    field(key::entName, &ORVCADCloudHBXModelPointEdoStruct::entName),
                    field(key::elementType, &ORVCADCloudHBXModelPointEdoStruct::elementType),
                    field(key::elementSubType, &ORVCADCloudHBXModelPointEdoStruct::elementSubType),
                    field(key::worldPoly, &ORVCADCloudHBXModelPointEdoStruct::worldPoly),
                    field(key::sectionTypeId, &ORVCADCloudHBXModelPointEdoStruct::SectionTypeID));

/** Records of "CadLineEdoDataInfo". */
constexpr auto drawingLine = std::make_tuple(
    field(key::edoId, &ORVCADCloudLineEdoInfo::edoId), field(key::color, &ORVCADCloudLineEdoInfo::color),
    field(key::blockId, &ORVCADCloudLineEdoInfo::blockID), field(key::line, &ORVCADCloudLineEdoInfo::line));

/** Records of "CadTextEdoDataInfo", which do not tell what texts a text stands for. */
constexpr auto drawingText = std::make_tuple(
    field(key::edoId, &ORVCADCloudTextEdoInfo::edoId), field(key::color, &ORVCADCloudTextEdoInfo::color),
    field(key::blockId, &ORVCADCloudTextEdoInfo::blockID), field(key::text, &ORVCADCloudTextEdoInfo::text),
    field(key::direction, &ORVCADCloudTextEdoInfo::dir), field(key::anglePoints, &ORVCADCloudTextEdoInfo::anglePts));

/** "CadFilterTextEdoDataInfo". */
constexpr auto filterText =
    std::tuple_cat(drawingText, std::make_tuple(field(key::filterTextEdo, &ORVCADCloudTextEdoInfo::filterTextEdo)));

/** "DWGXBaseOptions". Meant: V before H, though the structure has them the other way. */
constexpr auto options = std::make_tuple(
    field(key::maxOpeningWidth, &ORVCADCloudWalloptionDataStruct::maxOpeningWidth),
    field(key::maxWallLineWidth, &ORVCADCloudWalloptionDataStruct::maxWallLineWidth),
    field(key::wallLineWidthDeviationRange, &ORVCADCloudWalloptionDataStruct::wallLineWidthDeviationRange),
    field(key::wallEndExtensionRange, &ORVCADCloudWalloptionDataStruct::wallEndExtensionRange),
    field(key::wallAndWindowExtenVRange, &ORVCADCloudWalloptionDataStruct::wallAndWindowExtenVRange),
    field(key::wallAndWindowExtenHRange, &ORVCADCloudWalloptionDataStruct::wallAndWindowExtenHRange));

} // namespace wall::record
