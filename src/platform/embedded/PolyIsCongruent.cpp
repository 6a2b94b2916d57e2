#include "platform/services/PolyIsCongruent.h"

#include "platform/geometry/PolygonRelation.h"
#include "platform/services/NormalAngle.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using Polygon = vks::CRefPtr<vks::CPolygon>;
using Curve = vks::CRefPtr<vks::CCurve2d>;

constexpr double kSameOutline = 1.0; // mm
constexpr double kSameAngle = 1e-6;  // rad: less than that to a full turn is none

/** The outer loop, counter-clockwise. */
std::vector<Curve> outerEdges(const vks::CPolygon &polygon)
{
    const vks::CRefPtr<vks::CLoop> outer = polygon.GetLoop(0)->Clone();
    if (outer->SignedArea() < 0.0)
        outer->Reverse();
    return outer->Curves();
}

bool areEqualEdges(const vks::CCurve2d &a, const vks::CCurve2d &b)
{
    return a.Type() == b.Type() && std::fabs(a.Length() - b.Length()) <= 2 * kSameOutline;
}

/** Whether the edges of the pattern are those of the polygon from one on. */
bool followFrom(std::size_t first, const std::vector<Curve> &pattern, const std::vector<Curve> &edges)
{
    for (std::size_t i = 0; i < pattern.size(); ++i)
        if (!areEqualEdges(*pattern[i], *edges[(first + i) % edges.size()]))
            return false;
    return true;
}

double directionOf(const vks::CCurve2d &edge) { return std::atan2(edge.StartVt().y, edge.StartVt().x); }

/** Turns that may carry the pattern onto the polygon, ascending. */
std::vector<double> possibleTurns(const std::vector<Curve> &pattern, const std::vector<Curve> &edges)
{
    std::vector<double> turns;
    for (std::size_t first = 0; first < edges.size(); ++first) {
        if (!followFrom(first, pattern, edges))
            continue;
        const double turn = directionOf(*edges[first]) - directionOf(*pattern.front());
        turns.push_back(normalAngle2PI_max2PI(turn, kSameAngle));
    }
    std::sort(turns.begin(), turns.end());
    return turns;
}

bool coversTurned(const vks::CPolygon &pattern, const vks::CPolygon &polygon, double turn)
{
    const Polygon turned = pattern.Clone();
    turned->Rotate({}, turn);
    turned->Translate(polygon.Barycentre() - turned->Barycentre());
    return vks::PolygonPolygonPosition(turned, &polygon, kSameOutline) == vks::kPolygonsSame;
}

bool canBeCompared(const vks::CPolygon *pattern, const vks::CPolygon *polygon)
{
    return pattern && polygon && pattern->LoopCount() > 0 && pattern->LoopCount() == polygon->LoopCount() &&
           pattern->GetLoop(0)->CurveCount() > 0 &&
           pattern->GetLoop(0)->CurveCount() == polygon->GetLoop(0)->CurveCount();
}

} // namespace

bool orvcadcommon::PolyIsCongruent(const vks::CPolygon *pattern, const vks::CPolygon *polygon, double &angle)
{
    if (!canBeCompared(pattern, polygon))
        return false;
    const auto turns = possibleTurns(outerEdges(*pattern), outerEdges(*polygon));
    const auto fits = [&](double turn) { return coversTurned(*pattern, *polygon, turn); };
    const auto found = std::find_if(turns.begin(), turns.end(), fits);
    if (found == turns.end())
        return false;
    angle = *found;
    return true;
}
