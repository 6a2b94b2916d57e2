#include "platform/geometry/KernelTolerance.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

namespace {

using vks::lengthTolerance;

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

TEST(KernelToleranceTest, tolerancesStartAtAMillionth)
{
    EXPECT_EQ(vks::g_DistEpsilon, 1e-6);
    EXPECT_EQ(vks::g_DefaultDistEpsilon, 1e-6);
    EXPECT_EQ(vks::g_AngleEpsilon, 1e-6);
    EXPECT_EQ(vks::g_ParallelEpsilon, 1e-6);
}

TEST(KernelToleranceTest, rectangleReadsTheAngleToleranceAtEachUse)
{
    const auto turned = shapes::turned(*shapes::rectangle(0, 0, 10, 20), 0.01);
    EXPECT_FALSE(turned->IsRectangle());
    vks::g_AngleEpsilon = 0.02;
    EXPECT_TRUE(turned->IsRectangle());
    vks::g_AngleEpsilon = 1e-6;
}

TEST(KernelToleranceTest, distanceToleranceIsThatOfLengths)
{
    const ToleranceScope scope(0.002);
    EXPECT_EQ(lengthTolerance(5e12), 0.002);
}

TEST(KernelToleranceTest, withoutADistanceToleranceTheSizeTellsThatOfLengths)
{
    const ToleranceScope scope(0.0);
    EXPECT_EQ(lengthTolerance(0.5), 1e-12);
    EXPECT_DOUBLE_EQ(lengthTolerance(3000.0), 3e-9);
    EXPECT_EQ(lengthTolerance(-3000.0), 1e-12);
}

} // namespace
