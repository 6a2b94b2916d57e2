#include "platform/geometry/CBooleanOperate2D.h"

#include "platform/geometry/ArcChords.h"
#include "platform/geometry/OverlayArea.h"
#include "platform/geometry/OverlayResult.h"
#include "platform/geometry/RingNoding.h"
#include "platform/geometry/RingWeld.h"

#include <algorithm>
#include <geos_c.h>

namespace vks {

namespace {

/** Vertices nearer to each other are welded before overlay, mm. */
constexpr double kWeldTolerance = 1e-3;
/** A part or hole with an area below this times its perimeter is a sliver, mm. */
constexpr double kSliverWidth = 0.01;
/** Grids of the precision road, mm: the coarser one when GEOS fails on the finer one. */
constexpr double kGrids[] = {kOverlayGrid, 10 * kOverlayGrid};

/** What lies farther from the origin is no drawing, and would keep GEOS busy for ever, mm. */
constexpr double kFarthest = 1e12;

/** A polygon with its box, which takes a while to find. */
struct Operand
{
    const CPolygon *polygon;
    CBox2<double> box;

    explicit Operand(const CPolygon *source) : polygon(source), box(source ? source->Box() : CBox2<double>()) {}

    bool counts() const
    {
        constexpr CBox2<double> range({-kFarthest, -kFarthest}, {kFarthest, kFarthest});
        return box.IsValid() && range.Contains(box.minPt) && range.Contains(box.maxPt);
    }
    bool meets(const Operand &other) const { return box.Intersects(other.box); }
};

using Operands = std::vector<Operand>;
using Rings = std::vector<Ring>;

enum class Operation { Unite, Subtract, Intersect };

Ring ringOf(const CLoop &loop, const CVec2<double> &origin, const ArcChords &chords)
{
    Ring ring;
    const auto &curves = loop.Curves();
    ring.reserve(curves.size());
    CVec2<double> start = curves.empty() ? CVec2<double>() : curves.front()->StartPoint();
    for (std::size_t i = 0; i < curves.size(); ++i) {
        chords.appendCorners(*curves[i], start, ring);
        start = curves[i + 1 < curves.size() ? i + 1 : 0]->StartPoint();
        // A loop with a gap keeps both of its sides; welding makes one point of them where they agree.
        if (const CVec2<double> end = curves[i]->EndPoint(); end != start)
            ring.push_back(end - origin);
    }
    return ring;
}

Rings ringsOf(const CPolygon &polygon, const CVec2<double> &origin, const ArcChords &chords)
{
    Rings rings;
    rings.reserve(polygon.Loops().size());
    for (const auto &loop : polygon.Loops())
        rings.push_back(ringOf(*loop, origin, chords));
    return rings;
}

bool areFinite(const Rings &rings)
{
    return std::all_of(rings.begin(), rings.end(), [](const Ring &ring) {
        return std::all_of(ring.begin(), ring.end(), [](const CVec2<double> &corner) { return corner.IsFinite(); });
    });
}

/** One overlay: its polygons as rings about a common origin, far places being as good as near ones. */
class Overlay
{
public:
    Overlay(Operation operation, const Operands &operands);
    CRefPtr<CPolygon> run() const;

private:
    std::vector<Rings> welded() const;
    geos::Geometry overlay(const std::vector<Rings> &polygons, double grid) const;
    geos::Geometry combine(const GEOSGeometry *a, const GEOSGeometry *b, double grid) const;
    OverlayResult onGrid() const;

    Operation m_operation;
    CVec2<double> m_origin;
    bool m_hasArcs = false;
    std::size_t m_cornerCount = 0;
    std::vector<Rings> m_polygons;
};

Overlay::Overlay(Operation operation, const Operands &operands) : m_operation(operation)
{
    CBox2<double> box;
    for (const Operand &operand : operands)
        box.Add(operand.box);
    const CVec2<double> centre = box.minPt + (box.maxPt - box.minPt) / 2;
    m_origin = {std::nearbyint(centre.x), std::nearbyint(centre.y)}; // whole, so that the grid stays where it is
    ArcChords chords(m_origin);
    for (const Operand &operand : operands)
        for (const auto &loop : operand.polygon->Loops())
            for (const auto &curve : loop->Curves())
                if (curve->Type() == CCurve2d::kArc)
                    chords.learn(*curve);
    m_hasArcs = chords.hasArcs();
    m_polygons.reserve(operands.size());
    for (const Operand &operand : operands) {
        m_polygons.push_back(ringsOf(*operand.polygon, m_origin, chords));
        if (!areFinite(m_polygons.back()))
            m_polygons.back().clear();
        for (const Ring &ring : m_polygons.back())
            m_cornerCount += ring.size();
    }
}

std::vector<Rings> Overlay::welded() const
{
    RingWeld weld(m_cornerCount, kWeldTolerance, kOverlayGrid);
    std::vector<Rings> polygons = m_polygons;
    for (Rings &rings : polygons)
        for (Ring &ring : rings)
            std::transform(ring.begin(), ring.end(), ring.begin(),
                           [&weld](const CVec2<double> &point) { return weld.weld(point); });
    // Rounded corners leave the edges that they stood on: without this, gaps as thin as the grid would stay open.
    nodeRings(polygons, kWeldTolerance);
    return polygons;
}

geos::Geometry Overlay::combine(const GEOSGeometry *a, const GEOSGeometry *b, double grid) const
{
    using Floating = GEOSGeometry *(*)(GEOSContextHandle_t, const GEOSGeometry *, const GEOSGeometry *);
    using Precise = GEOSGeometry *(*)(GEOSContextHandle_t, const GEOSGeometry *, const GEOSGeometry *, double);
    static constexpr Floating floating[] = {GEOSUnion_r, GEOSDifference_r, GEOSIntersection_r};
    static constexpr Precise precise[] = {GEOSUnionPrec_r, GEOSDifferencePrec_r, GEOSIntersectionPrec_r};
    const auto row = static_cast<std::size_t>(m_operation);
    return geos::Geometry(grid > 0.0 ? precise[row](geos::context(), a, b, grid)
                                     : floating[row](geos::context(), a, b));
}

/** Null when GEOS fails; also when an operand could not be made, so that the next road is tried. */
geos::Geometry Overlay::overlay(const std::vector<Rings> &polygons, double grid) const
{
    std::vector<geos::Geometry> areas;
    areas.reserve(polygons.size());
    for (const Rings &rings : polygons) {
        areas.push_back(areaOf(rings));
        if (!areas.back())
            return nullptr;
    }
    if (areas.size() == 2)
        return combine(areas[0].get(), areas[1].get(), grid);
    const geos::Geometry all = geos::collectionOf(std::move(areas));
    return geos::Geometry(grid > 0.0 ? GEOSUnaryUnionPrec_r(geos::context(), all.get(), grid)
                                     : GEOSUnaryUnion_r(geos::context(), all.get()));
}

OverlayResult Overlay::onGrid() const
{
    geos::Geometry result;
    for (const double grid : kGrids)
        if (!result)
            result = overlay(m_polygons, grid);
    OverlayResult polygons(result.get());
    // What is thinner than the corners are exact is no part of the result: half the width of it is area / perimeter.
    polygons.dropSlivers((m_hasArcs ? kChordSagitta : kOverlayGrid) / 2);
    return polygons;
}

CRefPtr<CPolygon> Overlay::run() const
{
    const geos::Geometry result = overlay(welded(), 0.0);
    const OverlayResult polygons(result.get());
    if (result && !polygons.hasSliver(kSliverWidth))
        return polygons.polygon(m_origin);
    return onGrid().polygon(m_origin);
}

CRefPtr<CPolygon> overlaid(Operation operation, const Operands &operands)
{
    return operands.empty() ? nullptr : Overlay(operation, operands).run();
}

} // namespace

CRefPtr<CPolygon> CBooleanOperate2D::MultUnite(const std::vector<CPolygon *> &polygons)
{
    Operands operands(polygons.begin(), polygons.end());
    operands.erase(std::remove_if(operands.begin(), operands.end(), [](const Operand &each) { return !each.counts(); }),
                   operands.end());
    return overlaid(Operation::Unite, operands);
}

CRefPtr<CPolygon> CBooleanOperate2D::Subtract(const CPolygon *a, const CPolygon *b)
{
    const Operand from(a);
    const Operand taken(b);
    if (!from.counts())
        return nullptr;
    if (!taken.counts() || !from.meets(taken))
        return overlaid(Operation::Unite, {from});
    return overlaid(Operation::Subtract, {from, taken});
}

CRefPtr<CPolygon> CBooleanOperate2D::Intersect(const CPolygon *a, const CPolygon *b)
{
    const Operand first(a);
    const Operand second(b);
    if (!first.counts() || !second.counts() || !first.meets(second))
        return nullptr;
    return overlaid(Operation::Intersect, {first, second});
}

} // namespace vks
