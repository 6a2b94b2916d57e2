#include "platform/geometry/EdgeCrossings.h"

#include "platform/geometry/CPositionJudge.h"
#include "platform/geometry/CurveRelation.h"

#include <algorithm>

namespace vks {

namespace {

constexpr double kShortestPiece = 4.0; // in tolerances; shorter pieces lie within the tolerance of a meeting

struct Edge
{
    const CCurve2d *curve;
    CBox2<double> box;
    std::size_t loop;
    int place;
    int count; ///< edges of the loop
};

/** Edges of a loop that have a length, counted as if the others were not there. */
void appendEdges(const CLoop &loop, std::size_t loopIndex, double tolerance, std::vector<Edge> &edges)
{
    const std::size_t first = edges.size();
    for (const auto &curve : loop.Curves())
        if (curve->Length() > tolerance)
            edges.push_back({curve.get(), curve->Box(), loopIndex, static_cast<int>(edges.size() - first), 0});
    for (std::size_t i = first; i < edges.size(); ++i)
        edges[i].count = static_cast<int>(edges.size() - first);
}

std::vector<Edge> edgesByX(const std::vector<CRefPtr<CLoop>> &loops, double tolerance)
{
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < loops.size(); ++i)
        appendEdges(*loops[i], i, tolerance, edges);
    std::sort(edges.begin(), edges.end(), [](const Edge &a, const Edge &b) { return a.box.minPt.x < b.box.minPt.x; });
    return edges;
}

bool follows(const Edge &before, const Edge &after)
{
    return (before.place + 1) % before.count == after.place;
}

/** Neighbours in a loop have their corner in common, and the two edges of a loop of two both corners. */
bool isCommonCorner(const CVec2<double> &point, const Edge &a, const Edge &b, double tolerance)
{
    const double near = 2 * tolerance; // both edges end at the corner only within the tolerance
    return (follows(a, b) && point.DistanceTo(a.curve->EndPoint()) <= near) ||
           (follows(b, a) && point.DistanceTo(b.curve->EndPoint()) <= near);
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

/** Whether two edges of one loop meet elsewhere than in a common corner. */
bool meetWrongly(const Edge &a, const Edge &b, double tolerance)
{
    const auto points = CurveIntersections(*a.curve, *b.curve, false, tolerance);
    return std::any_of(points.begin(), points.end(),
                       [&](const CVec2<double> &point) { return !isCommonCorner(point, a, b, tolerance); });
}

bool shareStretch(const Edge &a, const Edge &b, double tolerance)
{
    CPositionJudge judge;
    judge.SetDistEpsilon(tolerance);
    return judge.GetCurveCurvePosition(a.curve, b.curve) == kCurvesOverlap;
}

bool touch(const Edge &a, const Edge &b, double tolerance)
{
    return !CurveIntersections(*a.curve, *b.curve, false, tolerance).empty();
}

} // namespace

bool edgesCross(const std::vector<CRefPtr<CLoop>> &loops, double tolerance)
{
    const std::vector<Edge> edges = edgesByX(loops, tolerance);
    std::vector<std::pair<std::size_t, std::size_t>> meetings; // loops that meet in points
    for (std::size_t i = 0; i < edges.size(); ++i)
        for (std::size_t j = i + 1; j < edges.size() && edges[j].box.minPt.x <= edges[i].box.maxPt.x + tolerance; ++j) {
            const Edge &a = edges[i];
            const Edge &b = edges[j];
            if (!a.box.Touches(b.box, tolerance))
                continue;
            if (shareStretch(a, b, tolerance) || (a.loop == b.loop && meetWrongly(a, b, tolerance)))
                return true;
            if (a.loop != b.loop && touch(a, b, tolerance))
                meetings.emplace_back(std::minmax(a.loop, b.loop));
        }
    std::sort(meetings.begin(), meetings.end());
    meetings.erase(std::unique(meetings.begin(), meetings.end()), meetings.end());
    return std::any_of(meetings.begin(), meetings.end(), [&](const auto &pair) {
        return passesThrough(*loops[pair.first], *loops[pair.second], tolerance);
    });
}

} // namespace vks
