// Overlay against the same by GEOS alone, floating: corners in, corners out, no welding, no rounding, no judging of the
// result; and relations of polygons against that of two whose boxes lie apart.

#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/GeosContext.h"
#include "platform/geometry/PolygonRelation.h"
#include "support/RatioBench.h"

#include <geos_c.h>

namespace {

namespace geos = vks::geos;
using Point = vks::CVec2<double>;
using PolygonPtr = vks::CRefPtr<vks::CPolygon>;

constexpr double kOverlayCeiling = 1.3; // of GEOS alone

/** A cogged wheel: every second corner lies farther out. */
vks::Ring wheel(const Point &centre, int corners)
{
    vks::Ring ring;
    for (int i = 0; i < corners; ++i)
        ring.push_back(centre + Point(i % 2 ? 1000.0 : 900.0, 0).Rotated(6.28318530717958648 * i / corners + 0.1));
    return ring;
}

PolygonPtr polygonOf(const vks::Ring &ring)
{
    auto *loop = new vks::CLoop;
    for (std::size_t i = 0; i < ring.size(); ++i)
        loop->AddCurve(new vks::CLine2d(ring[i], ring[(i + 1) % ring.size()]), false);
    PolygonPtr polygon(new vks::CPolygon);
    polygon->AddLoop(loop, true);
    return polygon;
}

std::size_t byGeosAlone(const vks::Ring &a, const vks::Ring &b)
{
    const geos::Geometry first = geos::polygonOf(a, {});
    const geos::Geometry second = geos::polygonOf(b, {});
    const geos::Geometry common(GEOSIntersection_r(geos::context(), first.get(), second.get()));
    std::size_t corners = 0;
    for (const GEOSGeometry *polygon : geos::polygonsIn(common.get()))
        for (const vks::Ring &ring : geos::ringsOf(polygon))
            corners += ring.size();
    return corners;
}

/** Two wheels that overlap, of so many corners each; times are per corner. */
void addOverlay(bench::RatioTable &table, int corners, double ceiling)
{
    const vks::Ring a = wheel({0, 0}, corners);
    const vks::Ring b = wheel({700, 300}, corners);
    const PolygonPtr first = polygonOf(a);
    const PolygonPtr second = polygonOf(b);
    const auto ours = [&] { bench::keep(vks::CBooleanOperate2D::Intersect(first, second)->LoopCount()); };
    const auto alone = [&] { bench::keep(byGeosAlone(a, b)); };
    table.row("intersection / by GEOS alone", 2 * static_cast<std::size_t>(corners), ours, alone, ceiling);
}

PolygonPtr squareAt(double x) { return polygonOf({{x, 0}, {x + 100, 0}, {x + 100, 100}, {x, 100}}); }

/** Two squares that lie so far beside each other, against squares apart. */
void addRelation(bench::RatioTable &table, const char *name, double shift)
{
    const PolygonPtr square = squareAt(0);
    const PolygonPtr moved = squareAt(shift);
    const PolygonPtr apart = squareAt(500);
    const auto relation = [&square](const PolygonPtr &other) {
        return [&] { bench::keep(vks::PolygonPolygonPosition(square, other, 1.0)); };
    };
    table.row(name, 1, relation(moved), relation(apart));
}

} // namespace

int main()
{
    bench::RatioTable table("Overlay and relations of polygons", bench::Time::Cpu);
    for (const int corners : {4, 12, 100})
        addOverlay(table, corners, 0.0); // told only: what is done once for each overlay weighs more in small ones
    addOverlay(table, 1000, kOverlayCeiling);
    addRelation(table, "relation of equal squares / apart", 0);
    addRelation(table, "relation of overlapping squares / apart", 50);
    addRelation(table, "relation of touching squares / apart", 100);
    return table.print();
}
