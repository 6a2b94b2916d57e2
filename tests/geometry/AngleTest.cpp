#include "platform/geometry/Angle.h"

#include <gtest/gtest.h>

namespace {

TEST(AngleTest, fullTurnIsTwicePi)
{
    EXPECT_EQ(vks::kPi, 3.141592653589793);
    EXPECT_EQ(vks::kFullTurn, 6.283185307179586);
}

TEST(AngleTest, wholeTurnsAreTakenOff)
{
    EXPECT_EQ(vks::withinTurn(0.0, 400.0), 0.0);
    EXPECT_EQ(vks::withinTurn(399.5, 400.0), 399.5);
    EXPECT_EQ(vks::withinTurn(400.0, 400.0), 0.0);
    EXPECT_EQ(vks::withinTurn(1250.0, 400.0), 50.0);
}

TEST(AngleTest, negativeValueIsBroughtAboveZero)
{
    EXPECT_EQ(vks::withinTurn(-50.0, 400.0), 350.0);
    EXPECT_EQ(vks::withinTurn(-1250.0, 400.0), 350.0);
    EXPECT_DOUBLE_EQ(vks::withinTurn(-vks::kPi / 2, vks::kFullTurn), 4.71238898038469);
}

} // namespace
