#include "platform/geometry/RingNoding.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace shapes;
using Polygons = std::vector<std::vector<vks::Ring>>;

TEST(RingNodingTest, anEdgeTakesTheCornersThatLieOnIt)
{
    Polygons polygons{{box(0, 0, 10, 10)}, {{{10, 7}, {20, 7}, {20, 3}, {10.0005, 3}}}};
    vks::nodeRings(polygons, 1e-3);
    EXPECT_EQ(polygons[0][0], (vks::Ring{{0, 0}, {10, 0}, {10.0005, 3}, {10, 7}, {10, 10}, {0, 10}}));
    EXPECT_EQ(polygons[1][0].size(), 4U);
}

TEST(RingNodingTest, cornersBesideTheEdgeOrAtItsEndsAreNone)
{
    Polygons polygons{{box(0, 0, 10, 10)}, {{{10.002, 7}, {20, 7}, {10, 10.0005}}}};
    vks::nodeRings(polygons, 1e-3);
    EXPECT_EQ(polygons[0][0], (vks::Ring{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
}

TEST(RingNodingTest, ringsWithoutLengthStayAsTheyAre)
{
    Polygons polygons{{{}, {{1, 1}}, {{2, 2}, {2, 2}}}};
    const Polygons before = polygons;
    vks::nodeRings(polygons, 1e-3);
    EXPECT_EQ(polygons, before);
}

TEST(RingNodingTest, edgesOfRandomRingsTakeTheCornersThatBruteForceFinds)
{
    constexpr double tolerance = 0.01;
    std::mt19937 random(4);
    const auto place = [&random](int from) { return from + static_cast<double>(random() % 20); };
    for (int i = 0; i < 2000; ++i) {
        Polygons polygons(2);
        std::vector<Point> corners;
        for (std::size_t p = 0; p < 2; ++p) {
            polygons[p].emplace_back();
            for (int k = 0; k < 9; ++k)
                polygons[p][0].emplace_back(place(p == 0 ? 0 : 8), place(p == 0 ? 0 : 8));
            corners.insert(corners.end(), polygons[p][0].begin(), polygons[p][0].end());
        }
        vks::CBox2<double> boxes[2];
        for (std::size_t k = 0; k < corners.size(); ++k)
            boxes[k / 9].Add(corners[k]);
        const vks::CBox2<double> common = boxes[0].Common(boxes[1]).Grown(tolerance);
        const Polygons before = polygons;
        vks::nodeRings(polygons, tolerance);
        for (std::size_t p = 0; p < 2; ++p) {
            vks::Ring expected;
            for (std::size_t k = 0; k < 9; ++k) {
                const Point &start = before[p][0][k];
                const Point way = before[p][0][(k + 1) % 9] - start;
                expected.push_back(start);
                vks::Ring on;
                for (const Point &corner : corners) {
                    const double along = way.Dot(corner - start) / way.Length();
                    if (common.IsValid() && common.Contains(corner) && along > tolerance &&
                        along < way.Length() - tolerance &&
                        std::fabs(way.Cross(corner - start)) <= tolerance * way.Length())
                        on.push_back(corner);
                }
                std::sort(on.begin(), on.end(),
                          [&way](const Point &a, const Point &b) { return way.Dot(a) < way.Dot(b); });
                on.erase(std::unique(on.begin(), on.end()), on.end());
                expected.insert(expected.end(), on.begin(), on.end());
            }
            ASSERT_EQ(polygons[p][0], expected) << i;
        }
    }
}
