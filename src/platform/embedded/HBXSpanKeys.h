#pragma once

#include <QLatin1String>

/** Keys of a span of a beam chain, in exchange files and as the host keeps it: those of the beam span record. */
namespace hbx::embedded::spankey {

inline constexpr QLatin1String spanIndex("SpanIndex");
inline constexpr QLatin1String startElev("StartElev");
inline constexpr QLatin1String endElev("EndElev");
inline constexpr QLatin1String measures("SpanA1_A4");
inline constexpr QLatin1String spanLength("SpanLength");
inline constexpr QLatin1String section("Section");
inline constexpr QLatin1String axisOffset("AxisOffset");
inline constexpr QLatin1String topThroughBar("TopThroughBar");
inline constexpr QLatin1String leftSupportBar("LeftSupportBar");
inline constexpr QLatin1String spanBar("SpanBar");
inline constexpr QLatin1String rightSupportBar("RightSupportBar");
inline constexpr QLatin1String bottomThroughBar("BottomThroughBar");
inline constexpr QLatin1String bottomBar("BottomBar");
inline constexpr QLatin1String sideBar("SideBar");
inline constexpr QLatin1String sideLabelBar("SideLabelBar");
inline constexpr QLatin1String tieBar("TieBar");
inline constexpr QLatin1String hoopBar("HoopBar");
inline constexpr QLatin1String hoopBarLimbCount("HoopBarLimbCount");
inline constexpr QLatin1String secBeamWidth("SecBeamWidth");
inline constexpr QLatin1String secBeamAddBar("SecBeamAddBar");
inline constexpr QLatin1String hangBar("HangBar");
inline constexpr QLatin1String hangBarAnchor("HangBarAnchor");
inline constexpr QLatin1String denseLength("DenseLength");
inline constexpr QLatin1String haunchingLength("HaunchingLength");
inline constexpr QLatin1String haunchingHeight("HaunchingHeight");
inline constexpr QLatin1String haunchingBarInfo("HaunchingBarInfo");
inline constexpr QLatin1String otherHoopBars("OtherHoopBars");

} // namespace hbx::embedded::spankey
