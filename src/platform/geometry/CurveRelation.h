#pragma once

#include "platform/geometry/CCurve2d.h"

#include <vector>

namespace vks {

/** Least distance of two curves, mm, with the nearest points; infinite, and the points left alone, for a null or empty
 *  curve, and when the distance is above the limit (a limit at or below zero is none). */
ORVCADPLATFORM_EXPORT double GeometryDistance(const CCurve2d *a, const CCurve2d *b, CVec2<double> &onA,
                                              CVec2<double> &onB, double limit);

/** Common points of two curves in order along a, each once within the tolerance (mm); of a common stretch its two ends.
 *  @param extendA  a counts as a line without end, or as its full circle; b never does */
ORVCADPLATFORM_EXPORT std::vector<CVec2<double>> CurveIntersections(const CCurve2d &a, const CCurve2d &b, bool extendA,
                                                                    double tolerance);

/** The curve at a distance, mm, to the left when positive. Null for a null, empty or zero-length curve and for an arc
 *  whose radius would not stay above zero. */
ORVCADPLATFORM_EXPORT CRefPtr<CCurve2d> OffsetCurve(const CCurve2d *curve, double distance);

} // namespace vks
