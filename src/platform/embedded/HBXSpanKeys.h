#pragma once

#include "platform/dwgx/KeyLiteral.h"

/** Keys of a span of a beam chain, in exchange files and as the host keeps it: those of the beam span record. */
namespace hbx::embedded::spankey {

using dwgx::literals::operator""_key;

inline constexpr QLatin1String spanIndex = "SpanIndex"_key;
inline constexpr QLatin1String startElev = "StartElev"_key;
inline constexpr QLatin1String endElev = "EndElev"_key;
inline constexpr QLatin1String measures = "SpanA1_A4"_key;
inline constexpr QLatin1String spanLength = "SpanLength"_key;
inline constexpr QLatin1String section = "Section"_key;
inline constexpr QLatin1String axisOffset = "AxisOffset"_key;
inline constexpr QLatin1String topThroughBar = "TopThroughBar"_key;
inline constexpr QLatin1String leftSupportBar = "LeftSupportBar"_key;
inline constexpr QLatin1String spanBar = "SpanBar"_key;
inline constexpr QLatin1String rightSupportBar = "RightSupportBar"_key;
inline constexpr QLatin1String bottomThroughBar = "BottomThroughBar"_key;
inline constexpr QLatin1String bottomBar = "BottomBar"_key;
inline constexpr QLatin1String sideBar = "SideBar"_key;
inline constexpr QLatin1String sideLabelBar = "SideLabelBar"_key;
inline constexpr QLatin1String tieBar = "TieBar"_key;
inline constexpr QLatin1String hoopBar = "HoopBar"_key;
inline constexpr QLatin1String hoopBarLimbCount = "HoopBarLimbCount"_key;
inline constexpr QLatin1String secBeamWidth = "SecBeamWidth"_key;
inline constexpr QLatin1String secBeamAddBar = "SecBeamAddBar"_key;
inline constexpr QLatin1String hangBar = "HangBar"_key;
inline constexpr QLatin1String hangBarAnchor = "HangBarAnchor"_key;
inline constexpr QLatin1String denseLength = "DenseLength"_key;
inline constexpr QLatin1String haunchingLength = "HaunchingLength"_key;
inline constexpr QLatin1String haunchingHeight = "HaunchingHeight"_key;
inline constexpr QLatin1String haunchingBarInfo = "HaunchingBarInfo"_key;
inline constexpr QLatin1String otherHoopBars = "OtherHoopBars"_key;

} // namespace hbx::embedded::spankey
