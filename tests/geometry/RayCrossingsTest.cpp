#include "platform/geometry/RayCrossings.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

namespace {

using shapes::kPi;
using vks::CRefPtr;
using Vec = vks::CVec2<double>;

/** A case holds for the loop run in either direction. */
void expectOdd(const CRefPtr<vks::CLoop> &loop, const Vec &point, bool odd)
{
    for (int direction = 0; direction < 2; ++direction) {
        EXPECT_EQ(crossesRayOddly(*loop, point), odd) << point.x << ' ' << point.y;
        loop->Reverse();
    }
}

TEST(RayCrossingsTest, rayThroughCornersCountsThemOnce)
{
    const CRefPtr<vks::CLoop> diamond(shapes::loop({{10, 0}, {0, 10}, {-10, 0}, {0, -10}}));
    expectOdd(diamond, {0, 0}, true);
    expectOdd(diamond, {-20, 0}, false);
    expectOdd(diamond, {-5, 10}, false);
    expectOdd(diamond, {-5, -10}, false);
}

TEST(RayCrossingsTest, rayAlongASideCountsItAsNothing)
{
    const CRefPtr<vks::CLoop> stairs(shapes::loop({{0, 0}, {10, 0}, {10, 5}, {20, 5}, {20, 10}, {0, 10}}));
    expectOdd(stairs, {5, 5}, true);
    expectOdd(stairs, {-5, 5}, false);
    expectOdd(stairs, {-5, 0}, false);
    expectOdd(stairs, {-5, 10}, false);
}

TEST(RayCrossingsTest, rayThroughTopAndBottomOfACircleLeavesItsSide)
{
    const CRefPtr<vks::CLoop> circle(shapes::circleLoop({100, 200}, 50));
    expectOdd(circle, {100, 200}, true);
    expectOdd(circle, {60, 200}, true);
    expectOdd(circle, {40, 200}, false);
    expectOdd(circle, {160, 200}, false);
    expectOdd(circle, {40, 250}, false);
    expectOdd(circle, {40, 150}, false);
    expectOdd(circle, {64, 236}, false);
    expectOdd(circle, {66, 234}, true);
}

TEST(RayCrossingsTest, circleStartingAnywhereHoldsTheSamePoints)
{
    for (int part = 0; part < 16; ++part) {
        CRefPtr<vks::CLoop> circle(new vks::CLoop);
        const double start = 2 * kPi * part / 16;
        circle->AddCurve(new vks::CArc2d(Vec(0, 0), 10.0, start, start + 2 * kPi), false);
        for (int around = 0; around < 16; ++around) {
            const Vec way = Vec(1, 0).Rotated(2 * kPi * around / 16);
            expectOdd(circle, way * 9.999, true);
            expectOdd(circle, way * 10.001, false);
        }
    }
}

TEST(RayCrossingsTest, sideOfAVeryFlatArcIsTold)
{
    CRefPtr<vks::CLoop> sliver(new vks::CLoop);
    sliver->AddCurve(new vks::CArc2d(Vec(0, 0), Vec(1000, 1000), 1e-9), false); // the middle 7e-7 mm off its chord
    sliver->AddCurve(new vks::CLine2d({1000, 1000}, {0, 1000}), false);
    sliver->AddCurve(new vks::CLine2d({0, 1000}, {0, 0}), false);
    const Vec outwards = Vec(1, -1) / std::sqrt(2.0);
    expectOdd(sliver, Vec(500, 500) + outwards * 6e-7, true);
    expectOdd(sliver, Vec(500, 500) + outwards * 8e-7, false);
}

TEST(RayCrossingsTest, gapCountsAsALine)
{
    CRefPtr<vks::CLoop> open(new vks::CLoop);
    open->AddCurve(new vks::CArc2d(Vec(0, 0), 10.0, kPi / 2, 3 * kPi / 2), false); // the left half
    open->AddCurve(new vks::CLine2d({5, -10}, {5, 10}), false);
    expectOdd(open, {-9, 0}, true);
    expectOdd(open, {4, 0}, true);
    expectOdd(open, {6, 0}, false);
    expectOdd(open, {-11, 0}, false);
}

TEST(RayCrossingsTest, pointThatIsNotFiniteIsNotInside)
{
    const CRefPtr<vks::CLoop> circle(shapes::circleLoop({0, 0}, 5));
    expectOdd(circle, {std::nan(""), 0}, false);
    expectOdd(circle, {0, std::nan("")}, false);
    EXPECT_FALSE(crossesRayOddly(vks::CLoop(), {0, 0}));
}

} // namespace
