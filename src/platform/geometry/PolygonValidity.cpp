#include "platform/geometry/PolygonValidity.h"

#include "platform/geometry/EdgeCrossings.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/geometry/LoopNesting.h"

#include <algorithm>
#include <cmath>

namespace vks {

namespace {

template <typename Test> bool everyCurve(const std::vector<CRefPtr<CLoop>> &loops, Test test)
{
    return std::all_of(loops.begin(), loops.end(), [&](const auto &loop) {
        return std::all_of(loop->Curves().begin(), loop->Curves().end(), test);
    });
}

} // namespace

bool PolygonValidity::passes() const
{
    struct Check
    {
        CPolygon::EnValidity bit;
        bool (PolygonValidity::*passed)() const;
    };
    constexpr Check checks[] = {
        {CPolygon::kNotEmpty, &PolygonValidity::isNotEmpty},
        {CPolygon::kClosed, &PolygonValidity::isClosed},
        {CPolygon::kNoShortEdge, &PolygonValidity::hasNoShortEdge},
        {CPolygon::kHasArea, &PolygonValidity::hasArea},
        {CPolygon::kNoCrossing, &PolygonValidity::hasNoCrossing},
        {CPolygon::kHolesInside, &PolygonValidity::hasHolesInside},
    };
    return isFinite() && std::all_of(std::begin(checks), std::end(checks), [&](const Check &check) {
               return !asksFor(check.bit) || (this->*check.passed)();
           });
}

bool PolygonValidity::isFinite() const
{
    return everyCurve(m_loops, [](const auto &curve) {
        return curve->StartPoint().IsFinite() && curve->MidPoint().IsFinite() && curve->EndPoint().IsFinite() &&
               std::isfinite(curve->Length());
    });
}

bool PolygonValidity::isNotEmpty() const
{
    return !m_loops.empty() &&
           std::all_of(m_loops.begin(), m_loops.end(), [](const auto &loop) { return loop->CurveCount() > 0; }) &&
           everyCurve(m_loops, [](const auto &curve) { return !curve->IsEmpty(); });
}

bool PolygonValidity::isClosed() const
{
    return std::all_of(m_loops.begin(), m_loops.end(), [](const auto &loop) { return loop->IsClosed(g_DistEpsilon); });
}

bool PolygonValidity::hasNoShortEdge() const
{
    return everyCurve(m_loops, [](const auto &curve) { return curve->Length() >= g_DistEpsilon; });
}

bool PolygonValidity::hasNoCrossing() const { return !edgesCross(m_loops, g_DistEpsilon); }

bool PolygonValidity::hasHolesInside() const
{
    // Where crossings are asked for, too, that check has been passed by now.
    if (!asksFor(CPolygon::kNoCrossing) && loopsCross(m_loops, g_DistEpsilon))
        return false;
    const std::vector<int> depths = loopDepths(m_loops);
    return depths.empty() ||
           (depths[0] == 0 && std::count(depths.begin(), depths.end(), 1) == std::ptrdiff_t(depths.size()) - 1);
}

bool PolygonValidity::hasArea() const
{
    // As thin as the tolerance all along is no area: rounding alone makes as much of a long edge there and back.
    return m_polygon.Area() > g_DistEpsilon * m_polygon.Perimeter() / 2;
}

} // namespace vks
