#include "platform/geometry/RingWeld.h"

#include <gtest/gtest.h>
#include <random>

using Point = vks::CVec2<double>;

TEST(RingWeldTest, aPointTakesAnEarlierOneWithinTheTolerance)
{
    vks::RingWeld weld(4, 1.0, 0.0);
    EXPECT_EQ(weld.weld({10, 10}), Point(10, 10));
    EXPECT_EQ(weld.weld({11, 10}), Point(10, 10));
    EXPECT_EQ(weld.weld({11.5, 10}), Point(11.5, 10));
    EXPECT_EQ(weld.weld({10.9, 10}), Point(10, 10)); // the earliest, not the nearest
}

TEST(RingWeldTest, keptPointsAreRoundedToTheGrid)
{
    vks::RingWeld weld(4, 1e-3, 1e-3);
    const Point kept = weld.weld({1.23449, -5.00051});
    EXPECT_NEAR(kept.x, 1.234, 1e-12);
    EXPECT_NEAR(kept.y, -5.001, 1e-12);
    EXPECT_EQ(weld.weld({1.23449 + 9e-4, -5.00051}), kept);
}

TEST(RingWeldTest, findsNeighboursAcrossCellsAsBruteForceDoes)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-60, 60);
    vks::RingWeld weld(8, 1.0, 0.0); // more points follow than were expected
    std::vector<Point> kept;
    for (int i = 0; i < 4000; ++i) {
        const Point point(place(random), place(random));
        Point expected = point;
        for (auto earlier = kept.rbegin(); earlier != kept.rend(); ++earlier)
            if ((*earlier - point).SqrLength() <= 1.0)
                expected = *earlier;
        if (expected == point)
            kept.push_back(point);
        ASSERT_EQ(weld.weld(point), expected) << i;
    }
}

TEST(RingWeldTest, hugeCoordinatesAreKept)
{
    vks::RingWeld weld(2, 1e-3, 0.0);
    EXPECT_EQ(weld.weld({1e300, -1e300}), Point(1e300, -1e300));
    EXPECT_EQ(weld.weld({1e300, -1e300}), Point(1e300, -1e300));
}
