#include "platform/geometry/CurveSupport.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;
using vks::CurveSupport;

TEST(CurveSupportTest, ofALineIsTheLineWithoutEnd)
{
    const CurveSupport line(vks::CLine2d({0, 10}, {50, 10}));
    EXPECT_TRUE(line.isLine());
    EXPECT_DOUBLE_EQ(line.distanceTo({500, 13}), 3);
    EXPECT_EQ(line.sideOf({500, 13}), 1);
    EXPECT_EQ(line.sideOf({500, 7}), -1);
    EXPECT_DOUBLE_EQ(line.positionOf({-20, 13}, 1e-6), -20);
    EXPECT_EQ(line.pointAt(75), Point(75, 10));
    EXPECT_EQ(line.nearestTo({80, 0}), Point(80, 10));
}

TEST(CurveSupportTest, ofAnArcIsItsCircle)
{
    const CurveSupport clockwise(vks::CArc2d({0, 0}, 100.0, kPi / 2, 0.0));
    EXPECT_FALSE(clockwise.isLine());
    EXPECT_NEAR(clockwise.distanceTo({-130, 0}), 30, 1e-9);
    EXPECT_EQ(clockwise.sideOf({0, 0}), -1);
    EXPECT_NEAR(clockwise.positionOf({100, 0}, 1e-6), 50 * kPi, 1e-6);
    EXPECT_NEAR(clockwise.positionOf({-100, 0}, 1e-6), 150 * kPi, 1e-6);
    EXPECT_LT(clockwise.pointAt(150 * kPi).DistanceTo({-100, 0}), 1e-9);
    EXPECT_LT(clockwise.nearestTo({0, 0}).DistanceTo({0, 100}), 1e-9);
}

TEST(CurveSupportTest, aPointJustBeforeTheStartOfACircleIsNotAtItsEnd)
{
    const CurveSupport circle(vks::CArc2d({0, 0}, 100.0, 0.0, 2 * kPi));
    EXPECT_NEAR(circle.positionOf({100, -5e-7}, 1e-6), -5e-7, 1e-9);
    EXPECT_NEAR(circle.positionOf({100, -5e-3}, 1e-6), 200 * kPi - 5e-3, 1e-6);
}

TEST(CurveSupportTest, aFlatArcIsALine) { EXPECT_TRUE(CurveSupport(vks::CArc2d({0, 0}, {100, 0}, 0.0)).isLine()); }

TEST(CurveSupportTest, supportsMeetInUpToTwoPoints)
{
    const CurveSupport line(vks::CLine2d({0, 60}, {1, 60}));
    const CurveSupport upright(vks::CLine2d({7, 0}, {7, 1}));
    const CurveSupport circle(vks::CArc2d({0, 0}, 100.0, 0.0, 1.0));
    const CurveSupport touching(vks::CArc2d({300, 0}, 200.0, 0.0, 1.0));
    const CurveSupport concentric(vks::CArc2d({0, 0}, 50.0, 0.0, 1.0));
    EXPECT_EQ(supportMeetings(line, line, 1e-6).count, 0);
    EXPECT_EQ(supportMeetings(line, upright, 1e-6).count, 1);
    EXPECT_EQ(supportMeetings(line, circle, 1e-6).count, 2);
    EXPECT_EQ(supportMeetings(circle, touching, 1e-6).count, 1);
    EXPECT_EQ(supportMeetings(circle, concentric, 1e-6).count, 0);
}
