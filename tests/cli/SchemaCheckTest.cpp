#include "cli/SchemaCheck.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

QByteArray textOf(const QString &fileName)
{
    if (fileName == "floors")
        return R"({"type": "object", "required": ["floors"], "properties": {"floors": {"type": "array", "items": {
            "type": "object", "required": ["name", "height"], "properties": {
                "name": {"type": "string", "minLength": 1, "description": "Name"},
                "height": {"type": "number", "minimum": 0, "maximum": 100, "description": "Height, m"},
                "count": {"type": "integer", "default": 1},
                "axis": {"type": "string", "pattern": "^[0-9,]*$", "format": "curve"}}}}}})";
    if (fileName == "shape")
        return R"({"type": "object", "required": ["kind"], "properties": {"kind": {"enum": ["face", "line"]}}, "allOf": [
            {"if": {"properties": {"kind": {"const": "face"}}, "required": ["kind"]},
             "then": {"properties": {"kind": true, "outline": {"type": "string"}}, "additionalProperties": false}},
            {"if": {"properties": {"kind": {"const": "line"}}, "required": ["kind"]},
             "then": {"properties": {"kind": true, "axis": {"type": "string"}}, "additionalProperties": false}}]})";
    if (fileName == "either")
        return R"({"type": "object", "if": {"required": ["id"]},
            "then": {"required": ["name", "width"], "properties": {"id": {}, "name": {}, "width": {}}},
            "else": {"required": ["of", "x", "y"], "properties": {"of": {}, "x": {}, "y": {}}}})";
    if (fileName == "stage")
        return R"({"anyOf": [{"type": "null"}, {"type": "array", "items": {"type": "number"}}]})";
    if (fileName == "reply")
        return R"({"anyOf": [{"required": ["brick"]}, {"required": ["force"]}], "properties": {"brick": {}, "force": {}}})";
    return R"({"type": "array", "prefixItems": [{"enum": [1, 2]}, {"type": "string"}], "items": false, "minItems": 2})";
}

/** "pointer: message" of each finding, those that are no faults in brackets. */
std::string findings(const QString &schema, const QByteArray &json)
{
    static SchemaSet schemas(textOf);
    const JsonTree document(json);
    std::string lines;
    for (const CheckFinding &finding : schemaFindings(document, schemas.schema(schema)).findings) {
        const QString line = document.pointer(finding.node, finding.missingKey) + ": " + finding.message;
        const bool isFault = finding.weight == CheckFinding::Weight::Fault;
        lines += (isFault ? line : '(' + line + ')').toStdString() + '\n';
    }
    return lines;
}

TEST(SchemaCheckTest, soundDocumentHasNoFinding)
{
    EXPECT_EQ(findings("floors", R"({"floors": [{"name": "1", "height": 3.6, "count": 1.0, "axis": "0,0,9,0"}]})"), "");
    EXPECT_EQ(findings("shape", R"({"kind": "line", "axis": ""})"), "");
    EXPECT_EQ(findings("stage", "null"), "");
    EXPECT_EQ(findings("list", R"([1, "a"])"), "");
}

TEST(SchemaCheckTest, allFaultsAreTold)
{
    EXPECT_EQ(findings("floors", R"({"floors": [{"name": "", "height": "3,6"}, {"height": 101}, 5]})"),
              "/floors/0/name: is an empty text; one that is not is expected (Name)\n"
              "/floors/0/height: is the text \"3,6\"; a number is expected (Height, m)\n"
              "/floors/1/height: is 101; a number from 0 to 100 is expected (Height, m)\n"
              "/floors/1/name: is missing (Name)\n"
              "/floors/2: is the number 5; an object is expected\n");
}

TEST(SchemaCheckTest, misspeltKeyIsToldOnceWhereItStands)
{
    EXPECT_EQ(findings("floors", R"({"floors": [{"nmae": "1", "height": 3}]})"),
              "/floors/0/nmae: is no key of this object; \"name\" is meant, which is missing\n");
    EXPECT_EQ(findings("floors", R"({"floors": [{"name": "1", "height": 3, "cuont": 2}]})"),
              "(/floors/0/cuont: is no key of this object, and not read; \"count\" is meant)\n");
}

TEST(SchemaCheckTest, geometryIsHeldToItsFormatBehindItsPattern)
{
    EXPECT_EQ(findings("floors", R"({"floors": [{"name": "1", "height": 3, "axis": "0,0"}]})"),
              "/floors/0/axis: is the text \"0,0\", which is no text of a curve in the short form\n");
}

TEST(SchemaCheckTest, misspeltCaseIsToldAtItsKeyAlone)
{
    EXPECT_EQ(findings("shape", R"({"kind": "lnie", "axis": ""})"), "/kind: is the text \"lnie\"; \"line\" is meant\n");
    EXPECT_EQ(findings("shape", R"({"axis": ""})"), "/kind: is missing\n");
}

TEST(SchemaCheckTest, caseThatTheOtherKeysContradictIsToldAtItsKeyAlone)
{
    EXPECT_EQ(findings("shape", R"({"kind": "face", "axis": ""})"),
              "/kind: is \"face\", but the other keys are those of another; \"line\" is meant\n");
}

TEST(SchemaCheckTest, keyThatTellsFormsApartIsToldWhenItIsMissing)
{
    EXPECT_EQ(findings("either", R"({"name": "M", "width": 9})"), "/id: is missing\n");
    EXPECT_EQ(findings("either", R"({"of": "M", "x": 9})"), "/y: is missing\n");
}

TEST(SchemaCheckTest, ofSeveralFormsTheNearestCounts)
{
    EXPECT_EQ(findings("stage", R"([1, "a"])"), "/1: is the text \"a\"; a number is expected\n");
    EXPECT_EQ(findings("stage", "5"), ": is the number 5; a list or null is expected\n");
}

TEST(SchemaCheckTest, oneOfSeveralKeysHasToBeThere)
{
    EXPECT_EQ(findings("reply", R"({"force": 1})"), "");
    EXPECT_EQ(findings("reply", "{}"), "/brick: is missing, or \"force\" in its place\n");
    EXPECT_EQ(findings("reply", R"({"forec": 1})"),
              "/forec: is no key of this object; \"force\" is meant, which is missing\n");
}

TEST(SchemaCheckTest, entriesAreHeldToTheirPlaces)
{
    EXPECT_EQ(findings("list", R"([3, "a", 5])"), "/0: is the number 3; 1 or 2 is expected\n"
                                                  "/2: is more than the form has\n");
    EXPECT_EQ(findings("list", "[1]"), ": has 1 entries; at least 2 is expected\n");
}

TEST(SchemaCheckTest, missingKeysWithADefaultAreCounted)
{
    SchemaSet schemas(textOf);
    const JsonTree document(R"({"floors": [{"name": "1", "height": 3}, {"name": "2", "height": 3}]})");
    const auto found = schemaFindings(document, schemas.schema("floors")).defaulted;
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(document.path(found[0].first, found[0].key), "floors[0].count");
    EXPECT_EQ(found[0].value, "1");
    EXPECT_EQ(found[0].count, 2);
}

} // namespace
