#include "platform/geometry/OverlayResult.h"

#include "platform/geometry/CLine2d.h"
#include "platform/geometry/OverlayArea.h"

#include <algorithm>

namespace vks {

namespace {

double twiceSignedArea(const Ring &ring)
{
    double sum = 0.0;
    for (std::size_t i = 2; i < ring.size(); ++i)
        sum += (ring[i - 1] - ring[0]).Cross(ring[i] - ring[0]);
    return sum;
}

double perimeterOf(const Ring &ring)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i)
        sum += ring[i].DistanceTo(ring[i + 1 < ring.size() ? i + 1 : 0]);
    return sum;
}

bool isSliver(const Ring &ring, double width)
{
    return std::fabs(twiceSignedArea(ring)) < 2 * width * perimeterOf(ring);
}

bool isDegenerate(const Ring &ring) { return ring.size() < 3; }

/** Corners of a result nearer to the one before are that one: GEOS places crossings beside the grid, mm. */
constexpr double kLeastEdge = kOverlayGrid / 2;

Ring withoutShortEdges(Ring ring)
{
    dropRepeats(ring, [](const CVec2<double> &a, const CVec2<double> &b) {
        return (b - a).SqrLength() < kLeastEdge * kLeastEdge;
    });
    return ring;
}

/** Leaves out corners on the straight way between their neighbours. */
Ring withoutFlatCorners(const Ring &ring)
{
    Ring result;
    result.reserve(ring.size());
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CVec2<double> &before = result.empty() ? ring.back() : result.back();
        const CVec2<double> way = ring[i + 1 < ring.size() ? i + 1 : 0] - before;
        const CVec2<double> step = ring[i] - before;
        const bool flat = std::fabs(way.Cross(step)) <= g_DefaultDistEpsilon * way.Length() && way.Dot(step) > 0.0 &&
                          way.Dot(step) < way.SqrLength();
        if (!flat)
            result.push_back(ring[i]);
    }
    return result;
}

CLoop *loopOf(Ring ring, const CVec2<double> &origin, bool counterClockwise)
{
    ring = withoutFlatCorners(ring);
    if ((twiceSignedArea(ring) > 0.0) != counterClockwise)
        std::reverse(ring.begin(), ring.end());
    for (CVec2<double> &point : ring)
        point += origin;
    auto *loop = new CLoop;
    for (std::size_t i = 0; i < ring.size(); ++i)
        loop->AddCurve(new CLine2d(ring[i], ring[i + 1 < ring.size() ? i + 1 : 0]), false);
    return loop;
}

} // namespace

OverlayResult::OverlayResult(const GEOSGeom_t *geometry)
{
    for (const GEOSGeom_t *polygon : geos::polygonsIn(geometry)) {
        std::vector<Ring> rings = geos::ringsOf(polygon);
        std::transform(rings.begin(), rings.end(), rings.begin(), withoutShortEdges);
        rings.erase(std::remove_if(rings.begin() + 1, rings.end(), isDegenerate), rings.end());
        if (!isDegenerate(rings.front()))
            m_parts.push_back(std::move(rings));
    }
}

bool OverlayResult::hasSliver(double width) const
{
    for (const std::vector<Ring> &part : m_parts)
        if (std::any_of(part.begin(), part.end(), [width](const Ring &ring) { return isSliver(ring, width); }))
            return true;
    return false;
}

void OverlayResult::dropSlivers(double width)
{
    const auto sliver = [width](const Ring &ring) { return isSliver(ring, width); };
    m_parts.erase(std::remove_if(m_parts.begin(), m_parts.end(),
                                 [&sliver](const std::vector<Ring> &part) { return sliver(part.front()); }),
                  m_parts.end());
    for (std::vector<Ring> &part : m_parts)
        part.erase(std::remove_if(part.begin() + 1, part.end(), sliver), part.end());
}

CRefPtr<CPolygon> OverlayResult::polygon(const CVec2<double> &origin) const
{
    if (m_parts.empty())
        return nullptr;
    CRefPtr<CPolygon> polygon(new CPolygon);
    for (const std::vector<Ring> &part : m_parts)
        for (const Ring &ring : part)
            polygon->AddLoop(loopOf(ring, origin, &ring == &part.front()), true);
    return polygon;
}

} // namespace vks
