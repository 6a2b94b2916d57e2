#include "platform/geometry/EdgeCrossings.h"

#include "platform/geometry/CPositionJudge.h"
#include "platform/geometry/CurveRelation.h"

#include <algorithm>
#include <utility>

namespace vks {

namespace {

constexpr double kShortestPiece = 4.0; // in tolerances; shorter pieces lie within the tolerance of a meeting
constexpr double kClearAngle = 4.0;    // in tolerances that the shorter of two lines leads away from the other one

struct Edge
{
    const CCurve2d *curve;
    CBox2<double> box;
    std::size_t loop;
    int place;    // among the edges of the loop that are long enough
    int count;    // of such edges
    double reach; // mm from the edge's end to the next one's start, at most
};

using Loops = std::vector<CRefPtr<CLoop>>;
using LoopPair = std::pair<std::size_t, std::size_t>;

/** Appends the edges of a loop that are longer than the tolerance. */
void appendEdges(std::vector<Edge> &edges, const CLoop &loop, std::size_t number, double tolerance)
{
    const std::size_t first = edges.size();
    double skippedAtStart = 0.0;
    for (const auto &curve : loop.Curves()) {
        if (curve->Length() > tolerance)
            edges.push_back(
                {curve.get(), curve->Box(), number, static_cast<int>(edges.size() - first), 0, 2 * tolerance});
        else if (edges.size() > first)
            edges.back().reach += curve->Length() + tolerance;
        else
            skippedAtStart += curve->Length() + tolerance;
    }
    for (std::size_t i = first; i < edges.size(); ++i)
        edges[i].count = static_cast<int>(edges.size() - first);
    if (edges.size() > first)
        edges.back().reach += skippedAtStart;
}

/** Calls a function for each two edges whose boxes touch, until it answers true; says whether it did. */
template <typename Function> bool anyTouchingBoxes(std::vector<Edge> &edges, double tolerance, Function found)
{
    // A sweep along the axis in which the edges cover less.
    CVec2<double> covered;
    for (const Edge &edge : edges)
        covered += edge.box.maxPt - edge.box.minPt;
    const auto axis = covered.x <= covered.y ? &CVec2<double>::x : &CVec2<double>::y;
    std::sort(edges.begin(), edges.end(),
              [axis](const Edge &a, const Edge &b) { return a.box.minPt.*axis < b.box.minPt.*axis; });
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const double last = edges[i].box.maxPt.*axis + tolerance;
        for (std::size_t j = i + 1; j < edges.size() && edges[j].box.minPt.*axis <= last; ++j)
            if (edges[i].box.Touches(edges[j].box, tolerance) && found(edges[i], edges[j]))
                return true;
    }
    return false;
}

std::vector<Edge> edgesOf(const Loops &loops, double tolerance)
{
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < loops.size(); ++i)
        appendEdges(edges, *loops[i], i, tolerance);
    return edges;
}

bool follows(const Edge &before, const Edge &after)
{
    return before.loop == after.loop && (before.place + 1) % before.count == after.place;
}

/** Neighbours in a loop have their corner in common, and the two edges of a loop of two both corners. */
bool isCommonCorner(const CVec2<double> &point, const Edge &a, const Edge &b)
{
    return (follows(a, b) && point.DistanceTo(a.curve->EndPoint()) <= a.reach) ||
           (follows(b, a) && point.DistanceTo(b.curve->EndPoint()) <= b.reach);
}

bool comeNear(const Edge &a, const Edge &b, double tolerance)
{
    CVec2<double> onA;
    CVec2<double> onB;
    return GeometryDistance(a.curve, b.curve, onA, onB, 0.0) <= tolerance;
}

/** Lines at an angle have one point in common at most. */
bool areLinesAtAnAngle(const Edge &a, const Edge &b, double tolerance)
{
    if (a.curve->Type() != CCurve2d::kLine || b.curve->Type() != CCurve2d::kLine)
        return false;
    const double sine = std::fabs(a.curve->StartVt().Cross(b.curve->StartVt()));
    return sine * std::min(a.curve->Length(), b.curve->Length()) > kClearAngle * tolerance;
}

/** A shared stretch reaches from an end of one of two open curves to another end: false when fewer of their ends, but
 *  for one common corner, lie near the other curve. */
bool mayShareStretch(const CCurve2d &a, const CCurve2d &b, double tolerance)
{
    if (a.IsClosed() || b.IsClosed())
        return true;
    CBox2<double> near;
    const auto gather = [&near, tolerance](const CCurve2d &curve, const CCurve2d &other) {
        for (const CVec2<double> &end : {curve.StartPoint(), curve.EndPoint()})
            if (other.DistanceTo(end) <= 2 * tolerance)
                near.Add(end);
    };
    gather(a, b);
    gather(b, a);
    return near.IsValid() && near.Width() + near.Height() > tolerance / 2;
}

bool shareStretch(const Edge &a, const Edge &b, double tolerance)
{
    if (areLinesAtAnAngle(a, b, tolerance) || !mayShareStretch(*a.curve, *b.curve, tolerance))
        return false;
    CPositionJudge judge;
    judge.SetDistEpsilon(tolerance);
    return judge.GetCurveCurvePosition(a.curve, b.curve) == kCurvesOverlap;
}

/** Whether two edges of one loop that follow each other meet elsewhere than in their common corner. */
bool neighboursMeetWrongly(const Edge &a, const Edge &b, double tolerance)
{
    if (areLinesAtAnAngle(a, b, tolerance))
        return false;
    const auto points = CurveIntersections(*a.curve, *b.curve, false, tolerance);
    return shareStretch(a, b, tolerance) || std::any_of(points.begin(), points.end(), [&](const CVec2<double> &point) {
               return !isCommonCorner(point, a, b);
           });
}

/** Middles of the pieces into which another loop cuts a curve. */
std::vector<CVec2<double>> middlesOfPieces(const CCurve2d &curve, const CLoop &other, double tolerance)
{
    std::vector<double> cuts{curve.StartT(), curve.EndT()};
    const CBox2<double> box = curve.Box();
    for (const auto &edge : other.Curves())
        if (edge->Box().Intersects(box, tolerance))
            for (const CVec2<double> &point : CurveIntersections(curve, *edge, false, tolerance))
                cuts.push_back(curve.NearestT(point));
    std::sort(cuts.begin(), cuts.end());
    std::vector<CVec2<double>> middles;
    for (std::size_t i = 1; i < cuts.size(); ++i)
        if (cuts[i] - cuts[i - 1] > kShortestPiece * tolerance)
            middles.push_back(curve.GetPoint((cuts[i - 1] + cuts[i]) / 2));
    return middles;
}

/** True when parts of a loop that meets another one lie on both sides of that one. */
bool passesThrough(const CLoop &loop, const CLoop &other, double tolerance)
{
    bool inside = false;
    bool outside = false;
    for (const auto &curve : loop.Curves())
        for (const CVec2<double> &point : middlesOfPieces(*curve, other, tolerance)) {
            const int place = other.Locate(point, tolerance);
            inside = inside || place > 0;
            outside = outside || place < 0;
        }
    return inside && outside;
}

bool anyPassesThrough(const Loops &loops, std::vector<LoopPair> &meetings, double tolerance)
{
    std::sort(meetings.begin(), meetings.end());
    meetings.erase(std::unique(meetings.begin(), meetings.end()), meetings.end());
    return std::any_of(meetings.begin(), meetings.end(), [&](const LoopPair &pair) {
        return passesThrough(*loops[pair.first], *loops[pair.second], tolerance);
    });
}

} // namespace

bool edgesCross(const Loops &loops, double tolerance)
{
    std::vector<Edge> edges = edgesOf(loops, tolerance);
    std::vector<LoopPair> meetings;
    const auto crosses = [&](const Edge &a, const Edge &b) {
        if (follows(a, b) || follows(b, a))
            return neighboursMeetWrongly(a, b, tolerance);
        if (!comeNear(a, b, tolerance))
            return false;
        if (a.loop != b.loop)
            meetings.emplace_back(std::minmax(a.loop, b.loop));
        return a.loop == b.loop || shareStretch(a, b, tolerance);
    };
    return anyTouchingBoxes(edges, tolerance, crosses) || anyPassesThrough(loops, meetings, tolerance);
}

bool loopsCross(const Loops &loops, double tolerance)
{
    if (loops.size() < 2)
        return false;
    std::vector<Edge> edges = edgesOf(loops, tolerance);
    std::vector<LoopPair> meetings;
    anyTouchingBoxes(edges, tolerance, [&](const Edge &a, const Edge &b) {
        if (a.loop != b.loop && comeNear(a, b, tolerance))
            meetings.emplace_back(std::minmax(a.loop, b.loop));
        return false;
    });
    return anyPassesThrough(loops, meetings, tolerance);
}

} // namespace vks
