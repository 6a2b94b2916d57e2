#pragma once

#include "platform/embedded/HBXOutlineShape.h"
#include "platform/host/IHBXFaceSolidShape.h"

namespace hbx::embedded {

/** Slab or raft: it hangs down from its top by its "Thickness". */
class HBXFaceSolidShape final : public HBXOutlineShapeOf<IHBXFaceSolidShape, IHBXShape::kFace>
{
public:
    using HBXOutlineShapeOf::HBXOutlineShapeOf;

    void setPolygon(const vks::CPolygon *outline) override { takeOutline(vks::cloneOrNull(outline)); }
    double height() const override { return m_height; }

    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    void followProperties(const PropertyEntry *written) override;

private:
    double m_height = 0.0; // mm, signed
};

} // namespace hbx::embedded
