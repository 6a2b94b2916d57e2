#include "platform/geometry/KernelTolerance.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

namespace {

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

} // namespace
