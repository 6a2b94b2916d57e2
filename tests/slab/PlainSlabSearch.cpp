#include "slab/PlainSlabSearch.h"

#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/CPositionJudge.h"
#include "platform/geometry/GPolygonBuilder.h"
#include "platform/geometry/PolygonRepair.h"
#include "platform/services/HbxRelation.h"
#include "slab/SlabBarDirection.h"

namespace {

using Model = ORVCADBoardLocalModel_Sample;

bool sameBar(const Model::AbstractForcedBar &h, const Model::AbstractForcedBar &q)
{
    return h.rowNumber == q.rowNumber && hbx::polyPolyPosition(h.surface, q.surface, 10.0) == 7 &&
           isSameDirPi(h.direction, q.direction);
}

int directionClass(const Model::NegativeForcedBar &bar)
{
    const bool n = needNormalizeStretchInfo(bar.line);
    if (-0.5 <= bar.leftStretchLength && bar.leftStretchLength <= 0.5)
        return n ? 0 : 1;
    if (-0.5 <= bar.rightStretchLength && bar.rightStretchLength <= 0.5)
        return n ? 1 : 0;
    return 2;
}

} // namespace

PlainSlabSearch::Objects PlainSlabSearch::byBox(const vks::CBox2<double> &box, int mask) const
{
    Objects found;
    for (const Object *object : m_model.objects())
        if ((object->type() & m_indexed) != 0 && (object->type() & mask) != 0 &&
            object->shape().box().Intersects(box, 2.0))
            found.push_back(const_cast<Object *>(object));
    return found;
}

PlainSlabSearch::Objects PlainSlabSearch::byPolygon(const vks::CPolygon &polygon, int mask) const
{
    Objects found;
    for (Object *object : byBox(polygon.Box(), mask))
        if (auto *section = dynamic_cast<Model::SectionObject *>(object))
            if (hbx::polyPolyPosition(&polygon, section->surface, 1.0) == 7)
                found.push_back(object);
    return found;
}

PlainSlabSearch::Objects PlainSlabSearch::byCurve(const vks::CCurve2d &curve, int mask) const
{
    vks::CPositionJudge judge;
    judge.SetDistEpsilon(1.0);
    Objects found;
    for (Object *object : byBox(curve.Box(), mask))
        if (auto *line = dynamic_cast<Model::LineObject *>(object))
            if (judge.GetCurveCurvePosition(&curve, line->line) == 2)
                found.push_back(object);
    return found;
}

PlainSlabSearch::Objects PlainSlabSearch::byElement(const Object &query, int mask) const
{
    Objects found;
    for (Object *object : byBox(query.shape().box(), mask))
        if (isSame(*object, query))
            found.push_back(object);
    return found;
}

bool PlainSlabSearch::isSame(const Object &hit, const Object &query) const
{
    if (hit.type() == 1)
        return true;
    if (hit.type() != query.type())
        return false;
    switch (static_cast<int>(hit.type())) {
    case 4:
        return isSameBoard(dynamic_cast<const Model::Board &>(hit), dynamic_cast<const Model::Board &>(query));
    case 8: {
        const Polygon h = netArea(*dynamic_cast<const Model::BoardHole &>(hit).surface);
        const Polygon q = netArea(*dynamic_cast<const Model::BoardHole &>(query).surface);
        return hbx::polyPolyPosition(h, q, 15.0) == 7;
    }
    case 16: {
        const auto &h = dynamic_cast<const Model::ForcedBar &>(hit);
        const auto &q = dynamic_cast<const Model::ForcedBar &>(query);
        return h.forcedType == q.forcedType && sameBar(h, q);
    }
    case 32:
        return sameBar(dynamic_cast<const Model::AbstractForcedBar &>(hit),
                       dynamic_cast<const Model::AbstractForcedBar &>(query));
    case 64: {
        const auto &h = dynamic_cast<const Model::NegativeForcedBar &>(hit);
        const auto &q = dynamic_cast<const Model::NegativeForcedBar &>(query);
        return h.rowNumber == q.rowNumber && isSameLine(q.line, h.line) && directionClass(h) == directionClass(q);
    }
    default:
        return false;
    }
}

bool PlainSlabSearch::isSameBoard(const Model::Board &h, const Model::Board &q) const
{
    const double areas[] = {h.surface->Area(), q.surface->Area()};
    const double small = std::min(areas[0], areas[1]);
    if (h.surface->LoopCount() != q.surface->LoopCount() || std::max(areas[0], areas[1]) > 3 * small)
        return false;
    const int position = hbx::polyPolyPosition(h.surface, q.surface, 15.0);
    if (position == 7)
        return true;
    const Polygon common = vks::CBooleanOperate2D::Intersect(h.surface, q.surface);
    if (position == 1 || position == 6 || !common)
        return false;
    if (common->IsValid(4127, nullptr, nullptr) && small > 3 * common->Area())
        return false;
    const Polygon hNet = vks::PolygonRepair(netArea(*h.surface), 1.0, 0.001, 1);
    const Polygon qNet = vks::PolygonRepair(netArea(*q.surface), 1.0, 0.001, 1);
    return hbx::polyPolyPosition(hNet, qNet, 15.0) == 7;
}

PlainSlabSearch::Polygon PlainSlabSearch::netArea(const vks::CPolygon &outline) const
{
    std::vector<Polygon> kept;
    for (const Object *object : byBox(outline.Box(), 8191)) {
        Polygon polygon;
        if (const auto *column = dynamic_cast<const Model::Column *>(object))
            polygon = column->surface;
        if (const auto *support = dynamic_cast<const Model::Support *>(object))
            polygon = vks::GPolygonBuilder::CreatePolygon(support->line, support->distanceToLeft,
                                                          support->width - support->distanceToLeft);
        const int position = hbx::polyPolyPosition(&outline, polygon, -1.0);
        if (position == 0 || position == 5)
            kept.push_back(polygon);
    }
    if (kept.empty())
        return outline.Clone();
    return vks::CBooleanOperate2D::Subtract(&outline, vks::CBooleanOperate2D::MultUnite({kept.begin(), kept.end()}));
}
