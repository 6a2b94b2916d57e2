#include "platform/geometry/CCoedgeList.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

namespace {

using vks::CLine2d;
using vks::CLoop;
using vks::CRefPtr;
using Vec = vks::CVec2<double>;

TEST(CCoedgeListTest, curvesStandInOrderOfAdding)
{
    CLoop loop;
    loop.AddCurve(new CLine2d({0, 0}, {1, 0}), false);
    loop.AddCurve(new CLine2d({1, 0}, {1, 1}), false);
    ASSERT_EQ(loop.CurveCount(), 2);
    EXPECT_EQ(loop.GetCurve(1)->EndPoint(), Vec(1, 1));
    EXPECT_EQ(loop.Length(), 2);
}

TEST(CCoedgeListTest, reversedCurveIsTurnedAround)
{
    CLoop loop;
    loop.AddCurve(new CLine2d({0, 0}, {1, 0}), true);
    EXPECT_EQ(loop.GetCurve(0)->StartPoint(), Vec(1, 0));
}

TEST(CCoedgeListTest, nullIsIgnoredAndIndexOutOfRangeGivesNull)
{
    CLoop loop;
    loop.AddCurve(nullptr, false);
    EXPECT_EQ(loop.CurveCount(), 0);
    EXPECT_EQ(loop.GetCurve(0), nullptr);
    EXPECT_EQ(loop.GetCurve(-1), nullptr);
}

TEST(CCoedgeListTest, getCurvesReplacesTheContentOfTheVector)
{
    CLoop loop;
    loop.AddCurve(new CLine2d({0, 0}, {1, 0}), false);
    std::vector<vks::CCurve2d *> curves(3, nullptr);
    loop.GetCurves(curves);
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_EQ(curves[0], loop.GetCurve(0));
}

TEST(CCoedgeListTest, closednessIsAskedWithinATolerance)
{
    CLoop loop;
    EXPECT_FALSE(loop.IsClosed(1));
    loop.AddCurve(new CLine2d({0, 0}, {10, 0}), false);
    loop.AddCurve(new CLine2d({10, 0.5}, {0, 0}), false);
    EXPECT_FALSE(loop.IsClosed(0.4));
    EXPECT_TRUE(loop.IsClosed(0.6));
}

TEST(CCoedgeListTest, reversedLoopRunsTheOtherWayThroughTheSameCorners)
{
    const CRefPtr<CLoop> loop(shapes::loop(shapes::box(0, 0, 4, 3)));
    loop->Reverse();
    EXPECT_EQ(loop->GetCurve(0)->StartPoint(), Vec(0, 0));
    EXPECT_EQ(loop->GetCurve(0)->EndPoint(), Vec(0, 3));
    EXPECT_TRUE(loop->IsClosed(0));
    EXPECT_EQ(loop->SignedArea(), -12);
}

TEST(CCoedgeListTest, movesTurnsAndMirrorsAllCurves)
{
    const CRefPtr<CLoop> loop(shapes::loop(shapes::box(0, 0, 4, 3)));
    loop->Translate({10, 20});
    EXPECT_EQ(loop->Box().minPt, Vec(10, 20));
    EXPECT_EQ(loop->Box().maxPt, Vec(14, 23));
    loop->MirrorX();
    EXPECT_EQ(loop->Box().minPt, Vec(-14, 20));
    loop->Rotate({0, 0}, shapes::kPi);
    EXPECT_NEAR(loop->Box().maxPt.x, 14, 1e-12);
    EXPECT_NEAR(loop->Box().maxPt.y, -20, 1e-12);
}

} // namespace
