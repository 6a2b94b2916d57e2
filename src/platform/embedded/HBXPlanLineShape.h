#pragma once

#include "platform/embedded/HBXPlacedShape.h"
#include "platform/host/IHBXLineShape2D.h"

namespace hbx::embedded {

/** Line bar or single axis line. Its world outline is the curve there and back: the right box, and no area. */
class HBXPlanLineShape final : public HBXShapeOf<IHBXLineShape2D, IHBXShape::kPlanLine>
{
public:
    using HBXShapeOf::HBXShapeOf;

    vks::CRefPtr<vks::CCurve2d> &curve(vks::CRefPtr<vks::CCurve2d> &out) const override;
    void setLine(const vks::CCurve2d *curve) override;

    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    bool hasGeometry() const override { return m_curve != nullptr; }
    vks::CRefPtr<vks::CCurve2d> worldCurve() const override { return toWorld(m_curve.get()); }

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override;

private:
    vks::CRefPtr<vks::CCurve2d> m_curve;
};

} // namespace hbx::embedded
