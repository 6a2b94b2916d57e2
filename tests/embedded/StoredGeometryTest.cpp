#include "platform/embedded/StoredGeometry.h"

#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <gtest/gtest.h>

using namespace hbx::embedded;

TEST(StoredGeometryTest, aTextGivesGeometryOfItsOwnKindAlone)
{
    EXPECT_TRUE(storedGeometry<vks::CCurve2d>("LINESTRING(0 0, 5 0)"));
    EXPECT_FALSE(storedGeometry<vks::CPolygon>("LINESTRING(0 0, 5 0)"));
    EXPECT_TRUE(storedGeometry<vks::CPolygon>("POLYGON((0 0, 5 0, 5 5, 0 0))"));
    EXPECT_FALSE(storedGeometry<vks::CCurve2d>("POLYGON((0 0, 5 0, 5 5, 0 0))"));
}

TEST(StoredGeometryTest, otherTextIsNoGeometry)
{
    for (const char *text : {"", "POINT(1 1)", "LINESTRING(0 0, 5", "LINESTRING(0 0, nan 0)"})
        EXPECT_FALSE(storedGeometry<vks::CCurve2d>(text)) << text;
}

TEST(StoredGeometryTest, whatStandsBehindAZeroIsNotOverlooked)
{
    const std::string text("LINESTRING(0 0, 5 0)\0x", 22);
    EXPECT_FALSE(storedGeometry<vks::CCurve2d>(text));
}

TEST(StoredGeometryTest, soundOutlinesAreClosedAndHoldAnArea)
{
    const auto isSoundText = [](const char *text) { return isSound(*storedGeometry<vks::CPolygon>(text)); };
    EXPECT_TRUE(isSoundText("POLYGON((0 0, 5 0, 5 5, 0 0))"));
    EXPECT_TRUE(isSoundText("POLYGON((0 0, 9 0, 9 9, 0 0),(5 1, 6 1, 6 2, 5 1))"));
    for (const char *text :
         {"POLYGON EMPTY", "POLYGON((0 0, 5 0, 5 5))", "POLYGON((0 0, 5 5, 5 0, 0 5, 0 0))", "POLYGON((0 0, 5 0, 0 0))",
          "POLYGON((0 0, 5 0, 5 5, 5 5, 0 0))", "POLYGON((0 0, 9 0, 9 9, 0 0),(20 1, 21 1, 21 2, 20 1))"})
        EXPECT_FALSE(isSoundText(text)) << text;
}

TEST(StoredGeometryTest, aPointIsTwoNumbersWithABlankBetween)
{
    const auto point = storedPoint("1.5 -2");
    ASSERT_TRUE(point);
    EXPECT_EQ(point->x, 1.5);
    EXPECT_EQ(point->y, -2.0);
    for (const char *text : {"", "1", "1 2 3", "1  2", "1,2", "a 2", "1 b", "nan 0", "0 inf"})
        EXPECT_FALSE(storedPoint(text)) << text;
}

TEST(StoredGeometryTest, theTextOfAPointReadsBackExactly)
{
    EXPECT_EQ(pointText({2.0, -0.5}), "2 -0.5");
    const vks::CVec2<double> odd(1.0 / 3.0, 1e300);
    const auto again = storedPoint(pointText(odd));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->x, odd.x);
    EXPECT_EQ(again->y, odd.y);
}
