#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/GeosContext.h"
#include "platform/geometry/PolygonRelation.h"
#include "suite/Families.h"

#include <geos_c.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace {

namespace geos = vks::geos;
using Point = vks::CVec2<double>;
using PolygonPtr = vks::CRefPtr<vks::CPolygon>;

// Ceilings of the ratios.
constexpr double kOverlay = 1.3;
constexpr double kPrecisionRoad = 8.0; // floating first, and then again on a grid

/** A cogged wheel: every second corner lies farther out. */
vks::Ring wheel(const Point &centre, int corners, double turn)
{
    vks::Ring ring;
    for (int i = 0; i < corners; ++i)
        ring.push_back(centre + Point(i % 2 ? 1000.0 : 900.0, 0).Rotated(6.28318530717958648 * i / corners + turn));
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

using Overlaid = GEOSGeometry *(*)(GEOSContextHandle_t, const GEOSGeometry *, const GEOSGeometry *);

/** Corners in, corners out: no welding, no rounding, no judging of the result. */
std::size_t byGeosAlone(const vks::Ring &a, const vks::Ring &b, Overlaid overlay)
{
    const geos::Geometry first = geos::polygonOf(a, {});
    const geos::Geometry second = geos::polygonOf(b, {});
    const geos::Geometry result(overlay(geos::context(), first.get(), second.get()));
    std::size_t corners = 0;
    for (const GEOSGeometry *polygon : geos::polygonsIn(result.get()))
        for (const vks::Ring &ring : geos::ringsOf(polygon))
            corners += ring.size();
    return corners;
}

/** Two polygons, in both forms. */
struct Pair
{
    Pair(vks::Ring first, vks::Ring second)
        : a(std::move(first)), b(std::move(second)), polygonA(polygonOf(a)), polygonB(polygonOf(b))
    {}

    vks::Ring a;
    vks::Ring b;
    PolygonPtr polygonA;
    PolygonPtr polygonB;
};

void intersect(const Pair &pair) { bench::keep(vks::CBooleanOperate2D::Intersect(pair.polygonA, pair.polygonB).get()); }
void intersectAlone(const Pair &pair) { bench::keep(byGeosAlone(pair.a, pair.b, &GEOSIntersection_r)); }

using Handle = void (*)(const Pair &);

/** The same done to all pairs. */
std::function<void()> toEach(std::shared_ptr<const std::vector<Pair>> pairs, Handle handle)
{
    return [pairs = std::move(pairs), handle] {
        for (const Pair &pair : *pairs)
            handle(pair);
    };
}

/** Pairs of wheels that overlap, of so many corners together; times are per corner. Each pair lies otherwise, as those of a
 *  drawing do: of one pair alone, the processor would soon know its way by heart, and the better the shorter it is. */
bench::Sides wheels(const bench::Load &load)
{
    constexpr std::size_t cornersOfAll = 8'000;
    const int corners = static_cast<int>(load.size) / 2;
    const auto pairs = std::make_shared<std::vector<Pair>>();
    for (std::size_t i = 0; i < cornersOfAll / load.size; ++i) {
        const double turn = 0.1 + static_cast<double>(i);
        pairs->emplace_back(wheel({0, 0}, corners, turn), wheel(Point(700, 300).Rotated(turn), corners, turn));
    }
    return {toEach(pairs, &intersect), toEach(pairs, &intersectAlone),
            static_cast<double>(load.items() * pairs->size())};
}

/** Squares that overlap by less than an area is thick. */
bench::Sides slivers(const bench::Load &load)
{
    constexpr double overlap = 0.005; // mm
    const auto square = [](double x) { return vks::Ring{{x, 0}, {x + 1000, 0}, {x + 1000, 1000}, {x, 1000}}; };
    const auto pair = std::make_shared<const Pair>(square(0), square(1000 - overlap));
    return {[pair] { intersect(*pair); }, [pair] { intersectAlone(*pair); }, static_cast<double>(load.items())};
}

double areaOf(const PolygonPtr &polygon) { return polygon ? polygon->Area() : 0.0; }

bool isSound(const PolygonPtr &polygon)
{
    constexpr unsigned checks = vks::CPolygon::kNotEmpty | vks::CPolygon::kClosed | vks::CPolygon::kNoShortEdge |
                                vks::CPolygon::kNoCrossing | vks::CPolygon::kHasArea;
    return !polygon || polygon->IsValid(checks, nullptr, nullptr);
}

/** All overlays of a pair of neighbours, and whether each is sound and the areas add up. */
bool isRight(const Pair &pair)
{
    vks::CPolygon *const both[] = {pair.polygonA.get(), pair.polygonB.get()};
    const PolygonPtr whole = vks::CBooleanOperate2D::MultUnite({both[0], both[1]});
    const PolygonPtr common = vks::CBooleanOperate2D::Intersect(both[0], both[1]);
    const PolygonPtr rest = vks::CBooleanOperate2D::Subtract(both[0], both[1]);
    const double slack = 1e-3 * (both[0]->Perimeter() + both[1]->Perimeter());
    return isSound(whole) && isSound(common) && isSound(rest) &&
           std::fabs(areaOf(whole) + areaOf(common) - areaOf(pair.polygonA) - areaOf(pair.polygonB)) <= slack &&
           std::fabs(areaOf(rest) + areaOf(common) - areaOf(pair.polygonA)) <= slack;
}

/** Rectangles side by side whose common edge is off by a little, turned any way. */
std::vector<Pair> neighbours(std::size_t count)
{
    constexpr double kNoises[] = {0.0, 1e-9, 1e-7, 1e-5, 1e-4, 1e-3, 5e-3}; // mm
    std::mt19937 random(5);
    std::uniform_real_distribution<double> turn(0, 6.28318530717958648);
    std::uniform_real_distribution<double> size(50, 5000);
    std::uniform_real_distribution<double> unit(-1, 1);
    std::vector<Pair> pairs;
    for (std::size_t i = 0; i < count; ++i) {
        const double noise = kNoises[i % std::size(kNoises)];
        const double angle = turn(random);
        const double width = size(random);
        const double height = size(random);
        const double foot = i % 3 ? 0.0 : 0.4 * height; // of the second: the whole edge, or part of it
        const auto near = [&](double x, double y) {
            return Point(x + unit(random) * noise, y + unit(random) * noise).Rotated(angle);
        };
        vks::Ring first{near(0, 0), near(width, 0), near(width, height), near(0, height)};
        vks::Ring second{near(width, foot), near(2 * width, foot), near(2 * width, height), near(width, height)};
        pairs.emplace_back(std::move(first), std::move(second));
    }
    return pairs;
}

bench::Sides nearlySharedEdges(const bench::Load &load)
{
    const auto pairs = std::make_shared<const std::vector<Pair>>(neighbours(load.size));
    const auto wrong = [pairs] {
        const auto right = std::count_if(pairs->begin(), pairs->end(), isRight);
        const auto bad = static_cast<std::ptrdiff_t>(pairs->size()) - right;
        return bad == 0 ? QString() : QStringLiteral("%1 results invalid or of another area").arg(bad);
    };
    const auto unite = [](const Pair &pair) {
        bench::keep(vks::CBooleanOperate2D::MultUnite({pair.polygonA.get(), pair.polygonB.get()}).get());
    };
    const auto alone = [](const Pair &pair) { bench::keep(byGeosAlone(pair.a, pair.b, &GEOSUnion_r)); };
    return {toEach(pairs, unite), toEach(pairs, alone), static_cast<double>(load.items()), 0.0, wrong};
}

PolygonPtr squareAt(double x) { return polygonOf({{x, 0}, {x + 100, 0}, {x + 100, 100}, {x, 100}}); }

/** Two squares that lie so far beside each other, against squares apart. */
auto relation(double shift)
{
    return [shift](const bench::Load &load) {
        const auto to = [square = squareAt(0)](const PolygonPtr &other) {
            return [square, other] { bench::keep(vks::PolygonPolygonPosition(square, other, 1.0)); };
        };
        return bench::Sides{to(squareAt(shift)), to(squareAt(500)), static_cast<double>(load.items())};
    };
}

} // namespace

bench::Roads bench::overlayRoads()
{
    return {{"intersection of two wheels", "GEOS alone", {8, 24, 200, 2'000}, {kOverlay}, &wheels},
            {"intersection thinner than an area", "GEOS alone", {8}, {kPrecisionRoad}, &slivers},
            {"union of nearly shared edges", "GEOS alone", {6'000}, {kPrecisionRoad}, &nearlySharedEdges},
            {"relation of equal squares", "of squares apart", {1}, {}, relation(0)},
            {"relation of overlapping squares", "of squares apart", {1}, {}, relation(50)},
            {"relation of touching squares", "of squares apart", {1}, {}, relation(100)}};
}
