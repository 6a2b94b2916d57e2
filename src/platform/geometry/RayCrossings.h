#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CVec2.h"

namespace vks {

class CLoop;

/** True when the ray from a point to the right crosses a loop an odd number of times: the point lies inside, unless it
 *  lies on the loop. Exact for arcs; a corner counts for one of its two edges. */
ORVCADPLATFORM_EXPORT bool crossesRayOddly(const CLoop &loop, const CVec2<double> &point);

} // namespace vks
