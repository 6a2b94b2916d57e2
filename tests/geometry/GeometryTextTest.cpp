#include "platform/geometry/GeometryText.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <clocale>
#include <random>

namespace {

using vks::CArc2d;
using vks::CGeometry;
using vks::CLine2d;
using vks::CLoop;
using vks::CPolygon;
using vks::CRefPtr;
using Vec = vks::CVec2<double>;

class GeometryTextReadBackTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(GeometryTextReadBackTest, textReadsBackToTheSameText)
{
    const auto geometry = CGeometry::LoadFromStr(GetParam());
    ASSERT_TRUE(geometry);
    EXPECT_EQ(geometry->ToText(), GetParam());
}
INSTANTIATE_TEST_SUITE_P(
    Texts, GeometryTextReadBackTest,
    ::testing::Values("LINESTRING(0 0, 1 1)", "LINESTRING(0.1 -2.5, 1e+30 1e-07)", "LINESTRING(3 3, 3 3)",
                      "LINESTRING(5e-324 0, 1.7976931348623157e+308 2.2250738585072014e-308)",
                      "CIRCULARSTRING(0 0, 5 5, 10 0)", "CIRCULARSTRING(150 200, 50 200, 150 200)",
                      "CIRCULARSTRING(0 0, 5 0, 10 0)", "POLYGON((0 0, 10 0, 10 10, 0 0))",
                      "POLYGON((0 0, 9 0, 9 9, 0 0),(5 1, 6 1, 6 2, 5 1))", "POLYGON EMPTY",
                      "POLYGON((0 0, 10 0, 10 10))", "POLYGON((0 0, 10 0))",
                      "CURVEPOLYGON(CIRCULARSTRING(10 0, -10 0, 10 0))",
                      "CURVEPOLYGON((0 0, 9 0, 9 9, 0 0),CIRCULARSTRING(7 3, 6 3, 7 3))",
                      "CURVEPOLYGON(COMPOUNDCURVE((0 0, 10 0), CIRCULARSTRING(10 0, 15 5, 10 10), (10 10, 0 10, 0 0)))",
                      "CURVEPOLYGON(COMPOUNDCURVE(CIRCULARSTRING(0 0, 5 -5, 10 0), CIRCULARSTRING(10 0, 5 5, 0 0)))"));

TEST(GeometryTextTest, aZeroIsWrittenWithoutItsSign)
{
    EXPECT_EQ(CGeometry::LoadFromStr("LINESTRING(-0 1, 2 -0.0)")->ToText(), "LINESTRING(0 1, 2 0)");
}

class GeometryTextRefusalTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(GeometryTextRefusalTest, otherTextIsRefused) { EXPECT_EQ(CGeometry::LoadFromStr(GetParam()), nullptr); }
INSTANTIATE_TEST_SUITE_P(
    Texts, GeometryTextRefusalTest,
    ::testing::Values("", " ", "POINT(0 0)", "linestring(0 0, 1 1)", "LINESTRING", "LINESTRING(", "LINESTRING()",
                      "LINESTRING(0 0)", "LINESTRING(0 0, 1 1, 2 2)", "LINESTRING(0 0, 1)", "LINESTRING(0 0, 1 1",
                      "LINESTRING(0 0, 1 1) x", "LINESTRING(0 0, nan 1)", "LINESTRING(0 0, inf 1)",
                      "LINESTRING(0 0, 1e400 1)", "LINESTRING(0 0, +1 1)", "LINESTRING(0 0, 0x1 1)",
                      "LINESTRING(0 0; 1 1)", "LINESTRING(0,0, 1 1)", "LINESTRING(0 0, 1-2)", "LINESTRING EMPTY",
                      "CIRCULARSTRING(0 0, 1 1)", "CIRCULARSTRING(0 0, 1 1, 2 0, 3 1, 4 0)", "POLYGON", "POLYGONEMPTY",
                      "POLYGON EMPTY()", "POLYGON(", "POLYGON()", "POLYGON(())", "POLYGON((0 0))", "POLYGON((0 0, 1 1)",
                      "POLYGON(0 0, 1 1)", "POLYGON(CIRCULARSTRING(10 0, -10 0, 10 0))", "CURVEPOLYGON EMPTY",
                      "CURVEPOLYGON(LINESTRING(0 0, 1 1))",
                      "CURVEPOLYGON(COMPOUNDCURVE((0 0, 1 0), CIRCULARSTRING(1 1, 2 2, 0 0)))",
                      "CURVEPOLYGON(COMPOUNDCURVE(COMPOUNDCURVE((0 0, 1 0))))", "0,0,1,1", "1,2;3,4;"));

TEST(GeometryTextTest, nullTextIsRefused) { EXPECT_EQ(CGeometry::LoadFromStr(nullptr), nullptr); }

TEST(GeometryTextTest, blanksBetweenTheTokensAreRead)
{
    const auto geometry = CGeometry::LoadFromStr("  LINESTRING ( 0 0 ,1   1 )  ");
    ASSERT_TRUE(geometry);
    EXPECT_EQ(geometry->ToText(), "LINESTRING(0 0, 1 1)");
}

TEST(GeometryTextTest, numbersHaveTheFewestDigitsThatReadBack)
{
    EXPECT_EQ(CLine2d({0.1, 1.0 / 3}, {123456789.125, -0.5}).ToText(),
              "LINESTRING(0.1 0.3333333333333333, 123456789.125 -0.5)");
}

TEST(GeometryTextTest, textHoldsNoneOfTheSeparatorsOfOtherForms)
{
    const auto text = shapes::circle({-1.5, 2e300}, 3)->ToText();
    EXPECT_EQ(text.find_first_of(";$#/:"), std::string::npos);
}

TEST(GeometryTextTest, gapIsWrittenAndReadAsALine)
{
    CPolygon shape;
    auto *loop = new CLoop;
    loop->AddCurve(new CLine2d({0, 0}, {10, 0}), false);
    loop->AddCurve(new CLine2d({10, 1}, {0, 0}), false);
    shape.AddLoop(loop, true);
    EXPECT_EQ(shape.ToText(), "POLYGON((0 0, 10 0, 10 1, 0 0))");
}

TEST(GeometryTextTest, gapBesideAnArcIsWrittenAsALineToo)
{
    CPolygon shape;
    auto *loop = new CLoop;
    loop->AddCurve(new CArc2d(Vec(0, 0), Vec(5, -5), Vec(10, 0)), false);
    loop->AddCurve(new CLine2d({10, 1}, {0, 0}), false);
    shape.AddLoop(loop, true);
    EXPECT_EQ(shape.ToText(), "CURVEPOLYGON(COMPOUNDCURVE(CIRCULARSTRING(0 0, 5 -5, 10 0), (10 0, 10 1, 0 0)))");
}

TEST(GeometryTextTest, emptyLoopsAreLeftOut)
{
    CPolygon shape;
    shape.AddLoop(new CLoop, true);
    EXPECT_EQ(shape.ToText(), "POLYGON EMPTY");
    shape.AddLoop(shapes::loop({{0, 0}, {1, 0}, {1, 1}}), true);
    EXPECT_EQ(shape.ToText(), "POLYGON((0 0, 1 0, 1 1, 0 0))");
}

TEST(GeometryTextTest, localeChangesNothing)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char *name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"})
        std::setlocale(LC_NUMERIC, name);
    EXPECT_EQ(CLine2d({0.5, 0}, {1.5, 1}).ToText(), "LINESTRING(0.5 0, 1.5 1)");
    EXPECT_TRUE(CGeometry::LoadFromStr("LINESTRING(0.5 0, 1.5 1)"));
    std::setlocale(LC_NUMERIC, before.c_str());
}

/** Coordinates of every size that a double has, from denormal to huge. */
class RandomNumbers
{
public:
    double operator()()
    {
        const double size = std::uniform_real_distribution<double>(-300, 300)(m_random);
        const double digits = std::uniform_real_distribution<double>(-10, 10)(m_random);
        return m_random() % 3 == 0 ? digits * std::pow(10.0, size) : digits * 1e5;
    }
    Vec point() { return {(*this)(), (*this)()}; }

private:
    std::mt19937_64 m_random{11};
};

TEST(GeometryTextTest, hundredThousandRandomCurvesReadBackBitForBit)
{
    RandomNumbers random;
    for (int i = 0; i < 100000; ++i) {
        CRefPtr<vks::CCurve2d> curve;
        if (i % 2 == 0)
            curve = new CLine2d(random.point(), random.point());
        else
            curve = new CArc2d(random.point(), random.point(), random.point());
        const std::string text = curve->ToText();
        const CRefPtr<CGeometry> read = CGeometry::LoadFromStr(text.c_str());
        ASSERT_TRUE(read) << text;
        ASSERT_EQ(read->ToText(), text);
        const auto *again = dynamic_cast<vks::CCurve2d *>(read.get());
        ASSERT_EQ(again->StartPoint(), curve->StartPoint());
        ASSERT_EQ(again->EndPoint(), curve->EndPoint());
        ASSERT_EQ(again->Length(), curve->Length());
    }
}

TEST(GeometryTextTest, randomPolygonsReadBackBitForBit)
{
    RandomNumbers random;
    for (int i = 0; i < 10000; ++i) {
        CPolygon shape;
        for (int ring = 0; ring <= i % 3; ++ring) {
            auto *loop = new CLoop;
            const Vec first = random.point();
            Vec from = first;
            for (int edge = 0; edge < 5; ++edge) {
                const Vec to = edge == 4 ? first : random.point();
                if ((i + edge) % 3 == 0)
                    loop->AddCurve(new CArc2d(from, random.point(), to), false);
                else
                    loop->AddCurve(new CLine2d(from, to), false);
                from = to;
            }
            shape.AddLoop(loop, true);
        }
        const std::string text = shape.ToText();
        const auto read = CPolygon::LoadFromString(text.c_str());
        ASSERT_TRUE(read) << text;
        ASSERT_EQ(read->ToText(), text);
        ASSERT_EQ(read->LoopCount(), shape.LoopCount());
    }
}

TEST(GeometryTextTest, hugeCountsAreRefusedWithoutHarm)
{
    constexpr std::size_t kMany = 1000000;
    const std::string brackets(kMany, '(');
    std::string compounds;
    for (int i = 0; i < 100000; ++i)
        compounds += "COMPOUNDCURVE(";
    for (const std::string &text :
         {"POLYGON" + brackets, "CURVEPOLYGON(" + compounds, "LINESTRING(" + std::string(kMany, '9') + " 0, 1 1)",
          "POLYGON((" + std::string(kMany, ','), "LINESTRING(0 0, 1 1" + std::string(kMany, ')')})
        EXPECT_EQ(CGeometry::LoadFromStr(text.c_str()), nullptr);
}

TEST(GeometryTextTest, longNumberThatIsFiniteIsRead)
{
    const std::string text = "LINESTRING(0." + std::string(100000, '3') + " 0, 1 1)";
    const auto geometry = CGeometry::LoadFromStr(text.c_str());
    ASSERT_TRUE(geometry);
    EXPECT_EQ(geometry->ToText(), "LINESTRING(0.3333333333333333 0, 1 1)");
}

TEST(GeometryTextTest, textWithChangedBytesIsReadOrRefusedWithoutHarm)
{
    const std::string text = "CURVEPOLYGON(COMPOUNDCURVE((0 0, 10.5 0), CIRCULARSTRING(10.5 0, 15 5, 10 10), "
                             "(10 10, 0 10, 0 0)),(1 1, 2 1, 2 2))";
    const std::string bytes = "0123456789+-.eE(), NaINFCUR\xff";
    std::mt19937 random(5);
    for (int i = 0; i < 20000; ++i) {
        std::string changed = text;
        for (std::size_t changes = random() % 3 + 1; changes > 0; --changes)
            changed[random() % changed.size()] = bytes[random() % bytes.size()];
        const auto geometry = CGeometry::LoadFromStr(changed.c_str());
        if (!geometry)
            continue;
        const std::string again = geometry->ToText();
        const auto read = CGeometry::LoadFromStr(again.c_str());
        ASSERT_TRUE(read) << changed;
        ASSERT_EQ(read->ToText(), again);
    }
}

TEST(GeometryTextTest, openRingKeepsItsLastPoint)
{
    const auto open = CPolygon::LoadFromString("POLYGON((0 0, 10 0, 10 10, 0 1e-9))");
    ASSERT_TRUE(open);
    EXPECT_EQ(open->GetLoop(0)->CurveCount(), 3);
    EXPECT_EQ(open->ToText(), "POLYGON((0 0, 10 0, 10 10, 0 1e-09))");
}

TEST(GeometryTextTest, textOfATrimmedCurveIsThatOfThePart)
{
    CArc2d arc(Vec(0, 0), 100.0, 0.0, 2 * shapes::kPi);
    arc.SetEndT(100 * shapes::kPi);
    const auto read = CGeometry::LoadFromStr(arc.ToText().c_str());
    ASSERT_TRUE(read);
    const auto &half = dynamic_cast<CArc2d &>(*read);
    EXPECT_NEAR(half.Length(), 100 * shapes::kPi, 1e-9);
    EXPECT_EQ(half.StartPoint(), arc.StartPoint());
    EXPECT_EQ(half.EndPoint(), arc.EndPoint());
}

TEST(GeometryTextTest, arcsByBulgeReadBackWithTheirPointsAndShape)
{
    for (const double bulge : {1e-6, -1e-3, 0.2, -0.41421356, 1.0, -1.0, 2.5, -30.0, 1e4}) {
        const CArc2d arc({100, 200}, {-700, 350}, bulge);
        const auto read = CGeometry::LoadFromStr(arc.ToText().c_str());
        ASSERT_TRUE(read);
        const auto &again = dynamic_cast<CArc2d &>(*read);
        EXPECT_EQ(again.StartPoint(), arc.StartPoint());
        EXPECT_EQ(again.EndPoint(), arc.EndPoint());
        EXPECT_NEAR(again.Length() / arc.Length(), 1, 1e-9) << bulge;
        EXPECT_NEAR(again.GetBulge() / bulge, 1, 1e-6) << bulge;
    }
}

TEST(GeometryTextTest, textCutAtAnyPlaceIsRefusedWithoutHarm)
{
    const std::string text =
        "CURVEPOLYGON(COMPOUNDCURVE((0 0, 10.5 0), CIRCULARSTRING(10.5 0, 15 5, 10 10), (10 10, 0 10, 0 0)))";
    for (std::size_t size = 0; size < text.size(); ++size)
        EXPECT_EQ(CGeometry::LoadFromStr(text.substr(0, size).c_str()), nullptr);
}

} // namespace
