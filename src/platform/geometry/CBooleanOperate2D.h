#pragma once

#include "platform/geometry/CPolygon.h"

#include <vector>

namespace vks {

/** Overlay of polygons, on GEOS.
 *
 *  Arcs go in as chords that leave the arc by no more than kChordSagitta, so results have straight edges. Vertices are
 *  welded within the tolerance and rounded to 1e-3 mm before overlay; where that fails or leaves a sliver, overlay runs
 *  on a grid of 1e-3 mm. A polygon that crosses itself is repaired first. Results are new, valid polygons whose outer
 *  loops run counter-clockwise and holes clockwise; null when the result is empty. Null and empty polygons count as
 *  nothing, geometry that is not finite or reaches farther than 1e12 mm from the origin likewise. */
class ORVCADPLATFORM_EXPORT CBooleanOperate2D
{
public:
    /** What any of them holds. */
    static CRefPtr<CPolygon> MultUnite(const std::vector<CPolygon *> &polygons);
    /** What of a lies outside b. */
    static CRefPtr<CPolygon> Subtract(const CPolygon *a, const CPolygon *b);
    /** What both hold. */
    static CRefPtr<CPolygon> Intersect(const CPolygon *a, const CPolygon *b);
};

} // namespace vks
