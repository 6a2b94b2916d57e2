#pragma once

#include "platform/geometry/GeosContext.h"

namespace vks {

/** Grid that vertices of overlay are rounded to, mm. */
constexpr double kOverlayGrid = 1e-3;

/** The area that rings bound by the even-odd rule, as GEOS geometry: a polygon, or several. Rings without three
 *  corners count as nothing; rings that cross or touch themselves or each other are taken apart, so that the area is
 *  valid. An empty multi-polygon when nothing is left; null when GEOS fails. */
ORVCADPLATFORM_EXPORT geos::Geometry areaOf(const std::vector<Ring> &rings);

} // namespace vks
