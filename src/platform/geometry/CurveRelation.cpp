#include "platform/geometry/CurveRelation.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/CurveSupport.h"
#include "platform/geometry/KernelTolerance.h"

#include <algorithm>
#include <array>
#include <limits>

namespace vks {

namespace {

/** A point that may be common to two curves. */
struct Candidate
{
    CVec2<double> point;
    double position; // along a, mm
    bool crossing;   // of the supports; else the end of a curve
};

/** Gathers the common points of two curves. */
class Gathering
{
public:
    Gathering(const CCurve2d &a, const CCurve2d &b, bool extendA, double tolerance)
        : m_a(a), m_b(b), m_supportA(a), m_extendA(extendA), m_tolerance(tolerance)
    {}

    std::vector<CVec2<double>> points()
    {
        for (const CVec2<double> &point : supportMeetings(m_supportA, CurveSupport(m_b), m_tolerance))
            offer(point, true);
        for (const CVec2<double> &end : {m_b.StartPoint(), m_b.EndPoint()})
            offer(end, false);
        if (!m_extendA)
            for (const CVec2<double> &end : {m_a.StartPoint(), m_a.EndPoint()})
                offer(end, false);
        std::sort(m_candidates.begin(), m_candidates.end(),
                  [](const Candidate &a, const Candidate &b) { return a.position < b.position; });
        merge();
        settleStretches();
        std::vector<CVec2<double>> result;
        for (const Candidate &candidate : m_candidates)
            result.push_back(candidate.point);
        return result;
    }

private:
    void offer(const CVec2<double> &point, bool crossing)
    {
        const double fromA = m_extendA ? m_supportA.distanceTo(point) : m_a.DistanceTo(point);
        if (fromA <= m_tolerance && m_b.DistanceTo(point) <= m_tolerance)
            m_candidates.push_back({point, m_supportA.positionOf(point, m_tolerance), crossing});
    }

    /** Makes one of candidates within the tolerance, a crossing standing for the ends beside it. */
    void merge()
    {
        std::vector<Candidate> merged;
        for (const Candidate &next : m_candidates) {
            if (merged.empty() || merged.back().point.DistanceTo(next.point) > m_tolerance)
                merged.push_back(next);
            else if (next.crossing && !merged.back().crossing)
                merged.back() = next;
        }
        m_candidates = std::move(merged);
    }

    bool runsTogether(const Candidate &from, const Candidate &to) const
    {
        return m_b.DistanceTo(m_supportA.pointAt((from.position + to.position) / 2)) <= m_tolerance;
    }

    /** Curves that cross at a small angle run together for a while. A crossing with an end on either side of it is part
     *  of a stretch and goes; with an end on one side it is the meeting, and the end goes. */
    void settleStretches()
    {
        for (std::size_t i = 0; i < m_candidates.size(); ++i) {
            if (!m_candidates[i].crossing)
                continue;
            const bool left =
                i > 0 && !m_candidates[i - 1].crossing && runsTogether(m_candidates[i - 1], m_candidates[i]);
            const bool right = i + 1 < m_candidates.size() && !m_candidates[i + 1].crossing &&
                               runsTogether(m_candidates[i], m_candidates[i + 1]);
            if (!left && !right)
                continue;
            const std::size_t gone = left && right ? i : (left ? i - 1 : i + 1);
            m_candidates.erase(m_candidates.begin() + static_cast<std::ptrdiff_t>(gone));
        }
    }

    const CCurve2d &m_a;
    const CCurve2d &m_b;
    CurveSupport m_supportA;
    bool m_extendA;
    double m_tolerance;
    std::vector<Candidate> m_candidates;
};

CVec2<double> nearestOn(const CCurve2d &curve, const CVec2<double> &point)
{
    return curve.GetPoint(curve.NearestT(point));
}

/** The nearest pair of points found so far. */
struct NearestPair
{
    double distance = std::numeric_limits<double>::infinity();
    CVec2<double> onA;
    CVec2<double> onB;

    void offer(const CVec2<double> &a, const CVec2<double> &b)
    {
        const double candidate = a.DistanceTo(b);
        if (candidate < distance)
            *this = {candidate, a, b};
    }
};

/** Points that are nearest, or whose nearest points are, where two curves do not meet: the ends, and for circles
 *  points on the line through the centres. */
class NearestSeeds
{
public:
    NearestSeeds(const CCurve2d &a, const CCurve2d &b, const CurveSupport &onA, const CurveSupport &onB)
        : m_points{a.StartPoint(), a.EndPoint(), b.StartPoint(), b.EndPoint()}
    {
        if (!onA.isLine())
            m_points[m_count++] = onA.centre();
        if (!onB.isLine())
            m_points[m_count++] = onB.centre();
        if (!onA.isLine() && !onB.isLine()) {
            m_points[m_count++] = onA.centre() * 2.0 - onB.centre();
            m_points[m_count++] = onB.centre() * 2.0 - onA.centre();
        }
    }
    const CVec2<double> *begin() const { return m_points.data(); }
    const CVec2<double> *end() const { return m_points.data() + m_count; }

private:
    std::array<CVec2<double>, 8> m_points;
    std::size_t m_count = 4;
};

NearestPair nearestPair(const CCurve2d &a, const CCurve2d &b)
{
    const CurveSupport onA(a);
    const CurveSupport onB(b);
    for (const CVec2<double> &point : supportMeetings(onA, onB, 0.0))
        if (a.DistanceTo(point) <= kArithmeticNoise && b.DistanceTo(point) <= kArithmeticNoise)
            return {0.0, point, point};
    NearestPair nearest;
    for (const CVec2<double> &seed : NearestSeeds(a, b, onA, onB)) {
        const CVec2<double> first = nearestOn(a, seed);
        nearest.offer(first, nearestOn(b, first));
        const CVec2<double> second = nearestOn(b, seed);
        nearest.offer(nearestOn(a, second), second);
    }
    return nearest;
}

} // namespace

double GeometryDistance(const CCurve2d *a, const CCurve2d *b, CVec2<double> &onA, CVec2<double> &onB, double limit)
{
    constexpr double none = std::numeric_limits<double>::infinity();
    if (!a || !b || a->IsEmpty() || b->IsEmpty())
        return none;
    const NearestPair nearest = nearestPair(*a, *b);
    if (nearest.distance == none || (limit > 0.0 && nearest.distance > limit))
        return none;
    onA = nearest.onA;
    onB = nearest.onB;
    return nearest.distance;
}

std::vector<CVec2<double>> CurveIntersections(const CCurve2d &a, const CCurve2d &b, bool extendA, double tolerance)
{
    if (!(a.Length() > 0.0) || !(b.Length() > 0.0))
        return {};
    return Gathering(a, b, extendA, tolerance > 0.0 ? tolerance : g_DefaultDistEpsilon).points();
}

CRefPtr<CCurve2d> OffsetCurve(const CCurve2d *curve, double distance)
{
    if (!curve || !(curve->Length() > 0.0) || !std::isfinite(distance))
        return nullptr;
    const CurveSupport support(*curve);
    if (support.isLine()) {
        const CVec2<double> move = support.direction().Left() * distance;
        return new CLine2d(curve->StartPoint() + move, curve->EndPoint() + move);
    }
    const auto &arc = static_cast<const CArc2d &>(*curve);
    const double radius = arc.Radius() - std::copysign(distance, arc.SweepAngle() * distance);
    if (!(radius > 0.0))
        return nullptr;
    const double start = arc.StartAngle();
    return new CArc2d(arc.CenterPt(), radius, start, start + arc.SweepAngle());
}

} // namespace vks
