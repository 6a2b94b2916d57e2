#pragma once

#include "platform/geometry/CPolygon.h"
#include "platform/geometry/GeosContext.h"

namespace vks {

/** Grid that vertices of overlay are rounded to, mm. */
constexpr double kOverlayGrid = 1e-3;

/** The area that rings bound by the even-odd rule, as GEOS geometry: a polygon, or several. Rings without three
 *  corners count as nothing; rings that cross or touch themselves or each other are taken apart, so that the area is
 *  valid. An empty multi-polygon when nothing is left; null when GEOS fails. */
ORVCADPLATFORM_EXPORT geos::Geometry areaOf(const std::vector<Ring> &rings);

/** Polygons of an overlay's result, ready to be judged and turned into the kernel's form. */
class ORVCADPLATFORM_EXPORT OverlayResult
{
public:
    /** @param geometry  what GEOS gave; null and anything without area give an empty result */
    explicit OverlayResult(const GEOSGeom_t *geometry);

    /** True when a part or a hole has an area below a width (mm) times its perimeter. */
    bool hasSliver(double width) const;
    /** Takes such parts and holes out. */
    void dropSlivers(double width);
    /** The polygon, moved by the origin, outer loops counter-clockwise and holes clockwise; null when it is empty. */
    CRefPtr<CPolygon> polygon(const CVec2<double> &origin) const;

private:
    std::vector<std::vector<Ring>> m_parts; // shell first
};

} // namespace vks
