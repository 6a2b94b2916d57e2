#pragma once

#include "platform/dwgx/KeyLiteral.h"

#include <cstddef>

/** Words of the building exchange form `hbx-project` (docs/formats/hbx-project.md). */
namespace hbx::embedded::exchange {

using namespace dwgx::literals;

constexpr int kVersion = 1;
constexpr QLatin1String kFormatName = "hbx-project"_key;

namespace key {
constexpr QLatin1String format = "format"_key;
constexpr QLatin1String version = "version"_key;
constexpr QLatin1String name = "name"_key;
constexpr QLatin1String source = "source"_key;
constexpr QLatin1String regions = "regions"_key;
constexpr QLatin1String options = "options"_key;
constexpr QLatin1String materials = "materials"_key;
constexpr QLatin1String planeRule = "planeRule"_key;
constexpr QLatin1String group = "group"_key;
constexpr QLatin1String value = "value"_key;
constexpr QLatin1String number = "number"_key;
constexpr QLatin1String floors = "floors"_key;
constexpr QLatin1String code = "code"_key;
constexpr QLatin1String bottomElev = "bottomElev"_key;
constexpr QLatin1String height = "height"_key;
constexpr QLatin1String standardFloorCount = "standardFloorCount"_key;
constexpr QLatin1String foundation = "foundation"_key;
constexpr QLatin1String remark = "remark"_key;
constexpr QLatin1String elements = "elements"_key;
constexpr QLatin1String type = "type"_key;
constexpr QLatin1String subType = "subType"_key;
constexpr QLatin1String properties = "properties"_key;
constexpr QLatin1String orderNumber = "orderNumber"_key;
constexpr QLatin1String drawObjects = "drawObjects"_key;
constexpr QLatin1String units = "units"_key;
constexpr QLatin1String unit = "unit"_key;
constexpr QLatin1String shape = "shape"_key;
constexpr QLatin1String next = "next"_key;
constexpr QLatin1String children = "children"_key;
constexpr QLatin1String attachedTo = "attachedTo"_key;
constexpr QLatin1String spans = "spans"_key;
constexpr QLatin1String section = "section"_key;
constexpr QLatin1String layer = "layer"_key;
constexpr QLatin1String state = "state"_key;
constexpr QLatin1String key = "key"_key;
constexpr QLatin1String order = "order"_key;
constexpr QLatin1String kind = "kind"_key;
constexpr QLatin1String outline = "outline"_key;
constexpr QLatin1String axis = "axis"_key;
constexpr QLatin1String curve = "curve"_key;
constexpr QLatin1String width = "width"_key;
constexpr QLatin1String distanceToLeft = "distanceToLeft"_key;
constexpr QLatin1String insertPoint = "insertPoint"_key;
constexpr QLatin1String angle = "angle"_key;
constexpr QLatin1String mirror = "mirror"_key;
constexpr QLatin1String axes = "axes"_key;
constexpr QLatin1String label = "label"_key;
constexpr QLatin1String coordinates = "coordinates"_key;
constexpr QLatin1String origin = "origin"_key;
constexpr QLatin1String u = "u"_key;
constexpr QLatin1String v = "v"_key;
} // namespace key

} // namespace hbx::embedded::exchange
