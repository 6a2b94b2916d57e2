#include "encoding/GeometryInfo.h"

#include "encoding/CountedCurve.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/CPolygon.h"

#include <gmock/gmock.h>

namespace {

using Point = vks::CVec2<double>;
using Curves = std::vector<vks::CCurve2d *>;

std::string curveText(vks::CCurve2d *curve)
{
    const vks::CRefPtr<vks::CCurve2d> holder = curve;
    return getCurveInfo(curve).toStdString();
}

void addLoop(vks::CPolygon &polygon, const Curves &curves)
{
    auto *loop = new vks::CLoop();
    for (vks::CCurve2d *curve : curves)
        loop->AddCurve(curve, false);
    polygon.AddLoop(loop, true);
}

vks::CRefPtr<vks::CPolygon> polygonOf(const Curves &curves)
{
    vks::CRefPtr<vks::CPolygon> polygon = new vks::CPolygon();
    addLoop(*polygon, curves);
    return polygon;
}

vks::CLine2d *line(double x0, double y0, double x1, double y1)
{
    return new vks::CLine2d(Point(x0, y0), Point(x1, y1));
}

Curves square(double low, double high)
{
    return {line(low, low, high, low), line(high, low, high, high), line(high, high, low, high),
            line(low, high, low, low)};
}

} // namespace

TEST(GeometryInfoTest, lineIsWrittenByItsEnds) { EXPECT_EQ(curveText(line(0, 0, 1000, 0)), "0,0,1000,0"); }

TEST(GeometryInfoTest, trimmedLineIsWrittenByTheEndsItHasNow)
{
    auto *curve = line(0, 0, 1000, 0);
    curve->SetStartT(100);
    curve->SetEndT(900);
    EXPECT_EQ(curveText(curve), "100,0,900,0");
}

TEST(GeometryInfoTest, fullCircleIsWrittenByCentreAndRadius)
{
    EXPECT_EQ(curveText(new vks::CArc2d(Point(100, 200), 50, 0.0, 6.283185307179586)), "100,200,50");
}

TEST(GeometryInfoTest, arcIsWrittenWithItsBulgeInTheMiddle)
{
    EXPECT_EQ(curveText(new vks::CArc2d(Point(0, 0), Point(1000, 0), 1)), "0,0,1,1000,0");
    EXPECT_EQ(curveText(new vks::CArc2d(Point(0, 0), Point(1000, 0), -0.5)), "0,0,-0.5,1000,0");
}

TEST(GeometryInfoTest, coordinatesKeepSixDigits)
{
    EXPECT_EQ(curveText(line(1234567.891, 12.5, 123456.789, -0.0)), "1.23457e+06,12.5,123457,0");
}

TEST(GeometryInfoTest, curveOfAnotherKindIsWrittenAsTheKernelsText)
{
    int alive = 0;
    const vks::CRefPtr<vks::CCurve2d> curve = new CountedCurve(alive);
    EXPECT_EQ(getCurveInfo(curve).toStdString(), curve->ToText());
}

TEST(GeometryInfoTest, nullIsWrittenAsNothing)
{
    EXPECT_EQ(getCurveInfo(nullptr), QString());
    EXPECT_EQ(getPolyInfo(nullptr), QString());
}

TEST(GeometryInfoTest, polygonIsWrittenByTheStartsOfItsEdges)
{
    const auto polygon = polygonOf({line(0, 0, 1000, 0), new vks::CArc2d(Point(1000, 0), Point(1000, 1000), 0.41421356),
                                    line(1000, 1000, 0, 1000), line(0, 1000, 0, 0)});
    EXPECT_EQ(getPolyInfo(polygon), "0,0;1000,0,0.414214;1000,1000;0,1000;");
}

TEST(GeometryInfoTest, polygonOfOneCurveIsWrittenAsThatCurve)
{
    EXPECT_EQ(getPolyInfo(polygonOf({new vks::CArc2d(Point(100, 200), 50, 0.0, 6.283185307179586)})), "100,200,50");
    EXPECT_EQ(getPolyInfo(polygonOf({line(0, 0, 100, 0)})), "0,0,100,0");
}

TEST(GeometryInfoTest, polygonWithAHoleIsWrittenAsTheKernelsText)
{
    const auto polygon = polygonOf(square(0, 1000));
    addLoop(*polygon, square(100, 200));
    EXPECT_EQ(getPolyInfo(polygon).toStdString(), polygon->ToText());
    EXPECT_THAT(getPolyInfo(polygon).toStdString(), testing::StartsWith("POLYGON"));
}

TEST(GeometryInfoTest, polygonWithoutLoopOrEdgeIsWrittenAsTheKernelsText)
{
    const vks::CRefPtr<vks::CPolygon> polygon = new vks::CPolygon();
    EXPECT_EQ(getPolyInfo(polygon).toStdString(), polygon->ToText());
    addLoop(*polygon, {});
    EXPECT_EQ(getPolyInfo(polygon).toStdString(), polygon->ToText());
}

TEST(GeometryInfoTest, edgeOfAnotherKindIsWrittenAsTheKernelsTextOfIt)
{
    int alive = 0;
    auto *edge = new CountedCurve(alive, Point(1000, 0), Point(1000, 1000));
    const auto polygon = polygonOf({line(0, 0, 1000, 0), edge, line(1000, 1000, 0, 0)});
    EXPECT_EQ(getPolyInfo(polygon).toStdString(), "0,0;" + edge->ToText() + ";1000,1000;");
}

TEST(GeometryInfoTest, longPolygonIsWrittenWhole)
{
    Curves edges;
    QString expected;
    for (int i = 0; i < 1000; ++i) {
        edges.push_back(line(i, 0.5, i + 1, 0.5));
        expected += QString::number(i) + QStringLiteral(",0.5;");
    }
    EXPECT_EQ(getPolyInfo(polygonOf(edges)), expected);
}
