#pragma once

#include "platform/embedded/HBXPlacedShape.h"

namespace hbx::embedded {

/** A shape of a kind that is told by a curve, in the shape's own coordinates: the axis of a solid, or a line in plan. */
template <typename Interface, IHBXShape::Kind kKind> class HBXCurveShapeOf : public HBXShapeOf<Interface, kKind>
{
public:
    using HBXShapeOf<Interface, kKind>::HBXShapeOf;

    void setLine(const vks::CCurve2d *curve) override
    {
        m_curve = vks::cloneOrNull(curve);
        this->changed();
    }

    ShapeRecord record() const override
    {
        ShapeRecord record = HBXShapeOf<Interface, kKind>::record();
        record.curve = m_curve;
        return record;
    }
    void restore(const ShapeRecord &record) override
    {
        m_curve = record.curve;
        HBXShapeOf<Interface, kKind>::restore(record);
    }
    bool hasGeometry() const override { return m_curve != nullptr; }
    vks::CRefPtr<vks::CCurve2d> worldCurve() const override { return this->toWorld(m_curve.get()); }

protected:
    const vks::CRefPtr<vks::CCurve2d> &ownCurve() const { return m_curve; }

private:
    vks::CRefPtr<vks::CCurve2d> m_curve;
};

} // namespace hbx::embedded
