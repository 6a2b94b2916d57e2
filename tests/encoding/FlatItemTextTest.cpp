#include "encoding/FlatItemText.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

using encoding::ItemText;

namespace {

using Curve = vks::CRefPtr<vks::CCurve2d>;
using Polygon = vks::CRefPtr<vks::CPolygon>;
using Point = vks::CVec2<double>;
using Segments = std::list<std::vector<int>>;

template <typename T> QString textOf(const T &value)
{
    QString text;
    ItemText<T>::append(text, value);
    return text;
}

template <typename T> T read(const char *text) { return ItemText<T>::read(QString::fromUtf8(text)); }

TEST(FlatItemTextTest, integersArePlainDecimal)
{
    EXPECT_EQ(textOf(-200), "-200");
    EXPECT_EQ(textOf(qint64(9007199254740993)), "9007199254740993");
    EXPECT_EQ(read<int>("-200"), -200);
    EXPECT_EQ(read<qint64>("9007199254740993"), 9007199254740993);
}

TEST(FlatItemTextTest, doublesHaveSixSignificantDigits)
{
    EXPECT_EQ(textOf(1234.5678), "1234.57");
    EXPECT_EQ(textOf(1234567.0), "1.23457e+06");
    EXPECT_EQ(textOf(1.0), "1");
    EXPECT_EQ(read<double>("1.23457e+06"), 1234570.0);
}

TEST(FlatItemTextTest, badNumbersReadAsZero)
{
    for (const char *text : {"", "x", "12 mm", "1;2"}) {
        EXPECT_EQ(read<int>(text), 0) << text;
        EXPECT_EQ(read<qint64>(text), 0) << text;
        EXPECT_EQ(read<double>(text), 0.0) << text;
    }
    EXPECT_EQ(read<int>("4294967296"), 0);
}

TEST(FlatItemTextTest, textsGoThroughUnchanged)
{
    EXPECT_EQ(textOf(std::wstring(L"砖墙 a/b:c")), QString::fromUtf8("砖墙 a/b:c"));
    EXPECT_EQ(read<std::wstring>("砖墙"), L"砖墙");
    EXPECT_EQ(textOf(std::string("\xe5\xa2\x99")), QString::fromUtf8("墙"));
    EXPECT_EQ(read<std::string>("墙"), "\xe5\xa2\x99");
}

TEST(FlatItemTextTest, charactersBeyondTheBasicPlaneSurvive)
{
    EXPECT_EQ(read<std::wstring>("\xf0\xa0\x80\x80"), L"\U00020000");
    EXPECT_EQ(textOf(std::wstring(L"\U00020000")), QString::fromUtf8("\xf0\xa0\x80\x80"));
}

TEST(FlatItemTextTest, pointsUseTheGeometryForms)
{
    EXPECT_EQ(textOf(Point(1234567.891, 12.5)), "1.23457e+06,12.5");
    EXPECT_EQ(read<Point>("1,2.5"), Point(1, 2.5));
    EXPECT_EQ(read<Point>(""), Point(0, 0));
    EXPECT_EQ(textOf(std::vector<Point>{{0, 0}, {5, 6}}), "0,0;5,6;");
    EXPECT_EQ(read<std::vector<Point>>("0,0;5,6;"), (std::vector<Point>{{0, 0}, {5, 6}}));
    EXPECT_TRUE(read<std::vector<Point>>("").empty());
    EXPECT_TRUE(read<std::vector<Point>>("0,0;x;").empty());
}

TEST(FlatItemTextTest, curvesUseTheGeometryForms)
{
    EXPECT_EQ(textOf(Curve(new vks::CLine2d(Point(0, 0), Point(1000, 0)))), "0,0,1000,0");
    EXPECT_EQ(textOf(Curve(new vks::CArc2d(Point(0, 0), Point(1000, 0), 1.0))), "0,0,1,1000,0");
    EXPECT_EQ(textOf(Curve()), "");
    const auto line = read<Curve>("0,0,1000,0");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->EndPoint(), Point(1000, 0));
    EXPECT_FALSE(read<Curve>(""));
    EXPECT_FALSE(read<Curve>("1,2"));
}

TEST(FlatItemTextTest, polygonsUseTheGeometryForms)
{
    const auto square = read<Polygon>("0,0;100,0;100,100;0,100;");
    ASSERT_TRUE(square);
    EXPECT_EQ(textOf(square), "0,0;100,0;100,100;0,100;");
    EXPECT_EQ(textOf(Polygon()), "");
    EXPECT_FALSE(read<Polygon>(""));
}

TEST(FlatItemTextTest, setOfNumbersHasCommasBetween)
{
    EXPECT_EQ(textOf(std::set<int>{30, -1, 2}), "-1,2,30");
    EXPECT_EQ(textOf(std::set<int>{}), "");
    EXPECT_EQ(read<std::set<int>>("30,2,2,x"), (std::set<int>{0, 2, 30}));
}

TEST(FlatItemTextTest, emptyPieceIsAZeroAndDoesNotEndTheList)
{
    EXPECT_EQ(read<std::set<int>>(",5"), (std::set<int>{0, 5}));
    EXPECT_EQ(read<Segments>(",5,,7"), (Segments{{0, 5, 0, 7}}));
}

TEST(FlatItemTextTest, emptySetReadsBackAsZero) { EXPECT_EQ(read<std::set<int>>(""), std::set<int>{0}); }

TEST(FlatItemTextTest, segmentsEndInSlashesAndTheirNumbersInCommas)
{
    EXPECT_EQ(textOf(Segments{{1, 2}, {3}}), "1,2,/3,/");
    EXPECT_EQ(textOf(Segments{{}}), "/");
    EXPECT_EQ(textOf(Segments{}), "");
}

TEST(FlatItemTextTest, segmentReadsBackWithAZeroForThePieceBehindItsLastComma)
{
    EXPECT_EQ(read<Segments>("1,2,"), (Segments{{1, 2, 0}}));
    EXPECT_EQ(read<Segments>(""), (Segments{{0}}));
}

TEST(FlatItemTextTest, enumerationIsItsNumber)
{
    enum Kind : int { Third = 3 };
    EXPECT_EQ(textOf(Third), "3");
    EXPECT_EQ(read<Kind>("3"), Third);
    EXPECT_EQ(read<Kind>("-77"), -77);
}

} // namespace
