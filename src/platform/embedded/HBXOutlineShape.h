#pragma once

#include "platform/embedded/HBXPlacedShape.h"

#include <utility>

namespace hbx::embedded {

/** A shape of a kind that is told by an outline, in the shape's own coordinates. */
template <typename Interface, IHBXShape::Kind kKind> class HBXOutlineShapeOf : public HBXShapeOf<Interface, kKind>
{
public:
    using HBXShapeOf<Interface, kKind>::HBXShapeOf;

    vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool) const override
    {
        return out = m_outline;
    }

    ShapeRecord record() const override
    {
        ShapeRecord record = HBXShapeOf<Interface, kKind>::record();
        record.outline = m_outline;
        return record;
    }
    void restore(const ShapeRecord &record) override
    {
        m_outline = record.outline;
        HBXShapeOf<Interface, kKind>::restore(record);
    }

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override { return m_outline; }
    const vks::CRefPtr<vks::CPolygon> &outline() const { return m_outline; }
    /** The outline belongs to the shape from then on; null clears. */
    void takeOutline(vks::CRefPtr<vks::CPolygon> outline)
    {
        m_outline = std::move(outline);
        this->changed();
    }

private:
    vks::CRefPtr<vks::CPolygon> m_outline;
};

} // namespace hbx::embedded
