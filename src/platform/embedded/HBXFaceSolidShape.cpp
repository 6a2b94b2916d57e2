#include "platform/embedded/HBXFaceSolidShape.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXShapeSizes.h"
#include "platform/services/HBXPropertyNames.h"

namespace hbx::embedded {

ShapeRecord HBXFaceSolidShape::record() const
{
    ShapeRecord record = HBXOutlineShapeOf::record();
    record.height = m_height;
    return record;
}

void HBXFaceSolidShape::restore(const ShapeRecord &record)
{
    m_height = record.height;
    HBXOutlineShapeOf::restore(record);
}

void HBXFaceSolidShape::followProperties(const PropertyEntry *)
{
    const auto thickness = sizeIn(owner().propertySet(), {property::thickness});
    if (!thickness)
        return;
    m_height = 0.0 - *thickness; // not -0.0
    changed();
}

} // namespace hbx::embedded
