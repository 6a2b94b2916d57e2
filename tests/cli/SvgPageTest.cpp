#include "cli/SvgPage.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <QDomDocument>

#include <gtest/gtest.h>

using orvcad::SvgPage;
using vks::CArc2d;
using vks::CLine2d;
using Point = vks::CVec2<double>;

namespace {

constexpr double kPi = 3.14159265358979323846;

/** 1:100 with world point (1000, 2000) at the middle of an A4 page. */
class SvgPageTest : public ::testing::Test
{
protected:
    void SetUp() override { page.setPlan({1000, 2000}, {105, 148.5}, 100); }

    /** The elements of that name on the finished page. */
    QDomNodeList elements(const QString &name)
    {
        const QByteArray document = page.document("Title", "text{fill:#222}");
        QString message;
        EXPECT_TRUE(xml.setContent(document, true, &message)) << message.toStdString() << document.toStdString();
        return xml.elementsByTagName(name);
    }
    std::string pathData(int index = 0) { return elements("path").at(index).toElement().attribute("d").toStdString(); }

    SvgPage page{210, 297};
    QDomDocument xml;
};

TEST_F(SvgPageTest, pageHasItsSizeInMillimetresAndAUserUnitIsOne)
{
    elements("svg");
    EXPECT_EQ(xml.documentElement().namespaceURI(), "http://www.w3.org/2000/svg");
    EXPECT_EQ(xml.documentElement().attribute("width"), "210mm");
    EXPECT_EQ(xml.documentElement().attribute("height"), "297mm");
    EXPECT_EQ(xml.documentElement().attribute("viewBox"), "0 0 210 297");
}

TEST_F(SvgPageTest, northIsUpAndOneMillimetreStandsForTheScale)
{
    EXPECT_EQ(page.toPaper({1000, 2000}), Point(105, 148.5));
    EXPECT_EQ(page.toPaper({1100, 2000}), Point(106, 148.5));
    EXPECT_EQ(page.toPaper({1000, 2100}), Point(105, 147.5));
}

TEST_F(SvgPageTest, lineGoesFromStartToEnd)
{
    page.addCurve(CLine2d({1000, 2000}, {1250, 2050}), "stroke=\"#000\"");
    EXPECT_EQ(pathData(), "M105 148.5 L107.5 148");
    EXPECT_EQ(elements("path").at(0).toElement().attribute("fill"), "none");
    EXPECT_EQ(elements("path").at(0).toElement().attribute("stroke"), "#000");
}

TEST_F(SvgPageTest, counterClockwiseArcHasSweepFlagZero)
{
    // A quarter of a circle about (1000, 2000), from east to north.
    page.addCurve(CArc2d(Point(1000, 2000), 500, 0, kPi / 2), "");
    EXPECT_EQ(pathData(), "M110 148.5 A5 5 0 0 0 105 143.5");
}

TEST_F(SvgPageTest, clockwiseArcHasSweepFlagOne)
{
    page.addCurve(CArc2d(Point(1000, 2000), 500, kPi / 2, 0), "");
    EXPECT_EQ(pathData(), "M105 143.5 A5 5 0 0 1 110 148.5");
}

TEST_F(SvgPageTest, arcBeyondHalfACircleHasTheLargeFlag)
{
    page.addCurve(CArc2d(Point(1000, 2000), 500, 0, 1.5 * kPi), "");
    EXPECT_EQ(pathData(), "M110 148.5 A5 5 0 1 0 105 153.5");
}

TEST_F(SvgPageTest, fullCircleIsTwoHalves)
{
    page.addCurve(CArc2d(Point(1000, 2000), 500, 0, 2 * kPi), "");
    EXPECT_EQ(pathData(), "M110 148.5 A5 5 0 0 0 100 148.5 A5 5 0 0 0 110 148.5");
}

TEST_F(SvgPageTest, flatArcIsALine)
{
    page.addCurve(CArc2d(Point(1000, 2000), Point(1100, 2000), 0.0), "");
    EXPECT_EQ(pathData(), "M105 148.5 L106 148.5");
}

TEST_F(SvgPageTest, emptyCurveDrawsNothing)
{
    CLine2d line({1000, 2000}, {1100, 2000});
    line.SetStartT(80);
    line.SetEndT(20);
    page.addCurve(line, "");
    EXPECT_EQ(elements("path").size(), 0);
}

TEST_F(SvgPageTest, holesOfAPolygonStandInOnePathByTheEvenOddRule)
{
    const auto polygon = vks::CPolygon::LoadFromString("POLYGON((1000 2000, 2000 2000, 2000 3000, 1000 3000, 1000 "
                                                       "2000),(1200 2200, 1400 2200, 1400 2400, 1200 2200))");
    ASSERT_TRUE(polygon);
    page.addPolygon(*polygon, "fill=\"#abc\"");
    EXPECT_EQ(pathData(), "M105 148.5 L115 148.5 L115 138.5 L105 138.5 L105 148.5 Z "
                          "M107 146.5 L109 146.5 L109 144.5 L107 146.5 Z");
    EXPECT_EQ(elements("path").at(0).toElement().attribute("fill-rule"), "evenodd");
}

TEST_F(SvgPageTest, numbersHaveThreeDecimalsAtMostAndNoNegativeZero)
{
    page.addLine({0.12345, -0.0001}, {1.0 / 3.0, 2.5}, "");
    EXPECT_EQ(pathData(), "M0.123 0 L0.333 2.5");
}

TEST_F(SvgPageTest, sizeOfATextIsTheHeightOfItsCapitals)
{
    page.addText({10, 20}, 2.1, "KL-1");
    const QDomElement text = elements("text").at(0).toElement();
    EXPECT_EQ(text.attribute("x"), "10");
    EXPECT_EQ(text.attribute("y"), "20");
    EXPECT_EQ(text.attribute("font-size"), "3"); // capitals are 0.7 of it
    EXPECT_EQ(text.text(), "KL-1");
    EXPECT_FALSE(text.hasAttribute("transform"));
}

TEST_F(SvgPageTest, textTurnsCounterClockwiseAboutItsStart)
{
    page.addText({10, 20}, 2.1, "KL-1", QString(), kPi / 2);
    EXPECT_EQ(elements("text").at(0).toElement().attribute("transform"), "rotate(-90 10 20)");
}

TEST_F(SvgPageTest, textsAndTitleMayHoldAnyCharacter)
{
    page.addText({0, 0}, 2, QStringLiteral("<Q> & \"墙\" 'x'"));
    EXPECT_EQ(elements("text").at(0).toElement().text(), QStringLiteral("<Q> & \"墙\" 'x'"));
    QDomDocument document;
    EXPECT_TRUE(document.setContent(page.document("</title> & 墙", "")));
    EXPECT_EQ(document.documentElement().firstChildElement("title").text(), QStringLiteral("</title> & 墙"));
}

TEST_F(SvgPageTest, controlCharactersThatXmlForbidsAreLeftOut)
{
    page.addText({0, 0}, 2, QString("a\x01\x1F") + QChar(0xFFFF) + QChar(0xD800) + "b");
    EXPECT_EQ(elements("text").at(0).toElement().text(), "ab");
}

TEST_F(SvgPageTest, pairsOfTheSupplementaryPlanesStayAndLoneHalvesGo)
{
    const QString house = QString::fromUtf8("\xF0\x9F\x8F\xA0");
    page.addText({0, 0}, 2, "a\tb" + house + "\nc" + house.left(1));
    EXPECT_EQ(elements("text").at(0).toElement().text(), "a\tb" + house + "\nc");
}

TEST_F(SvgPageTest, loopWithoutCurvesHasNoPath)
{
    vks::CPolygon polygon;
    polygon.AddLoop(new vks::CLoop, true);
    page.addPolygon(polygon, "fill=\"#fff\"");
    EXPECT_EQ(pathData(), "");
}

TEST_F(SvgPageTest, groupHoldsWhatIsAddedUntilItsEnd)
{
    page.beginGroup("walls", "opacity=\".5\"");
    page.addRectangle(1, 2, 3, 4, "fill=\"#fff\"");
    page.endGroup();
    page.addCircle({5, 6}, 7, "fill=\"#000\"");
    const QDomElement group = elements("g").at(0).toElement();
    EXPECT_EQ(group.attribute("class"), "walls");
    EXPECT_EQ(group.attribute("opacity"), ".5");
    const QDomElement rectangle = group.firstChildElement("rect");
    EXPECT_EQ(rectangle.attribute("x") + ' ' + rectangle.attribute("y") + ' ' + rectangle.attribute("width") + ' ' +
                  rectangle.attribute("height"),
              "1 2 3 4");
    EXPECT_TRUE(group.firstChildElement("circle").isNull());
    EXPECT_EQ(xml.documentElement().firstChildElement("circle").attribute("r"), "7");
}

} // namespace
