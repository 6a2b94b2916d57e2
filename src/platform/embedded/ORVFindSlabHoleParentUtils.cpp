#include "platform/services/ORVFindSlabHoleParentUtils.h"

#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/WorldOutline.h"
#include "platform/services/HBXElementTypes.h"

#include <QList>
#include <QSet>

#include <limits>

namespace {

using Point = vks::CVec2<double>;

namespace type = hbx::type;

constexpr qint64 kParentTypes[] = {type::slab, type::raft}; // a slab goes before a raft

Point worldInsertPoint(const IHBXCustomPointSolidShape &shape)
{
    Point point;
    vks::CCoord3<double> frame;
    shape.insertPoint(point);
    if (shape.coordinates(frame, IHBXModel::g_bDefaultAutoCalc).IsAbsent())
        return point;
    const vks::CVec3<double> world = frame.ToWorld(point);
    return {world.x, world.y};
}

/** Area of a slab whose outer loop holds a point; infinite for one that does not. */
double areaHolding(IHBXElementDrawObj &slab, const Point &point)
{
    constexpr double kNone = std::numeric_limits<double>::infinity();
    const IHBXShape *shape = slab.shape();
    vks::CBox2<double> box;
    if (!shape || !shape->box(box, IHBXModel::g_bDefaultAutoCalc).Contains(point, vks::g_DistEpsilon))
        return kNone;
    const vks::CRefPtr<vks::CPolygon> outline = hbx::worldOutline(shape);
    const vks::CLoop *outer = outline ? outline->GetLoop(0) : nullptr;
    return outer && outer->Locate(point, vks::g_DistEpsilon) >= 0 ? outline->Area() : kNone;
}

IHBXElementDrawObj *smallestHolding(const QList<IHBXElementDrawObj *> &slabs, const Point &point)
{
    IHBXElementDrawObj *smallest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (IHBXElementDrawObj *slab : slabs) {
        const double area = areaHolding(*slab, point);
        if (area < least) {
            least = area;
            smallest = slab;
        }
    }
    return smallest;
}

} // namespace

ORVFindSlabHoleParentUtils::ORVFindSlabHoleParentUtils(IHBXCurState *state, IHBXElementDrawObj *hole)
    : m_state(state), m_hole(hole)
{}

IHBXElementDrawObj *ORVFindSlabHoleParentUtils::getSlabHoleParent() const
{
    IHBXFloor *floor = m_hole ? m_hole->floor() : nullptr;
    if (m_hole && !floor && m_state)
        floor = m_state->floor();
    const auto *shape = floor ? dynamic_cast<IHBXCustomPointSolidShape *>(m_hole->shape()) : nullptr;
    if (!shape)
        return nullptr;
    const Point point = worldInsertPoint(*shape);
    for (const qint64 type : kParentTypes) {
        QList<IHBXElementDrawObj *> slabs;
        floor->drawObjsOfTypes(slabs, {type}, true);
        if (IHBXElementDrawObj *parent = smallestHolding(slabs, point))
            return parent;
    }
    return nullptr;
}
