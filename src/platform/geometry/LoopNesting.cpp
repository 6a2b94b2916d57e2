#include "platform/geometry/LoopNesting.h"

#include "platform/geometry/KernelTolerance.h"

namespace vks {

namespace {

bool boxHolds(const CBox2<double> &outer, const CBox2<double> &inner)
{
    return outer.Contains(inner.minPt, g_DistEpsilon) && outer.Contains(inner.maxPt, g_DistEpsilon);
}

} // namespace

bool liesIn(const CLoop &inner, const CLoop &outer)
{
    if (inner.CurveCount() == 0 || !boxHolds(outer.Box(), inner.Box()))
        return false;
    // A point on the outer loop says nothing: the loops may touch there.
    for (const auto &curve : inner.Curves())
        for (const auto &point : {curve->MidPoint(), curve->StartPoint()})
            if (const int place = outer.Locate(point, g_DistEpsilon); place != 0)
                return place > 0;
    return outer.Locate(inner.Barycentre(), g_DistEpsilon) > 0 && inner.Area() < outer.Area();
}

std::vector<int> loopDepths(const std::vector<CRefPtr<CLoop>> &loops)
{
    std::vector<int> depths(loops.size(), 0);
    if (loops.size() < 2)
        return depths;
    for (std::size_t i = 0; i < loops.size(); ++i)
        for (std::size_t j = 0; j < loops.size(); ++j)
            if (i != j && liesIn(*loops[i], *loops[j]))
                ++depths[i];
    return depths;
}

} // namespace vks
