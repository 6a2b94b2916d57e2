#include "cli/GeometryFormats.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

TEST(GeometryFormatsTest, soundTextsAndNoneAreOfTheirFormat)
{
    EXPECT_EQ(whyNotFormat("curve", "0,0,5000,0"), "");
    EXPECT_EQ(whyNotFormat("outline", "0,0;9,0;9,9;"), "");
    EXPECT_EQ(whyNotFormat("wkt-curve", "LINESTRING(0 0, 9 0)"), "");
    EXPECT_EQ(whyNotFormat("wkt-outline", "POLYGON((0 0, 9 0, 9 9, 0 0))"), "");
    EXPECT_EQ(whyNotFormat("wkt-outline", "POLYGON EMPTY"), "");
    for (const char *format : {"curve", "outline", "wkt-curve", "wkt-outline"})
        EXPECT_EQ(whyNotFormat(format, ""), "") << format;
}

TEST(GeometryFormatsTest, formatThatIsNotKnownIsNoFault) { EXPECT_EQ(whyNotFormat("date", "never"), ""); }

TEST(GeometryFormatsTest, shortFormTellsWhatItIsNot)
{
    EXPECT_EQ(whyNotFormat("curve", "0,0,x,0"), "is no text of a curve in the short form");
    EXPECT_EQ(whyNotFormat("outline", "0,0;9,9;9,0;0,9;"), "is an outline that crosses itself or has no area");
}

TEST(GeometryFormatsTest, misspeltWordOfWellKnownTextIsNamed)
{
    EXPECT_EQ(whyNotFormat("wkt-curve", "LINSTRING(0 0, 9 0)"), "begins with \"LINSTRING\": LINESTRING is meant");
    EXPECT_EQ(whyNotFormat("wkt-outline", "0,0;9,0;"), "does not begin with POLYGON or CURVEPOLYGON");
}

TEST(GeometryFormatsTest, outlineThatCrossesItselfIsTold)
{
    EXPECT_EQ(whyNotFormat("wkt-outline", "POLYGON((0 0, 9 9, 9 0, 0 9, 0 0))"), "crosses itself");
}

} // namespace
