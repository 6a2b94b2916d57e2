#pragma once

#include "platform/geometry/CLoop.h"

#include <vector>

namespace vks {

/** True when an edge crosses another one or shares a stretch with it. Within one loop edges may meet in the corner of
 *  neighbours and nowhere else; two loops may touch in points as long as neither passes through the other. Exact for
 *  arcs, within a tolerance, mm; an edge no longer than it meets nothing, and the edges beside it are neighbours. */
ORVCADPLATFORM_EXPORT bool edgesCross(const std::vector<CRefPtr<CLoop>> &loops, double tolerance);

/** True when two of the loops pass through each other; they may touch, and share stretches. */
ORVCADPLATFORM_EXPORT bool loopsCross(const std::vector<CRefPtr<CLoop>> &loops, double tolerance);

} // namespace vks
