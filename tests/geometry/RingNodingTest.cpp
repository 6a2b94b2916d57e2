#include "platform/geometry/RingNoding.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;
using Polygons = std::vector<std::vector<vks::Ring>>;

TEST(RingNodingTest, anEdgeTakesTheCornersThatLieOnIt)
{
    Polygons polygons{{box(0, 0, 10, 10)}, {{{10, 7}, {20, 7}, {20, 3}, {10.0005, 3}}}};
    vks::nodeRings(polygons, 1e-3);
    EXPECT_EQ(polygons[0][0], (vks::Ring{{0, 0}, {10, 0}, {10.0005, 3}, {10, 7}, {10, 10}, {0, 10}}));
    EXPECT_EQ(polygons[1][0].size(), 4U);
}

TEST(RingNodingTest, cornersBesideTheEdgeOrAtItsEndsAreNone)
{
    Polygons polygons{{box(0, 0, 10, 10)}, {{{10.002, 7}, {20, 7}, {10, 10.0005}}}};
    vks::nodeRings(polygons, 1e-3);
    EXPECT_EQ(polygons[0][0], (vks::Ring{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
}

TEST(RingNodingTest, ringsWithoutLengthStayAsTheyAre)
{
    Polygons polygons{{{}, {{1, 1}}, {{2, 2}, {2, 2}}}};
    const Polygons before = polygons;
    vks::nodeRings(polygons, 1e-3);
    EXPECT_EQ(polygons, before);
}
