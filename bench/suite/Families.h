#pragma once

#include "suite/Road.h"

/** The roads of each family, as the table has them, one after the other. */
namespace bench {

Roads geometryTextRoads();

/** In the order of the table. */
inline constexpr Roads (*kFamilies[])() = {&geometryTextRoads};

} // namespace bench
