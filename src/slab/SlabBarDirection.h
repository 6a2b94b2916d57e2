#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CVec2.h"

namespace vks {
class CCurve2d;
}

/** @file
 *  Directions of slab bars, in the plan. Null and not finite geometry makes every answer false. */

/** Whether two directions are the same within 10 degrees, either way round; 10 degrees are within. The zero vector has
 *  the direction of every vector. */
ORVCADMODELDATA_EXPORT bool isSameDirPi(const vks::CVec2<double> &a, const vks::CVec2<double> &b);

/** Whether two curves end in the same direction within 10 degrees, either way round, and share a stretch within 1 mm.
 *  False for a curve without length. */
ORVCADMODELDATA_EXPORT bool isSameLine(const vks::CCurve2d *p, const vks::CCurve2d *q);

/** Whether a bar along this curve has its left and right exchanged to be told in the usual sense: its direction at the
 *  end, counted counter-clockwise from the x axis, is below 0.4014 rad (23 degrees) or above that plus half a turn. True
 *  for a line without length, which has no direction. */
ORVCADMODELDATA_EXPORT bool needNormalizeStretchInfo(const vks::CCurve2d *curve);

/** The side of its line that a top bar reaches to, left and right as seen along a line in the usual sense. */
enum class BarReach { ToLeft = 0, ToRight = 1, ToBoth = 2 };

/** A length of at most 0.5 either way is none. A bar without a left one reaches to the right, else one without a right one
 *  to the left, else both ways; along a line whose sides are exchanged (needNormalizeStretchInfo) the other way round. */
ORVCADMODELDATA_EXPORT BarReach barReach(const vks::CCurve2d *line, double leftStretch, double rightStretch);
