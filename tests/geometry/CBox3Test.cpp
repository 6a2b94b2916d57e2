#include "platform/geometry/CBox3.h"

#include <gtest/gtest.h>

#include <cmath>

using Box = vks::CBox3<double>;

TEST(CBox3Test, newBoxReachesFromPlusToMinusInfinityAndIsEmpty)
{
    const Box box;
    EXPECT_EQ(box.minPt, (vks::CVec3<double>(INFINITY, INFINITY, INFINITY)));
    EXPECT_EQ(box.maxPt, (vks::CVec3<double>(-INFINITY, -INFINITY, -INFINITY)));
    EXPECT_FALSE(box.IsValid());
}

TEST(CBox3Test, boxOfOnePointIsNotEmpty) { EXPECT_TRUE(Box({1, 2, 3}, {1, 2, 3}).IsValid()); }

TEST(CBox3Test, minimumAboveTheMaximumInAnyDirectionIsEmpty)
{
    EXPECT_FALSE(Box({2, 0, 0}, {1, 1, 1}).IsValid());
    EXPECT_FALSE(Box({0, 2, 0}, {1, 1, 1}).IsValid());
    EXPECT_FALSE(Box({0, 0, 2}, {1, 1, 1}).IsValid());
    EXPECT_FALSE(Box({0, 0, NAN}, {1, 1, 1}).IsValid());
}

TEST(CBox3Test, boxesAreEqualByTheirCorners)
{
    EXPECT_EQ(Box({0, 0, 0}, {1, 1, 1}), Box({0, 0, 0}, {1, 1, 1}));
    EXPECT_NE(Box({0, 0, 0}, {1, 1, 1}), Box({0, 0, 0}, {1, 1, 2}));
    EXPECT_EQ(Box(), Box());
}
