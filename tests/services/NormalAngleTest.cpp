#include "platform/services/NormalAngle.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTolerance = 0.0010123456789; // rad
constexpr double kNear = 1e-12;

TEST(NormalAngleTest, angleWithinATurnStays)
{
    EXPECT_EQ(normalAngle2PI_max2PI(0.0, kTolerance), 0.0);
    EXPECT_EQ(normalAngle2PI_max2PI(1.25, kTolerance), 1.25);
    EXPECT_EQ(normalAngle2PI_max2PI(6.28, kTolerance), 6.28);
}

TEST(NormalAngleTest, angleOutsideATurnIsBroughtIn)
{
    EXPECT_NEAR(normalAngle2PI_max2PI(-kPi / 2, kTolerance), 4.71238898038469, kNear);
    EXPECT_NEAR(normalAngle2PI_max2PI(5 * kPi, kTolerance), kPi, kNear);
    EXPECT_NEAR(normalAngle2PI_max2PI(-20 * kPi - 1.0, kTolerance), 5.283185307179586, kNear);
}

TEST(NormalAngleTest, nearlyAFullTurnIsNone)
{
    EXPECT_EQ(normalAngle2PI_max2PI(2 * kPi - 0.001, kTolerance), 0.0);
    EXPECT_EQ(normalAngle2PI_max2PI(-0.001, kTolerance), 0.0);
    EXPECT_NEAR(normalAngle2PI_max2PI(-0.0011, kTolerance), 6.282085307179586, kNear);
}

TEST(NormalAngleTest, whatIsNotFiniteIsNone)
{
    EXPECT_EQ(normalAngle2PI_max2PI(std::numeric_limits<double>::quiet_NaN(), kTolerance), 0.0);
    EXPECT_EQ(normalAngle2PI_max2PI(std::numeric_limits<double>::infinity(), kTolerance), 0.0);
}

} // namespace
