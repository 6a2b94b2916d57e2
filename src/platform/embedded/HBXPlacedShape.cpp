#include "platform/embedded/HBXPlacedShape.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXFaceSolidShape.h"
#include "platform/embedded/HBXGridShape.h"
#include "platform/embedded/HBXLineSolidShape.h"
#include "platform/embedded/HBXPlanAreaShape.h"
#include "platform/embedded/HBXPlanLineShape.h"
#include "platform/embedded/HBXPointSolidShape.h"
#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/OrientProjectCurve2d.h"

#include <iterator>

namespace hbx::embedded {
namespace {

const vks::CCoord3<double> kWorld;
const vks::CVec3<double> kUp(0.0, 0.0, 1.0);

template <typename Shape> std::unique_ptr<HBXPlacedShape> makeShape(HBXElementDrawObj &owner)
{
    return std::make_unique<Shape>(owner);
}

using Maker = std::unique_ptr<HBXPlacedShape> (*)(HBXElementDrawObj &);
constexpr Maker kMakers[] = { // by IHBXShape::Kind
    makeShape<HBXPointShape>,    makeShape<HBXLineSolidShape>, makeShape<HBXFaceSolidShape>, makeShape<HBXSectionShape>,
    makeShape<HBXPlanLineShape>, makeShape<HBXPlanAreaShape>,  makeShape<HBXGridShape>};

/** Outline of what consists of others: their union, exact where there is one only. */
vks::CRefPtr<vks::CPolygon> unionOfChildren(const HBXElementDrawObj &owner)
{
    std::vector<vks::CRefPtr<vks::CPolygon>> held;
    for (const HBXElementDrawObj *child : owner.children())
        if (const auto &polygon = child->placedShape().worldPolygon())
            held.push_back(polygon);
    if (held.size() < 2)
        return held.empty() ? nullptr : held.front();
    return vks::CBooleanOperate2D::MultUnite(std::vector<vks::CPolygon *>(held.begin(), held.end()));
}

} // namespace

HBXPlacedShape::HBXPlacedShape(HBXElementDrawObj &owner) : m_owner(owner) {}

HBXPlacedShape::~HBXPlacedShape() = default;

std::unique_ptr<HBXPlacedShape> HBXPlacedShape::make(IHBXShape::Kind kind, HBXElementDrawObj &owner)
{
    return kMakers[kind](owner);
}

ShapeRecord HBXPlacedShape::record() const
{
    ShapeRecord record;
    if (m_frame != kWorld)
        record.coordinates = m_frame;
    return record;
}

void HBXPlacedShape::restore(const ShapeRecord &record)
{
    m_frame = record.coordinates.value_or(kWorld);
    dropWorld();
}

void HBXPlacedShape::followProperties(const PropertyEntry *) {}

void HBXPlacedShape::takePlaceOf(const HBXPlacedShape &other)
{
    m_frame = other.m_frame;
    changed();
}

bool HBXPlacedShape::hasGeometry() const { return worldPolygon() != nullptr; }

vks::CRefPtr<vks::CCurve2d> HBXPlacedShape::worldCurve() const { return nullptr; }

const vks::CRefPtr<vks::CPolygon> &HBXPlacedShape::worldPolygon() const
{
    workOutWorld();
    return m_worldPolygon;
}

const vks::CBox2<double> &HBXPlacedShape::worldBox() const
{
    workOutWorld();
    return m_worldBox;
}

void HBXPlacedShape::dropWorld() { m_isWorldKnown = false; }

void HBXPlacedShape::setFrame(const vks::CCoord3<double> &frame)
{
    m_frame = frame.origin.IsFinite() && frame.u.IsFinite() && frame.v.IsFinite() ? frame : kWorld;
    moved();
}

void HBXPlacedShape::changed() { m_owner.shapeChanged(); }

void HBXPlacedShape::moved()
{
    m_owner.shapeChanged();
    m_owner.shapeMoved();
}

vks::CRefPtr<vks::CCurve2d> HBXPlacedShape::toWorld(const vks::CCurve2d *curve) const
{
    return m_frame == kWorld ? vks::cloneOrNull(curve) : vks::OrientProjectCurve2d(m_frame, curve, kWorld, kUp, false);
}

vks::CRefPtr<vks::CPolygon> HBXPlacedShape::toWorld(const vks::CPolygon *polygon) const
{
    return m_frame == kWorld ? vks::cloneOrNull(polygon) : vks::OrientProjectPolygon(m_frame, polygon, kWorld, kUp);
}

void HBXPlacedShape::workOutWorld() const
{
    if (m_isWorldKnown)
        return;
    m_worldPolygon = unionOfChildren(m_owner);
    if (!m_worldPolygon)
        m_worldPolygon = toWorld(ownOutline().get());
    const auto curve = m_worldPolygon ? nullptr : worldCurve(); // an axis without a width still has its place
    m_worldBox = m_worldPolygon ? m_worldPolygon->Box() : curve ? curve->Box() : vks::CBox2<double>();
    m_isWorldKnown = true;
}

} // namespace hbx::embedded
