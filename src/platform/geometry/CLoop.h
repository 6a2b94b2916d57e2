#pragma once

#include "platform/geometry/CCoedgeList.h"

namespace vks {

/** Closed ring of curves: an outer boundary or a hole of a polygon. Closedness is asked for, not enforced. */
class ORVCADPLATFORM_EXPORT CLoop : public CCoedgeList
{
public:
    /** A loop of copies of the curves. */
    CRefPtr<CLoop> Clone() const;
    /** mm², exact for arcs; positive when the loop runs counter-clockwise. */
    double SignedArea() const;
    /** The same without its sign. */
    double Area() const;
    /** Centre of the area, exact for arcs; of a loop without area the middle of its box. */
    CVec2<double> Barycentre() const;
    /** Where a point lies: 1 inside, 0 within the tolerance (mm) of a curve, -1 outside. Exact for arcs. */
    int Locate(const CVec2<double> &point, double tolerance) const;

protected:
    void writeText(std::string &text) const override;
};

} // namespace vks
