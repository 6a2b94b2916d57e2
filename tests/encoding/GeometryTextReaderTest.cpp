#include "encoding/GeometryTextReader.h"

#include "encoding/CountedCurve.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <gmock/gmock.h>

using Reader = GeometryTextReader;
using Point = vks::CVec2<double>;
using testing::ElementsAre;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kNear = 1e-9; // mm

void expectPoint(const Point &point, double x, double y)
{
    EXPECT_NEAR(point.x, x, kNear);
    EXPECT_NEAR(point.y, y, kNear);
}

QString utf16(const char *text) { return QString::fromUtf8(text); }

bool canReadCurve(const char *text)
{
    Reader::Curve curve;
    const bool ok = Reader::reconstructCurve(utf16(text), curve);
    EXPECT_EQ(ok, curve != nullptr) << text;
    return ok;
}

Reader::Polygon polygonOf(const char *text)
{
    Reader::Polygon polygon;
    EXPECT_TRUE(Reader::reconstructPoly(utf16(text), polygon)) << text;
    return polygon;
}

bool isVertexList(const char *text)
{
    std::vector<Reader::Vertex> vertices;
    return Reader::reconstructPoly_Simplified_Normal_StringToDouble(utf16(text), vertices);
}

} // namespace

TEST(GeometryTextReaderTest, fourNumbersAreALine)
{
    Reader::Curve curve;
    ASSERT_TRUE(Reader::reconstructCurve(QStringLiteral("0,-10.5,1000,2e+03"), curve));
    EXPECT_EQ(curve->Type(), 1);
    expectPoint(curve->StartPoint(), 0, -10.5);
    expectPoint(curve->EndPoint(), 1000, 2000);
}

TEST(GeometryTextReaderTest, threeNumbersAreAFullCircle)
{
    Reader::Curve curve;
    ASSERT_TRUE(Reader::reconstructCurve(QStringLiteral("100,200,50"), curve));
    ASSERT_EQ(curve->Type(), 2);
    EXPECT_TRUE(curve->IsClosed());
    const auto *circle = static_cast<vks::CArc2d *>(curve.get());
    expectPoint(circle->CenterPt(), 100, 200);
    EXPECT_NEAR(circle->Radius(), 50, kNear);
    EXPECT_NEAR(circle->Length(), 2 * kPi * 50, kNear);
}

TEST(GeometryTextReaderTest, fiveNumbersAreAnArcWithItsBulgeInTheMiddle)
{
    Reader::Curve curve;
    ASSERT_TRUE(Reader::reconstructCurve(QStringLiteral("0,0,1,1000,0"), curve));
    ASSERT_EQ(curve->Type(), 2);
    const auto *arc = static_cast<vks::CArc2d *>(curve.get());
    expectPoint(arc->StartPoint(), 0, 0);
    expectPoint(arc->EndPoint(), 1000, 0);
    EXPECT_NEAR(arc->GetBulge(), 1, kNear);
    expectPoint(arc->CenterPt(), 500, 0);
    EXPECT_NEAR(arc->Radius(), 500, kNear);
    expectPoint(arc->MidPoint(), 500, -500); // counter-clockwise from left to right runs below the chord
}

/** A half circle over a chord of 600 by 800: no two numbers of the text are the same. */
TEST(GeometryTextReaderTest, eachNumberOfACurveHasItsPlace)
{
    Reader::Curve curve;
    ASSERT_TRUE(Reader::reconstructCurve(QStringLiteral("100,250,-1,700,1050"), curve));
    expectPoint(curve->StartPoint(), 100, 250);
    expectPoint(curve->EndPoint(), 700, 1050);
    expectPoint(curve->MidPoint(), 0, 950); // clockwise along the chord runs on its left
    ASSERT_TRUE(Reader::reconstructCurve(QStringLiteral("100,250,700,1050"), curve));
    expectPoint(curve->StartPoint(), 100, 250);
    expectPoint(curve->EndPoint(), 700, 1050);
}

TEST(GeometryTextReaderTest, anyOtherCountOfNumbersIsNoCurve)
{
    for (const char *text : {"", "1", "1,2", "1,2,3,4,5,6", "1,2,3,4,5,6,7,8,9"})
        EXPECT_FALSE(canReadCurve(text)) << text;
}

TEST(GeometryTextReaderTest, emptyPartIsNoNumber)
{
    for (const char *text : {"1,,3", ",,", "1,2,", ",2,3", "1,2,3,", "1,2,3,4,"})
        EXPECT_FALSE(canReadCurve(text)) << text;
}

TEST(GeometryTextReaderTest, partsThatAreNoNumbersAreNoCurve)
{
    for (const char *text : {"1,2,e", "1,2,-", "1,2,+-3", "1,2,1e400", "1.2.3,0,0", "1,2,3,4e"})
        EXPECT_FALSE(canReadCurve(text)) << text;
}

TEST(GeometryTextReaderTest, upperCaseExponentAndBlankAndSemicolonAreNoCurve)
{
    for (const char *text : {"1E3,2,3", "1, 2,3", " 1,2,3", "1,2,3;", "inf,0,1", "nan,0,0,0"})
        EXPECT_FALSE(canReadCurve(text)) << text;
}

TEST(GeometryTextReaderTest, leadingPlusPassesInACurve) { EXPECT_TRUE(canReadCurve("+1,+2,+3")); }

TEST(GeometryTextReaderTest, zeroRadiusAndZeroLengthAreBuiltAsTheyStand)
{
    EXPECT_TRUE(canReadCurve("1,2,0"));
    EXPECT_TRUE(canReadCurve("5,5,5,5"));
    EXPECT_TRUE(canReadCurve("0,0,0,1000,0"));
}

TEST(GeometryTextReaderTest, curveHeldBeforeIsGoneAfterAFailure)
{
    int alive = 0;
    Reader::Curve curve = new CountedCurve(alive);
    ASSERT_EQ(alive, 1);
    EXPECT_FALSE(Reader::reconstructCurve(QStringLiteral("1,2"), curve));
    EXPECT_EQ(curve, nullptr);
    EXPECT_EQ(alive, 0);
}

TEST(GeometryTextReaderTest, curveHeldBeforeIsReplacedBySuccess)
{
    int alive = 0;
    Reader::Curve curve = new CountedCurve(alive);
    EXPECT_TRUE(Reader::reconstructCurve(QStringLiteral("0,0,1,1"), curve));
    EXPECT_EQ(curve->Type(), 1);
    EXPECT_EQ(alive, 0);
}

TEST(GeometryTextReaderTest, routineOfAKindWantsItsOwnCountOfParts)
{
    const QStringList four = {"1", "2", "3", "4"};
    Reader::Curve curve;
    EXPECT_TRUE(Reader::reconstructCurve_Line(four, curve));
    EXPECT_EQ(curve->Type(), 1);
    EXPECT_FALSE(Reader::reconstructCurve_Circle(four, curve));
    EXPECT_EQ(curve, nullptr);
    EXPECT_FALSE(Reader::reconstructCurve_Arc(four, curve));
    EXPECT_TRUE(Reader::reconstructCurve_Circle(four.mid(1), curve));
    EXPECT_TRUE(curve->IsClosed());
    EXPECT_TRUE(Reader::reconstructCurve_Arc(four + QStringList{"5"}, curve));
    EXPECT_EQ(curve->Type(), 2);
    EXPECT_FALSE(Reader::reconstructCurve_Line({}, curve));
    EXPECT_EQ(curve, nullptr);
}

TEST(GeometryTextReaderTest, partsAreConvertedFromTheLastToTheFirstUpToTheFirstFailure)
{
    double numbers[4] = {-1, -1, -1, -1};
    EXPECT_FALSE(Reader::reconstructCurve_StringToDouble({"1", "x", "3", "4"}, numbers));
    EXPECT_EQ(numbers[0], -1);
    EXPECT_THAT(numbers, ElementsAre(-1, testing::_, 3, 4));
    EXPECT_TRUE(Reader::reconstructCurve_StringToDouble({"1", " 2", "+3", "4e0"}, numbers));
    EXPECT_THAT(numbers, ElementsAre(1, 2, 3, 4));
    EXPECT_TRUE(Reader::reconstructCurve_StringToDouble({}, numbers));
}

TEST(GeometryTextReaderTest, verticesOfTwoNumbersAreStraightEdges)
{
    const auto square = polygonOf("0,0;1000,0;1000,1000;0,1000;");
    ASSERT_EQ(square->LoopCount(), 1);
    ASSERT_EQ(square->GetLoop(0)->CurveCount(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(square->GetCurve(i)->Type(), 1);
    expectPoint(square->GetCurve(3)->StartPoint(), 0, 1000);
    expectPoint(square->GetCurve(3)->EndPoint(), 0, 0);
    EXPECT_NEAR(square->Area(), 1e6, 1e-3);
}

TEST(GeometryTextReaderTest, vertexOfThreeNumbersStartsAnArcEdge)
{
    const auto polygon = polygonOf("0,0;1000,0,1;1000,1000;0,1000;");
    const auto *edge = polygon->GetCurve(1);
    ASSERT_EQ(edge->Type(), 2);
    expectPoint(edge->StartPoint(), 1000, 0);
    expectPoint(edge->EndPoint(), 1000, 1000);
    EXPECT_NEAR(static_cast<const vks::CArc2d *>(edge)->GetBulge(), 1, kNear);
    EXPECT_NEAR(polygon->Area(), 1e6 + kPi * 500 * 500 / 2, 1e-3);
}

TEST(GeometryTextReaderTest, arcMayBeTheLastEdge)
{
    const auto polygon = polygonOf("0,0;1000,0,1;");
    ASSERT_EQ(polygon->GetLoop(0)->CurveCount(), 2);
    EXPECT_EQ(polygon->GetCurve(0)->Type(), 1);
    expectPoint(polygon->GetCurve(1)->EndPoint(), 0, 0);
    EXPECT_NEAR(polygon->Area(), kPi * 500 * 500 / 2, 1e-3);
}

TEST(GeometryTextReaderTest, zeroBulgeIsStillAnArcEdge)
{
    std::vector<Reader::Vertex> vertices;
    ASSERT_TRUE(Reader::reconstructPoly_Simplified_Normal_StringToDouble(QStringLiteral("0,0,0;1000,0;"), vertices));
    EXPECT_TRUE(vertices[0].isArc);
    EXPECT_FALSE(vertices[1].isArc);
}

TEST(GeometryTextReaderTest, textWithoutClosingSemicolonLosesItsLastVertex)
{
    Reader::Polygon polygon;
    EXPECT_FALSE(Reader::reconstructPoly(QStringLiteral("0,0;100,0;100,100"), polygon));
    ASSERT_NE(polygon, nullptr); // two edges there and back, which are not valid and stay in the output
    ASSERT_EQ(polygon->GetLoop(0)->CurveCount(), 2);
    expectPoint(polygon->GetCurve(1)->StartPoint(), 100, 0);
    expectPoint(polygon->GetCurve(1)->EndPoint(), 0, 0);
}

TEST(GeometryTextReaderTest, lastPartIsDroppedWhateverItHolds)
{
    EXPECT_TRUE(isVertexList("0,0;100,0;100,100;rubbish"));
    EXPECT_TRUE(isVertexList("0,0;100,0; "));
    EXPECT_FALSE(isVertexList("0,0;100,0"));
}

TEST(GeometryTextReaderTest, emptyVertexIsRefused)
{
    EXPECT_FALSE(isVertexList("0,0;100,0;;"));
    EXPECT_FALSE(isVertexList(";0,0;100,0;"));
    EXPECT_FALSE(isVertexList(";"));
    EXPECT_FALSE(isVertexList(""));
}

TEST(GeometryTextReaderTest, oneVertexIsRefused)
{
    Reader::Polygon polygon;
    EXPECT_FALSE(Reader::reconstructPoly(QStringLiteral("0,0;"), polygon));
    EXPECT_EQ(polygon, nullptr);
}

TEST(GeometryTextReaderTest, vertexHasTwoOrThreeNumbers)
{
    Reader::Polygon polygon;
    EXPECT_FALSE(Reader::reconstructPoly(QStringLiteral("0,0,1,2;1,1;"), polygon));
    EXPECT_EQ(polygon, nullptr);
    EXPECT_FALSE(isVertexList("0;1,1;2,2;"));
    EXPECT_FALSE(isVertexList("0,0;1,e;2,2;"));
    EXPECT_FALSE(isVertexList("0,0;1,;2,2;"));
}

TEST(GeometryTextReaderTest, verticesMayHaveWhiteSpaceWhereNoPatternIsAsked)
{
    std::vector<Reader::Vertex> vertices;
    ASSERT_TRUE(Reader::reconstructPoly_Simplified_Normal_StringToDouble(QStringLiteral(" 1, 2 ;3,4;"), vertices));
    ASSERT_EQ(vertices.size(), 2U);
    EXPECT_EQ(vertices[0].x, 1);
    EXPECT_EQ(vertices[0].y, 2);
}

TEST(GeometryTextReaderTest, vertexListIsEmptiedFirstAndEmptyAfterAFailure)
{
    std::vector<Reader::Vertex> vertices(5);
    ASSERT_TRUE(Reader::reconstructPoly_Simplified_Normal_StringToDouble(QStringLiteral("1,2;3,4;"), vertices));
    EXPECT_EQ(vertices.size(), 2U);
    EXPECT_FALSE(Reader::reconstructPoly_Simplified_Normal_StringToDouble(QStringLiteral("1,2;3,4;x;"), vertices));
    EXPECT_TRUE(vertices.empty());
}

TEST(GeometryTextReaderTest, circleTextIsAPolygonOfOneCircle)
{
    const auto polygon = polygonOf("0,0,100");
    ASSERT_EQ(polygon->LoopCount(), 1);
    EXPECT_TRUE(polygon->IsCircle());
    EXPECT_NEAR(polygon->Area(), kPi * 100 * 100, 1e-6);
}

TEST(GeometryTextReaderTest, openCurveIsNoPolygon)
{
    for (const char *text : {"0,0,100,0", "0,0,1,1000,0", "1,2", "1,,3"}) {
        Reader::Polygon polygon = new vks::CPolygon();
        EXPECT_FALSE(Reader::reconstructPoly(utf16(text), polygon)) << text;
        EXPECT_EQ(polygon, nullptr) << text;
    }
}

TEST(GeometryTextReaderTest, circleWithoutAreaIsBuiltAndNotValid)
{
    Reader::Polygon polygon;
    EXPECT_FALSE(Reader::reconstructPoly_Simplified_NoSemicolon(QStringLiteral("0,0,0"), polygon));
}

TEST(GeometryTextReaderTest, emptyTextIsNoPolygonAndLetsGoOfTheOldOne)
{
    Reader::Polygon polygon = new vks::CPolygon();
    EXPECT_FALSE(Reader::reconstructPoly(QString(), polygon));
    EXPECT_EQ(polygon, nullptr);
}

TEST(GeometryTextReaderTest, polygonThatIsNotValidStaysInTheOutput)
{
    Reader::Polygon polygon;
    EXPECT_FALSE(Reader::reconstructPoly(QStringLiteral("0,0;100,100;100,0;0,100;"), polygon)); // crosses itself
    ASSERT_NE(polygon, nullptr);
    EXPECT_EQ(polygon->GetLoop(0)->CurveCount(), 4);
}

TEST(GeometryTextReaderTest, otherCharactersGoToTheKernel)
{
    const auto polygon =
        polygonOf("POLYGON((0 0, 1000 0, 1000 1000, 0 1000, 0 0), (100 100, 100 200, 200 200, 100 100))");
    EXPECT_EQ(polygon->LoopCount(), 2);
    EXPECT_NEAR(polygon->Area(), 1e6 - 5000, 1e-3);
}

TEST(GeometryTextReaderTest, kernelTextThatIsNotValidStaysInTheOutput)
{
    Reader::Polygon polygon;
    EXPECT_FALSE(Reader::reconstructPoly(QStringLiteral("POLYGON((0 0, 100 100, 100 0, 0 100, 0 0))"), polygon));
    EXPECT_NE(polygon, nullptr);
}

TEST(GeometryTextReaderTest, whatTheKernelDoesNotKnowEitherIsNoPolygon)
{
    for (const char *text :
         {"1E3,2,3", "0, 0;100,0;100,100;", "polygon", "POLYGON((0 0", "LINESTRING(0 0, 1 1)", "墙"}) {
        Reader::Polygon polygon = new vks::CPolygon();
        EXPECT_FALSE(Reader::reconstructPoly(utf16(text), polygon)) << text;
        EXPECT_EQ(polygon, nullptr) << text;
    }
    Reader::Polygon polygon;
    EXPECT_FALSE(Reader::reconstructPoly_WithAsString(QStringLiteral("0,0;100,0;100,100;"), polygon));
}

TEST(GeometryTextReaderTest, byValueACurveIsNullForABadText)
{
    EXPECT_EQ(Reader::curveOf(u"0,0,30,40")->Length(), 50.0);
    EXPECT_EQ(Reader::curveOf(u"0,0,1E3,0"), nullptr);
    EXPECT_EQ(Reader::curveOf(u""), nullptr);
}

TEST(GeometryTextReaderTest, byValueAPolygonThatIsNotValidIsGivenLikeAnyOther)
{
    EXPECT_EQ(Reader::polygonOf(QStringLiteral("0,0;10,0;10,10;"))->Area(), 50.0);
    EXPECT_NE(Reader::polygonOf(QStringLiteral("0,0;100,100;100,0;0,100;")), nullptr);
    EXPECT_EQ(Reader::polygonOf(QStringLiteral("0,0;")), nullptr);
    EXPECT_EQ(Reader::polygonOf(QString()), nullptr);
}
