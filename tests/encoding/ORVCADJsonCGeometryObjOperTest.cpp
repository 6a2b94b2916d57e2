#include "encoding/ORVCADJsonCGeometryObjOper.h"

#include "encoding/CountedCurve.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <gmock/gmock.h>

namespace {

using Point = vks::CVec2<double>;
using Points = std::vector<Point>;

constexpr double kPi = 3.141592653589793;

class ORVCADJsonCGeometryObjOperTest : public testing::Test
{
protected:
    Points pointsOf(const char *text) const { return oper.getVector2dsInfo(QString::fromUtf8(text)); }
    bool isPoint(const char *text) const
    {
        Point point;
        return oper.getVector2dInfo(QString::fromUtf8(text), point);
    }
    QString rewrittenPolygon(const QString &text) const { return oper.getPolyInfo(oper.getPolyInfo(text)); }
    QString rewrittenCurve(const QString &text) const { return oper.getCurveInfo(oper.getCurveInfo(text)); }

    const ORVCADJsonCGeometryObjOper oper;
};

} // namespace

TEST_F(ORVCADJsonCGeometryObjOperTest, curvesReadBackAsTheyWereWritten)
{
    for (const char *text : {"0,0,1000,0", "100,200,50", "0,0,1,1000,0", "1.23457e+06,12.5,0,-0.25"})
        EXPECT_EQ(rewrittenCurve(QString::fromUtf8(text)), text);
}

TEST_F(ORVCADJsonCGeometryObjOperTest, polygonsReadBackAsTheyWereWritten)
{
    for (const char *text : {"0,0;1000,0,0.414214;1000,1000;0,1000;", "100,200,50", "0,0;1000,0,1;"})
        EXPECT_EQ(rewrittenPolygon(QString::fromUtf8(text)), text);
}

TEST_F(ORVCADJsonCGeometryObjOperTest, badCurveTextGivesNull)
{
    for (const char *text : {"", "1,2,3,4,5,6", "1,2", "1,,3", "1E3,2,3", "0,0;1,1;"})
        EXPECT_EQ(oper.getCurveInfo(QString::fromUtf8(text)), nullptr) << text;
}

TEST_F(ORVCADJsonCGeometryObjOperTest, badPolygonTextGivesNull)
{
    for (const char *text : {"", "0,0,100,0", "0,0;", "0,0,1,2;1,1;", "1E3,2,3"})
        EXPECT_EQ(oper.getPolyInfo(QString::fromUtf8(text)), nullptr) << text;
}

TEST_F(ORVCADJsonCGeometryObjOperTest, polygonThatIsNotValidIsHandedOutAsIfAllWereWell)
{
    const auto crossing = oper.getPolyInfo(QStringLiteral("0,0;100,100;100,0;0,100;"));
    ASSERT_NE(crossing, nullptr);
    EXPECT_EQ(oper.getPolyInfo(crossing), "0,0;100,100;100,0;0,100;");
}

TEST_F(ORVCADJsonCGeometryObjOperTest, polygonTextWithoutClosingSemicolonLosesItsLastVertex)
{
    EXPECT_EQ(rewrittenPolygon(QStringLiteral("0,0;100,0;100,100")), "0,0;100,0;");
}

TEST_F(ORVCADJsonCGeometryObjOperTest, circleTextMakesAOneCirclePolygon)
{
    const auto polygon = oper.getPolyInfo(QStringLiteral("0,0,100"));
    ASSERT_NE(polygon, nullptr);
    EXPECT_TRUE(polygon->IsCircle());
    EXPECT_NEAR(polygon->Area(), kPi * 1e4, 1e-6);
}

TEST_F(ORVCADJsonCGeometryObjOperTest, polygonWithAHoleReadsBackThroughTheKernelsText)
{
    const auto first = oper.getPolyInfo(
        QStringLiteral("POLYGON((0 0, 1000 0, 1000 1000, 0 1000, 0 0), (100 100, 100 200, 200 200, 100 100))"));
    ASSERT_NE(first, nullptr);
    const auto second = oper.getPolyInfo(oper.getPolyInfo(first));
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->LoopCount(), 2);
    EXPECT_NEAR(second->Area(), 1e6 - 5000, 1e-3);
}

TEST_F(ORVCADJsonCGeometryObjOperTest, polygonWithAnEdgeOfAnotherKindDoesNotReadBack)
{
    int alive = 0;
    auto *loop = new vks::CLoop();
    loop->AddCurve(new vks::CLine2d(Point(0, 0), Point(1000, 0)), false);
    loop->AddCurve(new CountedCurve(alive, Point(1000, 0), Point(1000, 1000)), false);
    loop->AddCurve(new vks::CLine2d(Point(1000, 1000), Point(0, 0)), false);
    const vks::CRefPtr<vks::CPolygon> polygon = new vks::CPolygon();
    polygon->AddLoop(loop, true);
    EXPECT_EQ(oper.getPolyInfo(oper.getPolyInfo(polygon.get())), nullptr);
}

TEST_F(ORVCADJsonCGeometryObjOperTest, nullIsWrittenAsNothing)
{
    EXPECT_EQ(oper.getCurveInfo(static_cast<vks::CCurve2d *>(nullptr)), QString());
    EXPECT_EQ(oper.getPolyInfo(static_cast<vks::CPolygon *>(nullptr)), QString());
}

TEST_F(ORVCADJsonCGeometryObjOperTest, nullCurveGivesFalseAndLeavesTheText)
{
    QString text = QStringLiteral("before");
    EXPECT_FALSE(oper.getCurveInfo(nullptr, text));
    EXPECT_EQ(text, "before");
}

TEST_F(ORVCADJsonCGeometryObjOperTest, nullPolygonGivesFalseAndEmptiesTheText)
{
    QString text = QStringLiteral("before");
    EXPECT_FALSE(oper.getPolyInfo(nullptr, text));
    EXPECT_EQ(text, "");
}

TEST_F(ORVCADJsonCGeometryObjOperTest, writersWithAResultReplaceTheText)
{
    QString text = QStringLiteral("before");
    EXPECT_TRUE(oper.getCurveInfo(oper.getCurveInfo(QStringLiteral("1,2,3,4")).get(), text));
    EXPECT_EQ(text, "1,2,3,4");
    EXPECT_TRUE(oper.getPolyInfo(oper.getPolyInfo(QStringLiteral("0,0;9,0;9,9;")).get(), text));
    EXPECT_EQ(text, "0,0;9,0;9,9;");
    EXPECT_TRUE(oper.getPolyInfo(oper.getPolyInfo(QStringLiteral("0,0,9")).get(), text));
    EXPECT_EQ(text, "0,0,9");
    const vks::CRefPtr<vks::CPolygon> empty = new vks::CPolygon();
    EXPECT_TRUE(oper.getPolyInfo(empty, text));
    EXPECT_EQ(text.toStdString(), empty->ToText());
}

TEST_F(ORVCADJsonCGeometryObjOperTest, pointIsWrittenWithSixDigits)
{
    EXPECT_EQ(oper.getVector2dInfo(Point(1234567.891, 12.5)), "1.23457e+06,12.5");
    EXPECT_EQ(oper.getVector2dInfo(Point(123456.789, -0.0)), "123457,0");
    QString text = QStringLiteral("before");
    EXPECT_TRUE(oper.getVector2dInfo(Point(1, 2), text));
    EXPECT_EQ(text, "1,2");
}

TEST_F(ORVCADJsonCGeometryObjOperTest, sixDigitsAreAllThatReadsBack)
{
    EXPECT_EQ(oper.getVector2dInfo(oper.getVector2dInfo(Point(1234567.891, 0))), Point(1234570, 0));
}

TEST_F(ORVCADJsonCGeometryObjOperTest, pointIsTwoNumbers)
{
    Point point;
    EXPECT_TRUE(oper.getVector2dInfo(QStringLiteral("-1.5,2e+03"), point));
    EXPECT_EQ(point, Point(-1.5, 2000));
    for (const char *text : {"", ",", "1", "1,", ",2", "1,2,3", "1,2,", "1;2", "1,x", "x,2", "1,2;"})
        EXPECT_FALSE(isPoint(text)) << text;
}

TEST_F(ORVCADJsonCGeometryObjOperTest, noPatternIsAskedOfAPoint)
{
    for (const char *text : {" 1 , 2 ", "\t1,2\n", "1E3,2", "+1,+2", "inf,nan"})
        EXPECT_TRUE(isPoint(text)) << text;
    EXPECT_EQ(oper.getVector2dInfo(QStringLiteral(" 1 ,\t2\n")), Point(1, 2));
}

TEST_F(ORVCADJsonCGeometryObjOperTest, badPointLeavesTheOutputAsItWas)
{
    for (const char *text : {"", "1,x", "x,2", "1,2,3"}) {
        Point point(7, 8);
        EXPECT_FALSE(oper.getVector2dInfo(QString::fromUtf8(text), point));
        EXPECT_EQ(point, Point(7, 8));
    }
}

TEST_F(ORVCADJsonCGeometryObjOperTest, badPointIsTheOriginWhereThereIsNoResult)
{
    EXPECT_EQ(oper.getVector2dInfo(QStringLiteral("1,x")), Point(0, 0));
    EXPECT_EQ(oper.getVector2dInfo(QString()), Point(0, 0));
}

TEST_F(ORVCADJsonCGeometryObjOperTest, everyPointOfAListEndsWithASemicolon)
{
    const Points points = {{1, 2}, {3.5, -4}, {1234567.891, 0}};
    EXPECT_EQ(oper.getVector2dsInfo(points), "1,2;3.5,-4;1.23457e+06,0;");
    EXPECT_EQ(oper.getVector2dsInfo(oper.getVector2dsInfo(points)), (Points{{1, 2}, {3.5, -4}, {1234570, 0}}));
}

TEST_F(ORVCADJsonCGeometryObjOperTest, writingAListTellsWhetherThereWasAPoint)
{
    QString text = QStringLiteral("before");
    EXPECT_TRUE(oper.getVector2dsInfo(Points{{1, 2}}, text));
    EXPECT_EQ(text, "1,2;");
    EXPECT_FALSE(oper.getVector2dsInfo(Points(), text));
    EXPECT_EQ(text, "");
    EXPECT_EQ(oper.getVector2dsInfo(Points()), "");
}

TEST_F(ORVCADJsonCGeometryObjOperTest, lastSemicolonOfAListMayBeMissing)
{
    EXPECT_EQ(pointsOf("1,2;3,4"), (Points{{1, 2}, {3, 4}}));
    EXPECT_EQ(pointsOf("1,2;3,4;"), (Points{{1, 2}, {3, 4}}));
    EXPECT_EQ(pointsOf("1,2;3,4; \n"), (Points{{1, 2}, {3, 4}}));
    EXPECT_EQ(pointsOf("1,2"), (Points{{1, 2}}));
}

TEST_F(ORVCADJsonCGeometryObjOperTest, badItemEmptiesTheWholeList)
{
    for (const char *text : {"1,2;x;3,4;", "1,2;;", ";", "1,2;;3,4;", "1,2,3;", "1,2;3", "x", ";1,2"})
        EXPECT_EQ(pointsOf(text), Points()) << text;
    Points points = {{9, 9}};
    EXPECT_FALSE(oper.getVector2dsInfo(QStringLiteral("1,2;x;"), points));
    EXPECT_EQ(points, Points());
}

TEST_F(ORVCADJsonCGeometryObjOperTest, emptyListTextGivesNoPoints)
{
    for (const char *text : {"", " ", "\t\n"}) {
        Points points;
        EXPECT_FALSE(oper.getVector2dsInfo(QString::fromUtf8(text), points));
        EXPECT_EQ(points, Points());
    }
}

TEST_F(ORVCADJsonCGeometryObjOperTest, readingAListAppendsToThePointsThatAreThere)
{
    Points points = {{9, 9}};
    EXPECT_TRUE(oper.getVector2dsInfo(QStringLiteral("1,2;"), points));
    EXPECT_EQ(points, (Points{{9, 9}, {1, 2}}));
}

TEST_F(ORVCADJsonCGeometryObjOperTest, oldPointsCountWhenAnEmptyListIsRead)
{
    Points points = {{9, 9}};
    EXPECT_TRUE(oper.getVector2dsInfo(QString(), points));
    EXPECT_EQ(points, (Points{{9, 9}}));
}
