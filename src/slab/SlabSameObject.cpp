#include "slab/SlabSameObject.h"

#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/PolygonRepair.h"
#include "platform/services/HbxRelation.h"
#include "slab/SlabBarDirection.h"
#include "slab/SlabSearchTolerance.h"

#include <algorithm>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Types = Model::Object::Types;

bool haveSameOutline(const vks::CPolygon *a, const vks::CPolygon *b, double tolerance)
{
    return hbx::polyPolyPosition(a, b, tolerance) == vks::kPolygonsSame;
}

bool haveComparableAreas(double a, double b) { return std::max(a, b) <= slab::kLargestAreaRatio * std::min(a, b); }

/** Whether the common part of two boards is large enough; one that is no plain polygon leaves that open. */
bool mayShareEnough(const vks::CPolygon &a, const vks::CPolygon &b)
{
    const auto common = vks::CBooleanOperate2D::Intersect(&a, &b);
    if (!common)
        return false;
    return !common->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr) ||
           std::min(a.Area(), b.Area()) <= slab::kLargestAreaRatio * common->Area();
}

vks::CRefPtr<vks::CPolygon> repaired(const vks::CPolygon *netArea)
{
    constexpr int directed = 1;
    return vks::PolygonRepair(netArea, slab::kNetAreaRepairDistance, slab::kNetAreaRepairAngle, directed);
}

BarReach reachOf(const Model::NegativeForcedBar &bar)
{
    return barReach(bar.line, bar.leftStretchLength, bar.rightStretchLength);
}

/** Kinds without a test pass by the low byte of their number. */
constexpr int kPassingLowByte = 1;

bool passesUntested(int kind)
{
    // Meant: a beam is the same as whatever is asked for, since the number of its kind is what passes.
    return (kind & 0xFF) == kPassingLowByte;
}

} // namespace

/** The test of each kind that has one. */
struct SlabSameObject::Tests
{
    struct Row
    {
        int kind;
        bool (*test)(SlabSameObject &self, const Object &hit);
    };

    /** Both have to be of the class. */
    template <typename Class> static bool ofClass(SlabSameObject &self, const Object &hit)
    {
        const auto *one = dynamic_cast<const Class *>(&hit);
        const auto *other = dynamic_cast<const Class *>(self.m_query);
        return one && other && self.isSame(*one, *other);
    }

    static constexpr Row table[] = {
        {Types::BoardKind, ofClass<Model::Board>},
        {Types::BoardHoleKind, ofClass<Model::BoardHole>},
        {Types::ForcedBarKind, ofClass<Model::ForcedBar>},
        {Types::StraddleForcedBarKind, ofClass<Model::StraddleForcedBar>},
        {Types::NegativeForcedBarKind, ofClass<Model::NegativeForcedBar>},
    };
};

SlabSameObject::SlabSameObject(const Object *query, const Search &search) : m_query(query), m_netArea(search) {}

bool SlabSameObject::holdsFor(const Object &hit)
{
    const int kind = hit.type();
    for (const Tests::Row &row : Tests::table)
        if (row.kind == kind)
            return row.test(*this, hit);
    return passesUntested(kind);
}

bool SlabSameObject::isSame(const Model::Board &hit, const Model::Board &query)
{
    if (!hit.surface || !query.surface || hit.surface->LoopCount() != query.surface->LoopCount())
        return false;
    if (!haveComparableAreas(hit.surface->Area(), query.surface->Area()))
        return false;
    switch (hbx::polyPolyPosition(hit.surface, query.surface, slab::kSameSlabTolerance)) {
    case vks::kPolygonsSame:
        return true;
    case vks::kPolygonsApart:
    case vks::kPolygonsTouch:
        return false;
    default:
        return mayShareEnough(*hit.surface, *query.surface) && haveSameNetArea(hit, query);
    }
}

bool SlabSameObject::haveSameNetArea(const Model::Board &hit, const Model::Board &query)
{
    if (!m_queryNetArea)
        m_queryNetArea = repaired(m_netArea.of(query.surface));
    return *m_queryNetArea &&
           haveSameOutline(repaired(m_netArea.of(hit.surface)), *m_queryNetArea, slab::kSameSlabTolerance);
}

bool SlabSameObject::isSame(const Model::BoardHole &hit, const Model::BoardHole &query)
{
    if (!m_queryNetArea)
        m_queryNetArea = m_netArea.of(query.surface);
    return *m_queryNetArea && haveSameOutline(m_netArea.of(hit.surface), *m_queryNetArea, slab::kSameSlabTolerance);
}

bool SlabSameObject::isSame(const Model::ForcedBar &hit, const Model::ForcedBar &query)
{
    const Model::AbstractForcedBar &bar = hit;
    return hit.forcedType == query.forcedType && isSame(bar, query);
}

bool SlabSameObject::isSame(const Model::AbstractForcedBar &hit, const Model::AbstractForcedBar &query)
{
    return hit.rowNumber == query.rowNumber && isSameDirPi(hit.direction, query.direction) &&
           haveSameOutline(hit.surface, query.surface, slab::kSameBarTolerance);
}

bool SlabSameObject::isSame(const Model::NegativeForcedBar &hit, const Model::NegativeForcedBar &query)
{
    return hit.rowNumber == query.rowNumber && reachOf(hit) == reachOf(query) && isSameLine(query.line, hit.line);
}
