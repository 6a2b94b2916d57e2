#include "platform/embedded/HBXFaceSolidShape.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXShapeSizes.h"

namespace hbx::embedded {

void HBXFaceSolidShape::setPolygon(const vks::CPolygon *outline)
{
    m_outline = copyOf(outline);
    changed();
}

vks::CRefPtr<vks::CPolygon> &HBXFaceSolidShape::polygon(vks::CRefPtr<vks::CPolygon> &out, bool) const
{
    return out = m_outline;
}

ShapeRecord HBXFaceSolidShape::record() const
{
    ShapeRecord record = HBXShapeOf::record();
    record.outline = m_outline;
    record.height = m_height;
    return record;
}

void HBXFaceSolidShape::restore(const ShapeRecord &record)
{
    m_outline = record.outline;
    m_height = record.height;
    HBXShapeOf::restore(record);
}

void HBXFaceSolidShape::followProperties(const PropertyEntry *)
{
    const auto thickness = sizeIn(owner().propertySet(), {L"Thickness"});
    if (!thickness)
        return;
    m_height = 0.0 - *thickness; // not -0.0
    changed();
}

} // namespace hbx::embedded
