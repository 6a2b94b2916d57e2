#pragma once

#include "platform/geometry/CPolygon.h"

namespace vks {

/** A cleaned copy of a polygon: vertices nearer than the distance tolerance are one, edges shorter than it are gone,
 *  neighbouring edges that go on in one line (or on one circle) within the angle tolerance are one edge, loops without
 *  area are gone, and a polygon that crosses itself is taken apart so that the result is valid. A sound polygon comes
 *  back with the same area within distTolerance times its perimeter; its arcs stay arcs.
 *  @param distTolerance   mm
 *  @param angleTolerance  rad
 *  @param flag            1 also makes the outer loop run counter-clockwise and the holes clockwise; 0 keeps directions
 *  @return null for null and when nothing of the polygon is left */
ORVCADPLATFORM_EXPORT CRefPtr<CPolygon> PolygonRepair(const CPolygon *polygon, double distTolerance,
                                                      double angleTolerance, int flag);

} // namespace vks
