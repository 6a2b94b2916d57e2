#include "platform/embedded/HBXGridShape.h"

#include <algorithm>

namespace hbx::embedded {

vks::CRefPtr<vks::CPolygon> &HBXGridShape::polygon(vks::CRefPtr<vks::CPolygon> &out, bool) const
{
    return out = m_outline;
}

ShapeRecord HBXGridShape::record() const
{
    ShapeRecord record = HBXShapeOf::record();
    record.outline = m_outline;
    record.axes = m_axes;
    return record;
}

void HBXGridShape::restore(const ShapeRecord &record)
{
    m_outline = record.outline;
    m_axes = record.axes;
    HBXShapeOf::restore(record);
}

bool HBXGridShape::hasGeometry() const
{
    const auto hasAxes = [](const std::vector<HBXAxis> &group) { return !group.empty(); };
    return HBXShapeOf::hasGeometry() || std::any_of(m_axes.begin(), m_axes.end(), hasAxes);
}

} // namespace hbx::embedded
