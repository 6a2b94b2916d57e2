#pragma once

#include "slab/ORVCADBoardLocalModel_Sample.h"

/** Large floors of slabs with bars, for measurements. */
namespace bench {

/** Adds so many slabs of 6 m by 4.5 m, side by side, with a beam at each of their sides. Nothing has an id. */
void addSlabFloor(ORVCADBoardLocalModel_Sample &model, int slabs);

/** Adds bars over the slabs of a floor, some five for each: see SlabBarGenerator. */
void addSlabBars(const ORVCADBoardLocalModel_Sample &floor, ORVCADBoardLocalModel_Sample &bars);

} // namespace bench
