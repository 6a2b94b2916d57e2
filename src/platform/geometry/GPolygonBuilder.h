#pragma once

#include "platform/geometry/CPolygon.h"

namespace vks {

/** Polygons made from curves. */
class ORVCADPLATFORM_EXPORT GPolygonBuilder
{
public:
    /** The strip along a curve: exact arcs beside an arc, straight ends, counter-clockwise. A full circle gives a ring.
     *  A width larger than an arc's radius on its inner side makes the strip reach to the centre and no farther.
     *  @param leftWidth, rightWidth  mm from the curve to the sides; negative widths lie on the other side
     *  @return null for a null, empty or zero-length curve, and for a strip without width */
    static CRefPtr<CPolygon> CreatePolygon(const CCurve2d *curve, double leftWidth, double rightWidth);
};

} // namespace vks
