#include "cli/ValueWords.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

std::string wordsOf(const QByteArray &json) { return wordsFor(JsonTree(json), 0).toStdString(); }

TEST(ValueWordsTest, valuesAreNamedByKindAndText)
{
    EXPECT_EQ(wordsOf("\"3,3\""), "the text \"3,3\"");
    EXPECT_EQ(wordsOf("\"\""), "an empty text");
    EXPECT_EQ(wordsOf("5.50"), "the number 5.50");
    EXPECT_EQ(wordsOf("true"), "true");
    EXPECT_EQ(wordsOf("null"), "null");
    EXPECT_EQ(wordsOf("[1]"), "a list");
    EXPECT_EQ(wordsOf("{}"), "an object");
}

TEST(ValueWordsTest, longTextIsCut)
{
    EXPECT_EQ(shortText(JsonTree('"' + QByteArray(1000, 'a') + '"'), 0), QString(60, 'a') + QChar(0x2026));
    EXPECT_EQ(shortText(JsonTree("[1]"), 0), "");
}

TEST(ValueWordsTest, typesAndValuesAreListed)
{
    EXPECT_EQ(wordsForTypes(JsonSchema::Text), "a text");
    EXPECT_EQ(wordsForTypes(JsonSchema::Null | JsonSchema::Number), "a number or null");
    EXPECT_EQ(wordsForValues({"face", "line", 5}), "\"face\", \"line\" or 5");
    EXPECT_EQ(wordsForValues(std::vector<QJsonValue>(13, 1)), "1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, \u2026");
}

} // namespace
