#pragma once

#include "platform/geometry/CCoord3.h"
#include "platform/geometry/CCurve2d.h"

namespace vks {

class CPolygon;

/** Moves a curve from the plane of one frame into the plane of another, along a direction.
 *
 *  @param from       frame whose own plane the curve lies in; an absent frame counts as the world's
 *  @param to         frame that the result is told in; likewise
 *  @param direction  of projection, in the world; need not have length 1
 *  @param wholeOnly  true: an arc whose projection is no arc of a circle gives null; false: it gives the arc through
 *                    the projections of its start, middle and end
 *  @return a new curve; null for a null or empty curve, a direction within the target plane, and a curve whose
 *          projection has no length */
ORVCADPLATFORM_EXPORT CRefPtr<CCurve2d> OrientProjectCurve2d(const CCoord3<double> &from, const CCurve2d *curve,
                                                             const CCoord3<double> &to, const CVec3<double> &direction,
                                                             bool wholeOnly);
/** The same for a polygon, curve by curve; null when one of its curves gives null. */
ORVCADPLATFORM_EXPORT CRefPtr<CPolygon> OrientProjectPolygon(const CCoord3<double> &from, const CPolygon *polygon,
                                                             const CCoord3<double> &to, const CVec3<double> &direction);

} // namespace vks
