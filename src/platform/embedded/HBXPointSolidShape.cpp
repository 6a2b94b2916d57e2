#include "platform/embedded/HBXPointSolidShape.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXOpeningSeat.h"
#include "platform/embedded/HBXShapeSizes.h"
#include "platform/embedded/StoredGeometry.h"
#include "platform/services/HBXPropertyNames.h"

#include <cmath>

namespace hbx::embedded {
namespace {

using Point = vks::CVec2<double>;

Point inPlan(const vks::CVec3<double> &vector) { return {vector.x, vector.y}; }

} // namespace

template <typename Interface, IHBXShape::Kind kKind>
void HBXPointShapeOf<Interface, kKind>::setInsertPoint(const Point *point)
{
    m_insertPoint = point && point->IsFinite() ? *point : Point();
    this->moved();
}

template <typename Interface, IHBXShape::Kind kKind> void HBXPointShapeOf<Interface, kKind>::setAngle(double angle)
{
    m_angle = std::isfinite(angle) ? angle : 0.0;
    this->moved();
}

template <typename Interface, IHBXShape::Kind kKind> void HBXPointShapeOf<Interface, kKind>::setMirror(bool mirror)
{
    m_mirror = mirror;
    this->moved();
}

template <typename Interface, IHBXShape::Kind kKind>
std::optional<OpeningSeat> HBXPointShapeOf<Interface, kKind>::seat() const
{
    return openingSeat(this->owner(), inPlan(this->frame().ToWorld(m_insertPoint)));
}

template <typename Interface, IHBXShape::Kind kKind> double HBXPointShapeOf<Interface, kKind>::angle() const
{
    const auto wall = seat();
    if (!wall)
        return m_angle;
    const vks::CCoord3<double> &frame = this->frame(); // the wall runs in the world, the angle is the frame's
    return std::atan2(wall->direction.Dot(inPlan(frame.v)), wall->direction.Dot(inPlan(frame.u)));
}

template <typename Interface, IHBXShape::Kind kKind>
vks::CRefPtr<vks::CPolygon> &HBXPointShapeOf<Interface, kKind>::polygon(vks::CRefPtr<vks::CPolygon> &out, bool) const
{
    const auto wall = seat();
    return out = wall ? withDepth(this->outline(), wall->depth) : this->outline();
}

template <typename Interface, IHBXShape::Kind kKind> ShapeRecord HBXPointShapeOf<Interface, kKind>::record() const
{
    ShapeRecord record = HBXOutlineShapeOf<Interface, kKind>::record();
    record.insertPoint = m_insertPoint;
    record.angle = m_angle;
    record.mirror = m_mirror;
    return record;
}

template <typename Interface, IHBXShape::Kind kKind>
void HBXPointShapeOf<Interface, kKind>::restore(const ShapeRecord &record)
{
    m_insertPoint = record.insertPoint;
    m_angle = record.angle;
    m_mirror = record.mirror;
    HBXOutlineShapeOf<Interface, kKind>::restore(record);
}

template <typename Interface, IHBXShape::Kind kKind>
void HBXPointShapeOf<Interface, kKind>::followProperties(const PropertyEntry *written)
{
    const auto outline = outlineOfProperties();
    const bool isTakenAway = !outline && written && written->kind == PropertyKind::Polygon;
    const bool isUsable = outline && isSound(*outline); // sizes may be too small or too large to be drawn
    if (isUsable || isTakenAway)
        this->takeOutline(outline);
}

template <typename Interface, IHBXShape::Kind kKind>
vks::CRefPtr<vks::CPolygon> HBXPointShapeOf<Interface, kKind>::outlineOfProperties() const
{
    const HBXProperties &properties = this->owner().propertySet();
    const auto openingWidth = sizeIn(properties, {property::openingWidth});
    return openingWidth ? openingOutline(*openingWidth, this->outline()) : sectionOutline(properties);
}

template <typename Interface, IHBXShape::Kind kKind>
void HBXPointShapeOf<Interface, kKind>::takePlaceOf(const HBXPlacedShape &other)
{
    const ShapeRecord place = other.record();
    m_insertPoint = place.insertPoint;
    m_angle = place.angle;
    m_mirror = place.mirror;
    HBXPlacedShape::takePlaceOf(other);
}

template <typename Interface, IHBXShape::Kind kKind>
vks::CRefPtr<vks::CPolygon> HBXPointShapeOf<Interface, kKind>::ownOutline() const
{
    vks::CRefPtr<vks::CPolygon> about;
    if (!polygon(about, true))
        return nullptr;
    vks::CRefPtr<vks::CPolygon> placed = about->Clone();
    if (m_mirror)
        placed->MirrorX();
    if (const double turn = angle(); turn != 0.0)
        placed->Rotate(Point(), turn);
    placed->Translate(m_insertPoint);
    return placed;
}

template class HBXPointShapeOf<IHBXCustomPointSolidShape, IHBXShape::kPoint>;
template class HBXPointShapeOf<IHBXSectionPointSolidShape, IHBXShape::kSection>;

} // namespace hbx::embedded
