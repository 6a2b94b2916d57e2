#include "platform/geometry/GeosContext.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>
#include <thread>

using namespace shapes;
namespace geos = vks::geos;

TEST(GeosContextTest, eachThreadHasItsOwn)
{
    const auto *here = geos::context();
    EXPECT_EQ(geos::context(), here);
    const void *there = nullptr;
    std::thread([&there] { there = geos::context(); }).join();
    EXPECT_NE(there, here);
}

TEST(GeosContextTest, aPolygonComesBackAsItsRings)
{
    const vks::Ring shell = box(0, 0, 100, 100);
    const vks::Ring hole = box(10, 10, 20, 20);
    const geos::Geometry polygon = geos::polygonOf(shell, {&hole});
    const std::vector<vks::Ring> rings = geos::ringsOf(polygon.get());
    EXPECT_EQ(rings, (std::vector<vks::Ring>{shell, hole}));
}

TEST(GeosContextTest, ringsWithoutThreeCornersGiveNull)
{
    EXPECT_FALSE(geos::polygonOf({}, {}));
    EXPECT_FALSE(geos::polygonOf({{0, 0}, {1, 1}}, {}));
}

TEST(GeosContextTest, collectionsGiveTheirPolygonsAndSkipNull)
{
    std::vector<geos::Geometry> parts;
    parts.push_back(geos::polygonOf(box(0, 0, 1, 1), {}));
    parts.push_back(nullptr);
    parts.push_back(geos::polygonOf(box(5, 0, 1, 1), {}));
    const geos::Geometry several = geos::multiPolygonOf(std::move(parts));
    EXPECT_EQ(geos::polygonsIn(several.get()).size(), 2U);
    EXPECT_TRUE(geos::polygonsIn(nullptr).empty());
    EXPECT_TRUE(geos::polygonsIn(geos::collectionOf({}).get()).empty());
}
