#pragma once

/** Names of the properties that the catalogue knows, in the form in which a property set is asked. */
namespace hbx::embedded::property {

inline constexpr wchar_t aboveFloorHeight[] = L"AboveFloorHeight";
inline constexpr wchar_t axisOffset[] = L"AxisOffset";
inline constexpr wchar_t axisOffsetJzbz[] = L"AxisOffset_JZBZ";
inline constexpr wchar_t barInfo[] = L"BarInfo";
inline constexpr wchar_t bottomElev[] = L"BottomElev";
inline constexpr wchar_t bottomHoriBar[] = L"BottomHoriBar";
inline constexpr wchar_t bottomThroughBar[] = L"BottomThroughBar";
inline constexpr wchar_t catalog[] = L"Catalog";
inline constexpr wchar_t curveData[] = L"CurveData";
inline constexpr wchar_t dependSlabId[] = L"DependSlabID";
inline constexpr wchar_t distributedBar[] = L"DistributedBar";
inline constexpr wchar_t endPtBottomElev[] = L"EndPtBottomElev";
inline constexpr wchar_t endPtTopElev[] = L"EndPtTopElev";
inline constexpr wchar_t height[] = L"Height";
inline constexpr wchar_t hoopBar[] = L"HoopBar";
inline constexpr wchar_t horiDistributionBar[] = L"HoriDistributionBar";
inline constexpr wchar_t includeSupport[] = L"IncludeSupport";
inline constexpr wchar_t insertPt[] = L"InsertPt";
inline constexpr wchar_t isRadiate[] = L"IsRadiate";
inline constexpr wchar_t labelPosition[] = L"LabelPosition";
inline constexpr wchar_t leftHook[] = L"LeftHook";
inline constexpr wchar_t leftLabel[] = L"LeftLabel";
inline constexpr wchar_t length[] = L"Length";
inline constexpr wchar_t limb[] = L"Limb";
inline constexpr wchar_t longSpanReinforcedBar[] = L"LongSpanReinforcedBar";
inline constexpr wchar_t masonryThroughBar[] = L"MasonryThroughBar";
inline constexpr wchar_t material[] = L"Material";
inline constexpr wchar_t obliqueReinforcedBar[] = L"ObliqueReinforcedBar";
inline constexpr wchar_t openingHeight[] = L"OpeningHeight";
inline constexpr wchar_t openingWidth[] = L"OpeningWidth";
inline constexpr wchar_t position[] = L"Position";
inline constexpr wchar_t radius[] = L"Radius";
inline constexpr wchar_t referenceCurve[] = L"ReferenceCurve";
inline constexpr wchar_t reinforcementInfo[] = L"ReinforcementInfo";
inline constexpr wchar_t remark[] = L"Remark";
inline constexpr wchar_t rightHook[] = L"RightHook";
inline constexpr wchar_t rightLabel[] = L"RightLabel";
inline constexpr wchar_t saddleBarLineCount[] = L"SaddleBarLineCount";
inline constexpr wchar_t sectionHeight[] = L"SectionHeight";
inline constexpr wchar_t sectionInfo[] = L"SectionInfo";
inline constexpr wchar_t sectionPoly[] = L"SectionPoly";
inline constexpr wchar_t sectionTypeId[] = L"SectionTypeID";
inline constexpr wchar_t sectionWidth[] = L"SectionWidth";
inline constexpr wchar_t shortSpanReinforcedBar[] = L"ShortSpanReinforcedBar";
inline constexpr wchar_t sideBar[] = L"SideBar";
inline constexpr wchar_t sideBarAl[] = L"SideBarAL";
inline constexpr wchar_t spanCount[] = L"SpanCount";
inline constexpr wchar_t startPtBottomElev[] = L"StartPtBottomElev";
inline constexpr wchar_t startPtTopElev[] = L"StartPtTopElev";
inline constexpr wchar_t thickness[] = L"Thickness";
inline constexpr wchar_t tieBar[] = L"TieBar";
inline constexpr wchar_t topElev[] = L"TopElev";
inline constexpr wchar_t topHoriBar[] = L"TopHoriBar";
inline constexpr wchar_t topThroughBar[] = L"TopThroughBar";
inline constexpr wchar_t transverseBar[] = L"TransverseBar";
inline constexpr wchar_t type[] = L"Type";
inline constexpr wchar_t type1[] = L"Type1";
inline constexpr wchar_t vertDistributionBar[] = L"VertDistributionBar";
inline constexpr wchar_t width[] = L"Width";
inline constexpr wchar_t winDoorWidth[] = L"WinDoorWidth";
inline constexpr wchar_t windDoorFloorHeight[] = L"WindDoorFloorHeight";

} // namespace hbx::embedded::property
