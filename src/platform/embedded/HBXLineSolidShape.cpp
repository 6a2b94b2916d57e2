#include "platform/embedded/HBXLineSolidShape.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXShapeSizes.h"
#include "platform/geometry/GPolygonBuilder.h"
#include "platform/services/HBXPropertyNames.h"

namespace hbx::embedded {

ShapeRecord HBXLineSolidShape::record() const
{
    ShapeRecord record = HBXCurveShapeOf::record();
    record.width = m_width;
    record.distanceToLeft = m_distanceToLeft;
    return record;
}

void HBXLineSolidShape::restore(const ShapeRecord &record)
{
    m_width = record.width;
    m_distanceToLeft = record.distanceToLeft;
    HBXCurveShapeOf::restore(record);
}

void HBXLineSolidShape::followProperties(const PropertyEntry *)
{
    const HBXProperties &properties = owner().propertySet();
    const double offset = sizeIn(properties, {property::axisOffset}).value_or(0.0);
    m_width = sizeIn(properties, {property::thickness, property::sectionWidth}).value_or(m_width);
    m_distanceToLeft = offset == 0.0 ? std::nullopt : std::optional(m_width / 2 + offset);
    changed();
}

vks::CRefPtr<vks::CPolygon> HBXLineSolidShape::ownOutline() const
{
    return vks::GPolygonBuilder::CreatePolygon(ownCurve(), distanceToLeft(), m_width - distanceToLeft());
}

} // namespace hbx::embedded
