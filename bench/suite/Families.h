#pragma once

#include "suite/Road.h"

/** The roads of each family, as the table has them, one after the other. */
namespace bench {

Roads geometryTextRoads();
Roads wallArchiveRoads();
Roads wallModelRoads();
Roads columnResultRoads();
Roads beamTextRoads();
Roads slabTextRoads();
Roads overlayRoads();
Roads slabHostRoads();
Roads beamHostRoads();
Roads wallApplyRoads();
Roads openingApplyRoads();

/** In the order of the table. */
inline constexpr Roads (*kFamilies[])() = {
    &geometryTextRoads, &wallArchiveRoads, &wallModelRoads, &columnResultRoads, &beamTextRoads,     &slabTextRoads,
    &overlayRoads,      &slabHostRoads,    &beamHostRoads,  &wallApplyRoads,    &openingApplyRoads,
};

} // namespace bench
