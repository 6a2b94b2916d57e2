#include "platform/geometry/PolygonRepair.h"

#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/CurveRelation.h"
#include "platform/geometry/EdgeCrossings.h"
#include "platform/geometry/LoopCleaning.h"
#include "platform/geometry/LoopNesting.h"

namespace vks {

namespace {

using Loops = std::vector<CRefPtr<CLoop>>;

CRefPtr<CPolygon> polygonOf(const Loops &loops)
{
    if (loops.empty())
        return nullptr;
    CRefPtr<CPolygon> polygon(new CPolygon);
    for (const CRefPtr<CLoop> &loop : loops)
        polygon->AddLoop(loop, true);
    return polygon;
}

Loops cleaned(const CPolygon &polygon, const CleaningTolerance &tolerance)
{
    std::size_t vertexCount = 0;
    for (const CRefPtr<CLoop> &loop : polygon.Loops())
        vertexCount += 2 * loop->Curves().size();
    RingWeld weld(vertexCount, tolerance.distance, 0.0);
    Loops loops;
    for (const CRefPtr<CLoop> &loop : polygon.Loops()) {
        const Loops parts = cleanedLoops(*loop, weld, tolerance);
        loops.insert(loops.end(), parts.begin(), parts.end());
    }
    return loops;
}

bool cross(const Loops &loops) { return edgesCross(loops, g_DistEpsilon); }

bool curvesMeet(const CLoop &a, const CLoop &b)
{
    for (const CRefPtr<CCurve2d> &curve : a.Curves())
        for (const CRefPtr<CCurve2d> &other : b.Curves())
            if (curve->Box().Intersects(other->Box(), g_DistEpsilon) &&
                !CurveIntersections(*curve, *other, false, g_DistEpsilon).empty())
                return true;
    return false;
}

/** Splits loops into those that cross themselves or another one, and the rest. */
std::pair<Loops, Loops> crossingAndClear(const Loops &loops)
{
    std::vector<bool> itself;
    for (const CRefPtr<CLoop> &loop : loops)
        itself.push_back(cross({loop}));
    std::vector<bool> crossing = itself;
    for (std::size_t i = 0; i < loops.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (itself[i] || itself[j] ? curvesMeet(*loops[i], *loops[j]) : cross({loops[i], loops[j]}))
                crossing[i] = crossing[j] = true;
    std::pair<Loops, Loops> split;
    for (std::size_t i = 0; i < loops.size(); ++i)
        (crossing[i] ? split.first : split.second).push_back(loops[i]);
    return split;
}

/** Loops that cross are replaced by the boundary of the area that they bound by the even-odd rule; the others keep
 *  their arcs. */
Loops takenApart(const Loops &loops, const CleaningTolerance &tolerance)
{
    const auto [crossing, clear] = crossingAndClear(loops);
    const CRefPtr<CPolygon> tangle = polygonOf(crossing);
    const CRefPtr<CPolygon> area = tangle ? CBooleanOperate2D::MultUnite({tangle.get()}) : nullptr;
    if (!area)
        return clear;
    Loops result = cleaned(*area, tolerance);
    if (cross(result))
        result = area->Loops();
    result.insert(result.end(), clear.begin(), clear.end());
    return result;
}

void orient(const Loops &loops)
{
    const std::vector<int> depths = loopDepths(loops);
    for (std::size_t i = 0; i < loops.size(); ++i) {
        const bool outer = depths[i] % 2 == 0;
        if ((loops[i]->SignedArea() > 0.0) != outer)
            loops[i]->Reverse();
    }
}

} // namespace

CRefPtr<CPolygon> PolygonRepair(const CPolygon *polygon, double distTolerance, double angleTolerance, int flag)
{
    constexpr unsigned onlyFinite = 0;
    if (!polygon || !polygon->IsValid(onlyFinite, nullptr, nullptr))
        return nullptr;
    const CleaningTolerance tolerance{distTolerance > 0.0 ? distTolerance : g_DefaultDistEpsilon,
                                      angleTolerance > 0.0 ? angleTolerance : g_AngleEpsilon};
    Loops loops = cleaned(*polygon, tolerance);
    if (cross(loops))
        loops = takenApart(loops, tolerance);
    if (flag == 1)
        orient(loops);
    return polygonOf(loops);
}

} // namespace vks
