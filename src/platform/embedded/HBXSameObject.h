#pragma once

#include "platform/geometry/CBox2.h"

#include <QtGlobal>

namespace vks {
class CCurve2d;
}

namespace hbx::embedded {

class HBXElementDrawObj;

/** Whether a type is one of bars (22, 23, 49, 50). */
bool isBarType(qint64 type);

/** The middle of a bar's "CurveData", as a box; not valid where it has none. Bars that are the same have it at the same
 *  place. */
vks::CBox2<double> barMiddle(const HBXElementDrawObj &bar);

/** Greatest distance, mm, within which the geometry of two draw objects is the same. */
constexpr double kSamePlaceTolerance = 1.0;

/** True when two curves share their whole length within the tolerance, whichever way they run; false for null. */
bool shareWholeLength(const vks::CCurve2d *a, const vks::CCurve2d *b);

/** True when two draw objects of a type tell of one thing: the same geometry, and all elevations with the same values;
 *  of bars (22, 23, 49, 50) also the same "Type", "Position", "CurveData" and "BarInfo". */
bool areSame(const HBXElementDrawObj &a, const HBXElementDrawObj &b);

} // namespace hbx::embedded
