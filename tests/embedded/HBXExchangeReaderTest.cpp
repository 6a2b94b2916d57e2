#include "platform/embedded/HBXExchangeReader.h"

#include "embedded/ExchangeRefusals.h"

using namespace exchangetest;
using hbx::embedded::DrawObjRecord;
using hbx::embedded::HBXExchangeReader;
using hbx::embedded::ProjectError;
using hbx::embedded::ProjectRecord;

namespace {

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

class HBXExchangeReaderRefusalTest : public RefusedDocumentTest
{};

TEST_P(HBXExchangeReaderRefusalTest, isToldWithPlaceAndReason) { expectRefused(); }

INSTANTIATE_TEST_SUITE_P(Document, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kDocumentRefusals));
INSTANTIATE_TEST_SUITE_P(Floor, HBXExchangeReaderRefusalTest, ::testing::ValuesIn(kFloorRefusals));

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

TEST(HBXExchangeReaderTest, whatIsNoJsonIsToldByLineAndColumn)
{
    EXPECT_EQ(refusalOf(""), "house.json: is empty");
    EXPECT_EQ(refusalOf(" \n"), "house.json: is empty");
    EXPECT_EQ(refusalOf("[]"), "house.json: is not an object");
    EXPECT_EQ(refusalOf("{\n  \"format\": @\n}"), "house.json: line 2, column 13: is not JSON: illegal number");
    EXPECT_EQ(refusalOf("{\n  \"format\": \"hbx"), "house.json: line 2, column 17: is not JSON: unterminated string");
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
