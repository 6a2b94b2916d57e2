#pragma once

#include "suite/Road.h"

/** The roads of each family, as the table has them, one after the other. */
namespace bench {

Roads geometryTextRoads();
Roads objectTreeRoads();
Roads boxTreeRoads();
Roads slabModelRoads();
Roads slabSearchRoads();
Roads drawingSetRoads();
Roads drawingLookupRoads();
Roads projectRoads();
Roads processRoads();

/** In the order of the table. */
inline constexpr Roads (*kFamilies[])() = {
    &geometryTextRoads,
    &objectTreeRoads,
    &boxTreeRoads,
    &slabModelRoads,
    &slabSearchRoads,
    &drawingSetRoads,
    &drawingLookupRoads,
    &projectRoads,
    &processRoads,
};

} // namespace bench
