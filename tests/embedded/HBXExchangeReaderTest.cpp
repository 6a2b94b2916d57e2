#include "platform/embedded/HBXExchangeReader.h"

#include "embedded/ExchangeDocuments.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace exchangetest;
using hbx::embedded::DrawObjRecord;
using hbx::embedded::HBXExchangeReader;
using hbx::embedded::ProjectError;
using hbx::embedded::ProjectRecord;
using hbx::embedded::PropertyRecords;
using hbx::embedded::PropertyValue;

namespace {

std::string refusalOf(const QByteArray &json)
{
    ProjectError error;
    return HBXExchangeReader::read(json, "house.json", error) ? "read" : error.text().toStdString();
}

const DrawObjRecord &drawObjOf(const ProjectRecord &project, const QString &elementName, int position = 0)
{
    static const DrawObjRecord none;
    for (const auto &element : project.elements)
        for (const DrawObjRecord &drawObj : project.drawObjs)
            if (element.name == elementName && drawObj.elementId == element.id && position-- == 0)
                return drawObj;
    ADD_FAILURE() << "no object of " << elementName.toStdString();
    return none;
}

PropertyValue valueOf(const PropertyRecords &properties, const QString &name)
{
    for (const auto &[each, value] : properties)
        if (each == name)
            return value;
    return {};
}

struct Refusal
{
    const char *place; ///< what is changed in the small building
    const char *value; ///< JSON text; empty: taken out
    const char *told;  ///< place and reason
};

void PrintTo(const Refusal &refusal, std::ostream *out) { *out << refusal.place << " = " << refusal.value; }

class HBXExchangeReaderRefusalTest : public ::testing::TestWithParam<Refusal>
{};

#define FLOOR "regions[0].floors[0]"
#define ELEMENT(index) FLOOR ".elements[" #index "]"
#define OBJECT(index) ELEMENT(index) ".drawObjects[0]"

const Refusal kDocumentRefusals[] = {
    {"format", "\"other\"", "format: is not \"hbx-project\""},
    {"format", "", "format: is not \"hbx-project\""},
    {"version", "2", "version: is newer than 1"},
    {"version", "0", "version: is not 1"},
    {"version", "\"1\"", "version: is not 1"},
    {"name", "", "has no \"name\""},
    {"name", "5", "name: is not a text"},
    {"regions", "", "has no \"regions\""},
    {"regions", "{}", "regions: is not an array"},
    {"surplus", "1", "has the unknown member \"surplus\""},
    {"source", "[]", "source: is not a text"},
    {"planeRule", "11", "planeRule: is not a text"},
    {"options[0].value", "", "options[0]: has no \"value\""},
    {"options[0].value", "3", "options[0].value: is not a text"},
    {"options[0].rank", "3", "options[0]: has the unknown member \"rank\""},
    {"options[0]", "3", "options[0]: is not an object"},
    {"materials[0].number", "0", "materials[0].number: is not an integer from 1 to 2147483647"},
    {"materials[1]", "{\"number\": 1, \"name\": \"C35\"}", "materials[1].number: 1 stands twice in the file"},
};

const Refusal kFloorRefusals[] = {
    {"regions[0].name", "", "regions[0]: has no \"name\""},
    {"regions[0].name", "\"\"", "regions[0].name: is empty"},
    {"regions[1]", "{\"name\": \"House\"}", "regions[1].name: \"House\" stands twice in the project"},
    {"regions[0].code", "\"1\"", "regions[0]: has the unknown member \"code\""},
    {FLOOR ".name", "", "regions[0].floors[0]: has no \"name\""},
    {FLOOR ".code", "", "regions[0].floors[0]: has no \"code\""},
    {FLOOR ".bottomElev", "", "regions[0].floors[0]: has no \"bottomElev\""},
    {FLOOR ".height", "", "regions[0].floors[0]: has no \"height\""},
    {FLOOR ".height", "\"3.1\"", "regions[0].floors[0].height: is not a number"},
    {FLOOR ".foundation", "0", "regions[0].floors[0].foundation: is neither true nor false"},
    {FLOOR ".standardFloorCount", "1.5",
     "regions[0].floors[0].standardFloorCount: is not an integer from -2147483648 to 2147483647"},
    {"regions[0].floors[1].name", "\"Level 1\"", "regions[0].floors[1].name: \"Level 1\" stands twice in the region"},
    {"regions[0].floors[1].code", "\"1\"", "regions[0].floors[1].code: \"1\" stands twice in the region"},
};

const Refusal kElementRefusals[] = {
    {ELEMENT(0) ".name", "", ELEMENT(0) ": has no \"name\""},
    {ELEMENT(0) ".name", "\"\"", ELEMENT(0) ".name: is empty"},
    {ELEMENT(0) ".type", "", ELEMENT(0) ": has no \"type\""},
    {ELEMENT(0) ".type", "9999", ELEMENT(0) ".type: is no type that the host knows"},
    {ELEMENT(0) ".type", "82", ELEMENT(0) ".type: is a unit's, which stands in the units of its owner"},
    {ELEMENT(0) ".type", "\"0\"", ELEMENT(0) ".type: is not a number"},
    {ELEMENT(0) ".code", "1", ELEMENT(0) ": has the unknown member \"code\""},
    {ELEMENT(0) ".orderNumber", "3e9", ELEMENT(0) ".orderNumber: is not an integer from -2147483648 to 2147483647"},
    {FLOOR ".elements[10]", "{\"name\": \"Q-200\", \"type\": 0}",
     FLOOR ".elements[10].name: \"Q-200\" stands twice on the floor for type 0"},
    {ELEMENT(6) ".units[0].type", "52", ELEMENT(6) ".units[0].type: is no unit's"},
    {ELEMENT(6) ".units[0].units", "[]", ELEMENT(6) ".units[0]: has the unknown member \"units\""},
    {ELEMENT(6) ".units[0].drawObjects", "[1]",
     ELEMENT(6) ".units[0].drawObjects: is not empty: a unit's are children of its owner's"},
};

const Refusal kDrawObjRefusals[] = {
    {OBJECT(0), "[]", OBJECT(0) ": is not an object"},
    {OBJECT(0) ".shape", "", OBJECT(0) ": has no \"shape\""},
    {OBJECT(0) ".colour", "1", OBJECT(0) ": has the unknown member \"colour\""},
    {OBJECT(0) ".type", "9999", OBJECT(0) ".type: is no type that the host knows"},
    {OBJECT(0) ".layer", "\"1\"", OBJECT(0) ".layer: is not a number"},
    {OBJECT(0) ".order", "0.5", OBJECT(0) ".order: is not an integer from -2147483648 to 2147483647"},
    {OBJECT(9) ".section.kind", "", OBJECT(9) ".section: has no \"kind\""},
    {OBJECT(9) ".section", "5", OBJECT(9) ".section: is not an object"},
    {OBJECT(0) ".key", "\"\"", OBJECT(0) ".key: is empty"},
    {OBJECT(4) ".key", "\"slab\"", OBJECT(4) ".key: \"slab\" stands twice in the file"},
    {OBJECT(0) ".attachedTo", "[0, \"Q-200\", 0]", OBJECT(0) ".attachedTo: belongs to doors, windows and holes only"},
    {OBJECT(1) ".attachedTo", "[0, \"Q-200\"]", OBJECT(1) ".attachedTo: is not [type, element name, position]"},
    {OBJECT(1) ".attachedTo", "[0, \"Q-300\", 0]", OBJECT(1) ".attachedTo: names no wall"},
    {OBJECT(1) ".attachedTo", "[19, \"B-1\", 0]", OBJECT(1) ".attachedTo: names no wall"},
    {OBJECT(1) ".attachedTo", "[0, \"Q-200\", 1]", OBJECT(1) ".attachedTo: names no draw object of \"Q-200\""},
    {OBJECT(8) ".attachedTo", "[0, \"Q-200\", 0]", OBJECT(8) ".attachedTo: names no slab or raft"},
    {OBJECT(2) ".next", "2", OBJECT(2) ".next: is no position in the element's drawObjects"},
    {OBJECT(2) ".next", "-1", OBJECT(2) ".next: is no position"},
    {OBJECT(2) ".next", "0.5", OBJECT(2) ".next: is no position"},
    {OBJECT(2) ".next", "0", OBJECT(2) ".spans: belongs to the head of the chain"},
    {ELEMENT(2) ".drawObjects[1].next", "1",
     ELEMENT(2) ".drawObjects[1].next: names an object that is another one's next, too"},
    {ELEMENT(2) ".drawObjects[1].spans", "[{}]", ELEMENT(2) ".drawObjects[1].spans: belongs to the head of the chain"},
    {OBJECT(0) ".next", "0", OBJECT(0) ".next: belongs to beams only"},
    {OBJECT(0) ".spans", "[{}]", OBJECT(0) ".spans: belongs to beams only"},
    {OBJECT(2) ".spans[0].SpanName", "1", OBJECT(2) ".spans[0]: has the unknown member \"SpanName\""},
    {OBJECT(2) ".spans[0].SpanIndex", "1.5", OBJECT(2) ".spans[0].SpanIndex: is not an integer of 32 bits"},
    {OBJECT(2) ".spans[0].SpanLength", "\"5\"", OBJECT(2) ".spans[0].SpanLength: is not a number"},
    {OBJECT(2) ".spans[0].Section", "5", OBJECT(2) ".spans[0].Section: is not a text"},
    {OBJECT(2) ".spans[0]", "5", OBJECT(2) ".spans[0]: is not an object"},
    {OBJECT(6) ".children[0].unit", "", OBJECT(6) ".children[0]: has no \"unit\""},
    {OBJECT(6) ".children[0].unit", "1", OBJECT(6) ".children[0].unit: is no position in the owner's units"},
    {OBJECT(6) ".children[0].next", "0", OBJECT(6) ".children[0]: has the unknown member \"next\""},
    {OBJECT(6) ".children[1]", "{\"unit\": 0, \"shape\": {\"kind\": \"point\"}}",
     OBJECT(6) ".children[1].unit: has two children of one object"},
    {OBJECT(0) ".children", "[{\"unit\": 0, \"shape\": {\"kind\": \"point\"}}]",
     OBJECT(0) ".children[0].unit: is no position in the owner's units"},
};

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

const Refusal kPropertyRefusals[] = {
    {ELEMENT(0) ".properties", "[]", ELEMENT(0) ".properties: is not an object"},
    {ELEMENT(0) ".properties.Colour", "1", ELEMENT(0) ".properties: has the unknown property \"Colour\""},
    {ELEMENT(0) ".properties.Thickness", "\"200\"", ELEMENT(0) ".properties.Thickness: is not a number"},
    {ELEMENT(0) ".properties.Type", "1.5", ELEMENT(0) ".properties.Type: is not an integer of 32 bits"},
    {ELEMENT(0) ".properties.TieBar", "true", ELEMENT(0) ".properties.TieBar: is neither a text nor a number"},
    {ELEMENT(0) ".properties.StartPtTopElev", "\"roof\"",
     ELEMENT(0) ".properties.StartPtTopElev: is not the text of an elevation"},
    {ELEMENT(0) ".properties.StartPtTopElev", "3.1",
     ELEMENT(0) ".properties.StartPtTopElev: is not the text of an elevation"},
    {ELEMENT(0) ".properties", "{\"AxisOffset\": 1, \"AxisOffset_JZBZ\": 1}",
     ELEMENT(0) ".properties: has the property \"AxisOffset\" under two names"},
    {ELEMENT(2) ".properties.InsertPt", "[1]", ELEMENT(2) ".properties.InsertPt: is not an array of 2 numbers"},
    {ELEMENT(2) ".properties.SectionPoly", "\"POLYGON((0 0, 5 5, 5 0, 0 5, 0 0))\"",
     ELEMENT(2) ".properties.SectionPoly: crosses itself"},
    {OBJECT(4) ".properties.CurveData", "\"LINESTRING(1 1, 1 1)\"", OBJECT(4) ".properties.CurveData: has no length"},
    {ELEMENT(4) ".properties", "{\"CurveData\": null}",
     ELEMENT(4) ".properties: has the unknown property \"CurveData\""},
    {OBJECT(4) ".properties.ReinforcementInfo", "\"wall,1;\"",
     OBJECT(4) ".properties.ReinforcementInfo: names the unknown draw object \"wall\""},
    {OBJECT(4) ".properties.Catalog", "\"B-1[wall]\"",
     OBJECT(4) ".properties.Catalog: names the unknown draw object \"wall\""},
    {OBJECT(4) ".properties.Catalog", "5", OBJECT(4) ".properties.Catalog: is not a text"},
    {OBJECT(5) ".properties.DependSlabID", "\"wall\"",
     OBJECT(5) ".properties.DependSlabID: names the unknown draw object \"wall\""},
    {OBJECT(5) ".properties.DependSlabID", "7",
     OBJECT(5) ".properties.DependSlabID: is neither the key of a draw object nor -1"},
};

TEST_P(HBXExchangeReaderRefusalTest, isToldWithPlaceAndReason)
{
    const QByteArray json = smallBuildingWith(GetParam().place, GetParam().value);
    EXPECT_EQ(refusalOf(json), std::string("house.json: ") + GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Document, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kDocumentRefusals));
INSTANTIATE_TEST_SUITE_P(Floor, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kFloorRefusals));
INSTANTIATE_TEST_SUITE_P(Element, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kElementRefusals));
INSTANTIATE_TEST_SUITE_P(DrawObj, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kDrawObjRefusals));
INSTANTIATE_TEST_SUITE_P(Shape, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kShapeRefusals));
INSTANTIATE_TEST_SUITE_P(Property, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kPropertyRefusals));

} // namespace

TEST(HBXExchangeReaderTest, idsCountUpFromOneInTheOrderOfCreation)
{
    const ProjectRecord project = recordOf(kSmallBuilding);
    EXPECT_EQ(project.regions[0].id, 1);
    EXPECT_EQ(project.floors[0].id, 2);
    EXPECT_EQ(project.elements.front().id, 3);
    EXPECT_EQ(project.elements[7].id, 10);
    EXPECT_EQ(project.elements[7].parentId, 9);
    EXPECT_EQ(project.elements.back().id, 13);
    EXPECT_EQ(project.drawObjs.front().id, 14);
    EXPECT_EQ(project.drawObjs.back().id, 25);
    EXPECT_EQ(project.floors[1].id, 26);
    EXPECT_EQ(project.nextId, 27);
}

TEST(HBXExchangeReaderTest, absentMembersTakeTheirStartValues)
{
    const ProjectRecord project = recordOf(kSmallBuilding);
    EXPECT_EQ(project.floors[0].standardFloorCount, 1);
    EXPECT_FALSE(project.floors[0].foundation);
    EXPECT_EQ(project.planeRule, QString());
    const DrawObjRecord &wall = drawObjOf(project, "Q-200");
    EXPECT_EQ(wall.type, 0);
    EXPECT_EQ(wall.subType, 7) << "the element's";
    EXPECT_FALSE(wall.shape.distanceToLeft);
    EXPECT_FALSE(wall.shape.coordinates);
    EXPECT_EQ(wall.layer, 0);
}

TEST(HBXExchangeReaderTest, namesOfOthersBecomeTheirIds)
{
    const ProjectRecord project = recordOf(kSmallBuilding);
    EXPECT_EQ(drawObjOf(project, "M-1").attachedTo, drawObjOf(project, "Q-200").id);
    EXPECT_EQ(drawObjOf(project, "BD-1").attachedTo, drawObjOf(project, "B-1").id);
    EXPECT_EQ(drawObjOf(project, "KL-1", 0).next, drawObjOf(project, "KL-1", 1).id);
    EXPECT_EQ(drawObjOf(project, "DJ-1-1").owner, drawObjOf(project, "DJ-1").id);
}

TEST(HBXExchangeReaderTest, keysInPropertiesBecomeIds)
{
    const ProjectRecord project = recordOf(kSmallBuilding);
    const DrawObjRecord &slab = drawObjOf(project, "B-1"); // id 18
    const DrawObjRecord &bar = drawObjOf(project, "SLJ");  // id 19
    EXPECT_EQ(slab.id, 18);
    EXPECT_EQ(valueOf(slab.properties, "ReinforcementInfo"), PropertyValue(QString("19,1;")));
    EXPECT_EQ(valueOf(bar.properties, "ReinforcementInfo"), PropertyValue(QString("18,1;")));
    EXPECT_EQ(valueOf(bar.properties, "Catalog"), PropertyValue(QString("B-1[18]")));
    EXPECT_EQ(valueOf(drawObjOf(project, "FJ").properties, "DependSlabID"), PropertyValue(18));
}

TEST(HBXExchangeReaderTest, minusOneStandsForNoSlab)
{
    const ProjectRecord project = recordOf(smallBuildingWith(OBJECT(5) ".properties.DependSlabID", "-1"));
    EXPECT_EQ(valueOf(drawObjOf(project, "FJ").properties, "DependSlabID"), PropertyValue(-1));
}

TEST(HBXExchangeReaderTest, aNumberUnderATextPropertyIsItsDecimalText)
{
    const QString place = ELEMENT(0) ".properties.TieBar";
    const auto textOf = [&](const char *number) {
        return valueOf(recordOf(smallBuildingWith(place, number)).elements[0].properties, "TieBar");
    };
    EXPECT_EQ(textOf("1"), PropertyValue(QString("1")));
    EXPECT_EQ(textOf("12.5"), PropertyValue(QString("12.5")));
    EXPECT_EQ(textOf("20000000"), PropertyValue(QString("20000000")));
}

TEST(HBXExchangeReaderTest, nullIsAPropertyWithoutAValue)
{
    const ProjectRecord project = recordOf(smallBuildingWith(ELEMENT(0) ".properties.Thickness", "null"));
    ASSERT_EQ(project.elements[0].properties.size(), 1U);
    EXPECT_EQ(project.elements[0].properties[0].first, QString("Thickness"));
    EXPECT_EQ(project.elements[0].properties[0].second, PropertyValue());
}

TEST(HBXExchangeReaderTest, orderSaysWhichObjectsOfAFloorAreMadeFirst)
{
    const ProjectRecord project = recordOf(building("made-building"));
    const qint64 first = drawObjOf(project, "GZ-A", 0).id; // objects stand in id order here
    EXPECT_EQ(drawObjOf(project, "GZ-A", 0).shape.insertPoint.x, 36000) << "order 10";
    EXPECT_EQ(drawObjOf(project, "GZ-B", 0).id, first + 1) << "order 20";
    EXPECT_EQ(drawObjOf(project, "GZ-A", 1).id, first + 2) << "order 30";
    EXPECT_EQ(drawObjOf(project, "QTQ-no-axis", 0).id, first + 3) << "order 40";
}

TEST(HBXExchangeReaderTest, aChainThatIsARingIsRefused)
{
    const QByteArray ring = R"([{"shape": {"kind": "line"}, "next": 1}, {"shape": {"kind": "line"}, "next": 0}])";
    EXPECT_EQ(refusalOf(smallBuildingWith(ELEMENT(2) ".drawObjects", ring)),
              "house.json: " ELEMENT(2) ".drawObjects[0].next: closes the chain to a ring");
    const QByteArray self = R"([{"shape": {"kind": "line"}, "next": 0}])";
    EXPECT_EQ(refusalOf(smallBuildingWith(ELEMENT(2) ".drawObjects", self)),
              "house.json: " ELEMENT(2) ".drawObjects[0].next: closes the chain to a ring");
}

TEST(HBXExchangeReaderTest, theSameNameOfAnotherTypeOrFloorIsAllowed)
{
    const QByteArray wall = R"({"name": "Q-200", "type": 1003})";
    EXPECT_EQ(refusalOf(smallBuildingWith(FLOOR ".elements[10]", wall)), "read");
    EXPECT_EQ(refusalOf(smallBuildingWith("regions[0].floors[1].elements", R"([{"name": "Q-200", "type": 0}])")),
              "read");
}

TEST(HBXExchangeReaderTest, unitsMayShareNames)
{
    const QByteArray units = R"([{"name": "U", "type": 82}, {"name": "U", "type": 82}])";
    EXPECT_EQ(refusalOf(smallBuildingWith(ELEMENT(6) ".units", units)), "read");
}

TEST(HBXExchangeReaderTest, whatIsNoJsonIsToldByLineAndColumn)
{
    EXPECT_EQ(refusalOf(""), "house.json: is empty");
    EXPECT_EQ(refusalOf(" \n"), "house.json: is empty");
    EXPECT_EQ(refusalOf("[]"), "house.json: is not an object");
    EXPECT_EQ(refusalOf("{\n  \"format\": @\n}"), "house.json: line 2, column 13: is not JSON: illegal number");
    EXPECT_EQ(refusalOf("{\n  \"format\": \"hbx"), "house.json: line 2, column 18: is not JSON: unterminated string");
}

TEST(HBXExchangeReaderTest, aFileThatNestsWithoutEndIsRefused)
{
    EXPECT_NE(refusalOf("{\"name\":" + QByteArray(100000, '[')).find("is not JSON: "), std::string::npos);
}

TEST(HBXExchangeReaderTest, aTruncatedFileIsRefused)
{
    const QByteArray whole = building("duplex-apartment").trimmed();
    ASSERT_GT(whole.size(), 30000);
    for (int size = 0; size < whole.size(); size += 97)
        ASSERT_NE(refusalOf(whole.left(size)), "read") << size << " bytes";
}

TEST(HBXExchangeReaderTest, aSuccessClearsTheError)
{
    ProjectError error{"old", "place", "reason"};
    EXPECT_TRUE(HBXExchangeReader::read(kSmallBuilding, "house.json", error));
    EXPECT_TRUE(error.isEmpty());
}
