#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/Ring.h"

namespace vks {

/** True when edges of the rings meet elsewhere than neighbours in their common corner: a ring that crosses or touches
 *  itself, runs back on itself, or crosses or touches another one. Near-touches may count as touching. */
ORVCADPLATFORM_EXPORT bool ringsCross(const std::vector<Ring> &rings);

} // namespace vks
