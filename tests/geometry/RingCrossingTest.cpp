#include "platform/geometry/RingCrossing.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace shapes;
using vks::ringsCross;

TEST(RingCrossingTest, soundRingsDoNotCross)
{
    EXPECT_FALSE(ringsCross({}));
    EXPECT_FALSE(ringsCross({box(0, 0, 10, 10)}));
    EXPECT_FALSE(ringsCross({{{0, 0}, {10, 0}, {5, 8}}}));
    EXPECT_FALSE(ringsCross({box(0, 0, 10, 10), box(2, 2, 3, 3)}));
    EXPECT_FALSE(ringsCross({{{0, 0}, {10, 0}, {20, 0}, {20, 10}, {0, 10}}})); // a straight corner
}

TEST(RingCrossingTest, aBowTieCrossesItself) { EXPECT_TRUE(ringsCross({{{0, 0}, {10, 10}, {10, 0}, {0, 10}}})); }

TEST(RingCrossingTest, touchingAndRunningBackCount)
{
    EXPECT_TRUE(ringsCross({{{0, 0}, {10, 0}, {20, 0}, {10, 0}, {10, 10}, {0, 10}}}));
    EXPECT_TRUE(ringsCross({{{0, 0}, {5, 5}, {10, 0}, {10, 10}, {5, 5}, {0, 10}}}));
    EXPECT_TRUE(ringsCross({{{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}}}));
}

TEST(RingCrossingTest, ringsThatCrossOrTouchEachOtherCount)
{
    EXPECT_TRUE(ringsCross({box(0, 0, 10, 10), box(5, 5, 10, 10)}));
    EXPECT_TRUE(ringsCross({box(0, 0, 10, 10), box(0, 2, 3, 3)}));
    EXPECT_TRUE(ringsCross({box(0, 0, 10, 10), box(10, 10, 3, 3)}));
}

TEST(RingCrossingTest, crossingsOfRandomRingsAreFoundAsBruteForceDoes)
{
    std::mt19937 random(9);
    const auto place = [&random] { return static_cast<double>(random() % 12); };
    const auto isSide = [](const Point &a, const Point &b, const Point &c) {
        const double cross = (b - a).Cross(c - a);
        return (cross > 0.0) - (cross < 0.0);
    };
    const auto cross = [&](const vks::Ring &ring) {
        const std::size_t count = ring.size();
        for (std::size_t i = 0; i < count; ++i)
            for (std::size_t j = 0; j < count; ++j) {
                const Point &a = ring[i];
                const Point &b = ring[(i + 1) % count];
                const Point &c = ring[j];
                const Point &d = ring[(j + 1) % count];
                if ((i + 1) % count == j && (b - a).Cross(d - c) == 0.0 && (b - a).Dot(d - c) < 0.0)
                    return true;
                const bool areApart =
                    std::max(a.x, b.x) < std::min(c.x, d.x) || std::max(a.y, b.y) < std::min(c.y, d.y) ||
                    std::max(c.x, d.x) < std::min(a.x, b.x) || std::max(c.y, d.y) < std::min(a.y, b.y);
                const bool areNeighbours = i == j || (i + 1) % count == j || (j + 1) % count == i;
                if (!areApart && !areNeighbours && isSide(a, b, c) * isSide(a, b, d) <= 0 &&
                    isSide(c, d, a) * isSide(c, d, b) <= 0)
                    return true;
            }
        return false;
    };
    int crossing = 0;
    for (int i = 0; i < 4000; ++i) {
        vks::Ring ring;
        while (ring.size() < 4U + static_cast<std::size_t>(i % 3))
            ring.emplace_back(place(), place());
        crossing += cross(ring) ? 1 : 0;
        ASSERT_EQ(vks::ringsCross({ring}), cross(ring)) << i;
    }
    EXPECT_GT(crossing, 1000);
    EXPECT_LT(crossing, 3900);
}
