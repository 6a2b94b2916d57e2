#include "platform/geometry/LoopCleaning.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/EdgeCrossings.h"
#include "platform/geometry/KernelTolerance.h"

#include <algorithm>

namespace vks {

namespace {

constexpr double kTwoPi = 2 * 3.14159265358979323846;
/** An arc this many times longer than the gap between its ends is a full circle once they are welded. */
constexpr double kCirclePerGap = 3.0;

using Point = CVec2<double>;
using Curves = std::vector<CRefPtr<CCurve2d>>;

const CArc2d *roundArc(const CCurve2d &curve)
{
    const auto *arc = curve.Type() == CCurve2d::kArc ? static_cast<const CArc2d *>(&curve) : nullptr;
    return arc && !arc->IsFlat() ? arc : nullptr;
}

CRefPtr<CCurve2d> fullCircle(const CArc2d &arc)
{
    const double start = arc.StartAngle();
    return new CArc2d(arc.CenterPt(), arc.Radius(), start, start + std::copysign(kTwoPi, arc.SweepAngle()));
}

/** The curve between welded ends; null when nothing is left of it. */
CRefPtr<CCurve2d> between(const CCurve2d &curve, const Point &start, const Point &end, double tolerance)
{
    const CArc2d *arc = roundArc(curve);
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

Curves weldedCurves(const CLoop &loop, RingWeld &weld, double tolerance)
{
    const auto &curves = loop.Curves();
    Curves result;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const Point start = weld.weld(curves[i]->StartPoint());
        const Point end = weld.weld(curves[i]->EndPoint());
        if (CRefPtr<CCurve2d> curve = between(*curves[i], start, end, tolerance))
            result.push_back(curve);
        const Point next = weld.weld(curves[(i + 1) % curves.size()]->StartPoint());
        if (next != end)
            result.push_back(new CLine2d(end, next));
    }
    return result;
}

/** Cuts a closed way into ways that visit each of their vertices once. */
std::vector<Curves> cutAtRepeatedVertices(const Curves &curves)
{
    std::vector<Curves> parts;
    Curves open;
    for (const CRefPtr<CCurve2d> &curve : curves) {
        open.push_back(curve);
        const Point end = curve->EndPoint();
        const auto first = std::find_if(open.begin(), open.end(), [&end](const CRefPtr<CCurve2d> &earlier) {
            return earlier->StartPoint().DistanceTo(end) <= g_DefaultDistEpsilon;
        });
        if (first == open.end())
            continue;
        parts.emplace_back(first, open.end());
        open.erase(first, open.end());
    }
    if (!open.empty())
        parts.push_back(open);
    return parts;
}

/** Neighbouring curves that are to become one. */
class Run
{
public:
    Run(const CRefPtr<CCurve2d> &first, const CleaningTolerance &tolerance) : m_curves{first}, m_tolerance(tolerance) {}

    bool takes(const CCurve2d &next) const
    {
        const CCurve2d &last = *m_curves.back();
        const Point in = last.EndVt();
        const Point out = next.StartVt();
        if (std::fabs(std::atan2(in.Cross(out), in.Dot(out))) > m_tolerance.angle)
            return false;
        const CArc2d *arc = roundArc(last);
        const CArc2d *nextArc = roundArc(next);
        return arc && nextArc ? staysOnCircle(*arc, *nextArc) : !arc && !nextArc && staysOnLine(next);
    }
    void take(const CRefPtr<CCurve2d> &next) { m_curves.push_back(next); }

    CRefPtr<CCurve2d> joined() const
    {
        if (m_curves.size() == 1)
            return m_curves.front();
        const Point start = m_curves.front()->StartPoint();
        const Point end = m_curves.back()->EndPoint();
        const CArc2d *arc = roundArc(*m_curves.front());
        if (!arc)
            return new CLine2d(start, end);
        if (start.DistanceTo(end) <= g_DefaultDistEpsilon)
            return fullCircle(*arc);
        return new CArc2d(start, middle(), end);
    }

private:
    bool staysOnCircle(const CArc2d &arc, const CArc2d &next) const
    {
        double sweep = std::fabs(next.SweepAngle());
        for (const CRefPtr<CCurve2d> &curve : m_curves)
            sweep += std::fabs(roundArc(*curve)->SweepAngle());
        return arc.SweepAngle() * next.SweepAngle() > 0.0 && sweep <= kTwoPi + m_tolerance.angle &&
               arc.CenterPt().DistanceTo(next.CenterPt()) <= m_tolerance.distance &&
               std::fabs(arc.Radius() - next.Radius()) <= m_tolerance.distance;
    }
    /** Many slight turns must not add up: every vertex stays near the line. */
    bool staysOnLine(const CCurve2d &next) const
    {
        const CLine2d line(m_curves.front()->StartPoint(), next.EndPoint());
        return std::all_of(m_curves.begin(), m_curves.end(), [&](const CRefPtr<CCurve2d> &curve) {
            return line.DistanceTo(curve->EndPoint()) <= m_tolerance.distance;
        });
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
    for (const Curves &part : cutAtRepeatedVertices(weldedCurves(loop, weld, tolerance.distance))) {
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
