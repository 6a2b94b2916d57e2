#include "platform/embedded/HBXPlanLineShape.h"

namespace hbx::embedded {

vks::CRefPtr<vks::CPolygon> HBXPlanLineShape::ownOutline() const
{
    if (!ownCurve() || ownCurve()->IsEmpty())
        return nullptr;
    vks::CRefPtr<vks::CLoop> loop = new vks::CLoop;
    loop->AddCurve(ownCurve()->Clone(), false);
    loop->AddCurve(ownCurve()->Clone(), true);
    vks::CRefPtr<vks::CPolygon> outline = new vks::CPolygon;
    outline->AddLoop(loop, true);
    return outline;
}

} // namespace hbx::embedded
