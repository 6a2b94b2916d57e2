#include "MemoryShapes.h"

#include "MemoryObjects.h"

#include <platform/geometry/GPolygonBuilder.h>
#include <platform/geometry/OrientProjectCurve2d.h>
#include <platform/host/IHBXCustomLineSolidShape.h>
#include <platform/host/IHBXCustomPointSolidShape.h>
#include <platform/host/IHBXFaceSolidShape.h>

#include <algorithm>
#include <iterator>

namespace {

using vks::CCurve2d;
using vks::CPolygon;
using vks::CRefPtr;
using Point = vks::CVec2<double>;
using Frame = vks::CCoord3<double>;

const vks::CVec3<double> kUp(0.0, 0.0, 1.0);

/** What all kinds answer in the same way. The world is worked out at each question: a host with many objects keeps it. */
template <typename Interface, IHBXShape::Kind kKind, typename Self> class ShapeOf : public Interface, public MemoryShape
{
public:
    explicit ShapeOf(MemoryObject &owner) : m_owner(&owner) {}

    IHBXShape *asShape() override { return this; }
    std::unique_ptr<MemoryShape> copyFor(MemoryObject &owner) const override
    {
        auto copy = std::make_unique<Self>(static_cast<const Self &>(*this));
        copy->m_owner = &owner;
        return copy;
    }

    int kind() const override { return kKind; }
    Frame &coordinates(Frame &out, bool) const override { return out = m_frame; }
    void setCoordinates(const Frame &frame) override { m_frame = frame; }
    vks::CBox2<double> &box(vks::CBox2<double> &out, bool) const override
    {
        CRefPtr<CPolygon> outline;
        worldPoly(outline, true);
        return out = outline ? outline->Box() : boxWithoutOutline();
    }
    CRefPtr<CPolygon> &worldPoly(CRefPtr<CPolygon> &out, bool) const override
    {
        const CRefPtr<CPolygon> own = ownOutline();
        return out = isInWorld() ? own : vks::OrientProjectPolygon(m_frame, own, Frame(), kUp);
    }

protected:
    double size(const wchar_t *name) const { return m_owner->values().asDouble(std::wstring(name)); }
    CRefPtr<CCurve2d> toWorld(const CRefPtr<CCurve2d> &curve) const
    {
        return isInWorld() ? curve : vks::OrientProjectCurve2d(m_frame, curve, Frame(), kUp, false);
    }
    MemoryObject &owner() const { return *m_owner; }

private:
    /** In the shape's own coordinates; null without geometry. */
    virtual CRefPtr<CPolygon> ownOutline() const = 0;
    virtual vks::CBox2<double> boxWithoutOutline() const { return {}; }
    bool isInWorld() const { return m_frame.IsAbsent() || m_frame == Frame(); }

    MemoryObject *m_owner;
    Frame m_frame;
};

/** Wall or beam: an axis, and a strip of "Thickness" or "SectionWidth" about it. */
class LineShape final : public ShapeOf<IHBXCustomLineSolidShape, IHBXShape::kLine, LineShape>
{
public:
    using ShapeOf::ShapeOf;

    CRefPtr<CCurve2d> &curve(CRefPtr<CCurve2d> &out, bool) const override { return out = m_axis; }
    CRefPtr<CCurve2d> &localLine(CRefPtr<CCurve2d> &out, bool) const override { return out = m_axis; }
    CRefPtr<CCurve2d> &worldLine(CRefPtr<CCurve2d> &out, bool) const override { return out = toWorld(m_axis); }
    void setLine(const CCurve2d *axis) override { m_axis = vks::cloneOrNull(axis); }
    double width(bool) const override { return std::max(size(L"Thickness"), size(L"SectionWidth")); }
    double distanceToLeft() const override { return width(true) / 2 + size(L"AxisOffset"); }

private:
    CRefPtr<CPolygon> ownOutline() const override
    {
        return vks::GPolygonBuilder::CreatePolygon(m_axis, distanceToLeft(), width(true) - distanceToLeft());
    }
    vks::CBox2<double> boxWithoutOutline() const override
    {
        return m_axis ? toWorld(m_axis)->Box() : vks::CBox2<double>(); // an axis without a width still has its place
    }

    CRefPtr<CCurve2d> m_axis;
};

/** Slab or raft: an outline. */
class FaceShape final : public ShapeOf<IHBXFaceSolidShape, IHBXShape::kFace, FaceShape>
{
public:
    using ShapeOf::ShapeOf;

    void setPolygon(const CPolygon *outline) override { m_outline = vks::cloneOrNull(outline); }
    double height() const override { return -size(L"Thickness"); }
    CRefPtr<CPolygon> &polygon(CRefPtr<CPolygon> &out, bool) const override { return out = m_outline; }

private:
    CRefPtr<CPolygon> ownOutline() const override { return m_outline; }

    CRefPtr<CPolygon> m_outline;
};

/** Column, door or window: "SectionPoly" about a point, which is mirrored, turned and moved there. */
class PointShape final : public ShapeOf<IHBXCustomPointSolidShape, IHBXShape::kPoint, PointShape>
{
public:
    using ShapeOf::ShapeOf;

    Point &insertPoint(Point &out) const override { return out = m_point; }
    void setInsertPoint(const Point *point) override { m_point = point ? *point : Point(); }
    double angle() const override { return m_angle; }
    void setAngle(double angle) override { m_angle = angle; }
    bool mirror() const override { return m_mirror; }
    void setMirror(bool mirror) override { m_mirror = mirror; }
    CRefPtr<CPolygon> &polygon(CRefPtr<CPolygon> &out, bool) const override
    {
        return owner().values().asPolygon(out, L"SectionPoly");
    }

private:
    CRefPtr<CPolygon> ownOutline() const override
    {
        CRefPtr<CPolygon> about;
        if (!polygon(about, true))
            return nullptr;
        const CRefPtr<CPolygon> placed = about->Clone();
        if (m_mirror)
            placed->MirrorX();
        placed->Rotate(Point(), m_angle);
        placed->Translate(m_point);
        return placed;
    }

    Point m_point;
    double m_angle = 0.0; // rad
    bool m_mirror = false;
};

template <typename Shape> std::unique_ptr<MemoryShape> makeShape(MemoryObject &owner)
{
    return std::make_unique<Shape>(owner);
}

struct ShapeOfType
{
    qint64 type;
    std::unique_ptr<MemoryShape> (*make)(MemoryObject &);
};
constexpr ShapeOfType kShapes[] = {
    {0, makeShape<LineShape>},     {1, makeShape<LineShape>},   {4, makeShape<PointShape>},
    {5, makeShape<PointShape>},    {6, makeShape<PointShape>},  {7, makeShape<PointShape>},
    {15, makeShape<LineShape>},    {17, makeShape<LineShape>},  {18, makeShape<LineShape>},
    {19, makeShape<FaceShape>},    {25, makeShape<PointShape>}, {47, makeShape<LineShape>},
    {48, makeShape<FaceShape>},    {202, makeShape<LineShape>}, {1001, makeShape<LineShape>},
    {1002, makeShape<PointShape>}, {1003, makeShape<LineShape>}};

} // namespace

std::unique_ptr<MemoryShape> MemoryShape::make(qint64 type, MemoryObject &owner)
{
    const auto *row = std::find_if(std::begin(kShapes), std::end(kShapes),
                                   [type](const ShapeOfType &shape) { return shape.type == type; });
    return row == std::end(kShapes) ? nullptr : row->make(owner);
}
