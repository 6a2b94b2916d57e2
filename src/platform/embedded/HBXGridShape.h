#pragma once

#include "platform/embedded/HBXOutlineShape.h"
#include "platform/host/IHBXGridShape.h"

namespace hbx::embedded {

/** Axis grid as a placed shape; its outline and axes come with a record and do not change. */
class HBXGridShape final : public HBXOutlineShapeOf<IHBXGridShape, IHBXShape::kGrid>
{
public:
    using HBXOutlineShapeOf::HBXOutlineShapeOf;

    using Axes = decltype(ShapeRecord::axes);

    const Axes &axes() const { return m_axes; }

    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    /** A grid may have axes and no outline. */
    bool hasGeometry() const override;

private:
    Axes m_axes;
};

} // namespace hbx::embedded
