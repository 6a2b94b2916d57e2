#include "cli/ExpectedValue.h"

#include "JsonTexts.h"

using clitest::valueOf;
using namespace orvcad;

namespace {

TEST(ExpectedValueTest, eachKindTakesItsOwnValues)
{
    EXPECT_TRUE(fits(valueOf("\"\""), Expected::Text));
    EXPECT_TRUE(fits(valueOf("-2147483648"), Expected::Integer));
    EXPECT_TRUE(fits(valueOf("2147483647"), Expected::Integer));
    EXPECT_TRUE(fits(valueOf("3.0"), Expected::Integer));
    EXPECT_TRUE(fits(valueOf("1e300"), Expected::Number));
    EXPECT_TRUE(fits(valueOf("false"), Expected::Truth));
    EXPECT_TRUE(fits(valueOf("9223372036854775807"), Expected::Id));
    EXPECT_TRUE(fits(valueOf("5e9"), Expected::Id));
    EXPECT_TRUE(fits(valueOf("\"42\""), Expected::Id));
}

TEST(ExpectedValueTest, numberThatDoesNotFitIsRefused)
{
    EXPECT_FALSE(fits(valueOf("2147483648"), Expected::Integer));
    EXPECT_FALSE(fits(valueOf("0.5"), Expected::Integer));
    EXPECT_FALSE(fits(valueOf("9223372036854775808"), Expected::Id));
    EXPECT_FALSE(fits(valueOf("0.5"), Expected::Id));
    EXPECT_FALSE(fits(valueOf("1e300"), Expected::Id));
}

TEST(ExpectedValueTest, otherTypesAreRefused)
{
    for (const char *other : {"null", "[]", "{}", "\"x\""})
        for (const Expected kind : {Expected::Integer, Expected::Number, Expected::Truth, Expected::Id})
            EXPECT_FALSE(fits(valueOf(other), kind)) << other << ' ' << static_cast<int>(kind);
    for (const char *other : {"null", "[]", "{}", "1", "true"})
        EXPECT_FALSE(fits(valueOf(other), Expected::Text)) << other;
    EXPECT_FALSE(fits(valueOf("1"), Expected::Truth));
    EXPECT_FALSE(fits(valueOf("true"), Expected::Integer));
    EXPECT_FALSE(fits(valueOf("true"), Expected::Id));
}

TEST(ExpectedValueTest, eachKindHasItsWords)
{
    EXPECT_EQ(wordFor(Expected::Text), "text");
    EXPECT_EQ(wordFor(Expected::Integer), "a whole number of 32 bits");
    EXPECT_EQ(wordFor(Expected::Number), "a number");
    EXPECT_EQ(wordFor(Expected::Truth), "true or false");
    EXPECT_EQ(wordFor(Expected::Id), "a whole number of 64 bits");
}

} // namespace
