#include "platform/services/HbxRelation.h"

#include "geometry/ExpectPoints.h"
#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;
using Line = vks::CLine2d;
using Arc = vks::CArc2d;

TEST(HbxRelationTest, relationsArePassedOn)
{
    const PolygonPtr square = rectangle(0, 0, 100, 100);
    EXPECT_EQ(hbx::polyPolyPosition(square, rectangle(100, 0, 100, 100), 0), vks::kPolygonsTouch);
    EXPECT_EQ(hbx::polyPolyPosition(square, nullptr, 0), vks::kPolygonsInvalid);
    const Line line({20, 50}, {80, 50});
    EXPECT_EQ(hbx::linePolyPosition(&line, square, 0), vks::kCurveIn);
    EXPECT_EQ(hbx::linePolyPosition(nullptr, square, 0), vks::kCurveInvalid);
}

TEST(HbxRelationTest, extIntersectExtendsTheFirstCurveOnly)
{
    const Line shortLine({0, 0}, {1, 0});
    const Line far({500, -10}, {500, 10});
    const Line beside({500, 5}, {500, 10});
    expectPoints(hbx::extIntersect(&shortLine, &far, 1e-6), {{500, 0}});
    expectPoints(hbx::extIntersect(&shortLine, &beside, 1e-6), {});
    expectPoints(hbx::extIntersect(&far, &shortLine, 1e-6), {});
}

TEST(HbxRelationTest, extIntersectMakesACircleOfAnArc)
{
    const Arc quarter({0, 0}, 100.0, 0.0, kPi / 2);
    const Line across({-200, 0}, {200, 0});
    expectPoints(hbx::extIntersect(&quarter, &across, 1e-6), {{100, 0}, {-100, 0}});
}

TEST(HbxRelationTest, extIntersectWithAPolygonIsOrderedAlongTheCurve)
{
    const PolygonPtr rim = frame(0, 0, 1000, 200);
    const Line right({400, 500}, {500, 500});
    expectPoints(hbx::extIntersect(&right, rim, 1e-6), {{0, 500}, {200, 500}, {800, 500}, {1000, 500}});
    const Line left({500, 500}, {400, 500});
    expectPoints(hbx::extIntersect(&left, rim, 1e-6), {{1000, 500}, {800, 500}, {200, 500}, {0, 500}});
}

TEST(HbxRelationTest, aCornerIsOnePoint)
{
    const PolygonPtr square = rectangle(0, 0, 100, 100);
    const Line diagonal({40, 40}, {60, 60});
    expectPoints(hbx::extIntersect(&diagonal, square, 1e-6), {{0, 0}, {100, 100}});
}

TEST(HbxRelationTest, extIntersectOfNothingIsEmpty)
{
    const Line line({0, 0}, {1, 0});
    const vks::CCurve2d *noCurve = nullptr;
    const vks::CPolygon *noPolygon = nullptr;
    EXPECT_TRUE(hbx::extIntersect(noCurve, &line, 1e-6).empty());
    EXPECT_TRUE(hbx::extIntersect(&line, noCurve, 1e-6).empty());
    EXPECT_TRUE(hbx::extIntersect(&line, noPolygon, 1e-6).empty());
    EXPECT_TRUE(hbx::extIntersect(noCurve, rectangle(0, 0, 1, 1), 1e-6).empty());
}

TEST(HbxRelationTest, linesAreParallelEitherWayRound)
{
    const Line line({0, 0}, {100, 0});
    const Line back({100, 50}, {0, 50});
    const Line slight({0, 0}, {100, 0.05});
    EXPECT_TRUE(hbx::isParallel(&line, &back, 1e-6, 1e-6));
    EXPECT_FALSE(hbx::isParallel(&line, &slight, 1e-6, 1e-6));
    EXPECT_TRUE(hbx::isParallel(&line, &slight, 1e-3, 1e-6));
}

TEST(HbxRelationTest, arcsAreParallelAboutOneCentre)
{
    const Arc arc({0, 0}, 100.0, 0.0, 1.0);
    const Arc larger({0, 1e-7}, 200.0, 3.0, 2.0);
    const Arc beside({1, 0}, 100.0, 0.0, 1.0);
    EXPECT_TRUE(hbx::isParallel(&arc, &larger, 1e-6, 1e-6));
    EXPECT_FALSE(hbx::isParallel(&arc, &beside, 1e-6, 1e-6));
}

TEST(HbxRelationTest, parallelIsFalseForMixedAndMissingCurves)
{
    const Line line({0, 0}, {100, 0});
    const Line point({5, 5}, {5, 5});
    const Arc arc({0, 0}, 100.0, 0.0, 1.0);
    EXPECT_FALSE(hbx::isParallel(&line, &arc, 1e-6, 1e-6));
    EXPECT_FALSE(hbx::isParallel(&line, nullptr, 1e-6, 1e-6));
    EXPECT_FALSE(hbx::isParallel(&point, &line, 1e-6, 1e-6));
}

TEST(HbxRelationTest, offsetIsPositiveToTheLeft)
{
    const Line line({0, 0}, {100, 0});
    const vks::CRefPtr<vks::CCurve2d> beside = hbx::offSetCurve(&line, 10);
    ASSERT_TRUE(beside);
    EXPECT_LT(beside->StartPoint().DistanceTo({0, 10}), 1e-9);
    EXPECT_FALSE(hbx::offSetCurve(nullptr, 10));
}

TEST(HbxRelationTest, sideOfALineLengthenedAtItsEnds)
{
    const Line line({0, 0}, {100, 0});
    EXPECT_EQ(hbx::pointSegSide({50, 1}, &line, 1e-6), 1);
    EXPECT_EQ(hbx::pointSegSide({500, -1}, &line, 1e-6), -1);
    EXPECT_EQ(hbx::pointSegSide({500, 0}, &line, 1e-6), 0);
    EXPECT_EQ(hbx::pointSegSide({50, 1}, &line, 1.0), 0);
}

TEST(HbxRelationTest, sideOfAnArcIsThatOfItsCircle)
{
    const Arc left({0, 0}, 100.0, 0.0, 1.0);
    const Arc right({0, 0}, 100.0, 1.0, 0.0);
    EXPECT_EQ(hbx::pointSegSide({0, 0}, &left, 1e-6), 1);
    EXPECT_EQ(hbx::pointSegSide({-150, 0}, &left, 1e-6), -1);
    EXPECT_EQ(hbx::pointSegSide({-100, 0}, &left, 1e-6), 0);
    EXPECT_EQ(hbx::pointSegSide({0, 0}, &right, 1e-6), -1);
}

TEST(HbxRelationTest, nothingHasNoSide)
{
    Line empty({0, 0}, {100, 0});
    empty.SetStartT(200);
    EXPECT_EQ(hbx::pointSegSide({5, 5}, nullptr, 1e-6), 0);
    EXPECT_EQ(hbx::pointSegSide({5, 5}, &empty, 1e-6), 0);
}
