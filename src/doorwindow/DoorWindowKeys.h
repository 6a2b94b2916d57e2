#pragma once

#include "encoding/RecordKey.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

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

/** Properties and element types of the host. */
namespace property = hbx::property;
namespace type = hbx::type;

} // namespace doorwindow
