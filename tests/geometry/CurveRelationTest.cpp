#include "platform/geometry/CurveRelation.h"

#include "geometry/ExpectPoints.h"
#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace shapes;
using Line = vks::CLine2d;
using Arc = vks::CArc2d;
using vks::CurveIntersections;

namespace {

double distance(const vks::CCurve2d &a, const vks::CCurve2d &b)
{
    Point onA;
    Point onB;
    const double result = vks::GeometryDistance(&a, &b, onA, onB, 0.0);
    EXPECT_NEAR(onA.DistanceTo(onB), result, 1e-9);
    EXPECT_LT(a.DistanceTo(onA), 1e-7);
    EXPECT_LT(b.DistanceTo(onB), 1e-7);
    return result;
}

/** Least distance by many points along a. */
double sampledDistance(const vks::CCurve2d &a, const vks::CCurve2d &b)
{
    constexpr int count = 4000;
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i <= count; ++i)
        least = std::min(least, b.DistanceTo(a.GetPoint(a.StartT() + a.Length() * i / count)));
    return least;
}

} // namespace

TEST(CurveIntersectionsTest, linesCrossInOnePoint)
{
    expectPoints(CurveIntersections(Line({0, 0}, {100, 0}), Line({50, -10}, {50, 10}), false, 1e-6), {{50, 0}});
    expectPoints(CurveIntersections(Line({0, 0}, {100, 0}), Line({150, -10}, {150, 10}), false, 1e-6), {});
    expectPoints(CurveIntersections(Line({0, 0}, {100, 0}), Line({150, -10}, {150, 10}), true, 1e-6), {{150, 0}});
    expectPoints(CurveIntersections(Line({0, 0}, {100, 0}), Line({0, 10}, {100, 10}), true, 1e-6), {});
}

TEST(CurveIntersectionsTest, endsWithinTheToleranceMeet)
{
    expectPoints(CurveIntersections(Line({0, 0}, {100, 0}), Line({50, 5e-7}, {50, 10}), false, 1e-6), {{50, 0}});
    expectPoints(CurveIntersections(Line({0, 0}, {100, 0}), Line({50, 2e-6}, {50, 10}), false, 1e-6), {});
    expectPoints(CurveIntersections(Line({0, 0}, {100, 0}), Line({100, 0}, {200, 0}), false, 1e-6), {{100, 0}});
}

TEST(CurveIntersectionsTest, aCommonStretchGivesItsEnds)
{
    const Line base({0, 0}, {100, 0});
    expectPoints(CurveIntersections(base, Line({150, 0}, {50, 0}), false, 1e-6), {{50, 0}, {100, 0}});
    expectPoints(CurveIntersections(base, Line({150, 0}, {50, 0}), true, 1e-6), {{50, 0}, {150, 0}});
    expectPoints(CurveIntersections(base, Line({-10, 3e-7}, {200, -4e-7}), false, 1e-6), {{0, 0}, {100, 0}});
    const Arc arc({0, 0}, 100.0, 0.0, kPi);
    expectPoints(CurveIntersections(arc, Arc({0, 0}, 100.0, 3 * kPi / 2, kPi / 2), false, 1e-6), {{0, 100}, {-100, 0}});
}

TEST(CurveIntersectionsTest, lineAndCircleInOrderAlongTheFirst)
{
    const Arc circle({0, 0}, 100.0, 0.0, 2 * kPi);
    const Line across({200, 60}, {-200, 60});
    expectPoints(CurveIntersections(across, circle, false, 1e-6), {{80, 60}, {-80, 60}});
    expectPoints(CurveIntersections(circle, across, false, 1e-6), {{80, 60}, {-80, 60}});
    const Arc clockwise({0, 0}, 100.0, 2 * kPi, 0.0);
    expectPoints(CurveIntersections(clockwise, across, false, 1e-6), {{-80, 60}, {80, 60}});
}

TEST(CurveIntersectionsTest, tangencyIsOnePoint)
{
    const Arc circle({0, 0}, 100.0, 0.0, 2 * kPi);
    for (const double gap : {0.0, 5e-7, -5e-7}) {
        expectPoints(CurveIntersections(Line({-50, 100 + gap}, {50, 100 + gap}), circle, false, 1e-6), {{0, 100}});
        expectPoints(CurveIntersections(circle, Arc({300 + gap, 0}, 200.0, 0.0, 2 * kPi), false, 1e-6), {{100, 0}});
        expectPoints(CurveIntersections(circle, Arc({60 + gap, 0}, 40.0, 0.0, 2 * kPi), false, 1e-6), {{100, 0}});
        expectPoints(CurveIntersections(Arc({60 + gap, 0}, 40.0, 0.0, 2 * kPi), circle, false, 1e-6), {{100, 0}});
    }
    expectPoints(CurveIntersections(Line({-50, 100.001}, {50, 100.001}), circle, false, 1e-6), {});
}

TEST(CurveIntersectionsTest, circlesCrossInTwoPoints)
{
    const Arc left({0, 0}, 50.0, 0.0, 2 * kPi);
    const Arc right({60, 0}, 50.0, 0.0, 2 * kPi);
    expectPoints(CurveIntersections(left, right, false, 1e-6), {{30, 40}, {30, -40}});
    const Arc lower({0, 0}, 50.0, -1.5, 0.0);
    expectPoints(CurveIntersections(lower, right, false, 1e-6), {{30, -40}});
    expectPoints(CurveIntersections(lower, right, true, 1e-6), {{30, -40}, {30, 40}});
}

TEST(CurveIntersectionsTest, emptyAndPointLikeCurvesHaveNone)
{
    Line empty({0, 0}, {100, 0});
    empty.SetStartT(200);
    const Line point({50, 0}, {50, 0});
    const Line base({0, 0}, {100, 0});
    EXPECT_TRUE(CurveIntersections(empty, base, true, 1e-6).empty());
    EXPECT_TRUE(CurveIntersections(base, empty, true, 1e-6).empty());
    EXPECT_TRUE(CurveIntersections(base, point, true, 1e-6).empty());
}

TEST(CurveIntersectionsTest, trimmedCurvesCountAsTheyStand)
{
    Line trimmed({0, 0}, {100, 0});
    trimmed.SetStartT(60);
    const Line across({50, -10}, {50, 10});
    EXPECT_TRUE(CurveIntersections(trimmed, across, false, 1e-6).empty());
    expectPoints(CurveIntersections(trimmed, across, true, 1e-6), {{50, 0}});
}

TEST(GeometryDistanceTest, linesAndArcs)
{
    const Line base({0, 0}, {100, 0});
    const Arc circle({0, 200}, 50.0, 0.0, 2 * kPi);
    EXPECT_NEAR(distance(base, Line({0, 30}, {100, 30})), 30, 1e-9);
    EXPECT_NEAR(distance(base, Line({103, 4}, {200, 50})), 5, 1e-9);
    EXPECT_NEAR(distance(base, Line({50, -5}, {50, 5})), 0, 1e-9);
    EXPECT_NEAR(distance(base, circle), 150, 1e-9);
    EXPECT_NEAR(distance(circle, Arc({200, 200}, 100.0, 0.0, 2 * kPi)), 50, 1e-9);
    EXPECT_NEAR(distance(circle, Arc({0, 200}, 80.0, 1.0, 2.0)), 30, 1e-9);
    EXPECT_NEAR(distance(circle, Arc({10, 200}, 10.0, 0.0, 2 * kPi)), 30, 1e-9);
}

TEST(GeometryDistanceTest, agreesWithManySamples)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-500, 500);
    std::uniform_real_distribution<double> angle(-6, 6);
    const auto some = [&](bool round) -> vks::CRefPtr<vks::CCurve2d> {
        const Point centre(place(random), place(random));
        if (round)
            return new Arc(centre, std::fabs(place(random)) + 1, angle(random), angle(random));
        return new Line(centre, {place(random), place(random)});
    };
    for (int i = 0; i < 400; ++i) {
        const auto a = some(i % 2);
        const auto b = some(i % 4 > 1);
        const double exact = distance(*a, *b);
        const double sampled = sampledDistance(*a, *b);
        EXPECT_LE(exact, sampled + 1e-9) << i;
        EXPECT_GE(exact, sampled - a->Length() / 4000) << i;
    }
}

TEST(GeometryDistanceTest, aboveTheLimitItIsInfiniteAndPointsStay)
{
    const Line base({0, 0}, {100, 0});
    const Line beside({0, 30}, {100, 30});
    Point onA(7, 7);
    Point onB(8, 8);
    EXPECT_EQ(vks::GeometryDistance(&base, &beside, onA, onB, 29.0), std::numeric_limits<double>::infinity());
    EXPECT_EQ(onA, Point(7, 7));
    EXPECT_EQ(onB, Point(8, 8));
    EXPECT_NEAR(vks::GeometryDistance(&base, &beside, onA, onB, 30.0), 30.0, 1e-9);
    EXPECT_NEAR(vks::GeometryDistance(&base, &beside, onA, onB, -1.0), 30.0, 1e-9);
}

TEST(GeometryDistanceTest, nothingIsInfinitelyFar)
{
    const Line base({0, 0}, {100, 0});
    Line empty({0, 0}, {100, 0});
    empty.SetStartT(200);
    Point onA;
    Point onB;
    const double none = std::numeric_limits<double>::infinity();
    EXPECT_EQ(vks::GeometryDistance(nullptr, &base, onA, onB, 0), none);
    EXPECT_EQ(vks::GeometryDistance(&base, nullptr, onA, onB, 0), none);
    EXPECT_EQ(vks::GeometryDistance(&base, &empty, onA, onB, 0), none);
}

TEST(OffsetCurveTest, leftIsPositive)
{
    const Line line({0, 0}, {0, 100});
    const auto left = vks::OffsetCurve(&line, 10);
    EXPECT_LT(left->StartPoint().DistanceTo({-10, 0}), 1e-9);
    EXPECT_LT(left->EndPoint().DistanceTo({-10, 100}), 1e-9);
}

TEST(OffsetCurveTest, arcsKeepCentreAndSweep)
{
    const Arc left({5, 5}, 100.0, 0.5, 2.0);
    const Arc right({5, 5}, 100.0, 2.0, 0.5);
    for (const double move : {10.0, -10.0}) {
        const auto ofLeft = vks::OffsetCurve(&left, move);
        const auto ofRight = vks::OffsetCurve(&right, move);
        EXPECT_NEAR(static_cast<Arc &>(*ofLeft).Radius(), 100 - move, 1e-9);
        EXPECT_NEAR(static_cast<Arc &>(*ofRight).Radius(), 100 + move, 1e-9);
        EXPECT_NEAR(ofLeft->Length(), 1.5 * (100 - move), 1e-6);
        EXPECT_NEAR(static_cast<Arc &>(*ofRight).SweepAngle(), -1.5, 1e-9);
    }
    const Arc full({5, 5}, 100.0, 0.0, 2 * kPi);
    EXPECT_TRUE(vks::OffsetCurve(&full, 50)->IsClosed());
}

TEST(OffsetCurveTest, anArcWithoutRadiusIsNone)
{
    const Arc left({5, 5}, 100.0, 0.5, 2.0);
    EXPECT_FALSE(vks::OffsetCurve(&left, 100));
    EXPECT_FALSE(vks::OffsetCurve(&left, 150));
    EXPECT_TRUE(vks::OffsetCurve(&left, -150));
}

TEST(OffsetCurveTest, nothingHasNoOffset)
{
    Line empty({0, 0}, {100, 0});
    empty.SetStartT(200);
    const Line point({5, 5}, {5, 5});
    const Line line({0, 0}, {100, 0});
    EXPECT_FALSE(vks::OffsetCurve(nullptr, 1));
    EXPECT_FALSE(vks::OffsetCurve(&empty, 1));
    EXPECT_FALSE(vks::OffsetCurve(&point, 1));
    EXPECT_FALSE(vks::OffsetCurve(&line, std::nan("")));
}
