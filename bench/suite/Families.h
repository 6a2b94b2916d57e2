#pragma once

#include "suite/Road.h"

/** The roads of each family, as the table has them, one after the other. */
namespace bench {

Roads geometryTextRoads();
Roads objectTreeRoads();
Roads wallArchiveRoads();
Roads drawingSetRoads();
Roads drawingLookupRoads();
Roads wallModelRoads();
Roads columnResultRoads();
Roads beamTextRoads();
Roads slabTextRoads();
Roads overlayRoads();
Roads boxTreeRoads();
Roads slabModelRoads();
Roads slabSearchRoads();
Roads slabHostRoads();
Roads beamHostRoads();
Roads wallApplyRoads();
Roads openingApplyRoads();
Roads projectRoads();
Roads processRoads();

/** In the order of the table. */
inline constexpr Roads (*kFamilies[])() = {
    &geometryTextRoads, &objectTreeRoads,   &wallArchiveRoads, &drawingSetRoads, &drawingLookupRoads,
    &wallModelRoads,    &columnResultRoads, &beamTextRoads,    &slabTextRoads,   &overlayRoads,
    &boxTreeRoads,      &slabModelRoads,    &slabSearchRoads,  &slabHostRoads,   &beamHostRoads,
    &wallApplyRoads,    &openingApplyRoads, &projectRoads,     &processRoads,
};

} // namespace bench
