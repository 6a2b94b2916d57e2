#pragma once

#include "encoding/RecordKey.h"

#include <QtGlobal>

#include <string>

/** Names that doors and windows have in JSON and in the host. */
namespace doorwindow {

namespace key {
using encoding::operator""_key;

constexpr QLatin1String elementId = "elementID"_key;
constexpr QLatin1String name = "name"_key;
constexpr QLatin1String elementType = "nElementType"_key;
constexpr QLatin1String elementSubType = "nSubElementType"_key;
constexpr QLatin1String height = "nHeight"_key;
constexpr QLatin1String width = "nWidth"_key;
constexpr QLatin1String heightFromFloor = "nHeightFromFloor"_key;
constexpr QLatin1String floorName = "floorName"_key; // holds what the host calls the floor's code
constexpr QLatin1String regionName = "regionName"_key;
constexpr QLatin1String elementName = "elementName"_key;
constexpr QLatin1String x = "X"_key;
constexpr QLatin1String y = "Y"_key;

constexpr QLatin1String reply = "eDoorWin"_key;
constexpr QLatin1String elementsAndEdos = "ElementsAndEdos"_key;
constexpr QLatin1String identifyOptions = "ORVCADWindoorDataInputModel"_key;
} // namespace key

namespace property {
inline const std::wstring openingHeight = L"OpeningHeight";
inline const std::wstring openingWidth = L"OpeningWidth";
inline const std::wstring aboveFloorHeight = L"AboveFloorHeight";
inline const std::wstring winDoorWidth = L"WinDoorWidth";
inline const std::wstring windDoorFloorHeight = L"WindDoorFloorHeight"; // meant: the host spells it so
} // namespace property

namespace type {
constexpr qint64 door = 4;
constexpr qint64 window = 5;
constexpr qint64 combined = 6; ///< door and window in one
constexpr qint64 wallOpening = 7;

constexpr qint64 forceWall = 0;
constexpr qint64 otherWall = 1001;
constexpr qint64 brickWall = 1003;
} // namespace type

} // namespace doorwindow
