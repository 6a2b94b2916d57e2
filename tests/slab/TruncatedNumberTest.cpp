#include "slab/TruncatedNumber.h"

#include <gtest/gtest.h>

using slab::truncated;

namespace {

TEST(TruncatedNumberTest, fractionIsCutOffTowardsZero)
{
    EXPECT_EQ(truncated(120.9), 120);
    EXPECT_EQ(truncated(-120.9), -120);
    EXPECT_EQ(truncated(-0.9), 0);
}

TEST(TruncatedNumberTest, numbersUpToTheLimitsFitWithTheirFractions)
{
    EXPECT_EQ(truncated(2147483647.9), 2147483647);
    EXPECT_EQ(truncated(-2147483648.9), -2147483647 - 1);
}

TEST(TruncatedNumberTest, numberThatDoesNotFitIsZero)
{
    for (const double number : {2147483648.0, -2147483649.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(truncated(number), 0) << number;
}

} // namespace
