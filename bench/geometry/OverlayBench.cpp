#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/GeosContext.h"
#include "platform/geometry/PolygonRelation.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <geos_c.h>

// Overlay against the same by GEOS alone, floating: corners in, corners out, no welding, no rounding, no judging of the
// result. Both sides run in turn; the counter "ratio" is the quotient of their medians.

namespace {

namespace geos = vks::geos;
using Point = vks::CVec2<double>;
using PolygonPtr = vks::CRefPtr<vks::CPolygon>;
using Clock = std::chrono::steady_clock;

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

template <typename Work> double secondsOf(Work work)
{
    const Clock::time_point start = Clock::now();
    benchmark::DoNotOptimize(work());
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void overlay(benchmark::State &state)
{
    const vks::Ring a = wheel({0, 0}, static_cast<int>(state.range(0)));
    const vks::Ring b = wheel({700, 300}, static_cast<int>(state.range(0)));
    const PolygonPtr first = polygonOf(a);
    const PolygonPtr second = polygonOf(b);
    std::vector<double> ours;
    std::vector<double> alone;
    for (auto _ : state) {
        ours.push_back(secondsOf([&] { return vks::CBooleanOperate2D::Intersect(first, second)->LoopCount(); }));
        alone.push_back(secondsOf([&] { return byGeosAlone(a, b); }));
    }
    state.counters["ratio"] = median(ours) / median(alone);
}

void relationOfApartBoxes(benchmark::State &state)
{
    const PolygonPtr a = polygonOf({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    const PolygonPtr b = polygonOf({{500, 0}, {600, 0}, {600, 100}, {500, 100}});
    for (auto _ : state)
        benchmark::DoNotOptimize(vks::PolygonPolygonPosition(a, b, 1.0));
}

void relationOfOverlappingBoxes(benchmark::State &state)
{
    const auto shift = static_cast<double>(state.range(0));
    const PolygonPtr a = polygonOf({{0, 0}, {100, 0}, {100, 100}, {0, 100}});
    const PolygonPtr b = polygonOf({{shift, 0}, {shift + 100, 0}, {shift + 100, 100}, {shift, 100}});
    for (auto _ : state)
        benchmark::DoNotOptimize(vks::PolygonPolygonPosition(a, b, 1.0));
}

BENCHMARK(overlay)->Arg(4)->Arg(12)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(relationOfApartBoxes);
BENCHMARK(relationOfOverlappingBoxes)->Arg(0)->Arg(50)->Arg(100);

} // namespace
