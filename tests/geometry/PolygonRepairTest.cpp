#include "platform/geometry/PolygonRepair.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;

namespace {

PolygonPtr repaired(const PolygonPtr &polygon, int flag = 1) { return vks::PolygonRepair(polygon, 1.0, 0.001, flag); }

void expectSound(const PolygonPtr &polygon, double area, double tolerance = 1e-3)
{
    ASSERT_TRUE(polygon);
    EXPECT_TRUE(polygon->IsValid(vks::CPolygon::kNotEmpty | vks::CPolygon::kClosed | vks::CPolygon::kNoShortEdge |
                                     vks::CPolygon::kNoCrossing | vks::CPolygon::kHasArea,
                                 nullptr, nullptr));
    EXPECT_NEAR(polygon->Area(), area, tolerance);
}

int curveCount(const PolygonPtr &polygon)
{
    std::vector<vks::CCurve2d *> curves;
    polygon->GetCurves(curves);
    return static_cast<int>(curves.size());
}

} // namespace

TEST(PolygonRepairTest, aSoundPolygonStaysAsItIs)
{
    const PolygonPtr source = frame(0, 0, 1000, 200);
    const PolygonPtr result = repaired(source);
    expectSound(result, 1e6 - 36e4);
    EXPECT_EQ(result->LoopCount(), 2);
    EXPECT_EQ(curveCount(result), 8);
    EXPECT_NE(result.get(), source.get());
}

TEST(PolygonRepairTest, verticesWithinTheToleranceBecomeOneAndShortEdgesGo)
{
    const PolygonPtr result =
        repaired(polygon({{{0, 0}, {1000, 0}, {1000.5, 0.5}, {1000, 1000}, {0, 1000}, {0.3, 0}}}));
    EXPECT_EQ(curveCount(result), 4);
    expectSound(result, 1e6, 4000);
}

TEST(PolygonRepairTest, edgesThatGoOnInOneLineBecomeOne)
{
    const PolygonPtr result = repaired(
        polygon({{{500, 0}, {1000, 0}, {1000, 500.0}, {1000.1, 700}, {1000, 1000}, {0, 1000}, {0, 0}, {200, 0}}}));
    EXPECT_EQ(curveCount(result), 4);
    expectSound(result, 1e6, 100);
}

TEST(PolygonRepairTest, manySlightTurnsAreNotStraightened)
{
    Points corners;
    constexpr int count = 7000; // turns of 0.0009 rad each, below the angle tolerance
    for (int i = 0; i < count; ++i)
        corners.push_back(Point(100000, 0).Rotated(2 * kPi * i / count));
    const PolygonPtr source = polygon({corners});
    expectSound(repaired(source), source->Area(), source->Perimeter());
}

TEST(PolygonRepairTest, arcsStayAndArcsOfOneCircleBecomeOne)
{
    PolygonPtr halves(new vks::CPolygon);
    auto *loop = new vks::CLoop;
    loop->AddCurve(new vks::CArc2d({0, 0}, 1000.0, 0.0, kPi), false);
    loop->AddCurve(new vks::CArc2d({0, 0}, 1000.0, kPi, 2 * kPi), false);
    halves->AddLoop(loop, true);
    const PolygonPtr disc = repaired(halves);
    expectSound(disc, kPi * 1e6);
    EXPECT_TRUE(disc->IsCircle());
    const PolygonPtr segment = repaired(discSegment({0, 0}, 1000, 0, 2));
    EXPECT_EQ(curveCount(segment), 2);
    expectSound(segment, 1e6 * (1 - std::sin(2.0) / 2));
}

TEST(PolygonRepairTest, spikesAndLoopsWithoutAreaGo)
{
    const PolygonPtr spiked = polygon({{{0, 0}, {1000, 0}, {2000, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}});
    const PolygonPtr result = repaired(spiked);
    expectSound(result, 1e6);
    EXPECT_EQ(curveCount(result), 4);
    const PolygonPtr withThread =
        polygon({box(0, 0, 1000, 1000), {{100, 100}, {900, 100}, {900, 100.4}, {100, 100.4}}});
    EXPECT_EQ(repaired(withThread)->LoopCount(), 1);
}

TEST(PolygonRepairTest, aBowTieBecomesItsTwoHalves)
{
    const PolygonPtr result = repaired(polygon({{{0, 0}, {1000, 1000}, {1000, 0}, {0, 1000}}}));
    expectSound(result, 500000, 1.0);
    EXPECT_EQ(result->LoopCount(), 2);
    EXPECT_GT(result->GetLoop(0)->SignedArea(), 0);
    EXPECT_GT(result->GetLoop(1)->SignedArea(), 0);
}

TEST(PolygonRepairTest, aTwiceRunLoopCancelsAndAPinchIsTakenApart)
{
    const PolygonPtr pinched = polygon({{{0, 0}, {500, 500}, {1000, 0}, {1000, 1000}, {500, 500}, {0, 1000}}});
    const PolygonPtr result = repaired(pinched);
    expectSound(result, 500000);
    EXPECT_EQ(result->LoopCount(), 2);
}

TEST(PolygonRepairTest, overlappingHolesAreTakenApartAndOtherArcsStay)
{
    const PolygonPtr source = polygon({box(0, 0, 1000, 1000), box(100, 100, 200, 200), box(200, 100, 200, 200)});
    source->AddLoop(circleLoop({700, 700}, 100), true);
    const PolygonPtr result = repaired(source);
    expectSound(result, 1e6 - 2 * 200 * 100 - kPi * 1e4, 1.0);
    int arcs = 0;
    for (int i = 0; i < curveCount(result); ++i)
        arcs += result->GetCurve(i)->Type() == vks::CCurve2d::kArc;
    EXPECT_EQ(arcs, 1);
}

TEST(PolygonRepairTest, aLoopThatMeetsATangledOneIsTakenApartWithIt)
{
    // The box lies half in the right half of the bow tie: what both hold is out, by the even-odd rule.
    const PolygonPtr result =
        repaired(polygon({{{0, 0}, {1000, 1000}, {1000, 0}, {0, 1000}}, box(900, 400, 200, 200)}));
    expectSound(result, 500000 - 20000 + 20000, 1.0);
    EXPECT_EQ(result->LoopCount(), 3);
    EXPECT_NEAR(result->Box().maxPt.x, 1100, 0.01);
}

TEST(PolygonRepairTest, aLoopThatATangledOneDoesNotMeetStaysAsItIs)
{
    const Points bowTie{{0, 0}, {1000, 1000}, {1000, 0}, {0, 1000}};
    const PolygonPtr withHole = repaired(polygon({bowTie, box(800, 450, 100, 100)}));
    expectSound(withHole, 500000 - 10000, 1.0);
    EXPECT_EQ(withHole->LoopCount(), 3);
    const PolygonPtr source = polygon({bowTie});
    source->AddLoop(circleLoop({5000, 5000}, 100), true);
    const PolygonPtr withDisc = repaired(source);
    expectSound(withDisc, 500000 + kPi * 1e4, 1.0);
    EXPECT_EQ(withDisc->GetLoop(2)->GetCurve(0)->Type(), vks::CCurve2d::kArc);
}

TEST(PolygonRepairTest, tangledLoopsThatCancelLeaveTheOthers)
{
    const Points bowTie{{0, 0}, {1000, 1000}, {1000, 0}, {0, 1000}};
    const PolygonPtr source = polygon({bowTie, bowTie});
    source->AddLoop(circleLoop({5000, 5000}, 100), true);
    const PolygonPtr result = repaired(source);
    expectSound(result, kPi * 1e4);
    EXPECT_TRUE(result->IsCircle());
}

TEST(PolygonRepairTest, flagOneTurnsOuterLoopsLeftAndHolesRight)
{
    const PolygonPtr source = frame(0, 0, 1000, 200);
    source->GetLoop(0)->Reverse();
    const PolygonPtr turned = repaired(source, 1);
    EXPECT_GT(turned->GetLoop(0)->SignedArea(), 0);
    EXPECT_LT(turned->GetLoop(1)->SignedArea(), 0);
    const PolygonPtr kept = repaired(source, 0);
    EXPECT_LT(kept->GetLoop(0)->SignedArea(), 0);
    EXPECT_GT(kept->GetLoop(1)->SignedArea(), 0);
    EXPECT_LT(source->GetLoop(0)->SignedArea(), 0);
}

TEST(PolygonRepairTest, nothingLeftIsNull)
{
    EXPECT_FALSE(repaired(nullptr));
    EXPECT_FALSE(repaired(new vks::CPolygon));
    EXPECT_FALSE(repaired(rectangle(0, 0, 0.5, 0.5)));
    EXPECT_FALSE(repaired(rectangle(0, 0, 1000, 0.5)));
    EXPECT_FALSE(repaired(rectangle(0, 0, std::nan(""), 5)));
    EXPECT_FALSE(repaired(polygon({{{0, 0}, {50, 0}, {50, std::nan("")}, {0, 50}}})));
    EXPECT_FALSE(repaired(circle({0, 0}, std::nan(""))));
}

TEST(PolygonRepairTest, tolerancesThatAreNotAboveZeroAreTheDefaults)
{
    const PolygonPtr result = vks::PolygonRepair(rectangle(0, 0, 0.5, 0.5), 0.0, -1.0, 1);
    expectSound(result, 0.25);
}

TEST(PolygonRepairTest, tenKilometresAwayItIsTheSame)
{
    const PolygonPtr far = moved(*polygon({{{0, 0}, {1000, 1000}, {1000, 0}, {0, 1000}}}), {1e7, 1e7});
    expectSound(repaired(far), 500000, 1.0);
}
