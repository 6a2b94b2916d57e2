#include "platform/geometry/OverlayResult.h"

#include "geometry/KernelShapes.h"
#include "platform/geometry/OverlayArea.h"

#include <gtest/gtest.h>

using namespace shapes;
using vks::OverlayResult;

TEST(OverlayResultTest, nothingIsNull)
{
    EXPECT_FALSE(OverlayResult(nullptr).polygon({0, 0}));
    EXPECT_FALSE(OverlayResult(vks::areaOf({}).get()).polygon({0, 0}));
}

TEST(OverlayResultTest, sliversAreFoundAndDropped)
{
    const vks::geos::Geometry area = vks::areaOf({box(0, 0, 100, 100), box(10, 10, 80, 0.001), box(200, 0, 0.001, 50)});
    OverlayResult result(area.get());
    EXPECT_TRUE(result.hasSliver(0.01));
    result.dropSlivers(0.01);
    EXPECT_FALSE(result.hasSliver(0.01));
    EXPECT_EQ(result.polygon({0, 0})->LoopCount(), 1);
}

TEST(OverlayResultTest, theResultIsMovedAndOriented)
{
    const vks::geos::Geometry area = vks::areaOf({box(0, 0, 10, 10), box(2, 2, 6, 6)});
    const PolygonPtr polygon = OverlayResult(area.get()).polygon({1000, 2000});
    EXPECT_EQ(polygon->Box().minPt, Point(1000, 2000));
    EXPECT_DOUBLE_EQ(polygon->GetLoop(0)->SignedArea(), 100);
    EXPECT_DOUBLE_EQ(polygon->GetLoop(1)->SignedArea(), -36);
}

TEST(OverlayResultTest, cornersOnAStraightWayAreLeftOut)
{
    const vks::geos::Geometry area = vks::areaOf({{{5, 0}, {10, 0}, {10, 10}, {5, 10}, {0, 10}, {0, 0}}});
    EXPECT_EQ(OverlayResult(area.get()).polygon({0, 0})->GetLoop(0)->CurveCount(), 4);
}
