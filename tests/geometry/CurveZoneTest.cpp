#include "platform/geometry/CurveZone.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;
using vks::CurveZone;

namespace {

const vks::CBox2<double> kEverywhere({-1e6, -1e6}, {1e6, 1e6});

double borderLength(const CurveZone &zone)
{
    double length = 0.0;
    for (const CurveZone::Piece &piece : zone.border())
        length += piece.curve->Length();
    return length;
}

} // namespace

TEST(CurveZoneTest, distanceZeroIsTheBoundaryItself)
{
    CurveZone zone(kEverywhere);
    zone.addPolygon(*frame(0, 0, 1000, 200), 0.0);
    EXPECT_EQ(zone.border().size(), 8U);
}

TEST(CurveZoneTest, sidesAndOutsideCornersOfAPolygon)
{
    CurveZone zone(kEverywhere);
    zone.addPolygon(*rectangle(0, 0, 100, 100), 10.0);
    EXPECT_NEAR(borderLength(zone), 2 * 400 + 2 * kPi * 10, 1e-6);
}

TEST(CurveZoneTest, aCurveHasADiscAtEachEnd)
{
    CurveZone zone(kEverywhere);
    zone.addCurve(vks::CLine2d({0, 0}, {100, 0}), 10.0);
    EXPECT_NEAR(borderLength(zone), 200 + 40 * kPi, 1e-6);
    CurveZone ofCircle(kEverywhere);
    ofCircle.addCurve(vks::CArc2d({0, 0}, 100.0, 0.0, 2 * kPi), 10.0);
    EXPECT_EQ(ofCircle.border().size(), 2U);
}

TEST(CurveZoneTest, aDistanceBeyondTheRadiusHasNoInnerSide)
{
    CurveZone zone(kEverywhere);
    zone.addPolygon(*circle({0, 0}, 5), 10.0);
    const std::vector<double> cuts = zone.cuts(vks::CLine2d({-50, 0}, {50, 0}));
    ASSERT_EQ(cuts.size(), 4U);
    EXPECT_NEAR(cuts[1], 35.0, 1e-6);
    EXPECT_NEAR(cuts[2], 65.0, 1e-6);
}

TEST(CurveZoneTest, whatIsOutOfRangeIsLeftOut)
{
    CurveZone zone({{90, -5}, {200, 5}});
    zone.addPolygon(*rectangle(0, 0, 1000, 1000), 0.0);
    EXPECT_EQ(zone.border().size(), 1U);
}

TEST(CurveZoneTest, cutsStandWhereTheBorderIsMet)
{
    CurveZone zone(kEverywhere);
    zone.addPolygon(*rectangle(0, 0, 100, 100), 0.0);
    const std::vector<double> cuts = zone.cuts(vks::CLine2d({-50, 50}, {150, 50}));
    ASSERT_EQ(cuts.size(), 4U);
    EXPECT_NEAR(cuts[0], 0, 1e-9);
    EXPECT_NEAR(cuts[1], 50, 1e-9);
    EXPECT_NEAR(cuts[2], 150, 1e-9);
    EXPECT_NEAR(cuts[3], 200, 1e-9);
}
