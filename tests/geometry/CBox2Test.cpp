#include "platform/geometry/CBox2.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Box = vks::CBox2<double>;

TEST(CBox2Test, newBoxIsEmptyAndTouchesNothing)
{
    const Box empty;
    const Box box({0, 0}, {1, 1});
    EXPECT_FALSE(empty.IsValid());
    EXPECT_FALSE(empty.Intersects(box));
    EXPECT_FALSE(box.Intersects(empty));
    EXPECT_FALSE(empty.Grown(5).IsValid());
}

TEST(CBox2Test, addingPointsMakesTheLeastBox)
{
    Box box;
    box.Add(vks::CVec2<double>(3, -1));
    box.Add(vks::CVec2<double>(-2, 4));
    EXPECT_EQ(box.minPt, vks::CVec2<double>(-2, -1));
    EXPECT_EQ(box.maxPt, vks::CVec2<double>(3, 4));
    EXPECT_EQ(box.Width(), 5);
    EXPECT_EQ(box.Height(), 5);
}

TEST(CBox2Test, addingAnEmptyBoxChangesNothing)
{
    Box box({0, 0}, {1, 1});
    box.Add(Box());
    EXPECT_EQ(box.maxPt, vks::CVec2<double>(1, 1));
}

TEST(CBox2Test, touchingBoxesIntersect)
{
    EXPECT_TRUE(Box({0, 0}, {1, 1}).Intersects(Box({1, 1}, {2, 2})));
    EXPECT_FALSE(Box({0, 0}, {1, 1}).Intersects(Box({1.5, 0}, {2, 2})));
    EXPECT_TRUE(Box({0, 0}, {1, 1}).Intersects(Box({1.5, 0}, {2, 2}), 0.5));
}

TEST(CBox2Test, commonPartIsWhatBothHold)
{
    const Box common = Box({0, 0}, {10, 10}).Common(Box({4, -5}, {20, 6}));
    EXPECT_EQ(common.minPt, vks::CVec2<double>(4, 0));
    EXPECT_EQ(common.maxPt, vks::CVec2<double>(10, 6));
    EXPECT_TRUE(Box({0, 0}, {1, 1}).Common(Box({1, 1}, {2, 2})).IsValid());
    EXPECT_FALSE(Box({0, 0}, {1, 1}).Common(Box({3, 0}, {4, 1})).IsValid());
    EXPECT_FALSE(Box({0, 0}, {1, 1}).Common(Box()).IsValid());
}

TEST(CBox2Test, boxInsideOutWithinTheToleranceIsValid)
{
    const Box box({1e-13, 0}, {0, 1});
    EXPECT_FALSE(box.IsValid());
    EXPECT_TRUE(box.IsValid(1e-12));
}

TEST(CBox2Test, boxWithNanIsNotValid)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(Box({nan, 0}, {1, 1}).IsValid());
    EXPECT_FALSE(Box({0, 0}, {1, nan}).IsValid(1e9));
}

} // namespace
