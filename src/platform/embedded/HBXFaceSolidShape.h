#pragma once

#include "platform/embedded/HBXPlacedShape.h"
#include "platform/host/IHBXFaceSolidShape.h"

namespace hbx::embedded {

/** Slab or raft: it hangs down from its top by its "Thickness". */
class HBXFaceSolidShape final : public HBXShapeOf<IHBXFaceSolidShape, IHBXShape::kFace>
{
public:
    using HBXShapeOf::HBXShapeOf;

    void setPolygon(const vks::CPolygon *outline) override;
    double height() const override { return m_height; }
    vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const override;

    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    void followProperties(const PropertyEntry *written) override;

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override { return m_outline; }

private:
    vks::CRefPtr<vks::CPolygon> m_outline;
    double m_height = 0.0; // mm, signed
};

} // namespace hbx::embedded
