#include "cli/StrictJsonText.h"

#include <gtest/gtest.h>

namespace {

using orvcad::firstTextFault;

/** Place and reason of the first fault; empty for a sound text. */
std::string faultOf(const QByteArray &text)
{
    const auto fault = firstTextFault(text);
    return fault ? (fault->place + ": " + fault->reason).toStdString() : std::string();
}

TEST(StrictJsonTextTest, soundTextHasNoFault)
{
    EXPECT_EQ(faultOf(R"({"a": [1, -0, 2.5e3, "\u4e00\n", true, false, null, {}], "b": {"a": 1}})"), "");
    EXPECT_EQ(faultOf("\xEF\xBB\xBF{\"a\": 1}"), "");
    EXPECT_EQ(faultOf(" 12 "), "");
}

TEST(StrictJsonTextTest, memberThatStandsTwiceIsAFaultInOneObjectOnly)
{
    EXPECT_EQ(faultOf(R"({"a": {"x": 1}, "b": {"x": 1}})"), "");
    EXPECT_EQ(faultOf("{\"a\": 1,\n \"b\": 2, \"a\": 3}"), "line 2, column 13: \"a\" stands twice in one object");
}

TEST(StrictJsonTextTest, nameIsComparedAsItReadsAndNotAsItIsWritten)
{
    EXPECT_EQ(faultOf(R"({"a": 1, "\u0061": 2})"), "line 1, column 18: \"a\" stands twice in one object");
}

TEST(StrictJsonTextTest, numbersAreThoseOfTheStandard)
{
    for (const char *number : {"01", "1.", ".5", "+1", "1e", "-", "0x10", "NaN", "Infinity", "1_000"})
        EXPECT_NE(faultOf(QByteArray("[") + number + "]"), "") << number;
}

TEST(StrictJsonTextTest, wholeNumberThatWouldBeRoundedIsAFault)
{
    EXPECT_EQ(faultOf("[9007199254740992, -9007199254740992]"), "");
    EXPECT_EQ(faultOf("[9007199254740993]"),
              "line 1, column 2: the number 9007199254740993 would be read as 9007199254740992");
    EXPECT_EQ(faultOf("[0.1, 9007199254740993.5]"), "");
}

TEST(StrictJsonTextTest, wholeNumberThatWouldBeRoundedIsTakenWhereTheVerbTellsItself)
{
    EXPECT_FALSE(firstTextFault("[9007199254740993]", orvcad::LargeNumbers::Taken));
    EXPECT_TRUE(firstTextFault("[01]", orvcad::LargeNumbers::Taken));
}

TEST(StrictJsonTextTest, numberBeyondADoubleIsAFault)
{
    EXPECT_EQ(faultOf("[1e308]"), "");
    EXPECT_EQ(faultOf("[1.8e308]"), "line 1, column 2: the number 1.8e308 is too large");
    EXPECT_NE(faultOf("[1e309]"), "");
    EXPECT_NE(faultOf(QByteArray("[") + QByteArray(400, '9') + "]"), "");
}

TEST(StrictJsonTextTest, controlCharacterInATextIsAFault)
{
    for (int code = 0; code < 0x20; ++code)
        EXPECT_NE(faultOf(QByteArray("[\"") + static_cast<char>(code) + "\"]"), "") << code;
    EXPECT_EQ(faultOf("[\"\x7f\"]"), "");
}

TEST(StrictJsonTextTest, bytesThatAreNoUtf8AndHalvesOfPairsAreFaults)
{
    EXPECT_NE(faultOf("[\"\xff\"]"), "");
    EXPECT_NE(faultOf("[\"\xc0\x80\"]"), "");
    EXPECT_NE(faultOf(R"(["\ud800"])"), "");
}

TEST(StrictJsonTextTest, whatStandsBehindTheDocumentIsAFault)
{
    EXPECT_EQ(faultOf("{}\n \n"), "");
    EXPECT_NE(faultOf("{} {}"), "");
    EXPECT_NE(faultOf(""), "");
}

TEST(StrictJsonTextTest, columnCountsCharactersAndNotBytes)
{
    EXPECT_EQ(faultOf("{\"层顶\": 1, \"层顶\": 2}").substr(0, 17), "line 1, column 15");
}

TEST(StrictJsonTextTest, depthOfNestingIsNoFaultAndNeedsNoStack)
{
    const QByteArray depth(1000000, '[');
    EXPECT_EQ(faultOf(depth + QByteArray(depth.size(), ']')), "");
}

} // namespace
