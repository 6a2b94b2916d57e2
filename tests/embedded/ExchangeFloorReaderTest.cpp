#include "platform/embedded/ExchangeFloorReader.h"

#include "embedded/ExchangeRefusals.h"

using namespace exchangetest;
using hbx::embedded::ProjectRecord;

namespace {

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
    {OBJECT(1) ".attachedTo", "[\"0\", \"Q-200\", 0]", OBJECT(1) ".attachedTo: is not [type, element name, position]"},
    {OBJECT(1) ".attachedTo", "[0, 200, 0]", OBJECT(1) ".attachedTo: is not [type, element name, position]"},
    {OBJECT(1) ".attachedTo", "[0, \"Q-200\", -1]", OBJECT(1) ".attachedTo: is not [type, element name, position]"},
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
    {OBJECT(6) ".children[0].unit", "", OBJECT(6) ".children[0]: has no \"unit\""},
    {OBJECT(6) ".children[0].unit", "1", OBJECT(6) ".children[0].unit: is no position in the owner's units"},
    {OBJECT(6) ".children[0].next", "0", OBJECT(6) ".children[0]: has the unknown member \"next\""},
    {OBJECT(6) ".children[1]", "{\"unit\": 0, \"shape\": {\"kind\": \"point\"}}",
     OBJECT(6) ".children[1].unit: has two children of one object"},
    {OBJECT(0) ".children", "[{\"unit\": 0, \"shape\": {\"kind\": \"point\"}}]",
     OBJECT(0) ".children[0].unit: is no position in the owner's units"},
};

class ExchangeFloorReaderRefusalTest : public RefusedDocumentTest
{};

TEST_P(ExchangeFloorReaderRefusalTest, isToldWithPlaceAndReason) { expectRefused(); }

INSTANTIATE_TEST_SUITE_P(Element, ExchangeFloorReaderRefusalTest, ::testing::ValuesIn(kElementRefusals));
INSTANTIATE_TEST_SUITE_P(DrawObj, ExchangeFloorReaderRefusalTest, ::testing::ValuesIn(kDrawObjRefusals));

} // namespace

TEST(ExchangeFloorReaderTest, namesOfOthersBecomeTheirIds)
{
    const ProjectRecord project = recordOf(kSmallBuilding);
    EXPECT_EQ(drawObjOf(project, "M-1").attachedTo, drawObjOf(project, "Q-200").id);
    EXPECT_EQ(drawObjOf(project, "BD-1").attachedTo, drawObjOf(project, "B-1").id);
    EXPECT_EQ(drawObjOf(project, "KL-1", 0).next, drawObjOf(project, "KL-1", 1).id);
    EXPECT_EQ(drawObjOf(project, "DJ-1-1").owner, drawObjOf(project, "DJ-1").id);
}

TEST(ExchangeFloorReaderTest, orderSaysWhichObjectsOfAFloorAreMadeFirst)
{
    const ProjectRecord project = recordOf(building("made-building"));
    const qint64 first = drawObjOf(project, "GZ-A", 0).id; // objects stand in id order here
    EXPECT_EQ(drawObjOf(project, "GZ-A", 0).shape.insertPoint.x, 36000) << "order 10";
    EXPECT_EQ(drawObjOf(project, "GZ-B", 0).id, first + 1) << "order 20";
    EXPECT_EQ(drawObjOf(project, "GZ-A", 1).id, first + 2) << "order 30";
    EXPECT_EQ(drawObjOf(project, "QTQ-no-axis", 0).id, first + 3) << "order 40";
}

TEST(ExchangeFloorReaderTest, orderOfAChildIsItsOwnWhereItIsTold)
{
    const ProjectRecord project = recordOf(smallBuildingWith(OBJECT(6) ".children[0].order", "-1"));
    EXPECT_EQ(drawObjOf(project, "DJ-1-1").id, 14) << "the first of all";
    EXPECT_EQ(drawObjOf(project, "Q-200").id, 15);
    EXPECT_EQ(drawObjOf(project, "DJ-1-1").owner, drawObjOf(project, "DJ-1").id);
}

TEST(ExchangeFloorReaderTest, aChainThatIsARingIsRefused)
{
    const QByteArray ring = R"([{"shape": {"kind": "line"}, "next": 1}, {"shape": {"kind": "line"}, "next": 0}])";
    EXPECT_EQ(refusalOf(smallBuildingWith(ELEMENT(2) ".drawObjects", ring)),
              "house.json: " ELEMENT(2) ".drawObjects[0].next: closes the chain to a ring");
    const QByteArray self = R"([{"shape": {"kind": "line"}, "next": 0}])";
    EXPECT_EQ(refusalOf(smallBuildingWith(ELEMENT(2) ".drawObjects", self)),
              "house.json: " ELEMENT(2) ".drawObjects[0].next: closes the chain to a ring");
}

TEST(ExchangeFloorReaderTest, theSameNameOfAnotherTypeOrFloorIsAllowed)
{
    const QByteArray wall = R"({"name": "Q-200", "type": 1003})";
    EXPECT_EQ(refusalOf(smallBuildingWith(FLOOR ".elements[10]", wall)), "read");
    EXPECT_EQ(refusalOf(smallBuildingWith("regions[0].floors[1].elements", R"([{"name": "Q-200", "type": 0}])")),
              "read");
}

TEST(ExchangeFloorReaderTest, unitsMayShareNames)
{
    const QByteArray units = R"([{"name": "U", "type": 82}, {"name": "U", "type": 82}])";
    EXPECT_EQ(refusalOf(smallBuildingWith(ELEMENT(6) ".units", units)), "read");
}
