#pragma once

#include "platform/embedded/HBXOutlineShape.h"
#include "platform/host/IHBXFaceShape2D.h"

namespace hbx::embedded {

/** Area bar: the area that it covers. */
class HBXPlanAreaShape final : public HBXOutlineShapeOf<IHBXFaceShape2D, IHBXShape::kPlanArea>
{
public:
    using HBXOutlineShapeOf::HBXOutlineShapeOf;

    void setPolygon(const vks::CPolygon *outline) override { takeOutline(vks::cloneOrNull(outline)); }
};

} // namespace hbx::embedded
