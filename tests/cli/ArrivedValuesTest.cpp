#include "cli/ArrivedValues.h"

#include "JsonTexts.h"

using namespace orvcad;

namespace {

TEST(ArrivedValuesTest, numbersMayLoseWhatSixDigitsBehindThePointLose)
{
    EXPECT_TRUE(isSameValue(3.9333333333, 3.933333));
    EXPECT_FALSE(isSameValue(3.93334, 3.93333));
    EXPECT_FALSE(isSameValue(120.5, 120));
    EXPECT_FALSE(isSameValue(120, "120"));
    EXPECT_FALSE(isSameValue(true, 1));
    EXPECT_TRUE(isSameValue(false, false));
}

TEST(ArrivedValuesTest, textsMayDifferInCaseAndInTheBlanksAroundThem)
{
    EXPECT_TRUE(isSameValue("c8@200", "C8@200"));
    EXPECT_TRUE(isSameValue(" 3.2", "3.2"));
    EXPECT_FALSE(isSameValue("2C14", ""));
    EXPECT_FALSE(isSameValue("2C14", QJsonValue::Undefined));
}

TEST(ArrivedValuesTest, emptyTextWasNothingToWrite) { EXPECT_TRUE(isSameValue("", "2C14")); }

TEST(ArrivedValuesTest, outlineMayBeginAtAnotherCornerAndALineAtItsEnd)
{
    EXPECT_TRUE(isSameValue("POLYGON((0 0, 9 0, 9 9, 0 0))", "POLYGON((9 0, 9 9, 0 0, 9 0))"));
    EXPECT_FALSE(isSameValue("POLYGON((0 0, 9 0, 9 9, 0 0))", "POLYGON((0 0, 9 0, 9 8, 0 0))"));
    EXPECT_TRUE(isSameValue("LINESTRING(0 0, 9 0)", "LINESTRING(9 0, 0 0)"));
    EXPECT_FALSE(isSameValue("LINESTRING(0 0, 9 0)", "LINESTRING(0 0, 8 0)"));
    EXPECT_FALSE(isSameValue("LINESTRING(0 0, 9 0)", "POLYGON((0 0, 9 0, 9 9, 0 0))"));
}

TEST(ArrivedValuesTest, changedValuesAreToldWithBoth)
{
    std::vector<LeftOut> leftOut;
    leaveOutChanged({{"elev", 3}, {"name", "B1"}, {"thinkness", 120.9}},
                    {{"elev", 3}, {"name", "B2"}, {"thinkness", 120}}, {"elev", "thinkness", "not sent"}, "boards[0]",
                    "B1", leftOut);
    EXPECT_EQ(clitest::textOf(leftOut), "boards[0].thinkness: 120.9 was sent, and 120 is what the host has");
    EXPECT_FALSE(leftOut[0].isWhole);
}

} // namespace
