#include "platform/geometry/LoopCleaning.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;

namespace {

std::vector<vks::CRefPtr<vks::CLoop>> cleaned(const vks::CRefPtr<vks::CLoop> &loop)
{
    vks::RingWeld weld(16, 1.0, 0.0);
    return vks::cleanedLoops(*loop, weld, {1.0, 0.001});
}

} // namespace

TEST(LoopCleaningTest, aSoundLoopIsCopied)
{
    const vks::CRefPtr<vks::CLoop> source(loop(box(0, 0, 100, 100)));
    const auto result = cleaned(source);
    ASSERT_EQ(result.size(), 1U);
    EXPECT_EQ(result[0]->CurveCount(), 4);
    EXPECT_NE(result[0]->GetCurve(0), source->GetCurve(0));
}

TEST(LoopCleaningTest, aGapIsClosedByALine)
{
    vks::CRefPtr<vks::CLoop> open(new vks::CLoop);
    open->AddCurve(new vks::CLine2d({0, 0}, {100, 0}), false);
    open->AddCurve(new vks::CLine2d({100, 0}, {100, 100}), false);
    const auto result = cleaned(open);
    ASSERT_EQ(result.size(), 1U);
    EXPECT_DOUBLE_EQ(result[0]->Area(), 5000);
    EXPECT_TRUE(result[0]->IsClosed(1e-9));
}

TEST(LoopCleaningTest, aNearlyFullCircleIsClosed)
{
    vks::CRefPtr<vks::CLoop> nearly(new vks::CLoop);
    nearly->AddCurve(new vks::CArc2d({0, 0}, 1000.0, 0.0, 2 * kPi - 0.0005), false);
    const auto result = cleaned(nearly);
    ASSERT_EQ(result.size(), 1U);
    EXPECT_TRUE(result[0]->GetCurve(0)->IsClosed());
}

TEST(LoopCleaningTest, aLoopIsCutWhereItComesBackToAVertex)
{
    const auto result = cleaned(loop({{0, 0}, {50, 50}, {100, 0}, {100, 100}, {50, 50}, {0, 70}}));
    ASSERT_EQ(result.size(), 2U);
    EXPECT_GE(result[0]->Area(), result[1]->Area());
}

TEST(LoopCleaningTest, arcsOnOneCircleAreJoinedAndTurnsAreNot)
{
    vks::CRefPtr<vks::CLoop> pieces(new vks::CLoop);
    pieces->AddCurve(new vks::CArc2d({0, 0}, 100.0, 0.0, 0.5), false);
    pieces->AddCurve(new vks::CArc2d({0, 0}, 100.0, 0.5, 1.5), false);
    pieces->AddCurve(new vks::CLine2d(pieces->GetCurve(1)->EndPoint(), {0, 0}), false);
    pieces->AddCurve(new vks::CLine2d({0, 0}, {100, 0}), false);
    const auto result = cleaned(pieces);
    ASSERT_EQ(result.size(), 1U);
    EXPECT_EQ(result[0]->CurveCount(), 3);
    EXPECT_NEAR(result[0]->Area(), 1e4 * 1.5 / 2, 1e-6);
}

TEST(LoopCleaningTest, whatCollapsesIsGone)
{
    EXPECT_TRUE(cleaned(loop(box(0, 0, 0.5, 0.5))).empty());
    EXPECT_TRUE(cleaned(loop(box(0, 0, 100, 0.5))).empty());
    EXPECT_TRUE(cleaned(new vks::CLoop).empty());
}
