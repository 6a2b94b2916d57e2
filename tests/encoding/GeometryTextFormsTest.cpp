#include "encoding/GeometryTextForms.h"

#include <QRegExp>

#include <gmock/gmock.h>

#include <random>

using encoding::isCurveText;
using encoding::isPolygonText;

namespace {

/** The patterns that the checks stand for. */
const QRegExp kCurvePattern(QStringLiteral("^[-0-9\\.e+,]+$"));
const QRegExp kPolygonPattern(QStringLiteral("^[-0-9\\.e+,;]+$"));

void expectTheVerdictsOfThePatterns(const QString &text)
{
    EXPECT_EQ(isCurveText(text), kCurvePattern.exactMatch(text)) << text.toStdString();
    EXPECT_EQ(isPolygonText(text), kPolygonPattern.exactMatch(text)) << text.toStdString();
}

} // namespace

TEST(GeometryTextFormsTest, digitsSignsPointsExponentsAndCommasMakeACurveText)
{
    EXPECT_TRUE(isCurveText(u"0,0,1000,0"));
    EXPECT_TRUE(isCurveText(u"1.23457e+06,-12.5,1e-05"));
    EXPECT_TRUE(isCurveText(u"-.e+,,,"));
}

TEST(GeometryTextFormsTest, emptyTextIsNeitherCurveNorPolygonText)
{
    EXPECT_FALSE(isCurveText(u""));
    EXPECT_FALSE(isPolygonText(u""));
    EXPECT_FALSE(isPolygonText(QString()));
}

TEST(GeometryTextFormsTest, upperCaseEBlankAndLetterAreRefused)
{
    for (const char *text : {"1E3,2,3", "1, 2,3", "1,2,3 ", "1,2,3\n", "nan,0,0", "0x10,2,3", "１,2,3", "1,2#3"}) {
        EXPECT_FALSE(isCurveText(QString::fromUtf8(text))) << text;
        EXPECT_FALSE(isPolygonText(QString::fromUtf8(text))) << text;
    }
}

TEST(GeometryTextFormsTest, semicolonMakesTheDifferenceBetweenCurveAndPolygonText)
{
    EXPECT_FALSE(isCurveText(u"0,0;100,0;"));
    EXPECT_TRUE(isPolygonText(u"0,0;100,0;"));
    EXPECT_TRUE(isPolygonText(u"0,0,100"));
}

TEST(GeometryTextFormsTest, kernelTextIsNoPolygonText)
{
    EXPECT_FALSE(isPolygonText(u"POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0))"));
}

TEST(GeometryTextFormsTest, everyCharacterGetsTheVerdictOfThePattern)
{
    for (int code = 0; code <= 0xffff; ++code) {
        const QString text = QStringLiteral("1") + QChar(static_cast<ushort>(code));
        ASSERT_EQ(isCurveText(text), kCurvePattern.exactMatch(text)) << code;
        ASSERT_EQ(isPolygonText(text), kPolygonPattern.exactMatch(text)) << code;
    }
}

TEST(GeometryTextFormsTest, verdictsOfThePatternsHoldForTextsPutTogetherAtRandom)
{
    const QString pieces = QStringLiteral("0123456789-.e+,;0123456789-.e+,;0123456789-.e+,;E \n");
    std::mt19937 random(7);
    for (int i = 0; i < 20'000; ++i) {
        QString text;
        for (auto left = random() % 20; left > 0; --left)
            text.append(pieces.at(static_cast<int>(random() % static_cast<unsigned>(pieces.size()))));
        expectTheVerdictsOfThePatterns(text);
    }
}
