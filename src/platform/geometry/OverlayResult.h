#pragma once

#include "platform/geometry/CPolygon.h"
#include "platform/geometry/GeosContext.h"

namespace vks {

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
