#include "platform/geometry/CPositionJudge.h"

#include "platform/geometry/CurveRelation.h"
#include "platform/geometry/CurveZone.h"
#include "platform/geometry/KernelTolerance.h"

#include <algorithm>
#include <vector>

namespace vks {

namespace {

struct Stretch
{
    double start;
    double end;
};

/** The longest stretches of a curve that lie within the tolerance of another. */
std::vector<Stretch> stretchesNear(const CCurve2d &curve, const CCurve2d &other, double tolerance)
{
    CurveZone zone(curve.Box().Grown(tolerance));
    zone.addCurve(other, tolerance);
    const std::vector<double> cuts = zone.cuts(curve);
    std::vector<Stretch> stretches;
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        if (other.DistanceTo(curve.GetPoint((cuts[i - 1] + cuts[i]) / 2)) > tolerance)
            continue;
        if (!stretches.empty() && stretches.back().end == cuts[i - 1])
            stretches.back().end = cuts[i];
        else
            stretches.push_back({cuts[i - 1], cuts[i]});
    }
    return stretches;
}

/** A curve that crosses another is near it for a while too. It shares a stretch only when its being near begins and
 *  ends where one of the two curves ends, and when the other one goes along with it. */
bool isShared(const Stretch &stretch, const CCurve2d &curve, const CCurve2d &other, double tolerance)
{
    const double from = other.NearestT(curve.GetPoint(stretch.start));
    const double to = other.NearestT(curve.GetPoint(stretch.end));
    const auto atEndOfOther = [&other](double t) {
        return !other.IsClosed() &&
               (t - other.StartT() <= g_DefaultDistEpsilon || other.EndT() - t <= g_DefaultDistEpsilon);
    };
    const bool starts = stretch.start <= curve.StartT() || atEndOfOther(from);
    const bool ends = stretch.end >= curve.EndT() || atEndOfOther(to);
    const bool goesAlong = other.IsClosed() || std::fabs(to - from) > tolerance;
    return starts && ends && goesAlong && stretch.end - stretch.start > tolerance;
}

bool sharesStretch(const CCurve2d &curve, const CCurve2d &other, double tolerance)
{
    const std::vector<Stretch> stretches = stretchesNear(curve, other, tolerance);
    return std::any_of(stretches.begin(), stretches.end(),
                       [&](const Stretch &stretch) { return isShared(stretch, curve, other, tolerance); });
}

} // namespace

CPositionJudge::CPositionJudge() : m_distEpsilon(g_DistEpsilon) {}

void CPositionJudge::SetDistEpsilon(double tolerance)
{
    m_distEpsilon = tolerance > 0.0 ? tolerance : g_DefaultDistEpsilon;
}

EnCurveCurvePosition CPositionJudge::GetCurveCurvePosition(const CCurve2d *a, const CCurve2d *b) const
{
    if (!a || !b || !(a->Length() > 0.0) || !(b->Length() > 0.0))
        return kCurvesInvalid;
    // Curves exactly the tolerance apart are within it.
    const double tolerance = m_distEpsilon + kArithmeticNoise;
    if (!a->Box().Intersects(b->Box(), tolerance))
        return kCurvesApart;
    if (sharesStretch(*a, *b, tolerance) || sharesStretch(*b, *a, tolerance))
        return kCurvesOverlap;
    CVec2<double> onA;
    CVec2<double> onB;
    return GeometryDistance(a, b, onA, onB, tolerance) <= tolerance ? kCurvesMeet : kCurvesApart;
}

} // namespace vks
