#include "platform/embedded/HBXPlanAreaShape.h"

namespace hbx::embedded {

void HBXPlanAreaShape::setPolygon(const vks::CPolygon *outline)
{
    m_outline = copyOf(outline);
    changed();
}

vks::CRefPtr<vks::CPolygon> &HBXPlanAreaShape::polygon(vks::CRefPtr<vks::CPolygon> &out, bool) const
{
    return out = m_outline;
}

ShapeRecord HBXPlanAreaShape::record() const
{
    ShapeRecord record = HBXShapeOf::record();
    record.outline = m_outline;
    return record;
}

void HBXPlanAreaShape::restore(const ShapeRecord &record)
{
    m_outline = record.outline;
    HBXShapeOf::restore(record);
}

} // namespace hbx::embedded
