#include "platform/geometry/OverlayArea.h"

#include "platform/geometry/RingCrossing.h"

#include <algorithm>
#include <functional>
#include <geos_c.h>

namespace vks {

namespace {

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

std::vector<Ring> withoutDegenerate(const std::vector<Ring> &rings)
{
    std::vector<Ring> result;
    result.reserve(rings.size());
    for (Ring ring : rings) {
        dropRepeats(ring, std::equal_to<>());
        if (ring.size() > 2)
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
        m_depths.reserve(rings.size());
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

} // namespace vks
