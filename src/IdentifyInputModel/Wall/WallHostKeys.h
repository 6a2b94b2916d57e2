#pragma once

#include <QtGlobal>

#include <string>

/** Names and numbers that walls have in the host. */
namespace wall {

namespace property {
// Of elements:
inline const std::wstring material = L"Material";
inline const std::wstring vertDistributionBar = L"VertDistributionBar";
inline const std::wstring horiDistributionBar = L"HoriDistributionBar";
inline const std::wstring tieBar = L"TieBar";
inline const std::wstring thickness = L"Thickness";
inline const std::wstring type = L"Type"; // also of draw objects of columns
inline const std::wstring throughBar = L"MasonryThroughBar";
inline const std::wstring transverseBar = L"TransverseBar";
inline const std::wstring sectionTypeId = L"SectionTypeID";
// Of draw objects:
inline const std::wstring startBottomElev = L"StartPtBottomElev";
inline const std::wstring endBottomElev = L"EndPtBottomElev";
inline const std::wstring startTopElev = L"StartPtTopElev";
inline const std::wstring endTopElev = L"EndPtTopElev";
} // namespace property

/** Element types. */
namespace type {
constexpr qint64 forceWall = 0;
constexpr qint64 brickWall = 1003;
constexpr qint64 column = 25;
constexpr qint64 axisGrid = 74;
constexpr qint64 axisLine = 75;
} // namespace type

} // namespace wall
