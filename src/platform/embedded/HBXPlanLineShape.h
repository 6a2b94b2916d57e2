#pragma once

#include "platform/embedded/HBXCurveShape.h"
#include "platform/host/IHBXLineShape2D.h"

namespace hbx::embedded {

/** Line bar or single axis line. Its world outline is the curve there and back: the right box, and no area. */
class HBXPlanLineShape final : public HBXCurveShapeOf<IHBXLineShape2D, IHBXShape::kPlanLine>
{
public:
    using HBXCurveShapeOf::HBXCurveShapeOf;

    vks::CRefPtr<vks::CCurve2d> &curve(vks::CRefPtr<vks::CCurve2d> &out) const override { return out = ownCurve(); }

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override;
};

} // namespace hbx::embedded
