#pragma once

#include "encoding/RecordKey.h"
#include "platform/services/HBXPropertyNames.h"

/** Names that columns have in JSON and in the host. */
namespace column {

namespace key {
using encoding::operator""_key;

// Options of identification.
constexpr QLatin1String kjzMark = "KJZMark"_key;
constexpr QLatin1String azMark = "AZMark"_key;
constexpr QLatin1String dzMark = "DZMark"_key;
constexpr QLatin1String kzzMark = "KZZMark"_key;
constexpr QLatin1String zhzMark = "ZHZMark"_key;
constexpr QLatin1String gzzMark = "GZZMark"_key;
constexpr QLatin1String sideBarAverageDistribution = "bSideBarAverageDistribution"_key;
constexpr QLatin1String maxSearchExtent = "MaxSearchExtent"_key;

// Words of elevations.
constexpr QLatin1String floorWordSetPar = "floorWordSetPar"_key;
constexpr QLatin1String columnElevWordSetPar = "columnElevWordSetPar"_key;
constexpr QLatin1String columnDetailElevPar = "columnDetailElevPar"_key;
constexpr QLatin1String floorNameWord = "strFloorName"_key;
constexpr QLatin1String upElev = "sUpElev"_key;
constexpr QLatin1String downElev = "sDownElev"_key;
constexpr QLatin1String baseTopElev = "sBaseTopElev"_key;
constexpr QLatin1String baseBtmElev = "sBaseBtmElev"_key;
constexpr QLatin1String curBtmElev = "sCurBtmElev"_key;
constexpr QLatin1String curTopElev = "sCurTopElev"_key;
constexpr QLatin1String highestElev = "sHighestElev"_key;
constexpr QLatin1String firstBtmElev = "sFirstBtmElev"_key;
constexpr QLatin1String firstTopElev = "sFirstTopElev"_key;
constexpr QLatin1String upTopElev = "sUpTopElev"_key;
constexpr QLatin1String downBtmElev = "sDownBtmElev"_key;
constexpr QLatin1String upestElev = "sUpestElev"_key; // spelled so, as is the next
constexpr QLatin1String downestElev = "sDownestElev"_key;
constexpr QLatin1String curUpElev = "sCurUpElev"_key;
constexpr QLatin1String curDownElev = "sCurDownElev"_key;

// Hoop bar settings.
constexpr QLatin1String hoopBarPicInfos = "ColumnHoopBarPicInfos"_key;
constexpr QLatin1String hoopBarSettings = "ColumnHoopBarSettings"_key;
constexpr QLatin1String id = "id"_key;
constexpr QLatin1String barPicId = "BarPicID"_key;
constexpr QLatin1String limbCount = "LimbCount"_key;
constexpr QLatin1String hoopBarName = "HoopBarName"_key;
constexpr QLatin1String hoopBarSettingId = "HoopBarSettingID"_key;
constexpr QLatin1String hoopBarBPicId = "HoopBarBPicID"_key;
constexpr QLatin1String hoopBarHPicId = "HoopBarHPicID"_key;
constexpr QLatin1String hLimbCount = "HLimbCount"_key;
constexpr QLatin1String bLimbCount = "BLimbCount"_key;

// Bars of a column.
constexpr QLatin1String vertBar = "pfnVertBar"_key;
constexpr QLatin1String cornerBar = "pfnCornerBar"_key;
constexpr QLatin1String bSideBar = "pfnBSideBar"_key;
constexpr QLatin1String hSideBar = "pfnHSideBar"_key;
constexpr QLatin1String hoopBar = "pfnHoopBar"_key;
constexpr QLatin1String limb = "strLimb"_key;
constexpr QLatin1String bSidePicId = "nBSidePicID"_key;
constexpr QLatin1String hSidePicId = "nHSidePicID"_key;

// Column elements.
constexpr QLatin1String name = "name"_key;
constexpr QLatin1String parame = "parame"_key; // spelled so
constexpr QLatin1String sectionWidth = "sectionWidth"_key;
constexpr QLatin1String sectionHeight = "sectionHeight"_key;
constexpr QLatin1String sectionTypeId = "sectionTypeID"_key;
constexpr QLatin1String elementTypeId = "elementTypeId"_key;
constexpr QLatin1String poly = "poly"_key;
constexpr QLatin1String insertPt = "insertPt"_key;
constexpr QLatin1String bar = "bar"_key;

// Input of identification and check.
constexpr QLatin1String type = "eType"_key;
constexpr QLatin1String columnOptions = "columnOptions"_key;
constexpr QLatin1String columnCodes = "columnCodes"_key;
constexpr QLatin1String borderLayerNames = "borderLayerNames"_key;
constexpr QLatin1String labelLayerNames = "labelLayerNames"_key;
constexpr QLatin1String axisLineList = "axisLineList"_key;
constexpr QLatin1String elements = "elements"_key;
constexpr QLatin1String semanticPar = "oSemnTicParsePar"_key; // spelled so, with a capital T
constexpr QLatin1String hoopBarSettingPar = "oHoopBarSettingPar"_key;
constexpr QLatin1String curFloorCode = "strCurFloorCode"_key;

// Results.
constexpr QLatin1String drawing = "drawing"_key;
constexpr QLatin1String floorCode = "floorCode"_key;
constexpr QLatin1String resultData = "resultData"_key;
constexpr QLatin1String barInfo = "barInfo"_key;
constexpr QLatin1String section = "pfnSection"_key;
constexpr QLatin1String columnInfo = "columnInfo"_key;
constexpr QLatin1String cadPoly = "cadPoly"_key;
constexpr QLatin1String columnName = "columnName"_key;
constexpr QLatin1String cadLineIds = "cadLineIDs"_key;
constexpr QLatin1String cadTextIds = "cadTextIDs"_key;
constexpr QLatin1String createElement = "bCreateElement"_key;

// Geometry of a recognised column.
constexpr QLatin1String steelWeight = "dSteelWeight"_key;
constexpr QLatin1String polyType = "ePolyType"_key;
constexpr QLatin1String columnType = "eColumnType"_key;
constexpr QLatin1String edoInfoValid = "bEdoInfoValid"_key;
constexpr QLatin1String mirror = "bMirror"_key;
constexpr QLatin1String angle = "dAngle"_key;
constexpr QLatin1String param = "strParam"_key;
constexpr QLatin1String position = "position"_key;
constexpr QLatin1String width = "dWidth"_key;
constexpr QLatin1String height = "dHeight"_key;
constexpr QLatin1String radius = "dRadius"_key;
constexpr QLatin1String infoType = "m_type"_key;
} // namespace key

/** Properties of the host. */
namespace property = hbx::property;

} // namespace column
