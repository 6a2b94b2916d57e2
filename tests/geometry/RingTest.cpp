#include "platform/geometry/Ring.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using vks::Ring;

Ring withoutEqual(Ring ring)
{
    vks::dropRepeats(ring, std::equal_to<>());
    return ring;
}

/** Corners less than 1 mm apart count as one. */
Ring withoutNear(Ring ring)
{
    vks::dropRepeats(ring, [](const auto &a, const auto &b) { return a.DistanceTo(b) < 1.0; });
    return ring;
}

TEST(RingTest, cornerThatIsTheOneBeforeGoes)
{
    EXPECT_EQ(withoutEqual({{0, 0}, {0, 0}, {9, 0}, {9, 9}, {9, 9}, {9, 9}}), (Ring{{0, 0}, {9, 0}, {9, 9}}));
    EXPECT_EQ(withoutEqual({{0, 0}, {9, 0}, {0, 0}, {9, 9}}), (Ring{{0, 0}, {9, 0}, {0, 0}, {9, 9}}));
}

TEST(RingTest, lastCornersThatAreTheFirstGo)
{
    EXPECT_EQ(withoutEqual({{0, 0}, {9, 0}, {9, 9}, {0, 0}}), (Ring{{0, 0}, {9, 0}, {9, 9}}));
    EXPECT_EQ(withoutNear({{0, 0}, {9, 0}, {0.5, 0}, {0, 0.9}}), (Ring{{0, 0}, {9, 0}}));
}

TEST(RingTest, nearnessIsToldByTheCornerThatStays)
{
    EXPECT_EQ(withoutNear({{0, 0}, {0.6, 0}, {1.2, 0}, {9, 0}}), (Ring{{0, 0}, {1.2, 0}, {9, 0}}));
}

TEST(RingTest, oneCornerStaysOfEqualOnes)
{
    EXPECT_EQ(withoutEqual({{3, 4}, {3, 4}, {3, 4}}), (Ring{{3, 4}}));
    EXPECT_EQ(withoutEqual({}), Ring());
}

} // namespace
