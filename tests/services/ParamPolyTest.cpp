#include "platform/services/ParamPoly.h"

#include <gtest/gtest.h>

namespace {

/** The outputs, each in brackets, with the number between them. */
std::string parts(const QString &text, int kind = 0)
{
    QString x = "old x";
    QString y = "old y";
    QString point = "old point";
    stringToParamPoly(text, x, kind, y, point);
    return QStringLiteral("[%1] %2 [%3] [%4]").arg(x).arg(kind).arg(y, point).toStdString();
}

TEST(ParamPolyTest, gridWithoutAPointHasAnEmptyPoint) { EXPECT_EQ(parts("100*9;100*7"), "[100*9] 0 [100*7] []"); }

TEST(ParamPolyTest, thirdPartIsThePoint) { EXPECT_EQ(parts("100*9;100*7;400,300.5"), "[100*9] 0 [100*7] [400,300.5]"); }

TEST(ParamPolyTest, numberOfTheKindStaysAsItIs) { EXPECT_EQ(parts("100*9;100*7", 170), "[100*9] 170 [100*7] []"); }

TEST(ParamPolyTest, missingPartsAreEmpty)
{
    EXPECT_EQ(parts(""), "[] 0 [] []");
    EXPECT_EQ(parts("100*9"), "[100*9] 0 [] []");
    EXPECT_EQ(parts(";;1,2"), "[] 0 [] [1,2]");
}

TEST(ParamPolyTest, whatStandsBehindAThirdSemicolonIsLeftOut) { EXPECT_EQ(parts("a;b;1,2;c;d"), "[a] 0 [b] [1,2]"); }

TEST(ParamPolyTest, nothingIsTestedOrConverted) { EXPECT_EQ(parts(" x ;??; 1 , 2 "), "[ x ] 0 [??] [ 1 , 2 ]"); }

TEST(ParamPolyTest, outputMayBeTheTextItself)
{
    QString text = "100*9;100*7;4,3";
    QString y;
    QString point;
    int kind = 0;
    stringToParamPoly(text, text, kind, y, point);
    EXPECT_EQ(text, "100*9");
    EXPECT_EQ(y, "100*7");
    EXPECT_EQ(point, "4,3");
}

} // namespace
