#include "platform/geometry/OverlayArea.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;
using vks::OverlayResult;

namespace {

double areaOfRings(const std::vector<vks::Ring> &rings)
{
    const vks::geos::Geometry area = vks::areaOf(rings);
    const PolygonPtr polygon = OverlayResult(area.get()).polygon({0, 0});
    return polygon ? polygon->Area() : 0.0;
}

} // namespace

TEST(OverlayAreaTest, ringsCountByTheEvenOddRule)
{
    EXPECT_DOUBLE_EQ(areaOfRings({box(0, 0, 10, 10)}), 100);
    EXPECT_DOUBLE_EQ(areaOfRings({box(2, 2, 6, 6), box(0, 0, 10, 10)}), 64);
    EXPECT_DOUBLE_EQ(areaOfRings({box(0, 0, 10, 10), box(2, 2, 6, 6), box(4, 4, 2, 2)}), 68);
    EXPECT_DOUBLE_EQ(areaOfRings({box(0, 0, 10, 10), box(20, 0, 10, 10), box(22, 2, 2, 2)}), 196);
    EXPECT_DOUBLE_EQ(areaOfRings({box(0, 0, 10, 10), box(5, 0, 10, 10)}), 100);
}

TEST(OverlayAreaTest, ringsWithoutAreaAreNothing)
{
    EXPECT_DOUBLE_EQ(areaOfRings({}), 0);
    EXPECT_DOUBLE_EQ(areaOfRings({{}, {{1, 1}}, {{1, 1}, {2, 2}}, {{1, 1}, {2, 2}, {1, 1}}}), 0);
    EXPECT_DOUBLE_EQ(areaOfRings({{{0, 0}, {5, 0}, {10, 0}}, box(0, 0, 10, 10)}), 100);
    EXPECT_FALSE(OverlayResult(nullptr).polygon({0, 0}));
}

TEST(OverlayAreaTest, sliversAreFoundAndDropped)
{
    const vks::geos::Geometry area = vks::areaOf({box(0, 0, 100, 100), box(10, 10, 80, 0.001), box(200, 0, 0.001, 50)});
    OverlayResult result(area.get());
    EXPECT_TRUE(result.hasSliver(0.01));
    result.dropSlivers(0.01);
    EXPECT_FALSE(result.hasSliver(0.01));
    EXPECT_EQ(result.polygon({0, 0})->LoopCount(), 1);
}

TEST(OverlayAreaTest, theResultIsMovedAndOriented)
{
    const vks::geos::Geometry area = vks::areaOf({box(0, 0, 10, 10), box(2, 2, 6, 6)});
    const PolygonPtr polygon = OverlayResult(area.get()).polygon({1000, 2000});
    EXPECT_EQ(polygon->Box().minPt, Point(1000, 2000));
    EXPECT_DOUBLE_EQ(polygon->GetLoop(0)->SignedArea(), 100);
    EXPECT_DOUBLE_EQ(polygon->GetLoop(1)->SignedArea(), -36);
}

TEST(OverlayAreaTest, cornersOnAStraightWayAreLeftOut)
{
    const vks::geos::Geometry area = vks::areaOf({{{5, 0}, {10, 0}, {10, 10}, {5, 10}, {0, 10}, {0, 0}}});
    EXPECT_EQ(OverlayResult(area.get()).polygon({0, 0})->GetLoop(0)->CurveCount(), 4);
}
