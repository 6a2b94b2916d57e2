#include "platform/geometry/CArc2d.h"

#include "geometry/ExpectPoints.h"
#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

using shapes::expectNear;
using shapes::kPi;
using vks::CArc2d;
using Vec = vks::CVec2<double>;

TEST(CArc2dTest, bulgeOneIsHalfACircleToTheRightOfItsChord)
{
    const CArc2d arc({0, 0}, {1000, 0}, 1.0);
    EXPECT_EQ(arc.Type(), 2);
    EXPECT_NEAR(arc.Radius(), 500, 1e-9);
    expectNear(arc.CenterPt(), {500, 0});
    expectNear(arc.MidPoint(), {500, -500});
    EXPECT_NEAR(arc.Length(), 500 * kPi, 1e-9);
    EXPECT_NEAR(arc.SweepAngle(), kPi, 1e-12);
    expectNear(arc.StartVt(), {0, -1});
    expectNear(arc.EndVt(), {0, 1});
}

TEST(CArc2dTest, negativeBulgeRunsClockwise)
{
    const CArc2d arc({0, 0}, {1000, 0}, -1.0);
    expectNear(arc.MidPoint(), {500, 500});
    EXPECT_NEAR(arc.SweepAngle(), -kPi, 1e-12);
    expectNear(arc.StartVt(), {0, 1});
}

TEST(CArc2dTest, bulgeAboveOneIsMoreThanHalfACircle)
{
    const double bulge = std::tan(3 * kPi / 8); // three quarters of a circle
    const CArc2d arc({0, 0}, {1000, 0}, bulge);
    EXPECT_NEAR(arc.SweepAngle(), 3 * kPi / 2, 1e-12);
    EXPECT_NEAR(arc.Radius(), 500 * std::sqrt(2.0), 1e-9);
    expectNear(arc.CenterPt(), {500, -500});
    EXPECT_NEAR(arc.GetBulge(), bulge, 1e-12);
}

struct QuarterCase
{
    double startAngle;
    double sweep;
    Vec minimum;
    Vec maximum;
};
class CArc2dQuarterTest : public ::testing::TestWithParam<QuarterCase>
{};

TEST_P(CArc2dQuarterTest, boxIsExactInEveryQuadrantAndBothDirections)
{
    const QuarterCase &quarter = GetParam();
    CArc2d arc(Vec(1, 2), 10.0, quarter.startAngle, quarter.startAngle + quarter.sweep);
    for (int direction = 0; direction < 2; ++direction) {
        expectNear(arc.Box().minPt, quarter.minimum, 1e-12);
        expectNear(arc.Box().maxPt, quarter.maximum, 1e-12);
        arc.Reverse();
    }
}
INSTANTIATE_TEST_SUITE_P(
    Quarters, CArc2dQuarterTest,
    ::testing::Values(QuarterCase{0, kPi / 2, {1, 2}, {11, 12}}, QuarterCase{kPi / 2, kPi / 2, {-9, 2}, {1, 12}},
                      QuarterCase{kPi, kPi / 2, {-9, -8}, {1, 2}}, QuarterCase{3 * kPi / 2, kPi / 2, {1, -8}, {11, 2}},
                      QuarterCase{0, kPi, {-9, 2}, {11, 12}}, QuarterCase{-kPi / 2, kPi, {1, -8}, {11, 12}},
                      QuarterCase{kPi / 4,
                                  -kPi / 2,
                                  {1 + 10 / std::sqrt(2.0), 2 - 10 / std::sqrt(2.0)},
                                  {11, 2 + 10 / std::sqrt(2.0)}},
                      QuarterCase{0, 2 * kPi, {-9, -8}, {11, 12}}));

TEST(CArc2dTest, fullTurnIsAClosedCircle)
{
    const CArc2d circle(Vec(100, 200), 50.0, 0.0, 6.283185307179586);
    EXPECT_TRUE(circle.IsClosed());
    EXPECT_EQ(circle.StartPoint(), circle.EndPoint());
    EXPECT_EQ(circle.CenterPt(), Vec(100, 200));
    EXPECT_NEAR(circle.Length(), 100 * kPi, 1e-9);
    EXPECT_TRUE(std::isinf(circle.GetBulge()));
    EXPECT_EQ(circle.ToText(), "CIRCULARSTRING(150 200, 50 200, 150 200)");
}

TEST(CArc2dTest, trimmedCircleIsOpen)
{
    CArc2d circle(Vec(0, 0), 100.0, 0.0, 2 * kPi);
    circle.SetEndT(100 * kPi);
    EXPECT_FALSE(circle.IsClosed());
    expectNear(circle.EndPoint(), {-100, 0});
    EXPECT_NEAR(circle.GetBulge(), 1.0, 1e-12);
}

TEST(CArc2dTest, arcMayBeLengthenedToItsFullCircleAndNoFarther)
{
    CArc2d arc(Vec(0, 0), 100.0, 0.0, kPi / 2);
    arc.SetEndT(1e9);
    EXPECT_TRUE(arc.IsClosed());
    EXPECT_NEAR(arc.Length(), 200 * kPi, 1e-9);
}

TEST(CArc2dTest, circleThatStartsElsewhereEndsWhereItStartsToTheLastBit)
{
    CArc2d circle(Vec(1e6, 7), 100.0, 0.3, 0.3 + 2 * kPi);
    circle.SetStartT(-77);
    EXPECT_TRUE(circle.IsClosed());
    EXPECT_EQ(circle.StartPoint(), circle.EndPoint());
    EXPECT_NEAR(circle.Length(), 200 * kPi, 1e-9);
    expectNear(circle.MidPoint(), circle.CenterPt() * 2.0 - circle.StartPoint());
}

TEST(CArc2dTest, trimmingKeepsTheParameterOfEveryPoint)
{
    CArc2d arc(Vec(0, 0), 100.0, 0.0, kPi);
    const Vec quarter = arc.GetPoint(50 * kPi);
    arc.SetStartT(25 * kPi);
    arc.SetEndT(75 * kPi);
    expectNear(arc.GetPoint(50 * kPi), quarter);
    expectNear(arc.MidPoint(), {0, 100});
    expectNear(arc.StartPoint(), {100 / std::sqrt(2.0), 100 / std::sqrt(2.0)});
}

TEST(CArc2dTest, startBeyondTheEndMakesAnEmptyCurve)
{
    CArc2d arc(Vec(0, 0), 100.0, 0.0, 1.0);
    arc.SetStartT(80);
    arc.SetEndT(20);
    EXPECT_TRUE(arc.IsEmpty());
    EXPECT_EQ(arc.Length(), 0);
    EXPECT_EQ(arc.TwiceSegmentArea(), 0);
    EXPECT_FALSE(arc.Box().IsValid());
    EXPECT_FALSE(arc.IsClosed());
}

TEST(CArc2dTest, segmentAreaIsExactAndSigned)
{
    EXPECT_NEAR(CArc2d({0, 0}, {1000, 0}, 1.0).TwiceSegmentArea(), kPi * 250000, 1e-6);
    EXPECT_NEAR(CArc2d({0, 0}, {1000, 0}, -1.0).TwiceSegmentArea(), -kPi * 250000, 1e-6);
    // A flat segment: two thirds of chord times rise, twice; the rise is half the chord times the bulge.
    EXPECT_NEAR(CArc2d({0, 0}, {1000, 0}, 1e-6).TwiceSegmentArea(), 2.0 * 2 / 3 * 1000 * 500e-6, 1e-9);
}

TEST(CArc2dTest, bulgeZeroIsAFlatArc)
{
    const CArc2d arc({0, 0}, {300, 400}, 0.0);
    EXPECT_EQ(arc.Type(), 2);
    EXPECT_TRUE(arc.IsFlat());
    EXPECT_EQ(arc.Length(), 500);
    EXPECT_EQ(arc.GetPoint(250), Vec(150, 200));
    EXPECT_EQ(arc.GetBulge(), 0);
    EXPECT_TRUE(std::isinf(arc.Radius()));
    EXPECT_FALSE(arc.CenterPt().IsFinite());
}

TEST(CArc2dTest, lineAndFlatArcAreNoRoundArcs)
{
    const CArc2d round({0, 0}, {300, 400}, 0.5);
    EXPECT_EQ(CArc2d::RoundArc(round), &round);
    EXPECT_EQ(CArc2d::RoundArc(CArc2d({0, 0}, {300, 400}, 0.0)), nullptr);
    EXPECT_EQ(CArc2d::RoundArc(vks::CLine2d({0, 0}, {300, 400})), nullptr);
}

TEST(CArc2dTest, bulgeOfWhichNoFiniteCircleComesIsAFlatArc)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double bulge : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN(), 1e200, 1e-320}) {
        const CArc2d arc({0, 0}, {300, 400}, bulge);
        EXPECT_TRUE(arc.IsFlat());
        EXPECT_EQ(arc.Length(), 500);
        EXPECT_TRUE(vks::CGeometry::LoadFromStr(arc.ToText().c_str()));
    }
}

TEST(CArc2dTest, arcAsFlatAsNumbersGoHasNoAreaAndItsPoints)
{
    const CArc2d arc({0, 0}, {1000, 0}, 1e-160); // of a circle whose square overflows
    EXPECT_FALSE(arc.IsFlat());
    EXPECT_NEAR(arc.TwiceSegmentArea(), 0, 1e-150);
    EXPECT_NEAR(arc.NearestT({250, 3}), 250, 1e-9);
    expectNear(arc.MidPoint(), {500, 0});
    expectNear(arc.SegmentCentroid(), {500, 0});
    EXPECT_EQ(arc.Box().maxPt, Vec(1000, 0));
}

TEST(CArc2dTest, almostFullCircleByBulgeKeepsItsEnds)
{
    const CArc2d arc({0, 0}, {0.001, 0}, 1e6);
    EXPECT_NEAR(arc.Radius(), 250, 1e-6);
    EXPECT_EQ(arc.EndPoint(), Vec(0.001, 0));
    EXPECT_FALSE(arc.IsClosed());
    expectNear(arc.MidPoint(), {0.0005, -500}, 1e-6);
    EXPECT_NEAR(arc.GetBulge() / 1e6, 1, 1e-6);
}

TEST(CArc2dTest, segmentCentroidIsExactAtEverySweep)
{
    // Against the sum over thin strips at right angles to the chord.
    for (const double sweep : {5e-5, 2e-4, 0.009, 0.011, 0.5, 3.0}) {
        const double radius = 1000 / sweep;
        const CArc2d arc(Vec(0, 0), radius, kPi / 2 - sweep / 2, kPi / 2 + sweep / 2);
        double area = 0;
        double moment = 0; // about the chord
        constexpr int kParts = 20000;
        for (int i = 0; i < kParts; ++i) {
            const double angle = sweep * ((i + 0.5) / kParts - 0.5);
            const double height = 2 * radius * std::sin((sweep / 2 + angle) / 2) * std::sin((sweep / 2 - angle) / 2);
            area += height * std::cos(angle);
            moment += height * height / 2 * std::cos(angle);
        }
        const double fromChord = arc.SegmentCentroid().y - arc.StartPoint().y;
        EXPECT_NEAR(fromChord, moment / area, moment / area * 1e-7 + radius * 1e-15) << sweep;
        EXPECT_NEAR(arc.SegmentCentroid().x, 0, 1e-6);
    }
}

TEST(CArc2dTest, pointInsideTheWholeCircleIsHeld)
{
    const CArc2d arc(Vec(0, 0), 100.0, 0.0, 1.0);
    EXPECT_TRUE(arc.CircleHolds({-99.999, 0}));
    EXPECT_FALSE(arc.CircleHolds({-100.001, 0}));
    EXPECT_FALSE(CArc2d({0, 0}, {1, 0}, 0.0).CircleHolds({0.5, 0}));
    const CArc2d flat({0, 0}, {1000, 0}, 1e-12); // its middle 5e-10 mm below, its centre 2.5e14 mm above
    EXPECT_TRUE(flat.CircleHolds({500, 0}));
    EXPECT_FALSE(flat.CircleHolds({500, -6e-10}));
}

TEST(CArc2dTest, boxOfAFlatArcKeepsItsDigits)
{
    const CArc2d arc({1000, 0}, {0, 0}, 1e-8); // its middle 5e-6 mm above
    EXPECT_NEAR(arc.Box().maxPt.y, 5e-6, 1e-15);
    EXPECT_EQ(arc.Box().minPt.y, 0);
}

TEST(CArc2dTest, boxHoldsSampledPointsAndTouchesThem)
{
    std::mt19937_64 random(23);
    std::uniform_real_distribution<double> place(-1e5, 1e5);
    std::uniform_real_distribution<double> bulges(-5, 5);
    for (int i = 0; i < 500; ++i) {
        const CArc2d arc({place(random), place(random)}, {place(random), place(random)}, bulges(random));
        const auto box = arc.Box();
        vks::CBox2<double> sampled;
        constexpr int kSamples = 2000;
        for (int part = 0; part <= kSamples; ++part)
            sampled.Add(arc.GetPoint(arc.Length() * part / kSamples));
        const double rise = arc.Radius() * 2e-6; // more than an arc between two samples rises above their chord
        EXPECT_TRUE(box.Contains(sampled.minPt, 1e-6) && box.Contains(sampled.maxPt, 1e-6));
        EXPECT_TRUE(sampled.Contains(box.minPt, rise) && sampled.Contains(box.maxPt, rise));
    }
}

TEST(CArc2dTest, arcBetweenEqualPointsHasNoLength)
{
    const CArc2d arc({5, 5}, {5, 5}, 0.5);
    EXPECT_EQ(arc.Length(), 0);
    EXPECT_EQ(arc.EndPoint(), Vec(5, 5));
    EXPECT_FALSE(arc.IsClosed());
}

TEST(CArc2dTest, circleOfRadiusZeroIsBuiltAsItStands)
{
    const CArc2d circle(Vec(3, 4), 0.0, 0.0, 6.283185307179586);
    EXPECT_EQ(circle.Length(), 0);
    EXPECT_EQ(circle.StartPoint(), Vec(3, 4));
    EXPECT_EQ(circle.DistanceTo({3, 10}), 6);
}

TEST(CArc2dTest, threePointsInALineMakeAFlatArc)
{
    const CArc2d arc(Vec(0, 0), Vec(5, 0), Vec(10, 0));
    EXPECT_TRUE(arc.IsFlat());
    EXPECT_EQ(arc.Length(), 10);
    EXPECT_EQ(arc.ToText(), "CIRCULARSTRING(0 0, 5 0, 10 0)");
}

TEST(CArc2dTest, numbersThatAreNotFiniteDoNoHarm)
{
    const double bad[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e308};
    for (const double value : bad) {
        CArc2d arc({value, 0}, {0, value}, value);
        arc.SetEndT(value);
        arc.Box();
        arc.NearestT({value, value});
        arc.Reverse();
        arc.Clone()->ToText();
        CArc2d(Vec(value, 0), value, value, 0).GetPoint(value);
        CArc2d(Vec(value, 0), Vec(0, 0), Vec(1, value)).TwiceSegmentArea();
    }
}

TEST(CArc2dTest, nearestPointOutsideTheSweepIsTheNearerEnd)
{
    const CArc2d arc(Vec(0, 0), 100.0, 0.0, kPi / 2);
    EXPECT_NEAR(arc.NearestT({200, 200}), 25 * kPi, 1e-9);
    EXPECT_EQ(arc.NearestT({100, -10}), 0);
    EXPECT_NEAR(arc.NearestT({-10, 100}), 50 * kPi, 1e-9);
    EXPECT_NEAR(arc.DistanceTo({-30, 140}), 50, 1e-9);
    EXPECT_EQ(arc.NearestT({0, 0}), 0); // the centre is as near to every point
}

TEST(CArc2dTest, mirroredArcTurnsTheOtherWay)
{
    CArc2d arc({0, 0}, {1000, 0}, 0.5);
    arc.MirrorX();
    EXPECT_EQ(arc.EndPoint(), Vec(-1000, 0));
    EXPECT_NEAR(arc.GetBulge(), -0.5, 1e-12);
}

TEST(CArc2dTest, flatterArcsThanTheNumbersHoldKeepTheirPoints)
{
    const CArc2d arc({1e7, 1e7}, {1e7 + 1000, 1e7}, 1e-10); // its centre lies 2.5e12 mm away
    expectNear(arc.MidPoint(), {1e7 + 500, 1e7 - 5e-8}, 1e-8);
    EXPECT_LT(arc.DistanceTo(arc.GetPoint(333)), 1e-8);
}

TEST(CArc2dTest, reversingTwiceGivesTheSameText)
{
    CArc2d arc({0.1, 0.2}, {1000.3, 7}, 0.3);
    const std::string text = arc.ToText();
    arc.Reverse();
    EXPECT_NEAR(arc.GetBulge(), -0.3, 1e-12);
    arc.Reverse();
    EXPECT_EQ(arc.ToText(), text);
}

TEST(CArc2dTest, trimmedPartsOfRandomArcsAddUp)
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> place(-1e6, 1e6);
    std::uniform_real_distribution<double> bulges(-4, 4);
    for (int i = 0; i < 2000; ++i) {
        const CArc2d arc({place(random), place(random)}, {place(random), place(random)}, bulges(random));
        const double cut = arc.Length() * (place(random) + 1e6) / 2e6;
        const auto first = arc.Clone();
        const auto second = arc.Clone();
        first->SetEndT(cut);
        second->SetStartT(cut);
        EXPECT_NEAR(first->Length() + second->Length(), arc.Length(), 1e-6);
        expectNear(first->EndPoint(), second->StartPoint(), 1e-6);
        EXPECT_LT(arc.DistanceTo(first->MidPoint()), 1e-6);
        EXPECT_TRUE(arc.Box().Contains(second->MidPoint(), 1e-6));
    }
}

} // namespace
