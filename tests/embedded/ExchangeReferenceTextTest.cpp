#include "platform/embedded/ExchangeReferenceText.h"

#include <gtest/gtest.h>

using hbx::embedded::ExchangeReferenceText;
using hbx::embedded::PropertyRole;

namespace {

/** Knows the names a and b. */
std::optional<QString> known(const QString &name)
{
    return name == "a" || name == "b" ? std::optional(name.toUpper()) : std::nullopt;
}

std::string inList(const char *text)
{
    return ExchangeReferenceText(PropertyRole::DrawObjIds, text).mapped(known).toStdString();
}

std::string inBrackets(const char *text)
{
    return ExchangeReferenceText(PropertyRole::DrawObjIdInBrackets, text).mapped(known).toStdString();
}

} // namespace

TEST(ExchangeReferenceTextTest, eachItemOfAListIsMappedAndKeepsItsFlag)
{
    EXPECT_EQ(inList("a,1;b,0;"), "A,1;B,0;");
    EXPECT_EQ(inList("b"), "B");
    EXPECT_EQ(inList(""), "");
}

TEST(ExchangeReferenceTextTest, anUnknownItemIsTakenOutOfTheList)
{
    EXPECT_EQ(inList("a,1;x,1;b,1;"), "A,1;B,1;");
    EXPECT_EQ(inList("x,1;"), "");
}

TEST(ExchangeReferenceTextTest, theLastBracketHoldsTheReference)
{
    EXPECT_EQ(inBrackets("B-1[a]"), "B-1[A]");
    EXPECT_EQ(inBrackets("B[2][b]"), "B[2][B]");
}

TEST(ExchangeReferenceTextTest, anUnknownReferenceGoesWithItsBrackets) { EXPECT_EQ(inBrackets("B-1[x]"), "B-1"); }

TEST(ExchangeReferenceTextTest, aTextWithoutBracketsAtItsEndStays)
{
    EXPECT_EQ(inBrackets("a"), "a");
    EXPECT_EQ(inBrackets("B[a"), "B[a");
    EXPECT_EQ(inBrackets("[a]B"), "[a]B");
}

TEST(ExchangeReferenceTextTest, theFirstUnknownReferenceIsTold)
{
    const ExchangeReferenceText list(PropertyRole::DrawObjIds, "a,1;x,1;y,1;");
    EXPECT_EQ(list.firstUnknown(known), QString("x"));
    EXPECT_FALSE(ExchangeReferenceText(PropertyRole::DrawObjIds, "a,1;b,1;").firstUnknown(known));
    EXPECT_EQ(ExchangeReferenceText(PropertyRole::DrawObjIdInBrackets, "B[z]").firstUnknown(known), QString("z"));
}
