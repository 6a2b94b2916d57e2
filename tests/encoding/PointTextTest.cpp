#include "encoding/PointText.h"

#include <gtest/gtest.h>

using namespace encoding;

namespace {

using Point = vks::CVec2<double>;
using Points = std::vector<Point>;

TEST(PointTextTest, pointIsTwoNumbersOfSixDigits)
{
    EXPECT_EQ(pointText(Point(1234567.891, 12.5)), "1.23457e+06,12.5");
    EXPECT_EQ(pointText(Point(0, -3)), "0,-3");
}

TEST(PointTextTest, textIsAppended)
{
    QString text = QStringLiteral("at ");
    appendPoint(text, Point(1, 2));
    appendPoints(text, {Point(3, 4), Point(5, 6)});
    EXPECT_EQ(text, "at 1,23,4;5,6;");
    appendPoints(text, {});
    EXPECT_EQ(text, "at 1,23,4;5,6;");
}

TEST(PointTextTest, whiteSpaceAroundNumbersPasses) { EXPECT_EQ(pointOf(u" 1 , 2.5 "), Point(1, 2.5)); }

TEST(PointTextTest, badTextLeavesThePointAndIsTheOriginByValue)
{
    for (const QStringView text : {QStringView(u""), QStringView(u"1"), QStringView(u"1,"), QStringView(u",2"),
                                   QStringView(u"1,2,3"), QStringView(u"1;2"), QStringView(u"x,2")}) {
        Point point(7, 8);
        EXPECT_FALSE(readPoint(text, point)) << text.toString().toStdString();
        EXPECT_EQ(point, Point(7, 8));
        EXPECT_EQ(pointOf(text), Point(0, 0));
    }
}

TEST(PointTextTest, lastSemicolonMayBeMissing)
{
    for (const QStringView text : {QStringView(u"1,2;3,4"), QStringView(u"1,2;3,4;"), QStringView(u"1,2;3,4; ")}) {
        Points points;
        EXPECT_TRUE(readPoints(text, points));
        EXPECT_EQ(points, (Points{Point(1, 2), Point(3, 4)}));
    }
}

TEST(PointTextTest, pointsAreAppendedAndABadOneEmptiesTheList)
{
    Points points{Point(9, 9)};
    EXPECT_TRUE(readPoints(u"1,2;", points));
    EXPECT_EQ(points, (Points{Point(9, 9), Point(1, 2)}));
    EXPECT_FALSE(readPoints(u"3,4;;5,6;", points));
    EXPECT_TRUE(points.empty());
}

TEST(PointTextTest, emptyTextAddsNothingAndTellsWhetherThereAreAny)
{
    Points points;
    EXPECT_FALSE(readPoints(u"", points));
    points.push_back(Point(9, 9));
    EXPECT_TRUE(readPoints(u"", points));
    EXPECT_EQ(points.size(), 1u);
}

} // namespace
