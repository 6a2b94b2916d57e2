#pragma once

#include <QtGlobal>

#include <string>

/** Names and numbers that slabs, rafts, holes and their bars have in the host. */
namespace slabhost {

namespace type {
constexpr qint64 slab = 19;
constexpr qint64 bar = 22;
constexpr qint64 negativeBar = 23;
constexpr qint64 hole = 24;
constexpr qint64 raft = 48;
constexpr qint64 raftBar = 49;
constexpr qint64 raftNegativeBar = 50;
} // namespace type

namespace subtype {
constexpr qint64 slab = 13;
constexpr qint64 raft = 67;
constexpr qint64 rectangularHole = 153;
constexpr qint64 roundHole = 154;
constexpr qint64 otherHole = 167;
constexpr qint64 bar = 171;
constexpr qint64 negativeBar = 173;
constexpr qint64 raftNegativeBar = 177;
constexpr qint64 raftBar = 190;
} // namespace subtype

namespace property {
inline const std::wstring barInfo = L"BarInfo";
inline const std::wstring bottomElev = L"BottomElev";
inline const std::wstring catalog = L"Catalog";
inline const std::wstring curveData = L"CurveData";
inline const std::wstring dependSlabId = L"DependSlabID";
inline const std::wstring distributedBar = L"DistributedBar";
inline const std::wstring includeSupport = L"IncludeSupport";
inline const std::wstring insertPt = L"InsertPt";
inline const std::wstring isRadiate = L"IsRadiate";
inline const std::wstring labelPosition = L"LabelPosition";
inline const std::wstring leftHook = L"LeftHook";
inline const std::wstring leftLabel = L"LeftLabel";
inline const std::wstring length = L"Length";
inline const std::wstring position = L"Position";
inline const std::wstring radius = L"Radius";
inline const std::wstring referenceCurve = L"ReferenceCurve";
inline const std::wstring reinforcementInfo = L"ReinforcementInfo";
inline const std::wstring rightHook = L"RightHook";
inline const std::wstring rightLabel = L"RightLabel";
inline const std::wstring saddleBarLineCount = L"SaddleBarLineCount";
inline const std::wstring sectionInfo = L"SectionInfo";
inline const std::wstring sectionPoly = L"SectionPoly";
inline const std::wstring sectionTypeId = L"SectionTypeID";
inline const std::wstring thickness = L"Thickness";
inline const std::wstring topElev = L"TopElev";
inline const std::wstring type = L"Type";
inline const std::wstring width = L"Width";
} // namespace property

} // namespace slabhost
