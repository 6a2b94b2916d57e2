#include "platform/embedded/ExchangeShape.h"

#include "embedded/ExchangeRefusals.h"

using namespace exchangetest;
using hbx::embedded::JsonPlace;
using hbx::embedded::shapeFromJson;
using hbx::embedded::ShapeRecord;
using hbx::embedded::shapeToJson;

namespace {

const Refusal kShapeRefusals[] = {
    {OBJECT(0) ".shape", "null", OBJECT(0) ".shape: is not an object"},
    {OBJECT(0) ".shape.kind", "", OBJECT(0) ".shape: has no \"kind\""},
    {OBJECT(0) ".shape.kind", "\"body\"",
     OBJECT(0) ".shape.kind: is none of face, line, point, section, face2d, line2d, grid"},
    {OBJECT(0) ".shape.outline", "null", OBJECT(0) ".shape: has the unknown member \"outline\""},
    {OBJECT(0) ".shape.width", "-1", OBJECT(0) ".shape.width: is below 0"},
    {OBJECT(0) ".shape.width", "null", OBJECT(0) ".shape.width: is not a number"},
    {OBJECT(0) ".shape.axis", "5", OBJECT(0) ".shape.axis: is not the text of a curve"},
    {OBJECT(0) ".shape.axis", "\"\"", OBJECT(0) ".shape.axis: is not the text of a curve"},
    {OBJECT(0) ".shape.axis", "\"LINESTRING(0 0, 5 0, 5 5)\"", OBJECT(0) ".shape.axis: is not the text of a curve"},
    {OBJECT(0) ".shape.axis", "\"LINESTRING(0 0, 5 0)\\u0000\"", OBJECT(0) ".shape.axis: is not the text of a curve"},
    {OBJECT(0) ".shape.axis", "\"LINESTRING(5 5, 5 5)\"", OBJECT(0) ".shape.axis: has no length"},
    {OBJECT(3) ".shape.outline", "\"LINESTRING(0 0, 5 0)\"", OBJECT(3) ".shape.outline: is not the text of a polygon"},
    {OBJECT(3) ".shape.outline", "\"POLYGON((0 0, 5 0, 5 5, 0 5))\"", OBJECT(3) ".shape.outline: has an open ring"},
    {OBJECT(3) ".shape.outline", "\"POLYGON((0 0, 5 5, 5 0, 0 5, 0 0))\"", OBJECT(3) ".shape.outline: crosses itself"},
    {OBJECT(3) ".shape.outline", "\"POLYGON((0 0, 9 0, 9 9, 0 9, 0 0),(10 10, 12 10, 12 12, 10 12, 10 10))\"",
     OBJECT(3) ".shape.outline: has a hole that is not inside or meets another"},
    {OBJECT(3) ".shape.height", "true", OBJECT(3) ".shape.height: is not a number"},
    {OBJECT(1) ".shape.insertPoint", "[1, 2, 3]", OBJECT(1) ".shape.insertPoint: is not an array of 2 numbers"},
    {OBJECT(1) ".shape.insertPoint", "[1, \"2\"]", OBJECT(1) ".shape.insertPoint: is not an array of 2 numbers"},
    {OBJECT(1) ".shape.mirror", "1", OBJECT(1) ".shape.mirror: is neither true nor false"},
    {OBJECT(1) ".shape.angle", "\"0\"", OBJECT(1) ".shape.angle: is not a number"},
    {OBJECT(7) ".shape.axes", "[[], []]", OBJECT(7) ".shape.axes: is not an array of 4 lists"},
    {OBJECT(7) ".shape.axes[1]", "{}", OBJECT(7) ".shape.axes[1]: is not an array"},
    {OBJECT(7) ".shape.axes[0][0].label", "", OBJECT(7) ".shape.axes[0][0]: has no \"label\""},
    {OBJECT(7) ".shape.axes[0][0].curve", "null", OBJECT(7) ".shape.axes[0][0].curve: is not the text of a curve"},
    {OBJECT(9) ".shape.coordinates.u", "[1, 0]", OBJECT(9) ".shape.coordinates.u: is not an array of 3 numbers"},
    {OBJECT(9) ".shape.coordinates.w", "[1, 0, 0]", OBJECT(9) ".shape.coordinates: has the unknown member \"w\""},
    {OBJECT(9) ".shape.coordinates", "5", OBJECT(9) ".shape.coordinates: is not an object"},
};

class ExchangeShapeRefusalTest : public RefusedDocumentTest
{};

TEST_P(ExchangeShapeRefusalTest, isToldWithPlaceAndReason) { expectRefused(); }

INSTANTIATE_TEST_SUITE_P(Shape, ExchangeShapeRefusalTest, ::testing::ValuesIn(kShapeRefusals));

/** A shape with every member of its kind off its start value. */
const char *const kFullShapes[] = {
    R"json({"kind": "face", "outline": "POLYGON((0 0, 5 0, 5 5, 0 0))", "height": -120.5,
        "coordinates": {"origin": [1, 2, 3], "u": [0, 1, 0], "v": [-1, 0, 0]}})json",
    R"json({"kind": "line", "axis": "CIRCULARSTRING(0 0, 5 5, 10 0)", "width": 200, "distanceToLeft": 80})json",
    R"json({"kind": "point", "outline": "POLYGON((0 0, 5 0, 5 5, 0 0))", "insertPoint": [1.5, -2], "angle": 0.5,
        "mirror": true})json",
    R"json({"kind": "section", "outline": null, "insertPoint": [0, 0], "angle": -1})json",
    R"json({"kind": "face2d", "outline": "POLYGON((0 0, 5 0, 5 5, 0 0))"})json",
    R"json({"kind": "line2d", "curve": "LINESTRING(0 0, 5 0)"})json",
    R"json({"kind": "grid", "outline": null, "axes": [[], [{"label": "A", "curve": "LINESTRING(0 0, 5 0)"}], [],
        [{"label": "1", "curve": "LINESTRING(0 0, 0 5)"}]]})json",
};

class ExchangeShapeKindTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(ExchangeShapeKindTest, comesBackAsItWasRead)
{
    const QJsonObject json = parsed(GetParam());
    ASSERT_FALSE(json.isEmpty());
    EXPECT_EQ(shapeToJson(shapeFromJson(json, JsonPlace())), json);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ExchangeShapeKindTest, ::testing::ValuesIn(kFullShapes));

} // namespace

TEST(ExchangeShapeTest, sizesAndTheInsertionPointAreWrittenAtTheirStartValues)
{
    ShapeRecord shape;
    EXPECT_EQ(shapeToJson(shape), parsed(R"({"kind": "point", "outline": null, "insertPoint": [0, 0]})"));
    shape.kind = IHBXShape::kLine;
    EXPECT_EQ(shapeToJson(shape), parsed(R"({"kind": "line", "axis": null, "width": 0})"));
    shape.kind = IHBXShape::kFace;
    EXPECT_EQ(shapeToJson(shape), parsed(R"({"kind": "face", "outline": null, "height": 0})"));
}

TEST(ExchangeShapeTest, absentMembersLeaveAShapeThatWasNeverSet)
{
    const ShapeRecord line = shapeFromJson(parsed(R"({"kind": "line"})"), JsonPlace());
    EXPECT_FALSE(line.curve);
    EXPECT_FALSE(line.distanceToLeft);
    EXPECT_FALSE(line.coordinates);
    EXPECT_EQ(line.width, 0.0);
}
