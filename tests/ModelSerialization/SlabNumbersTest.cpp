#include "ModelSerialization/SlabNumbers.h"

#include "platform/geometry/KernelTolerance.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using slabhost::clampedInt;
using slabhost::lengthTolerance;

/** Sets the kernel's tolerance for one test. */
class ToleranceScope
{
public:
    explicit ToleranceScope(double tolerance) : m_before(vks::g_DistEpsilon) { vks::g_DistEpsilon = tolerance; }
    ~ToleranceScope() { vks::g_DistEpsilon = m_before; }
    ToleranceScope(const ToleranceScope &) = delete;
    ToleranceScope &operator=(const ToleranceScope &) = delete;

private:
    double m_before;
};

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

TEST(SlabNumbersTest, kernelTellsTheToleranceOfLengths)
{
    const ToleranceScope scope(0.002);
    EXPECT_EQ(lengthTolerance(5e12), 0.002);
}

TEST(SlabNumbersTest, withoutAKernelToleranceTheSizeTellsThatOfLengths)
{
    const ToleranceScope scope(0.0);
    EXPECT_EQ(lengthTolerance(0.5), 1e-12);
    EXPECT_DOUBLE_EQ(lengthTolerance(3000.0), 3e-9);
    EXPECT_EQ(lengthTolerance(-3000.0), 1e-12);
}

} // namespace
