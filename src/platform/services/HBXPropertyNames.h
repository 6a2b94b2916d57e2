#pragma once

#include <string>

/** Names of the properties of elements and draw objects, in the form in which a property set is asked, so that no read
 *  makes a text of its own. What is made before main may hold their addresses, and their texts only where this header
 *  stands above it in the same source. */
namespace hbx::property {

inline const std::wstring aboveFloorHeight = L"AboveFloorHeight";             ///< mm, floor to an opening's lower edge
inline const std::wstring axisOffset = L"AxisOffset";                         ///< mm off the axis, positive to the left
inline const std::wstring axisOffsetJzbz = L"AxisOffset_JZBZ";                ///< its second name
inline const std::wstring barInfo = L"BarInfo";                               ///< text of bars, C8@200
inline const std::wstring bottomElev = L"BottomElev";                         ///< underside: an elevation text
inline const std::wstring bottomHoriBar = L"BottomHoriBar";                   ///< bottom bars of a link beam
inline const std::wstring bottomThroughBar = L"BottomThroughBar";             ///< bottom bars of other beams
inline const std::wstring catalog = L"Catalog";                               ///< name[id] of an area bar's first slab
inline const std::wstring curveData = L"CurveData";                           ///< curve that a bar is drawn as
inline const std::wstring dependSlabId = L"DependSlabID";                     ///< id of a line bar's slab; -1: none
inline const std::wstring distributedBar = L"DistributedBar";                 ///< distribution bars of slabs
inline const std::wstring endPtBottomElev = L"EndPtBottomElev";               ///< underside of a wall's end
inline const std::wstring endPtTopElev = L"EndPtTopElev";                     ///< top of a wall's or beam's end
inline const std::wstring height = L"Height";                                 ///< mm, of foundations, units, tie beams
inline const std::wstring hoopBar = L"HoopBar";                               ///< hoops of beams
inline const std::wstring horiDistributionBar = L"HoriDistributionBar";       ///< bars along a wall
inline const std::wstring includeSupport = L"IncludeSupport";                 ///< lengths of line bars count supports
inline const std::wstring insertPt = L"InsertPt";                             ///< mm, insertion point in the section
inline const std::wstring isRadiate = L"IsRadiate";                           ///< area bars run like rays
inline const std::wstring labelPosition = L"LabelPosition";                   ///< where a bar's label stands
inline const std::wstring leftHook = L"LeftHook";                             ///< mm, the left hook, as decimal text
inline const std::wstring leftLabel = L"LeftLabel";                           ///< mm, stretch of a bar to the left
inline const std::wstring length = L"Length";                                 ///< mm, of a hole, along y
inline const std::wstring limb = L"Limb";                                     ///< limbs of hoops
inline const std::wstring longSpanReinforcedBar = L"LongSpanReinforcedBar";   ///< added bars along a hole's long span
inline const std::wstring masonryThroughBar = L"MasonryThroughBar";           ///< bars along a brick wall
inline const std::wstring material = L"Material";                             ///< number of a material, as text
inline const std::wstring obliqueReinforcedBar = L"ObliqueReinforcedBar";     ///< added oblique bars of a hole
inline const std::wstring openingHeight = L"OpeningHeight";                   ///< mm, of doors, windows, openings
inline const std::wstring openingWidth = L"OpeningWidth";                     ///< likewise
inline const std::wstring position = L"Position";                             ///< where across a slab area bars lie
inline const std::wstring radius = L"Radius";                                 ///< mm, of round sections and holes
inline const std::wstring referenceCurve = L"ReferenceCurve";                 ///< curve that area bars follow
inline const std::wstring reinforcementInfo = L"ReinforcementInfo";           ///< id,flag; for each bar or slab linked
inline const std::wstring remark = L"Remark";                                 ///< whatever was noted
inline const std::wstring rightHook = L"RightHook";                           ///< mm, the right hook, as decimal text
inline const std::wstring rightLabel = L"RightLabel";                         ///< mm, stretch of a bar to the right
inline const std::wstring saddleBarLineCount = L"SaddleBarLineCount";         ///< number of distribution bars, as text
inline const std::wstring sectionHeight = L"SectionHeight";                   ///< mm, along y; the depth of beams
inline const std::wstring sectionInfo = L"SectionInfo";                       ///< parameters of the section, as text
inline const std::wstring sectionPoly = L"SectionPoly";                       ///< outline of the section
inline const std::wstring sectionTypeId = L"SectionTypeID";                   ///< kind of section, a number
inline const std::wstring sectionWidth = L"SectionWidth";                     ///< mm, along x; across beams
inline const std::wstring shortSpanReinforcedBar = L"ShortSpanReinforcedBar"; ///< added bars along a hole's short span
inline const std::wstring sideBar = L"SideBar";                               ///< bars at the sides of beams
inline const std::wstring sideBarAl = L"SideBarAL";                           ///< the same of link beams
inline const std::wstring spanCount = L"SpanCount";                           ///< spans and cantilevers of a beam: 3A
inline const std::wstring startPtBottomElev = L"StartPtBottomElev";           ///< underside of a wall's start
inline const std::wstring startPtTopElev = L"StartPtTopElev";                 ///< top of a wall's or beam's start
inline const std::wstring thickness = L"Thickness";                           ///< mm, of walls, slabs, rafts
inline const std::wstring tieBar = L"TieBar";                                 ///< ties of walls and beams
inline const std::wstring topElev = L"TopElev";                               ///< top: an elevation text
inline const std::wstring topHoriBar = L"TopHoriBar";                         ///< top bars of a link beam
inline const std::wstring topThroughBar = L"TopThroughBar";                   ///< top bars of other beams
inline const std::wstring transverseBar = L"TransverseBar";                   ///< bars across a brick wall
inline const std::wstring type = L"Type";                                     ///< kind within the type, a number
inline const std::wstring type1 = L"Type1";                                   ///< likewise, of beams and foundations
inline const std::wstring vertDistributionBar = L"VertDistributionBar";       ///< bars up a wall
inline const std::wstring width = L"Width";                                   ///< mm, of a hole, along x
inline const std::wstring winDoorWidth = L"WinDoorWidth";                     ///< mm, divide of door and window
inline const std::wstring windDoorFloorHeight = L"WindDoorFloorHeight";       ///< mm, its height; meant: spelled so

} // namespace hbx::property
