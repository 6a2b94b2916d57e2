#pragma once

#include "encoding/RecordKey.h"

/** Layer files, which drawing analysis writes: layers, each with a list of objects that hold an id. */
namespace encoding::layerfile {

constexpr QLatin1String ending = ".json"_key;

constexpr QLatin1String layerName = "LayerName"_key;
constexpr QLatin1String edoIdList = "EdoIDList"_key;
constexpr QLatin1String edoId = "EdoID"_key;

} // namespace encoding::layerfile
