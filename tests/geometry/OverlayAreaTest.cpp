#include "platform/geometry/OverlayArea.h"

#include "geometry/KernelShapes.h"
#include "platform/geometry/OverlayResult.h"

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
}
