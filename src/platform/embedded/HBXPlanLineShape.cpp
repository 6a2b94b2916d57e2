#include "platform/embedded/HBXPlanLineShape.h"

namespace hbx::embedded {

vks::CRefPtr<vks::CCurve2d> &HBXPlanLineShape::curve(vks::CRefPtr<vks::CCurve2d> &out) const { return out = m_curve; }

void HBXPlanLineShape::setLine(const vks::CCurve2d *curve)
{
    m_curve = copyOf(curve);
    changed();
}

ShapeRecord HBXPlanLineShape::record() const
{
    ShapeRecord record = HBXShapeOf::record();
    record.curve = m_curve;
    return record;
}

void HBXPlanLineShape::restore(const ShapeRecord &record)
{
    m_curve = record.curve;
    HBXShapeOf::restore(record);
}

vks::CRefPtr<vks::CPolygon> HBXPlanLineShape::ownOutline() const
{
    if (!m_curve || m_curve->IsEmpty())
        return nullptr;
    vks::CRefPtr<vks::CLoop> loop = new vks::CLoop;
    loop->AddCurve(m_curve->Clone(), false);
    loop->AddCurve(m_curve->Clone(), true);
    vks::CRefPtr<vks::CPolygon> outline = new vks::CPolygon;
    outline->AddLoop(loop, true);
    return outline;
}

} // namespace hbx::embedded
