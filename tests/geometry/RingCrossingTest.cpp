#include "platform/geometry/RingCrossing.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

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
