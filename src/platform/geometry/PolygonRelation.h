#pragma once

#include "platform/geometry/CPolygon.h"

namespace vks {

/** How polygon a lies to polygon b. */
enum EnPolygonPolygonPosition {
    kPolygonsInvalid = -1, ///< one of them is null or invalid
    kPolygonsOverlap = 0,  ///< they overlap, neither holds the other
    kPolygonsApart = 1,
    kPolygonInside = 2,         ///< a inside b, boundaries apart
    kPolygonInsideTouching = 3, ///< a inside b, touching its boundary
    kPolygonHoldsTouching = 4,  ///< a holds b, b touching its boundary
    kPolygonHolds = 5,          ///< a holds b, boundaries apart
    kPolygonsTouch = 6,         ///< side by side, touching
    kPolygonsSame = 7
};

/** How a curve lies to a polygon. */
enum EnCurvePolygonPosition {
    kCurveInvalid = -1, ///< one of them is null, empty or invalid
    kCurveInAndOut = 0, ///< partly in and partly out
    kCurveOut = 1,
    kCurveIn = 2,
    kCurveInTouching = 3, ///< in, touching the boundary
    kCurveOnBoundary = 4, ///< along the boundary
    kCurveOutTouching = 5 ///< out, touching the boundary
};

/** Relation of two polygons within a tolerance, mm.
 *
 *  At or above 0: a is inside b when no point of a is farther than the tolerance outside b; both ways is the same. They
 *  overlap when their common part is thicker than the tolerance; touching is a distance of at most the tolerance.
 *  Below 0 an overlap or an overhang must likewise be thicker than its amount, and touching is never reported: 3
 *  becomes 2, 4 becomes 5, 6 becomes 1. A tolerance smaller than kOverlayResolution counts as that.
 *
 *  An area is thicker than the tolerance when a disc of more than that diameter fits into it. Judged exactly for arcs.
 *  Invalid are polygons without loops or area, with an open loop, and with edges that cross; of polygons whose boxes lie
 *  apart only those are told that the box shows to be invalid, the others are apart. */
ORVCADPLATFORM_EXPORT EnPolygonPolygonPosition PolygonPolygonPosition(const CPolygon *a, const CPolygon *b,
                                                                      double tolerance);
/** Relation of a curve and a polygon within a tolerance, mm; smaller than kOverlayResolution counts as that. The boundary
 *  is all that lies within the tolerance of it: a curve goes in or out where it leaves that. A curve without length is
 *  invalid. */
ORVCADPLATFORM_EXPORT EnCurvePolygonPosition CurvePolygonPosition(const CCurve2d *curve, const CPolygon *polygon,
                                                                  double tolerance);

} // namespace vks
