#pragma once

#include "encoding/KeyLiteral.h"

/** Names that the drawing-set records have in JSON. */
namespace drawing::key {

using encoding::operator""_key;

constexpr QLatin1String areaName = "AreaName"_key;
constexpr QLatin1String floors = "Floors"_key;

constexpr QLatin1String name = "Name"_key;
constexpr QLatin1String code = "Code"_key;
constexpr QLatin1String bottomElev = "BottomElev"_key;
constexpr QLatin1String height = "Height"_key;
constexpr QLatin1String stdCount = "StdCount"_key;
constexpr QLatin1String remark = "Remark"_key;

} // namespace drawing::key
