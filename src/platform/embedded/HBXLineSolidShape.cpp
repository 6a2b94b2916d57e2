#include "platform/embedded/HBXLineSolidShape.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXShapeSizes.h"
#include "platform/geometry/GPolygonBuilder.h"

namespace hbx::embedded {

vks::CRefPtr<vks::CCurve2d> &HBXLineSolidShape::curve(vks::CRefPtr<vks::CCurve2d> &out, bool) const
{
    return out = m_axis;
}

void HBXLineSolidShape::setLine(const vks::CCurve2d *axis)
{
    m_axis = copyOf(axis);
    changed();
}

vks::CRefPtr<vks::CCurve2d> &HBXLineSolidShape::localLine(vks::CRefPtr<vks::CCurve2d> &out, bool) const
{
    return out = m_axis;
}

vks::CRefPtr<vks::CCurve2d> &HBXLineSolidShape::worldLine(vks::CRefPtr<vks::CCurve2d> &out, bool) const
{
    return out = worldCurve();
}

ShapeRecord HBXLineSolidShape::record() const
{
    ShapeRecord record = HBXShapeOf::record();
    record.curve = m_axis;
    record.width = m_width;
    record.distanceToLeft = m_distanceToLeft;
    return record;
}

void HBXLineSolidShape::restore(const ShapeRecord &record)
{
    m_axis = record.curve;
    m_width = record.width;
    m_distanceToLeft = record.distanceToLeft;
    HBXShapeOf::restore(record);
}

void HBXLineSolidShape::followProperties(const PropertyEntry *)
{
    const HBXProperties &properties = owner().propertySet();
    const double offset = sizeIn(properties, {L"AxisOffset"}).value_or(0.0);
    m_width = sizeIn(properties, {L"Thickness", L"SectionWidth"}).value_or(m_width);
    m_distanceToLeft = offset == 0.0 ? std::nullopt : std::optional(m_width / 2 + offset);
    changed();
}

vks::CRefPtr<vks::CPolygon> HBXLineSolidShape::ownOutline() const
{
    return vks::GPolygonBuilder::CreatePolygon(m_axis, distanceToLeft(), m_width - distanceToLeft());
}

} // namespace hbx::embedded
