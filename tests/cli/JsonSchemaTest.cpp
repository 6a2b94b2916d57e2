#include "cli/JsonSchema.h"

#include "cli/DocumentKinds.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

/** Two schemas that refer to each other, and some that are none. */
QByteArray textOf(const QString &fileName)
{
    if (fileName == "a")
        return R"({"properties": {"x/y": {"$ref": "b#/$defs/n"}, "z": {"type": ["integer", "null"], "minimum": 1}}})";
    if (fileName == "b")
        return R"({"$defs": {"n": {"title": "N", "const": 5}}})";
    if (fileName == "unknown")
        return R"({"properties": {"x": {"multipleOf": 2}}})";
    if (fileName == "lost")
        return R"({"$ref": "#/$defs/none"})";
    if (fileName == "cases")
        return R"({"allOf": [{"if": {"properties": {"kind": {"const": "face"}}, "required": ["kind"]}, "then": {}},
                             {"if": {"properties": {"kind": {"const": "line"}}, "required": ["kind"]}, "then": {}}]})";
    return {};
}

std::string errorOf(const QString &reference)
{
    SchemaSet schemas(textOf);
    try {
        schemas.schema(reference);
        return {};
    } catch (const SchemaError &error) {
        return error.what();
    }
}

TEST(JsonSchemaTest, referencesLeadIntoOtherFiles)
{
    SchemaSet schemas(textOf);
    const JsonSchema &schema = schemas.schema("a");
    const JsonSchema *far = schema.properties.at("x/y")->reference;
    EXPECT_EQ(far->title, "N");
    EXPECT_EQ(far, &schemas.schema("b#/$defs/n"));
    EXPECT_EQ(far->allowed, std::vector<QJsonValue>{5});
    EXPECT_EQ(schema.properties.at("z")->types, JsonSchema::Integer | JsonSchema::Null);
    EXPECT_EQ(schema.properties.at("z")->minimum, 1.0);
}

TEST(JsonSchemaTest, unknownKeywordIsAnError)
{
    EXPECT_EQ(errorOf("unknown"), "unknown#/properties/x: the keyword \"multipleOf\" is not known");
}

TEST(JsonSchemaTest, referenceThatLeadsNowhereIsAnError)
{
    EXPECT_EQ(errorOf("lost"), "lost#/$defs/none: is no schema");
    EXPECT_EQ(errorOf("nowhere"), "nowhere: is no schema that there is");
}

TEST(JsonSchemaTest, partsThatAskForAValueOfOneKeyAreCases)
{
    SchemaSet schemas(textOf);
    const JsonSchema &schema = schemas.schema("cases");
    EXPECT_EQ(schema.caseKey, "kind");
    ASSERT_EQ(schema.cases.size(), 2U);
    EXPECT_EQ(schema.cases[1].value, "line");
}

TEST(JsonSchemaTest, everyPublishedSchemaIsReadWhole)
{
    for (const DocumentKind &kind : documentKinds())
        EXPECT_FALSE(kind.schema().title.isEmpty()) << kind.name;
}

} // namespace
