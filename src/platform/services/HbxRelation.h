#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CPolygon.h"
#include "platform/geometry/PolygonRelation.h"

#include <vector>

/** Relations of plan geometry under the names that the host gives them; lengths and tolerances in mm. */
namespace hbx {

/** See vks::PolygonPolygonPosition. */
ORVCADPLATFORM_EXPORT vks::EnPolygonPolygonPosition polyPolyPosition(const vks::CPolygon *a, const vks::CPolygon *b,
                                                                     double tolerance);
/** See vks::CurvePolygonPosition. */
ORVCADPLATFORM_EXPORT vks::EnCurvePolygonPosition linePolyPosition(const vks::CCurve2d *curve,
                                                                   const vks::CPolygon *polygon, double tolerance);

/** Points where a, extended (a line without end, an arc to its circle), meets b as it stands, in order along a and each
 *  once within the tolerance; empty for null or empty geometry. */
ORVCADPLATFORM_EXPORT std::vector<vks::CVec2<double>> extIntersect(const vks::CCurve2d *a, const vks::CCurve2d *b,
                                                                   double tolerance);
/** The same with every curve of a polygon's boundary. */
ORVCADPLATFORM_EXPORT std::vector<vks::CVec2<double>> extIntersect(const vks::CCurve2d *a, const vks::CPolygon *b,
                                                                   double tolerance);

/** Two lines whose directions differ by at most the angle tolerance (rad), either way round; two arcs about one centre
 *  within the distance tolerance. False for null, for a line of no length, and for a line and an arc. */
ORVCADPLATFORM_EXPORT bool isParallel(const vks::CCurve2d *a, const vks::CCurve2d *b, double angleTolerance,
                                      double distTolerance);

/** The curve at a distance, to the left when positive; null when there is none (see vks::OffsetCurve). */
ORVCADPLATFORM_EXPORT vks::CRefPtr<vks::CCurve2d> offSetCurve(const vks::CCurve2d *curve, double distance);

/** Side of a curve, lengthened at its ends, that a point lies on: 1 left, -1 right, 0 within the tolerance of it, and 0
 *  for a null or empty curve. */
ORVCADPLATFORM_EXPORT int pointSegSide(const vks::CVec2<double> &point, const vks::CCurve2d *curve, double tolerance);

} // namespace hbx
