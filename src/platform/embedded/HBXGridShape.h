#pragma once

#include "platform/embedded/HBXPlacedShape.h"
#include "platform/host/IHBXGridShape.h"

namespace hbx::embedded {

/** Axis grid as a placed shape; its axes come with a record and do not change. */
class HBXGridShape final : public HBXShapeOf<IHBXGridShape, IHBXShape::kGrid>
{
public:
    using HBXShapeOf::HBXShapeOf;

    using Axes = std::array<std::vector<HBXAxis>, IHBXAxisGrid::kGroupCount>;

    vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const override;
    const Axes &axes() const { return m_axes; }

    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    /** A grid may have axes and no outline. */
    bool hasGeometry() const override;

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override { return m_outline; }

private:
    vks::CRefPtr<vks::CPolygon> m_outline;
    Axes m_axes;
};

} // namespace hbx::embedded
