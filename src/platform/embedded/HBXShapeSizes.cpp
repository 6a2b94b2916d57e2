#include "platform/embedded/HBXShapeSizes.h"

#include "platform/embedded/HBXProperties.h"
#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/services/HBXPropertyNames.h"

namespace hbx::embedded {
namespace {

using Point = vks::CVec2<double>;

constexpr int kCircularSection = 1; // "SectionTypeID"

vks::CRefPtr<vks::CPolygon> polygonOf(const vks::CRefPtr<vks::CLoop> &loop)
{
    vks::CRefPtr<vks::CPolygon> polygon = new vks::CPolygon;
    polygon->AddLoop(loop, true);
    return polygon;
}

vks::CRefPtr<vks::CPolygon> circle(double radius)
{
    if (!(radius > 0.0))
        return nullptr;
    vks::CRefPtr<vks::CLoop> loop = new vks::CLoop;
    loop->AddCurve(new vks::CArc2d(Point(), radius, 0.0, vks::kFullTurn), false);
    return polygonOf(loop);
}

vks::CRefPtr<vks::CPolygon> drawnSection(const HBXProperties &properties)
{
    vks::CRefPtr<vks::CPolygon> section;
    Point insertPoint;
    if (!properties.asPolygon(section, property::sectionPoly))
        return nullptr;
    vks::CRefPtr<vks::CPolygon> outline = section->Clone();
    outline->Translate(-properties.asPoint(insertPoint, property::insertPt));
    return outline;
}

} // namespace

std::optional<double> sizeIn(const HBXProperties &properties, std::initializer_list<std::wstring_view> names)
{
    for (const std::wstring_view name : names) {
        const PropertyEntry *entry = properties.find(name);
        const PropertyValue value = entry ? properties.valueOf(*entry) : PropertyValue();
        if (const double *size = std::get_if<double>(&value))
            return *size;
        if (const int *size = std::get_if<int>(&value))
            return *size;
    }
    return std::nullopt;
}

vks::CRefPtr<vks::CPolygon> sectionOutline(const HBXProperties &properties)
{
    if (auto drawn = drawnSection(properties))
        return drawn;
    const double width = sizeIn(properties, {property::width, property::sectionWidth}).value_or(0.0);
    const double height = sizeIn(properties, {property::length, property::sectionHeight}).value_or(0.0);
    const auto box = rectangle(Point(), width, height);
    const auto round = circle(sizeIn(properties, {property::radius}).value_or(0.0));
    const bool isRound = !box || (round && properties.asInt(property::sectionTypeId) == kCircularSection);
    return isRound ? round : box;
}

vks::CRefPtr<vks::CPolygon> rectangle(const Point &centre, double width, double height)
{
    if (!(width > 0.0 && height > 0.0))
        return nullptr;
    const Point half(width / 2, height / 2);
    const Point corners[] = {centre - half, centre + Point(half.x, -half.y), centre + half,
                             centre + Point(-half.x, half.y)};
    vks::CRefPtr<vks::CLoop> loop = new vks::CLoop;
    for (int i = 0; i < 4; ++i)
        loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % 4]), false);
    return polygonOf(loop);
}

} // namespace hbx::embedded
