#include "platform/geometry/OrientProjectCurve2d.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using shapes::kPi;
using vks::CArc2d;
using vks::CLine2d;
using Frame = vks::CCoord3<double>;
using Vec = vks::CVec2<double>;
using Vec3 = vks::CVec3<double>;

const Vec3 kDown{0, 0, 1};
/** A quarter turn about (5000, 1000), 300 up. */
const Frame kTurned({5000, 1000, 300}, {0, 1, 0}, {-1, 0, 0});
/** Tilted by 60 degrees about the x axis: what runs along its v is seen from above at half its length. */
const Frame kTilted({0, 0, 0}, {1, 0, 0}, {0, 0.5, std::sqrt(0.75)});

TEST(OrientProjectCurve2dTest, worldToWorldKeepsTheCurveBitForBit)
{
    const CArc2d arc({0.1, 0.7}, {1e7 / 3, 2}, 0.3);
    const auto same = OrientProjectCurve2d(Frame(), &arc, Frame(), kDown, true);
    ASSERT_TRUE(same);
    EXPECT_EQ(same->ToText(), arc.ToText());
}

TEST(OrientProjectCurve2dTest, absentFrameCountsAsTheWorlds)
{
    const CLine2d line({1, 2}, {3, 4});
    EXPECT_EQ(OrientProjectCurve2d(Frame::Absent(), &line, Frame::Absent(), kDown, true)->ToText(), line.ToText());
}

TEST(OrientProjectCurve2dTest, lineGoesThroughATurnedFrame)
{
    const CLine2d line({0, 0}, {300, 200});
    const auto moved = OrientProjectCurve2d(kTurned, &line, Frame(), kDown, true);
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved->ToText(), "LINESTRING(5000 1000, 4800 1300)");
}

TEST(OrientProjectCurve2dTest, wayIntoAFrameUndoesTheWayOut)
{
    const CArc2d arc({0, 0}, {1000, 0}, 0.5);
    const auto out = OrientProjectCurve2d(kTurned, &arc, Frame(), kDown, true);
    ASSERT_TRUE(out);
    const auto back = OrientProjectCurve2d(Frame(), out, kTurned, kDown, true);
    ASSERT_TRUE(back);
    EXPECT_LT(back->MidPoint().DistanceTo(arc.MidPoint()), 1e-9);
    EXPECT_LT(back->EndPoint().DistanceTo(arc.EndPoint()), 1e-9);
}

TEST(OrientProjectCurve2dTest, mirroringFrameTurnsArcsAround)
{
    const Frame mirrored({0, 0, 0}, {-1, 0, 0}, {0, 1, 0});
    const CArc2d arc({0, 0}, {1000, 0}, 0.5);
    const auto moved = OrientProjectCurve2d(mirrored, &arc, Frame(), kDown, true);
    ASSERT_TRUE(moved);
    EXPECT_NEAR(dynamic_cast<CArc2d &>(*moved).GetBulge(), -0.5, 1e-12);
    const CArc2d circle(Vec(0, 0), 100.0, 0.0, 2 * kPi);
    const auto turned = OrientProjectCurve2d(mirrored, &circle, Frame(), kDown, true);
    ASSERT_TRUE(turned);
    EXPECT_LT(dynamic_cast<CArc2d &>(*turned).SweepAngle(), 0);
}

TEST(OrientProjectCurve2dTest, lineOfATiltedFrameIsShortened)
{
    const CLine2d line({0, 0}, {0, 1000});
    const auto seen = OrientProjectCurve2d(kTilted, &line, Frame(), kDown, true);
    ASSERT_TRUE(seen);
    EXPECT_NEAR(seen->Length(), 500, 1e-9);
}

TEST(OrientProjectCurve2dTest, arcOfATiltedFrameIsNoArc)
{
    const CArc2d arc({0, 0}, {1000, 0}, 1.0);
    EXPECT_EQ(OrientProjectCurve2d(kTilted, &arc, Frame(), kDown, true), nullptr);
    const auto seen = OrientProjectCurve2d(kTilted, &arc, Frame(), kDown, false);
    ASSERT_TRUE(seen);
    EXPECT_LT(seen->MidPoint().DistanceTo({500, -250}), 1e-9);
}

TEST(OrientProjectCurve2dTest, curveSeenEdgeOnGivesNull)
{
    const Frame upright({0, 0, 0}, {0, 0, 1}, {0, 1, 0});
    const CLine2d vertical({0, 0}, {1000, 0});
    EXPECT_EQ(OrientProjectCurve2d(upright, &vertical, Frame(), kDown, true), nullptr);
}

TEST(OrientProjectCurve2dTest, directionWithinTheTargetPlaneGivesNull)
{
    const CLine2d line({0, 0}, {1000, 0});
    EXPECT_EQ(OrientProjectCurve2d(Frame(), &line, Frame(), {1, 0, 0}, true), nullptr);
    EXPECT_EQ(OrientProjectCurve2d(Frame(), &line, Frame(), {0, 0, 0}, true), nullptr);
}

TEST(OrientProjectCurve2dTest, nullAndEmptyCurvesGiveNull)
{
    EXPECT_EQ(OrientProjectCurve2d(Frame(), nullptr, Frame(), kDown, true), nullptr);
    CLine2d line({0, 0}, {10, 0});
    line.SetStartT(20);
    EXPECT_EQ(OrientProjectCurve2d(Frame(), &line, Frame(), kDown, true), nullptr);
}

TEST(OrientProjectCurve2dTest, polygonGoesCurveByCurve)
{
    const auto shape = shapes::polygon({shapes::box(0, 0, 10, 10), shapes::box(2, 2, 2, 2)});
    const auto moved = OrientProjectPolygon(kTurned, shape, Frame(), kDown);
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved->LoopCount(), 2);
    EXPECT_EQ(moved->Box().minPt, Vec(4990, 1000));
    EXPECT_EQ(OrientProjectPolygon(kTilted, shapes::circle({0, 0}, 1), Frame(), kDown), nullptr);
    EXPECT_EQ(OrientProjectPolygon(Frame(), nullptr, Frame(), kDown), nullptr);
    EXPECT_EQ(OrientProjectPolygon(Frame(), shape, Frame(), {1, 0, 0}), nullptr) << "a direction within the plane";
}

} // namespace
