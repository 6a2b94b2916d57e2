#include "ModelSerialization/SlabNumbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using slabhost::clampedInt;

TEST(SlabNumbersTest, fractionIsCutTowardsZero)
{
    EXPECT_EQ(clampedInt(120.9), 120);
    EXPECT_EQ(clampedInt(-120.9), -120);
    EXPECT_EQ(clampedInt(0.0), 0);
}

TEST(SlabNumbersTest, numberBeyondTheRangeIsItsEndAndNoNumberIsZero)
{
    EXPECT_EQ(clampedInt(1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(clampedInt(-1e300), std::numeric_limits<int>::min());
    EXPECT_EQ(clampedInt(std::numeric_limits<double>::quiet_NaN()), 0);
}

} // namespace
