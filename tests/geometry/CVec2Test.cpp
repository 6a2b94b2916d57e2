#include "platform/geometry/CVec2.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Vec = vks::CVec2<double>;

TEST(CVec2Test, arithmeticGoesTermByTerm)
{
    EXPECT_EQ(Vec(1, 2) + Vec(3, 5), Vec(4, 7));
    EXPECT_EQ(Vec(1, 2) - Vec(3, 5), Vec(-2, -3));
    EXPECT_EQ(Vec(1, 2) * 3.0, Vec(3, 6));
    EXPECT_EQ(3.0 * Vec(1, 2), Vec(3, 6));
    EXPECT_EQ(Vec(3, 6) / 3.0, Vec(1, 2));
}

TEST(CVec2Test, crossIsPositiveToTheLeft)
{
    EXPECT_EQ(Vec(2, 0).Cross(Vec(0, 3)), 6);
    EXPECT_EQ(Vec(0, 3).Cross(Vec(2, 0)), -6);
    EXPECT_EQ(Vec(2, 0).Left(), Vec(0, 2));
}

TEST(CVec2Test, lengthOfHugeTermsDoesNotOverflow) { EXPECT_DOUBLE_EQ(Vec(3e200, 4e200).Length(), 5e200); }

TEST(CVec2Test, zeroHasNoDirection)
{
    EXPECT_EQ(Vec().Normalized(), Vec());
    EXPECT_EQ(Vec(0, -7).Normalized(), Vec(0, -1));
}

TEST(CVec2Test, anglesAreCounterClockwiseWithinHalfATurn)
{
    EXPECT_DOUBLE_EQ(Vec(0, 5).Angle(), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(Vec(-1, -1).Angle(), -2.356194490192345);
    EXPECT_DOUBLE_EQ(Vec(2, 0).AngleTo(Vec(3, 3)), 0.7853981633974483);
    EXPECT_DOUBLE_EQ(Vec(3, 3).AngleTo(Vec(2, 0)), -0.7853981633974483);
    EXPECT_DOUBLE_EQ(std::fabs(Vec(0, 1).AngleTo(Vec(0, -7))), 3.141592653589793);
    EXPECT_EQ(Vec().Angle(), 0.0);
}

TEST(CVec2Test, infiniteAndNanTermsAreNotFinite)
{
    EXPECT_TRUE(Vec(1, 2).IsFinite());
    EXPECT_FALSE(Vec(std::numeric_limits<double>::infinity(), 0).IsFinite());
    EXPECT_FALSE(Vec(0, std::numeric_limits<double>::quiet_NaN()).IsFinite());
}

} // namespace
