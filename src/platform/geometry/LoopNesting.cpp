#include "platform/geometry/LoopNesting.h"

#include "platform/geometry/KernelTolerance.h"

#include <algorithm>
#include <cmath>

namespace vks {

namespace {

bool boxHolds(const CBox2<double> &outer, const CBox2<double> &inner)
{
    return outer.Contains(inner.minPt, g_DistEpsilon) && outer.Contains(inner.maxPt, g_DistEpsilon);
}

bool cornersLieOn(const CLoop &loop, const CLoop &other)
{
    return std::all_of(loop.Curves().begin(), loop.Curves().end(), [&other](const auto &curve) {
        return other.Locate(curve->StartPoint(), g_DistEpsilon) == 0 &&
               other.Locate(curve->MidPoint(), g_DistEpsilon) == 0;
    });
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

bool boundTheSame(const CLoop &a, const CLoop &b)
{
    return boxHolds(a.Box(), b.Box()) && boxHolds(b.Box(), a.Box()) &&
           std::fabs(a.Area() - b.Area()) <= g_DistEpsilon * a.Length() && cornersLieOn(a, b) && cornersLieOn(b, a);
}

std::vector<int> loopDepths(const std::vector<CRefPtr<CLoop>> &loops)
{
    std::vector<int> depths(loops.size(), 0);
    if (loops.size() < 2)
        return depths;
    std::vector<CBox2<double>> boxes;
    boxes.reserve(loops.size());
    for (const auto &loop : loops)
        boxes.push_back(loop->Box());
    for (std::size_t i = 0; i < loops.size(); ++i)
        for (std::size_t j = 0; j < loops.size(); ++j)
            if (i != j && boxHolds(boxes[j], boxes[i]) &&
                (liesIn(*loops[i], *loops[j]) || (j < i && boundTheSame(*loops[i], *loops[j]))))
                ++depths[i];
    return depths;
}

} // namespace vks
