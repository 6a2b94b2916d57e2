#include "platform/embedded/HBXOpeningSeat.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXLineSolidShape.h"
#include "platform/embedded/HBXShapeSizes.h"
#include "platform/services/HBXElementTypes.h"

namespace hbx::embedded {
namespace {

constexpr qint64 kOpeningTypes[] = {type::door, type::window, type::doorWithWindow, type::wallOpening};
constexpr double kLooseOpeningDepth = 200.0; // mm: a common wall, for as long as the opening stands in none

const HBXLineSolidShape *wallOf(const HBXElementDrawObj &opening)
{
    const HBXElementDrawObj *wall = isOneOf(opening.type(), kOpeningTypes) ? opening.attachedTo() : nullptr;
    return wall ? dynamic_cast<const HBXLineSolidShape *>(&wall->placedShape()) : nullptr;
}

} // namespace

std::optional<OpeningSeat> openingSeat(const HBXElementDrawObj &opening, const vks::CVec2<double> &worldPoint)
{
    const HBXLineSolidShape *wall = wallOf(opening);
    const auto axis = wall ? wall->worldCurve() : nullptr;
    if (!axis || axis->IsEmpty())
        return std::nullopt;
    const vks::CVec2<double> direction = axis->GetDirection(axis->NearestT(worldPoint));
    return direction.SqrLength() > 0.0 ? std::optional(OpeningSeat{direction, wall->width()}) : std::nullopt;
}

vks::CRefPtr<vks::CPolygon> withDepth(const vks::CRefPtr<vks::CPolygon> &outline, double depth)
{
    if (!outline || !(depth > 0.0) || !outline->IsRectangle())
        return outline;
    const vks::CBox2<double> box = outline->Box();
    const auto fitted = rectangle(box.Center(), box.Width(), depth);
    return fitted ? fitted : outline;
}

vks::CRefPtr<vks::CPolygon> openingOutline(double width, const vks::CRefPtr<vks::CPolygon> &former)
{
    const double depth = former ? former->Box().Height() : 0.0;
    return rectangle({}, width, depth > 0.0 ? depth : kLooseOpeningDepth);
}

} // namespace hbx::embedded
