#include "platform/geometry/CCurve2d.h"

#include "geometry/ExpectPoints.h"
#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

using shapes::expectNear;
using vks::CCurve2d;
using vks::CRefPtr;
using Vec = vks::CVec2<double>;

/** What holds for every kind of curve, in both directions. */
class CCurve2dTest : public ::testing::TestWithParam<const char *>
{
protected:
    CRefPtr<CCurve2d> curve{dynamic_cast<CCurve2d *>(vks::CGeometry::LoadFromStr(GetParam()).get())};
};

TEST_P(CCurve2dTest, orderOfTrimmingMeansNothing)
{
    const double length = curve->Length();
    for (const double start : {-1e4, -0.3 * length, 0.2 * length, 0.9 * length})
        for (const double end : {0.1 * length, 0.7 * length, 1.2 * length, 1e4}) {
            const auto startFirst = curve->Clone();
            startFirst->SetStartT(start);
            startFirst->SetEndT(end);
            const auto endFirst = curve->Clone();
            endFirst->SetEndT(end);
            endFirst->SetStartT(start);
            EXPECT_EQ(startFirst->StartT(), endFirst->StartT());
            EXPECT_EQ(startFirst->EndT(), endFirst->EndT());
            EXPECT_EQ(startFirst->IsEmpty(), start > end);
        }
}

TEST_P(CCurve2dTest, parameterIsLengthAlongTheCurve)
{
    double walked = 0;
    constexpr int kSteps = 2000;
    for (int i = 0; i < kSteps; ++i)
        walked += curve->GetPoint(curve->Length() * i / kSteps)
                      .DistanceTo(curve->GetPoint(curve->Length() * (i + 1) / kSteps));
    EXPECT_NEAR(walked / curve->Length(), 1, 1e-5);
}

TEST_P(CCurve2dTest, directionIsTheWayToTheNextPoint)
{
    for (const double part : {0.0, 0.25, 0.5, 0.99}) {
        const double t = curve->Length() * part;
        const Vec step = (curve->GetPoint(t + 1e-3) - curve->GetPoint(t - 1e-3)) / 2e-3;
        EXPECT_LT(step.DistanceTo(curve->GetDirection(t)), 1e-6);
    }
}

TEST_P(CCurve2dTest, nearestParameterOfAPointOnTheCurveIsItsOwn)
{
    for (const double part : {0.1, 0.3, 0.5, 0.9})
        EXPECT_NEAR(curve->NearestT(curve->GetPoint(curve->Length() * part)), curve->Length() * part, 1e-8);
}

TEST_P(CCurve2dTest, reversedCurveRunsThroughTheSamePointsBackwards)
{
    const auto reversed = curve->Clone();
    reversed->Reverse();
    EXPECT_EQ(reversed->StartPoint(), curve->EndPoint());
    EXPECT_EQ(reversed->EndPoint(), curve->StartPoint());
    EXPECT_NEAR(reversed->Length(), curve->Length(), 1e-9);
    for (const double part : {0.1, 0.5, 0.8})
        expectNear(reversed->GetPoint(curve->Length() * part), curve->GetPoint(curve->Length() * (1 - part)));
    EXPECT_NEAR(reversed->TwiceSegmentArea(), -curve->TwiceSegmentArea(), 1e-6);
    EXPECT_LT((reversed->StartVt() + curve->EndVt()).Length(), 1e-9);
}

TEST_P(CCurve2dTest, reversedEmptyCurveStaysEmpty)
{
    curve->SetStartT(10);
    curve->SetEndT(5);
    curve->Reverse();
    EXPECT_TRUE(curve->IsEmpty());
    EXPECT_EQ(curve->Length(), 0);
}

TEST_P(CCurve2dTest, movedTurnedAndMirroredCurveHasItsPointsMovedTurnedAndMirrored)
{
    const auto changed = curve->Clone();
    changed->Translate({3, -7});
    changed->Rotate({10, 20}, 1.1);
    changed->MirrorX();
    for (const double part : {0.0, 0.4, 1.0}) {
        Vec expected = Vec(10, 20) + (curve->GetPoint(curve->Length() * part) + Vec(3, -7) - Vec(10, 20)).Rotated(1.1);
        expected.x = -expected.x;
        expectNear(changed->GetPoint(curve->Length() * part), expected);
    }
    EXPECT_NEAR(changed->TwiceSegmentArea(), -curve->TwiceSegmentArea(), 1e-6);
}

TEST_P(CCurve2dTest, twoPartsHaveTheLengthAndTheBoxOfTheWhole)
{
    const auto first = curve->Clone();
    const auto second = curve->Clone();
    first->SetEndT(0.37 * curve->Length());
    second->SetStartT(0.37 * curve->Length());
    EXPECT_NEAR(first->Length() + second->Length(), curve->Length(), 1e-9);
    auto box = first->Box();
    box.Add(second->Box());
    expectNear(box.minPt, curve->Box().minPt);
    expectNear(box.maxPt, curve->Box().maxPt);
}

INSTANTIATE_TEST_SUITE_P(
    Curves, CCurve2dTest,
    ::testing::Values("LINESTRING(0 0, 300 400)", "LINESTRING(0 0, -300 400)", "LINESTRING(10 20, -300 -400)",
                      "LINESTRING(5 5, 5 -100)", "CIRCULARSTRING(0 0, 50 50, 100 0)",
                      "CIRCULARSTRING(0 0, 50 -50, 100 0)", "CIRCULARSTRING(100 0, 0 0, 80 70)",
                      "CIRCULARSTRING(-30 20, 200 10, -30 -40)", "CIRCULARSTRING(-30 -20, -300 10, -30 40)",
                      "CIRCULARSTRING(150 200, 50 200, 150 200)", "CIRCULARSTRING(0 0, 50 0, 100 0)"));

} // namespace
