#include "platform/geometry/CVec3.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Vec = vks::CVec3<double>;

TEST(CVec3Test, arithmeticGoesTermByTerm)
{
    EXPECT_EQ(Vec(1, 2, 3) + Vec(4, 6, 8), Vec(5, 8, 11));
    EXPECT_EQ(Vec(1, 2, 3) - Vec(4, 6, 8), Vec(-3, -4, -5));
    EXPECT_EQ(Vec(1, 2, 3) * 2.0, Vec(2, 4, 6));
    EXPECT_EQ(Vec(1, 2, 3).Dot(Vec(4, 5, 6)), 32);
    EXPECT_EQ(Vec(2, 3, 6).Length(), 7);
}

TEST(CVec3Test, crossOfTheFirstTwoAxesIsTheThird)
{
    EXPECT_EQ(Vec(1, 0, 0).Cross(Vec(0, 1, 0)), Vec(0, 0, 1));
    EXPECT_EQ(Vec(0, 1, 0).Cross(Vec(1, 0, 0)), Vec(0, 0, -1));
}

TEST(CVec3Test, infiniteAndNanTermsAreNotFinite)
{
    EXPECT_TRUE(Vec(1, 2, 3).IsFinite());
    EXPECT_FALSE(Vec(1, 2, std::numeric_limits<double>::infinity()).IsFinite());
    EXPECT_FALSE(Vec(1, std::numeric_limits<double>::quiet_NaN(), 3).IsFinite());
}

} // namespace
