#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CPolygon.h"

/** Comparison of shapes. */
namespace orvcadcommon {

/** Whether a polygon is a pattern that was turned and moved, within 1 mm; a mirrored one is not.
 *  @param angle  how far the pattern is turned, counter-clockwise from 0 up to a full turn, rad: the least of several that
 *                fit. It stays as it was when the polygons are not congruent. */
ORVCADPLATFORM_EXPORT bool PolyIsCongruent(const vks::CPolygon *pattern, const vks::CPolygon *polygon, double &angle);

} // namespace orvcadcommon
