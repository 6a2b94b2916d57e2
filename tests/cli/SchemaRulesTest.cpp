#include "cli/SchemaRules.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

/** What is wrong with a value by a schema. */
std::string broken(const QByteArray &schema, const QByteArray &value)
{
    static QByteArray text;
    text = schema;
    SchemaSet schemas([](const QString & /*fileName*/) { return text; });
    const JsonTree document(value);
    const auto rule = brokenRule(document, 0, schemas.schema("s"), InWords::Yes);
    return rule ? (rule->is + " | " + rule->expected + " | " + rule->meant).toStdString() : std::string();
}

TEST(SchemaRulesTest, allowedValuesAreComparedByKindAndValue)
{
    EXPECT_EQ(broken(R"({"enum": [1, "a"]})", "1.0"), "");
    EXPECT_EQ(broken(R"({"enum": [1, "a"]})", "\"1\""), "is the text \"1\" | 1 or \"a\" | ");
    EXPECT_EQ(broken(R"({"const": "cadi2"})", "\"cad2\""), "is the text \"cad2\" | \"cadi2\" | cadi2");
}

TEST(SchemaRulesTest, rangesIncludeTheirEndsUnlessTheySayOtherwise)
{
    EXPECT_EQ(broken(R"({"minimum": 0, "maximum": 9})", "9"), "");
    EXPECT_EQ(broken(R"({"minimum": 0, "maximum": 9})", "9.5"), "is 9.5 | a number from 0 to 9 | ");
    EXPECT_EQ(broken(R"({"exclusiveMinimum": 0})", "0"), "is 0 | a number above 0 | ");
    EXPECT_EQ(broken(R"({"minimum": 1})", "0"), "is 0 | a number from 1 up | ");
    EXPECT_EQ(broken(R"({"maximum": 1})", "2"), "is 2 | a number up to 1 | ");
}

TEST(SchemaRulesTest, countsAreOfWhatIsRead)
{
    EXPECT_EQ(broken(R"({"maxProperties": 1})", R"({"a": 1, "a": 2})"), "");
    EXPECT_EQ(broken(R"({"maxProperties": 1})", R"({"a": 1, "b": 2})"), "has 2 keys | at most 1 | ");
    EXPECT_EQ(broken(R"({"minItems": 2, "maxItems": 2})", "[1]"), "has 1 entries | 2 | ");
}

TEST(SchemaRulesTest, textOfAnotherFormIsTold)
{
    EXPECT_EQ(broken(R"({"pattern": "^[0-9]+$"})", "\"12\""), "");
    EXPECT_EQ(broken(R"({"pattern": "^[0-9]+$"})", "\"x\""), "is the text \"x\" | another form | ");
}

TEST(SchemaRulesTest, wholeNumberIsAnIntegerHoweverItIsWritten)
{
    EXPECT_TRUE(isOfType(JsonTree("1e3"), 0, JsonSchema::Integer));
    EXPECT_FALSE(isOfType(JsonTree("1.5"), 0, JsonSchema::Integer));
    EXPECT_TRUE(isOfType(JsonTree("null"), 0, JsonSchema::Null | JsonSchema::Text));
}

} // namespace
