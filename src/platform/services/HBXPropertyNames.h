#pragma once

#include <string>

/** Names of the properties of elements and draw objects, in the form in which a property set is asked, so that no read
 *  makes a text of its own. What is made before main may hold their addresses, and their texts only where this header
 *  stands above it in the same source. */
namespace hbx::property {

inline const std::wstring aboveFloorHeight = L"AboveFloorHeight";
inline const std::wstring axisOffset = L"AxisOffset";
inline const std::wstring axisOffsetJzbz = L"AxisOffset_JZBZ";
inline const std::wstring barInfo = L"BarInfo";
inline const std::wstring bottomElev = L"BottomElev";
inline const std::wstring bottomHoriBar = L"BottomHoriBar";
inline const std::wstring bottomThroughBar = L"BottomThroughBar";
inline const std::wstring catalog = L"Catalog";
inline const std::wstring curveData = L"CurveData";
inline const std::wstring dependSlabId = L"DependSlabID";
inline const std::wstring distributedBar = L"DistributedBar";
inline const std::wstring endPtBottomElev = L"EndPtBottomElev";
inline const std::wstring endPtTopElev = L"EndPtTopElev";
inline const std::wstring height = L"Height";
inline const std::wstring hoopBar = L"HoopBar";
inline const std::wstring horiDistributionBar = L"HoriDistributionBar";
inline const std::wstring includeSupport = L"IncludeSupport";
inline const std::wstring insertPt = L"InsertPt";
inline const std::wstring isRadiate = L"IsRadiate";
inline const std::wstring labelPosition = L"LabelPosition";
inline const std::wstring leftHook = L"LeftHook";
inline const std::wstring leftLabel = L"LeftLabel";
inline const std::wstring length = L"Length";
inline const std::wstring limb = L"Limb";
inline const std::wstring longSpanReinforcedBar = L"LongSpanReinforcedBar";
inline const std::wstring masonryThroughBar = L"MasonryThroughBar";
inline const std::wstring material = L"Material";
inline const std::wstring obliqueReinforcedBar = L"ObliqueReinforcedBar";
inline const std::wstring openingHeight = L"OpeningHeight";
inline const std::wstring openingWidth = L"OpeningWidth";
inline const std::wstring position = L"Position";
inline const std::wstring radius = L"Radius";
inline const std::wstring referenceCurve = L"ReferenceCurve";
inline const std::wstring reinforcementInfo = L"ReinforcementInfo";
inline const std::wstring remark = L"Remark";
inline const std::wstring rightHook = L"RightHook";
inline const std::wstring rightLabel = L"RightLabel";
inline const std::wstring saddleBarLineCount = L"SaddleBarLineCount";
inline const std::wstring sectionHeight = L"SectionHeight";
inline const std::wstring sectionInfo = L"SectionInfo";
inline const std::wstring sectionPoly = L"SectionPoly";
inline const std::wstring sectionTypeId = L"SectionTypeID";
inline const std::wstring sectionWidth = L"SectionWidth";
inline const std::wstring shortSpanReinforcedBar = L"ShortSpanReinforcedBar";
inline const std::wstring sideBar = L"SideBar";
inline const std::wstring sideBarAl = L"SideBarAL";
inline const std::wstring spanCount = L"SpanCount";
inline const std::wstring startPtBottomElev = L"StartPtBottomElev";
inline const std::wstring startPtTopElev = L"StartPtTopElev";
inline const std::wstring thickness = L"Thickness";
inline const std::wstring tieBar = L"TieBar";
inline const std::wstring topElev = L"TopElev";
inline const std::wstring topHoriBar = L"TopHoriBar";
inline const std::wstring topThroughBar = L"TopThroughBar";
inline const std::wstring transverseBar = L"TransverseBar";
inline const std::wstring type = L"Type";
inline const std::wstring type1 = L"Type1";
inline const std::wstring vertDistributionBar = L"VertDistributionBar";
inline const std::wstring width = L"Width";
inline const std::wstring winDoorWidth = L"WinDoorWidth";
inline const std::wstring windDoorFloorHeight = L"WindDoorFloorHeight"; // meant: the host spells it so

} // namespace hbx::property
