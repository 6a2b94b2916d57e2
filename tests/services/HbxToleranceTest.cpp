#include "platform/services/HbxTolerance.h"

#include <gtest/gtest.h>
#include <limits>

namespace {
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
} // namespace

TEST(HbxToleranceTest, aDifferenceOfTheToleranceIsEqual)
{
    EXPECT_TRUE(hbx::isEqual(1.0, 1.5, 0.5));
    EXPECT_TRUE(hbx::isEqual(1.5, 1.0, 0.5));
    EXPECT_FALSE(hbx::isEqual(1.0, 1.75, 0.5));
    EXPECT_TRUE(hbx::isEqual(3.3, 3.3, 0.0));
    EXPECT_TRUE(hbx::isEqual(3.3, 3.3, 1e-12));
    EXPECT_FALSE(hbx::isEqual(3.3, 3.3 + 1e-9, 1e-12));
}

TEST(HbxToleranceTest, greaterMeansByMoreThanTheTolerance)
{
    EXPECT_FALSE(hbx::isGreater(1.5, 1.0, 0.5));
    EXPECT_TRUE(hbx::isGreater(1.75, 1.0, 0.5));
    EXPECT_FALSE(hbx::isGreater(1.0, 1.75, 0.5));
}

TEST(HbxToleranceTest, orEqualTakesInWhatIsEqual)
{
    EXPECT_TRUE(hbx::isGreaterAndEqual(1.0, 1.5, 0.5));
    EXPECT_FALSE(hbx::isGreaterAndEqual(1.0, 1.75, 0.5));
    EXPECT_TRUE(hbx::isLessAndEqual(1.5, 1.0, 0.5));
    EXPECT_FALSE(hbx::isLessAndEqual(1.75, 1.0, 0.5));
    EXPECT_TRUE(hbx::isGreaterAndEqual(2.0, 1.0, 0.0));
    EXPECT_TRUE(hbx::isLessAndEqual(1.0, 2.0, 0.0));
}

TEST(HbxToleranceTest, infinitiesAreOrderedAndEqualToThemselves)
{
    EXPECT_TRUE(hbx::isEqual(kInf, kInf, 0.0));
    EXPECT_FALSE(hbx::isEqual(kInf, -kInf, 1.0));
    EXPECT_TRUE(hbx::isGreater(kInf, 1.0, 1e-12));
    EXPECT_FALSE(hbx::isGreater(kInf, kInf, 1e-12));
    EXPECT_TRUE(hbx::isLessAndEqual(-kInf, 1.0, 1e-12));
}

TEST(HbxToleranceTest, nanComparesWithNothing)
{
    for (const double other : {1.0, kNan, kInf}) {
        EXPECT_FALSE(hbx::isEqual(kNan, other, 1.0));
        EXPECT_FALSE(hbx::isGreater(kNan, other, 1.0));
        EXPECT_FALSE(hbx::isGreaterAndEqual(kNan, other, 1.0));
        EXPECT_FALSE(hbx::isLessAndEqual(other, kNan, 1.0));
    }
}
