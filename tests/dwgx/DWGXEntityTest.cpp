#include "platform/dwgx/DWGXEntity.h"

#include "geometry/ExpectPoints.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using dwgx::DWGXLine;
using dwgx::DWGXText;
using shapes::expectNear;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kQuarterTurn = 1.5707963267948966; // rad

DWGXLine lineOf(vks::CCurve2d *curve)
{
    DWGXLine line;
    line.curve = curve;
    return line;
}

DWGXText textOf(const QString &content)
{
    DWGXText text;
    text.content = content;
    text.height = 100.0;
    return text;
}

TEST(DWGXLineTest, linesAndArcsAreSound)
{
    EXPECT_TRUE(lineOf(new vks::CLine2d({0, 0}, {10, 0})).isSound());
    EXPECT_TRUE(lineOf(new vks::CArc2d({0, 0}, 5.0, 0.0, 1.0)).isSound());
}

TEST(DWGXLineTest, nullEmptyAndEndlessCurvesAreNotSound)
{
    auto *trimmedAway = new vks::CLine2d({0, 0}, {10, 0});
    trimmedAway->SetStartT(8.0);
    trimmedAway->SetEndT(2.0);
    EXPECT_FALSE(DWGXLine().isSound());
    EXPECT_FALSE(lineOf(trimmedAway).isSound());
    EXPECT_FALSE(lineOf(new vks::CLine2d({0, 0}, {kInfinity, 0})).isSound());
    EXPECT_FALSE(lineOf(new vks::CLine2d({0, 0}, {kNaN, 0})).isSound());
}

TEST(DWGXLineTest, colourBlockAndIdOutOfRangeAreNotSound)
{
    for (const int color : {0, -1, 257}) {
        DWGXLine line = lineOf(new vks::CLine2d({0, 0}, {10, 0}));
        line.color = color;
        EXPECT_FALSE(line.isSound()) << color;
    }
    DWGXLine line = lineOf(new vks::CLine2d({0, 0}, {10, 0}));
    line.blockId = -1;
    EXPECT_FALSE(line.isSound());
    line.blockId = 0;
    line.id = -1;
    EXPECT_FALSE(line.isSound());
}

TEST(DWGXTextTest, numbersMustBeFiniteAndTheHeightAboveZero)
{
    EXPECT_TRUE(textOf("KL1").isSound());
    EXPECT_TRUE(textOf("").isSound());
    for (const double height : {0.0, -1.0, kInfinity, kNaN}) {
        DWGXText text = textOf("KL1");
        text.height = height;
        EXPECT_FALSE(text.isSound()) << height;
    }
    DWGXText text = textOf("KL1");
    text.angle = kNaN;
    EXPECT_FALSE(text.isSound());
    text.angle = 0.0;
    text.point.y = kInfinity;
    EXPECT_FALSE(text.isSound());
}

TEST(DWGXTextTest, wideCharactersAreAsWideAsHighAndOthersSixTenths)
{
    EXPECT_DOUBLE_EQ(textOf("").width(), 0.0);
    EXPECT_DOUBLE_EQ(textOf("KL1").width(), 180.0);
    EXPECT_DOUBLE_EQ(textOf(QStringLiteral("轴线")).width(), 200.0);
    EXPECT_DOUBLE_EQ(textOf(QString::fromUcs4(U"\U00020000")).width(), 100.0) << "one character of two code units";
}

TEST(DWGXTextTest, cornersRunCounterClockwiseFromTheLowerLeft)
{
    DWGXText text = textOf("KL1");
    text.point = {1000.0, 2000.0};
    text.angle = kQuarterTurn;
    const auto corners = text.corners();
    expectNear(corners[0], {1000.0, 2000.0});
    expectNear(corners[1], {1000.0, 2180.0});
    expectNear(corners[2], {900.0, 2180.0});
    expectNear(corners[3], {900.0, 2000.0});
}

TEST(DWGXTextTest, centredTextHasItsMiddleOnThePoint)
{
    DWGXText text = textOf("KL1");
    text.centerAt({500.0, 500.0});
    expectNear(text.point, {410.0, 450.0});
    text.angle = kQuarterTurn;
    text.centerAt({500.0, 500.0});
    expectNear(text.point, {550.0, 410.0});
}

} // namespace
