#pragma once

#include "encoding/RecordKey.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

/** Names that beams have in JSON and in the host. */
namespace beam {

namespace key {
using encoding::operator""_key;

// Elements of the local model; seats for reconstruction share some of them.
constexpr QLatin1String name = "Name"_key;
constexpr QLatin1String elementType = "ElementType"_key;
constexpr QLatin1String elementSubType = "ElementSubType"_key;
constexpr QLatin1String sectionWidth = "SectionWidth"_key;
constexpr QLatin1String sectionHeight = "SectionHeight"_key;
constexpr QLatin1String sectionPoly = "SectionPoly"_key;
constexpr QLatin1String startTopElev = "StartTopElev"_key;
constexpr QLatin1String endTopElev = "EndTopElev"_key;
constexpr QLatin1String floorName = "FloorName"_key;
constexpr QLatin1String regionName = "RegionName"_key;
constexpr QLatin1String hoopBar = "HoopBar"_key;
constexpr QLatin1String limbCount = "LimbCount"_key;
constexpr QLatin1String tieBar = "TieBar"_key;
constexpr QLatin1String axisOffset = "AxisOffset"_key;
constexpr QLatin1String spanCount = "SpanCount"_key;
constexpr QLatin1String topThroughBar = "TopThroughBar"_key;
constexpr QLatin1String bottomThroughBar = "BottomThroughBar"_key;
constexpr QLatin1String sideBar = "SideBar"_key;
constexpr QLatin1String type = "Type"_key;
constexpr QLatin1String topHoribar = "TopHoribar"_key; // meant: a small b, unlike the next one
constexpr QLatin1String bottomHoriBar = "BottomHoriBar"_key;
constexpr QLatin1String sideBarAL = "SideBarAL"_key;

// Segments
constexpr QLatin1String index = "Index"_key;
constexpr QLatin1String wordLine = "WordLine"_key; // meant: the world line is spelled so
constexpr QLatin1String lineWidth = "LineWidth"_key;
constexpr QLatin1String startPtTopElev = "StartPtTopElev"_key;
constexpr QLatin1String endPtTopElev = "EndPtTopElev"_key;

// Spans
constexpr QLatin1String spanIndex = "SpanIndex"_key;
constexpr QLatin1String startElev = "StartElev"_key;
constexpr QLatin1String endElev = "EndElev"_key;
constexpr QLatin1String spanA1A4 = "SpanA1_A4"_key;
constexpr QLatin1String spanLength = "SpanLength"_key;
constexpr QLatin1String section = "Section"_key;
constexpr QLatin1String leftSupportBar = "LeftSupportBar"_key;
constexpr QLatin1String spanBar = "SpanBar"_key;
constexpr QLatin1String rightSupportBar = "RightSupportBar"_key;
constexpr QLatin1String bottomBar = "BottomBar"_key;
constexpr QLatin1String sideLabelBar = "SideLabelBar"_key;
constexpr QLatin1String hoopBarLimbCount = "HoopBarLimbCount"_key;
constexpr QLatin1String secBeamWidth = "SecBeamWidth"_key;
constexpr QLatin1String secBeamAddBar = "SecBeamAddBar"_key;
constexpr QLatin1String hangBar = "HangBar"_key;
constexpr QLatin1String hangBarAnchor = "HangBarAnchor"_key;
constexpr QLatin1String denseLength = "DenseLength"_key;
constexpr QLatin1String haunchingLength = "HaunchingLength"_key;
constexpr QLatin1String haunchingHeight = "HaunchingHeight"_key;
constexpr QLatin1String haunchingBarInfo = "HaunchingBarInfo"_key;
constexpr QLatin1String otherHoopBars = "OtherHoopBars"_key;

// Beams of the local model
constexpr QLatin1String spanInfos = "BeamSpanInfo"_key;
constexpr QLatin1String segmentInfos = "BeamSegmentInfo"_key;
constexpr QLatin1String elementInfo = "ElementInfo"_key;
constexpr QLatin1String edoInfos = "EDOInfo"_key;
constexpr QLatin1String beams = "Beam"_key;
constexpr QLatin1String linkBeams = "LinkBeam"_key;
constexpr QLatin1String foundationBeams = "FDBeam"_key;

// Context of an identify run
constexpr QLatin1String floorInfo = "FloorInfo"_key;
constexpr QLatin1String cadOptions = "CADOptions"_key;
constexpr QLatin1String floorCode = "FloorCode"_key;
constexpr QLatin1String height = "Height"_key;
constexpr QLatin1String floorId = "FloorID"_key;

// Seats and results of the identify run
constexpr QLatin1String seatIdType = "eSeatIDType"_key;
constexpr QLatin1String seatId = "nSeatID"_key;
constexpr QLatin1String seatSegmentId = "nBeamSegmentInfoID"_key;
constexpr QLatin1String line = "ipLine"_key;
constexpr QLatin1String offset = "dOffset"_key;
constexpr QLatin1String id = "id"_key;
constexpr QLatin1String spanNum = "nSpanNum"_key;
constexpr QLatin1String width = "nWidth"_key;
constexpr QLatin1String runStartElev = "strStartElev"_key;
constexpr QLatin1String runEndElev = "strEndElev"_key;
constexpr QLatin1String startElevType = "enStartElevType"_key;
constexpr QLatin1String endElevType = "enEndElevType"_key;
constexpr QLatin1String segments = "vecSegmentInfo"_key;
constexpr QLatin1String labelName = "strName"_key;
constexpr QLatin1String labelElementType = "nElementType"_key;
constexpr QLatin1String beamType = "nBeamType"_key;
constexpr QLatin1String spanDesc = "strSpanDesc"_key;
constexpr QLatin1String labelSection = "strSection"_key;
constexpr QLatin1String labelHoopBar = "strHoopBar"_key;
constexpr QLatin1String labelTopThroughBar = "strTopThroughBar"_key;
constexpr QLatin1String labelBottomThroughBar = "strBottomThroughBar"_key;
constexpr QLatin1String labelSideBar = "strSideBar"_key;
constexpr QLatin1String cantileverType = "eCantileverType"_key;
constexpr QLatin1String runs = "edoInfos"_key;
constexpr QLatin1String seats = "seatEdoIDList"_key;
constexpr QLatin1String labels = "elementInfoList"_key;

// Input of the identify run
constexpr QLatin1String lineShapeClass = "eLineShapeClass"_key;
constexpr QLatin1String seatElementType = "seatElementType"_key;
constexpr QLatin1String seatElementSubType = "nElementSubType"_key;
constexpr QLatin1String hasWallThickness = "bHasWallThicknessProperty"_key;
constexpr QLatin1String wallThickness = "dWallThickness"_key;
constexpr QLatin1String seatWorldPoly = "ipWorldPoly"_key;
constexpr QLatin1String offsetDist = "dOffsetDist"_key;
constexpr QLatin1String edoId = "nEDOID"_key;
constexpr QLatin1String isAColumn = "bIsAColumn"_key;
constexpr QLatin1String isColumn = "bIsColumn"_key;
constexpr QLatin1String isLineShape = "bLineShape"_key;
constexpr QLatin1String seatCenterLine = "ipCenterLine"_key;
constexpr QLatin1String wallLine = "ipWallLine"_key;
constexpr QLatin1String seatLine = "ipSeatLine"_key;
constexpr QLatin1String worldLine = "ipWorldLine"_key;
constexpr QLatin1String box = "box"_key;
constexpr QLatin1String curFloorHeight = "curFloorHeight"_key;
constexpr QLatin1String isCurFloorFD = "bIsCurFloorFD"_key;
constexpr QLatin1String curFloorBtmElev = "curFloorBtmElev"_key;
constexpr QLatin1String curFloorId = "nCurFloorID"_key;
constexpr QLatin1String rawBeamCodes = "strRawBeamCodes"_key;
constexpr QLatin1String is11or16G = "bIs11or16G"_key;
constexpr QLatin1String beamSeats = "beamSeatInfos"_key;
constexpr QLatin1String axisLines = "axisLines"_key;
constexpr QLatin1String beamLineLayer = "strBeamLineLayerName"_key;
constexpr QLatin1String beamBorderLayer = "strBeamBorderLayerName"_key;
constexpr QLatin1String beamJZBZLayer = "strBeamJZBZLayerName"_key;
constexpr QLatin1String beamYWBZLayer = "strBeamYWBZLayerName"_key;

// Seats for reconstruction
constexpr QLatin1String worldPoly = "WorldPoly"_key;
constexpr QLatin1String centerLine = "CenterLine"_key;
constexpr QLatin1String entName = "EntName"_key;
constexpr QLatin1String sectinoHeight = "SectinoHeight"_key; // meant: spelled so in writer and reader
constexpr QLatin1String topElev = "TopElev"_key;
constexpr QLatin1String btmElev = "BtmElev"_key;
constexpr QLatin1String mirror = "Mirror"_key;
constexpr QLatin1String angle = "Angle"_key;
constexpr QLatin1String edoTopElev = "EDOTopElev"_key;
constexpr QLatin1String edoBtmElev = "EDOBtmElev"_key;
constexpr QLatin1String tieBeams = "etTieBeam"_key;
constexpr QLatin1String isolatedFoundations = "etIsolatedFD"_key;
constexpr QLatin1String pileCaps = "etPileCap"_key;
constexpr QLatin1String piles = "etPile"_key;
} // namespace key

/** Properties and element types of the host. */
namespace property = hbx::property;
namespace type = hbx::type;

} // namespace beam
