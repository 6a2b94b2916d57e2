#include "platform/geometry/OverlayArea.h"

#include "platform/geometry/CLine2d.h"
#include "platform/geometry/RingCrossing.h"

#include <algorithm>
#include <geos_c.h>

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
        sum += std::sqrt((ring[(i + 1) % ring.size()] - ring[i]).SqrLength());
    return sum;
}

bool isSliver(const Ring &ring, double width)
{
    return std::fabs(twiceSignedArea(ring)) < 2 * width * perimeterOf(ring);
}

/** Whether a point lies in a ring; of points on the ring it says either. */
bool holds(const Ring &ring, const CVec2<double> &point)
{
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CVec2<double> &a = ring[i];
        const CVec2<double> &b = ring[(i + 1) % ring.size()];
        if ((a.y > point.y) != (b.y > point.y) && (b - a).Cross(point - a) * (b.y - a.y) > 0.0)
            inside = !inside;
    }
    return inside;
}

bool isDegenerate(const Ring &ring) { return ring.size() < 3; }

std::vector<Ring> withoutDegenerate(const std::vector<Ring> &rings)
{
    std::vector<Ring> result;
    for (Ring ring : rings) {
        ring.erase(std::unique(ring.begin(), ring.end()), ring.end());
        while (ring.size() > 1 && ring.front() == ring.back())
            ring.pop_back();
        if (!isDegenerate(ring))
            result.push_back(std::move(ring));
    }
    return result;
}

/** What is no polygon left out, since overlay refuses a mixture. */
geos::Geometry polygonalParts(const geos::Geometry &geometry)
{
    std::vector<geos::Geometry> parts;
    for (const GEOSGeometry *polygon : geos::polygonsIn(geometry.get()))
        parts.emplace_back(GEOSGeom_clone_r(geos::context(), polygon));
    return geos::multiPolygonOf(std::move(parts));
}

/** The even-odd sum of rings that cross: each ring on its own made valid, then what an odd number of them covers. */
geos::Geometry takenApart(const std::vector<Ring> &rings)
{
    geos::Geometry sum = geos::multiPolygonOf({});
    for (const Ring &ring : rings) {
        const geos::Geometry raw = geos::polygonOf(ring, {});
        const geos::Geometry valid(raw ? GEOSMakeValid_r(geos::context(), raw.get()) : nullptr);
        geos::Geometry area = polygonalParts(valid);
        sum.reset(sum && area ? GEOSSymDifference_r(geos::context(), sum.get(), area.get()) : nullptr);
    }
    return sum;
}

/** Nesting of rings that lie clear of each other. */
class Nesting
{
public:
    explicit Nesting(const std::vector<Ring> &rings) : m_rings(rings)
    {
        for (const Ring &ring : rings)
            m_depths.push_back(std::count_if(rings.begin(), rings.end(), [&ring](const Ring &other) {
                return &other != &ring && holds(other, ring.front());
            }));
    }
    bool isShell(std::size_t i) const { return m_depths[i] % 2 == 0; }
    std::vector<const Ring *> holesOf(std::size_t shell) const
    {
        std::vector<const Ring *> holes;
        for (std::size_t i = 0; i < m_rings.size(); ++i)
            if (m_depths[i] == m_depths[shell] + 1 && holds(m_rings[shell], m_rings[i].front()))
                holes.push_back(&m_rings[i]);
        return holes;
    }

private:
    const std::vector<Ring> &m_rings;
    std::vector<std::ptrdiff_t> m_depths; // number of rings around
};

/** Corners of a result nearer to the one before are that one: GEOS places crossings beside the grid, mm. */
constexpr double kLeastEdge = kOverlayGrid / 2;

Ring withoutShortEdges(Ring ring)
{
    const auto near = [](const CVec2<double> &a, const CVec2<double> &b) {
        return (b - a).SqrLength() < kLeastEdge * kLeastEdge;
    };
    ring.erase(std::unique(ring.begin(), ring.end(), near), ring.end());
    while (ring.size() > 1 && near(ring.front(), ring.back()))
        ring.pop_back();
    return ring;
}

/** Leaves out corners on the straight way between their neighbours. */
Ring withoutFlatCorners(const Ring &ring)
{
    Ring result;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CVec2<double> &before = result.empty() ? ring.back() : result.back();
        const CVec2<double> way = ring[(i + 1) % ring.size()] - before;
        const CVec2<double> step = ring[i] - before;
        const bool flat = std::fabs(way.Cross(step)) <= g_DefaultDistEpsilon * std::sqrt(way.SqrLength()) &&
                          way.Dot(step) > 0.0 && way.Dot(step) < way.SqrLength();
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
        loop->AddCurve(new CLine2d(ring[i], ring[(i + 1) % ring.size()]), false);
    return loop;
}

} // namespace

geos::Geometry areaOf(const std::vector<Ring> &rings)
{
    const std::vector<Ring> sound = withoutDegenerate(rings);
    if (ringsCross(sound))
        return takenApart(sound);
    const Nesting nesting(sound);
    std::vector<geos::Geometry> parts;
    for (std::size_t i = 0; i < sound.size(); ++i)
        if (nesting.isShell(i))
            parts.push_back(geos::polygonOf(sound[i], nesting.holesOf(i)));
    if (parts.size() == 1)
        return std::move(parts.front());
    return geos::multiPolygonOf(std::move(parts));
}

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
