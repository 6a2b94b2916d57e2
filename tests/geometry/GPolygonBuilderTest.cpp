#include "platform/geometry/GPolygonBuilder.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>
#include <limits>

using namespace shapes;
using vks::GPolygonBuilder;
using Line = vks::CLine2d;
using Arc = vks::CArc2d;

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

void expectSound(const PolygonPtr &polygon)
{
    ASSERT_TRUE(polygon);
    EXPECT_TRUE(polygon->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr));
    EXPECT_GT(polygon->GetLoop(0)->SignedArea(), 0.0);
}

} // namespace

TEST(GPolygonBuilderTest, stripAlongALine)
{
    const Line line({0, 0}, {1000, 0});
    const PolygonPtr strip = GPolygonBuilder::CreatePolygon(&line, 120, 80);
    expectSound(strip);
    EXPECT_NEAR(strip->Area(), 200000, 1e-6);
    EXPECT_NEAR(strip->Box().maxPt.y, 120, 1e-9);
    EXPECT_NEAR(strip->Box().minPt.y, -80, 1e-9);
    EXPECT_TRUE(strip->IsRectangle());
}

TEST(GPolygonBuilderTest, aNegativeWidthLiesOnTheOtherSide)
{
    const Line line({0, 0}, {1000, 0});
    const PolygonPtr right = GPolygonBuilder::CreatePolygon(&line, -50, 200);
    expectSound(right);
    EXPECT_NEAR(right->Box().maxPt.y, -50, 1e-9);
    EXPECT_NEAR(right->Box().minPt.y, -200, 1e-9);
    const PolygonPtr left = GPolygonBuilder::CreatePolygon(&line, 200, -50);
    expectSound(left);
    EXPECT_NEAR(left->Box().minPt.y, 50, 1e-9);
}

TEST(GPolygonBuilderTest, stripAlongAnArcHasExactArcs)
{
    for (const auto &[from, to] : {std::pair(0.0, kPi / 2), std::pair(kPi / 2, 0.0)}) {
        const Arc arc({0, 0}, 1000.0, from, to);
        const bool counterClockwise = to > from;
        const PolygonPtr strip = GPolygonBuilder::CreatePolygon(&arc, 100, 200);
        expectSound(strip);
        // left is towards the centre of a counter-clockwise arc
        const double outer = counterClockwise ? 1200 : 1100;
        const double inner = counterClockwise ? 900 : 800;
        EXPECT_NEAR(strip->Area(), kPi / 4 * (outer * outer - inner * inner), 1e-4);
        EXPECT_EQ(strip->GetLoop(0)->CurveCount(), 4);
        EXPECT_EQ(strip->GetCurve(0)->Type(), vks::CCurve2d::kArc);
    }
}

TEST(GPolygonBuilderTest, aFullCircleGivesARing)
{
    const Arc circle({0, 0}, 1000.0, 0.0, 2 * kPi);
    const PolygonPtr ring = GPolygonBuilder::CreatePolygon(&circle, 100, 100);
    expectSound(ring);
    ASSERT_EQ(ring->LoopCount(), 2);
    EXPECT_NEAR(ring->Area(), kPi * (1100.0 * 1100 - 900.0 * 900), 1e-3);
    EXPECT_LT(ring->GetLoop(1)->SignedArea(), 0.0);
}

TEST(GPolygonBuilderTest, aWidthBeyondTheRadiusReachesToTheCentre)
{
    const Arc quarter({0, 0}, 1000.0, 0.0, kPi / 2);
    const PolygonPtr pie = GPolygonBuilder::CreatePolygon(&quarter, 1500, 0);
    expectSound(pie);
    EXPECT_NEAR(pie->Area(), kPi / 4 * 1000 * 1000, 1e-3);
    const Arc circle({0, 0}, 1000.0, 0.0, 2 * kPi);
    const PolygonPtr disc = GPolygonBuilder::CreatePolygon(&circle, 1500, 0);
    expectSound(disc);
    EXPECT_TRUE(disc->IsCircle());
}

TEST(GPolygonBuilderTest, aTrimmedCurveCountsAsItStands)
{
    Line line({0, 0}, {1000, 0});
    line.SetStartT(400);
    EXPECT_NEAR(GPolygonBuilder::CreatePolygon(&line, 50, 50)->Area(), 60000, 1e-6);
}

TEST(GPolygonBuilderTest, noStripWithoutCurveOrWidth)
{
    const Line line({0, 0}, {1000, 0});
    const Line point({5, 5}, {5, 5});
    Line empty({0, 0}, {1000, 0});
    empty.SetStartT(2000);
    const Arc arc({0, 0}, 1000.0, 0.0, 1.0);
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(nullptr, 1, 1));
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(&point, 1, 1));
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(&empty, 1, 1));
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(&line, 0, 0));
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(&line, 100, -100));
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(&arc, 1500, -1200));
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(&line, kInf, 1));
    EXPECT_FALSE(GPolygonBuilder::CreatePolygon(&line, 1, std::nan("")));
}
