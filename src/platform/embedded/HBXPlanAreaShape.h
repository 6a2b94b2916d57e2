#pragma once

#include "platform/embedded/HBXPlacedShape.h"
#include "platform/host/IHBXFaceShape2D.h"

namespace hbx::embedded {

/** Area bar: the area that it covers. */
class HBXPlanAreaShape final : public HBXShapeOf<IHBXFaceShape2D, IHBXShape::kPlanArea>
{
public:
    using HBXShapeOf::HBXShapeOf;

    void setPolygon(const vks::CPolygon *outline) override;
    vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const override;

    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override { return m_outline; }

private:
    vks::CRefPtr<vks::CPolygon> m_outline;
};

} // namespace hbx::embedded
