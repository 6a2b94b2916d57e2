#include "platform/geometry/CGeometry.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using vks::CGeometry;

TEST(CGeometryTest, textTellsTheKind)
{
    EXPECT_TRUE(dynamic_cast<vks::CLine2d *>(CGeometry::LoadFromStr("LINESTRING(0 0, 1 1)").get()));
    EXPECT_TRUE(dynamic_cast<vks::CArc2d *>(CGeometry::LoadFromStr("CIRCULARSTRING(0 0, 1 1, 2 0)").get()));
    EXPECT_TRUE(dynamic_cast<vks::CPolygon *>(CGeometry::LoadFromStr("POLYGON((0 0, 1 0, 1 1, 0 0))").get()));
    EXPECT_TRUE(
        dynamic_cast<vks::CPolygon *>(CGeometry::LoadFromStr("CURVEPOLYGON(CIRCULARSTRING(1 0, -1 0, 1 0))").get()));
}

TEST(CGeometryTest, readObjectBelongsToItsHolder)
{
    const auto geometry = CGeometry::LoadFromStr("LINESTRING(0 0, 1 1)");
    EXPECT_EQ(geometry->HolderCount(), 1);
}

TEST(CGeometryTest, asStringIsToTextInABufferOfTheCallers)
{
    const vks::CArc2d arc({0, 0}, {10, 0}, -1.0);
    char *text = arc.AsString();
    EXPECT_EQ(text, arc.ToText());
    std::free(text);
}

TEST(CGeometryTest, loopReadsAsThePolygonThatItBounds)
{
    const vks::CRefPtr<vks::CLoop> loop(shapes::loop(shapes::box(0, 0, 2, 1)));
    EXPECT_EQ(loop->ToText(), "POLYGON((0 0, 2 0, 2 1, 0 1, 0 0))");
}

} // namespace
