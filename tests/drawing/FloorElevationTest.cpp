#include "drawing/FloorElevation.h"

#include <gtest/gtest.h>

using namespace drawing::elevation;

namespace {

constexpr double kBase = 3.3;     // m
constexpr double kNoise = 5e-13;  // m, below the tolerance
constexpr double kBeyond = 5e-12; // m, above it

TEST(FloorElevationTest, elevationsWithinTheToleranceAreTheSame)
{
    EXPECT_TRUE(isEqual(kBase, kBase + kNoise));
    EXPECT_TRUE(isEqual(kBase, kBase - kNoise));
    EXPECT_FALSE(isEqual(kBase, kBase + kBeyond));
    EXPECT_FALSE(isEqual(kBase, kBase - kBeyond));
}

TEST(FloorElevationTest, greaterIsMoreThanTheTolerance)
{
    EXPECT_TRUE(isGreater(kBase + kBeyond, kBase));
    EXPECT_FALSE(isGreater(kBase + kNoise, kBase));
    EXPECT_FALSE(isGreater(kBase, kBase + kBeyond));
}

TEST(FloorElevationTest, orEqualTakesWhatTheToleranceLeavesOpen)
{
    EXPECT_TRUE(isGreaterOrEqual(kBase - kNoise, kBase));
    EXPECT_FALSE(isGreaterOrEqual(kBase - kBeyond, kBase));
    EXPECT_TRUE(isLessOrEqual(kBase + kNoise, kBase));
    EXPECT_FALSE(isLessOrEqual(kBase + kBeyond, kBase));
}

} // namespace
