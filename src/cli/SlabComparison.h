#pragma once

#include "cli/Comparison.h"

class IHBXFloor;
class IHBXModel;

namespace orvcad {

/** How the slabs, rafts, holes and bars of two floors differ, in what a reply carries: outline or line, name, elevations,
 *  thickness in whole millimetres, and what bars say. Members that are missing are told, and members that are too many. Not
 *  carried, and not compared, are remarks, bar texts of holes, rows of bars, and the right hooks of bars that have the left
 *  one's on both sides. */
struct SlabComparison : Comparison
{
    QString text() const;
};

SlabComparison compareSlabs(IHBXModel &expectedModel, const IHBXFloor &expected, IHBXModel &foundModel,
                            const IHBXFloor &found);

} // namespace orvcad
