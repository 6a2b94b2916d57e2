#include "ModelSerialization/SlabBarGeometry.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace slabhost;
using Point = vks::CVec2<double>;
using Curve = vks::CRefPtr<vks::CCurve2d>;

void expectPoint(const Point &point, double x, double y)
{
    constexpr double kNear = 1e-6; // mm
    EXPECT_NEAR(point.x, x, kNear);
    EXPECT_NEAR(point.y, y, kNear);
}

void expectLine(const Curve &curve, const Point &start, const Point &end)
{
    ASSERT_TRUE(curve);
    expectPoint(curve->StartPoint(), start.x, start.y);
    expectPoint(curve->EndPoint(), end.x, end.y);
}

TEST(CalcIndexTest, rowsLieOffInTurnOnBothSides)
{
    const double expected[] = {0.0, -0.125, 0.125, -0.1875, 0.1875, -0.21875, 0.21875};
    for (int row = 0; row < 7; ++row)
        EXPECT_EQ(calcIndex(row), expected[row]) << row;
}

TEST(CalcIndexTest, rowsComeNearToAQuarter)
{
    EXPECT_EQ(calcIndex(99), -0.25 + 1.0 / (1LL << 52));
    EXPECT_EQ(calcIndex(std::numeric_limits<int>::max()), -0.25);
    EXPECT_EQ(calcIndex(std::numeric_limits<int>::max() - 1), 0.25);
}

TEST(CalcIndexTest, rowsBelowZeroLieOnTheirPlace)
{
    EXPECT_EQ(calcIndex(-1), 0.0);
    EXPECT_EQ(calcIndex(std::numeric_limits<int>::min()), 0.0);
}

TEST(SpanPointTest, partIsTakenAcrossTheBarFromItsLeft)
{
    const auto area = shapes::rectangle(0, 0, 4000, 3000);
    expectPoint(spanPoint(*area, {1, 0}, 0.25), 2000, 2250);
    expectPoint(spanPoint(*area, {0, 1}, 0.25), 1000, 1500);
    expectPoint(spanPoint(*area, {-1, 0}, 0.25), 2000, 750);
}

TEST(SpanPointTest, spanReachesFromTheFirstToTheLastPointOfTheArea)
{
    const auto comb = shapes::polygon(
        {{{0, 0}, {4000, 0}, {4000, 3000}, {3000, 3000}, {3000, 1000}, {1000, 1000}, {1000, 3000}, {0, 3000}}});
    // The middle of the area lies in its gap, at 1250 of its height.
    expectPoint(spanPoint(*comb, {0, 1}, 0.5), 2000, 1250);
}

TEST(SpanPointTest, lineThatMissesTheAreaIsAHundredLong)
{
    const auto nothing = shapes::polygon({{{0, 0}, {0, 0}}});
    expectPoint(spanPoint(*nothing, {0, 1}, 0.5), 50, 0);
}

TEST(StraddlePointTest, rowsStandOnTheDiagonalOfTheBox)
{
    const auto area = shapes::rectangle(1000, 0, 4000, 3000);
    expectPoint(straddlePoint(*area, 0), 3000, 1500);
    expectPoint(straddlePoint(*area, 1), 1800, 600);
    expectPoint(straddlePoint(*area, 4), 4200, 2400);
    expectPoint(straddlePoint(*area, 5), 3000, 1500);
    expectPoint(straddlePoint(*area, 7), 3800, 2100);
}

TEST(BarThroughTest, barReachesThroughTheArea)
{
    const auto area = shapes::rectangle(0, 0, 4000, 3000);
    expectLine(barThrough(*area, {700, 500}, {1, 0}), {0, 500}, {4000, 500});
    expectLine(barThrough(*area, {700, 500}, {0, -1}), {700, 3000}, {700, 0});
    expectLine(barThrough(*area, {-9000, 500}, {1, 0}), {0, 500}, {4000, 500});
}

TEST(BarThroughTest, barThatMissesTheAreaIsAHundredLong)
{
    expectLine(barThrough(*shapes::rectangle(0, 0, 4000, 3000), {9000, 9000}, {1, 0}), {9000, 9000}, {9100, 9000});
}

TEST(LayingLineTest, straightLineIsMadeAnewBetweenItsEnds)
{
    vks::CRefPtr<vks::CLine2d> line = new vks::CLine2d(Point(0, 0), Point(0, 4000));
    line->SetStartT(1000);
    const Curve laid = layingLine(line);
    expectLine(laid, {0, 1000}, {0, 4000});
    EXPECT_EQ(laid->Type(), 1);
    EXPECT_EQ(laid->StartT(), 0.0);
}

TEST(LayingLineTest, arcIsCopied)
{
    const vks::CRefPtr<vks::CArc2d> arc = new vks::CArc2d(Point(0, 0), 1000, 0.0, shapes::kPi / 2);
    const Curve laid = layingLine(arc);
    EXPECT_EQ(laid->Type(), 2);
    EXPECT_NE(laid.get(), arc.get());
    expectLine(laid, {1000, 0}, {0, 1000});
}

TEST(LayingLineTest, nothingStaysNothing) { EXPECT_FALSE(layingLine(nullptr)); }

TEST(RowPointTest, rowsAreToldOffAlongTheLine)
{
    const Curve line = new vks::CLine2d(Point(0, 0), Point(0, 4000));
    expectPoint(rowPoint(*line, 0), 0, 2000);
    expectPoint(rowPoint(*line, 1), 0, 800);
    expectPoint(rowPoint(*line, 4), 0, 3200);
    expectPoint(rowPoint(*line, 5), 0, 2000);
    expectPoint(rowPoint(*line, 6), 0, 2400);
}

TEST(RowPointTest, partsOfATrimmedLineCountFromWhereItStartsNow)
{
    const Curve line = new vks::CLine2d(Point(0, 0), Point(0, 4000));
    line->SetStartT(1000);
    line->SetEndT(3000);
    expectPoint(rowPoint(*line, 0), 0, 2000);
    expectPoint(rowPoint(*line, 1), 0, 1400);
    expectPoint(rowPoint(*line, 6), 0, 2200);
}

TEST(BarAcrossTest, barLiesAcrossTheEndOfItsLine)
{
    const Curve line = new vks::CLine2d(Point(0, 0), Point(0, 4000));
    expectLine(barAcross(*line, {0, 2000}, 900, 800), {-900, 2000}, {800, 2000});
    const Curve arc = new vks::CArc2d(Point(0, 0), 1000, 0.0, shapes::kPi / 2); // ends towards -x
    expectLine(barAcross(*arc, {0, 1000}, 300, 200), {0, 700}, {0, 1200});
}

} // namespace
