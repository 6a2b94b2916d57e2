#include "platform/embedded/HBXGridShape.h"

#include <algorithm>

namespace hbx::embedded {

ShapeRecord HBXGridShape::record() const
{
    ShapeRecord record = HBXOutlineShapeOf::record();
    record.axes = m_axes;
    return record;
}

void HBXGridShape::restore(const ShapeRecord &record)
{
    m_axes = record.axes;
    HBXOutlineShapeOf::restore(record);
}

bool HBXGridShape::hasGeometry() const
{
    const auto hasAxes = [](const std::vector<HBXAxis> &group) { return !group.empty(); };
    return HBXOutlineShapeOf::hasGeometry() || std::any_of(m_axes.begin(), m_axes.end(), hasAxes);
}

} // namespace hbx::embedded
