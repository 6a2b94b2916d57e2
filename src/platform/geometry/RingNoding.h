#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/Ring.h"

namespace vks {

/** Gives edges the corners of other edges that lie on them within a tolerance (mm), so that an edge shared in part is
 *  the same for both. A corner within the tolerance of an edge's end is no corner of that edge. Of two polygons only
 *  corners where their boxes meet are looked at.
 *  @param polygons  the rings of each */
ORVCADPLATFORM_EXPORT void nodeRings(std::vector<std::vector<Ring>> &polygons, double tolerance);

} // namespace vks
