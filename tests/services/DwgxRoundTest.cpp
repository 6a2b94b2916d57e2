#include "platform/services/DwgxRound.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(DwgxRoundTest, nearestWholeNumberIsGiven)
{
    EXPECT_EQ(dwgx::round(399.6), 400);
    EXPECT_EQ(dwgx::round(300.4), 300);
    EXPECT_EQ(dwgx::round(-0.4), 0);
    EXPECT_EQ(dwgx::round(-399.6), -400);
}

TEST(DwgxRoundTest, halvesGoAwayFromZero)
{
    EXPECT_EQ(dwgx::round(300.5), 301);
    EXPECT_EQ(dwgx::round(2.5), 3);
    EXPECT_EQ(dwgx::round(-2.5), -3);
    EXPECT_EQ(dwgx::round(0.49999999999999994), 0);
}

TEST(DwgxRoundTest, valuesBeyondTheRangeGiveItsEndAndNanGivesZero)
{
    EXPECT_EQ(dwgx::round(2147483646.5), 2147483647);
    EXPECT_EQ(dwgx::round(1e300), 2147483647);
    EXPECT_EQ(dwgx::round(-INFINITY), -2147483647 - 1);
    EXPECT_EQ(dwgx::round(NAN), 0);
}
