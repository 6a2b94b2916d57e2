#pragma once

#include "encoding/KeyLiteral.h"

#include <QtGlobal>

#include <string>

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
constexpr QLatin1String floorBtmElev = "BtmElev"_key;
constexpr QLatin1String floorId = "FloorID"_key;
} // namespace key

/** Element types of the host. */
namespace type {
constexpr qint64 beam = 15;
constexpr qint64 linkBeam = 17;
constexpr qint64 foundationBeam = 47;
} // namespace type

} // namespace beam
