#include "platform/geometry/LoopCleaning.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/EdgeCrossings.h"
#include "platform/geometry/KernelTolerance.h"

#include <algorithm>
#include <map>

namespace vks {

namespace {

/** An arc this many times longer than the gap between its ends is a full circle once they are welded. */
constexpr double kCirclePerGap = 3.0;

using Point = CVec2<double>;
using Curves = std::vector<CRefPtr<CCurve2d>>;

CRefPtr<CCurve2d> fullCircle(const CArc2d &arc)
{
    const double start = arc.StartAngle();
    return new CArc2d(arc.CenterPt(), arc.Radius(), start, start + std::copysign(kFullTurn, arc.SweepAngle()));
}

/** The curve between welded ends; null when nothing is left of it. */
CRefPtr<CCurve2d> between(const CCurve2d &curve, const Point &start, const Point &end, double tolerance)
{
    const CArc2d *arc = CArc2d::RoundArc(curve);
    if (start == end) {
        const bool circle = arc && curve.Length() > kCirclePerGap * tolerance;
        return circle ? (arc->IsClosed() ? curve.Clone() : fullCircle(*arc)) : nullptr;
    }
    if (start == curve.StartPoint() && end == curve.EndPoint())
        return curve.Clone();
    if (arc)
        return new CArc2d(start, end, arc->GetBulge());
    return new CLine2d(start, end);
}

/** A curve between vertices that may differ from its ends by rounding. */
struct Edge
{
    Point start;
    Point end;
    CRefPtr<CCurve2d> curve;
};

std::vector<Edge> weldedEdges(const CLoop &loop, RingWeld &weld, double tolerance)
{
    const auto &curves = loop.Curves();
    std::vector<Edge> result;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const Point start = weld.weld(curves[i]->StartPoint());
        const Point end = weld.weld(curves[i]->EndPoint());
        if (CRefPtr<CCurve2d> curve = between(*curves[i], start, end, tolerance))
            result.push_back({start, end, curve});
        const Point next = weld.weld(curves[(i + 1) % curves.size()]->StartPoint());
        if (next != end)
            result.push_back({end, next, new CLine2d(end, next)});
    }
    return result;
}

/** Cuts a closed way into ways that visit each of their vertices once. */
class VertexCutter
{
public:
    explicit VertexCutter(const std::vector<Edge> &edges)
    {
        for (const Edge &edge : edges) {
            m_starts[{edge.start.x, edge.start.y}] = m_open.size();
            m_open.push_back(edge);
            const auto first = m_starts.find({edge.end.x, edge.end.y});
            if (first != m_starts.end())
                cutFrom(first->second);
        }
        if (!m_open.empty())
            cutFrom(0);
    }
    const std::vector<Curves> &parts() const { return m_parts; }

private:
    void cutFrom(std::size_t first)
    {
        m_parts.emplace_back();
        for (std::size_t i = first; i < m_open.size(); ++i) {
            m_parts.back().push_back(m_open[i].curve);
            m_starts.erase({m_open[i].start.x, m_open[i].start.y});
        }
        m_open.resize(first);
    }

    std::vector<Edge> m_open; // the way since the last cut
    std::map<std::pair<double, double>, std::size_t> m_starts;
    std::vector<Curves> m_parts;
};

/** Neighbouring curves that are to become one. */
class Run
{
public:
    Run(const CRefPtr<CCurve2d> &first, const CleaningTolerance &tolerance)
        : m_curves{first}, m_tolerance(tolerance), m_start(first->StartPoint()), m_along(first->StartVt()),
          m_sweep(sweepOf(*first))
    {}

    bool takes(const CCurve2d &next) const
    {
        const CCurve2d &last = *m_curves.back();
        if (std::fabs(last.EndVt().AngleTo(next.StartVt())) > m_tolerance.angle)
            return false;
        const CArc2d *arc = CArc2d::RoundArc(last);
        const CArc2d *nextArc = CArc2d::RoundArc(next);
        return arc && nextArc ? staysOnCircle(*arc, *nextArc) : !arc && !nextArc && staysOnLine(next);
    }
    void take(const CRefPtr<CCurve2d> &next)
    {
        const Point vertex = next->StartPoint();
        const double reach = std::asin(std::min(1.0, m_tolerance.distance / vertex.DistanceTo(m_start)));
        m_leastTurn = std::max(m_leastTurn, turnTo(vertex) - reach);
        m_mostTurn = std::min(m_mostTurn, turnTo(vertex) + reach);
        m_sweep += sweepOf(*next);
        m_curves.push_back(next);
    }

    CRefPtr<CCurve2d> joined() const
    {
        if (m_curves.size() == 1)
            return m_curves.front();
        const Point start = m_curves.front()->StartPoint();
        const Point end = m_curves.back()->EndPoint();
        const CArc2d *arc = CArc2d::RoundArc(*m_curves.front());
        if (!arc)
            return new CLine2d(start, end);
        if (start.DistanceTo(end) <= g_DefaultDistEpsilon)
            return fullCircle(*arc);
        return new CArc2d(start, middle(), end);
    }

private:
    static double sweepOf(const CCurve2d &curve)
    {
        const CArc2d *arc = CArc2d::RoundArc(curve);
        return arc ? std::fabs(arc->SweepAngle()) : 0.0;
    }
    /** Angle from the run's first direction to a point seen from its start, rad. */
    double turnTo(const Point &point) const { return m_along.AngleTo(point - m_start); }
    bool staysOnCircle(const CArc2d &arc, const CArc2d &next) const
    {
        return arc.SweepAngle() * next.SweepAngle() > 0.0 && m_sweep + sweepOf(next) <= kFullTurn + m_tolerance.angle &&
               arc.CenterPt().DistanceTo(next.CenterPt()) <= m_tolerance.distance &&
               std::fabs(arc.Radius() - next.Radius()) <= m_tolerance.distance;
    }
    /** Many slight turns must not add up: every vertex stays near the line. */
    bool staysOnLine(const CCurve2d &next) const
    {
        const Point vertex = next.StartPoint();
        const double turn = turnTo(next.EndPoint());
        const Point way = next.EndPoint() - m_start;
        return turn >= m_leastTurn && turn <= m_mostTurn &&
               std::fabs(way.Cross(vertex - m_start)) <= m_tolerance.distance * way.Length();
    }
    Point middle() const
    {
        double left = 0.0;
        for (const CRefPtr<CCurve2d> &curve : m_curves)
            left += curve->Length() / 2;
        for (const CRefPtr<CCurve2d> &curve : m_curves) {
            if (left <= curve->Length())
                return curve->GetPoint(curve->StartT() + left);
            left -= curve->Length();
        }
        return m_curves.back()->EndPoint();
    }

    Curves m_curves;
    CleaningTolerance m_tolerance;
    Point m_start;
    Point m_along;                   // direction at the start
    double m_sweep;                  // of arcs so far, rad
    double m_leastTurn = -kFullTurn; // directions of a line that passes near all vertices so far, from m_along, rad
    double m_mostTurn = kFullTurn;
};

/** Joins what goes on, starting at a true corner, if there is one. */
Curves joinedCurves(Curves curves, const CleaningTolerance &tolerance)
{
    for (std::size_t i = 0; i < curves.size(); ++i)
        if (!Run(curves[(i + curves.size() - 1) % curves.size()], tolerance).takes(*curves[i])) {
            std::rotate(curves.begin(), curves.begin() + static_cast<std::ptrdiff_t>(i), curves.end());
            break;
        }
    std::vector<Run> runs;
    for (const CRefPtr<CCurve2d> &curve : curves) {
        if (!runs.empty() && runs.back().takes(*curve))
            runs.back().take(curve);
        else
            runs.emplace_back(curve, tolerance);
    }
    Curves result;
    for (const Run &run : runs)
        result.push_back(run.joined());
    return result;
}

/** Parts of a loop that crosses itself, which takes three edges, may cancel in its area. */
bool holdsArea(const CRefPtr<CLoop> &loop)
{
    return loop->Area() > g_DefaultDistEpsilon * loop->Length() ||
           (loop->CurveCount() > 2 && edgesCross({loop}, g_DistEpsilon));
}

} // namespace

std::vector<CRefPtr<CLoop>> cleanedLoops(const CLoop &loop, RingWeld &weld, const CleaningTolerance &tolerance)
{
    std::vector<CRefPtr<CLoop>> loops;
    const VertexCutter cutter(weldedEdges(loop, weld, tolerance.distance));
    for (const Curves &part : cutter.parts()) {
        CRefPtr<CLoop> cleaned(new CLoop);
        for (const CRefPtr<CCurve2d> &curve : joinedCurves(part, tolerance))
            cleaned->AddCurve(curve, false);
        if (holdsArea(cleaned))
            loops.push_back(cleaned);
    }
    std::stable_sort(loops.begin(), loops.end(),
                     [](const CRefPtr<CLoop> &a, const CRefPtr<CLoop> &b) { return a->Area() > b->Area(); });
    return loops;
}

} // namespace vks
