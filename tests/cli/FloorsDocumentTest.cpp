#include "cli/FloorsDocument.h"

#include "CommandFailures.h"
#include "TestFiles.h"
#include "cli/FloorLookup.h"
#include "drawing/ORVCADFloor.h"
#include "drawing/ORVCADFloors.h"
#include "embedded/ExchangeDocuments.h"

using clitest::failureOf;
using namespace orvcad;

namespace {

using FloorsDocumentTest = TestFiles;

TEST_F(FloorsDocumentTest, regionGivesItsNameAndFloorsInTheOrderOfTheHost)
{
    const auto house = exchangetest::projectOf(exchangetest::kSmallBuilding);
    const auto floors = floorsOfRegion(requireRegion(*house, "House"));
    EXPECT_EQ(floors->getAreaName(), "House");
    ASSERT_EQ(floors->getCount(), 2);
    EXPECT_EQ(floors->getFloor(0)->name(), "Level 1");
    EXPECT_EQ(floors->getFloor(1)->name(), "Level 2");
    EXPECT_DOUBLE_EQ(floors->getFloor(1)->btmElev(), 3.1);
    EXPECT_DOUBLE_EQ(floors->getFloor(1)->height(), 3.0);
    EXPECT_EQ(floors->getFloor(1)->code(), "2");
    EXPECT_EQ(floors->getFloor(1)->stdCount(), 1);
}

TEST_F(FloorsDocumentTest, valuesThatAreReadAsOthersAreTold)
{
    const QString file = fileOf("floors.json", R"({"AreaName": 5, "Region": "A", "Floors": [
        {"Name": "F1", "Code": 1, "BottomElev": "0", "Height": 3, "StdCount": 2.5, "Remark": null, "height": 4}]})");
    const FloorsDocument document = readFloorsDocument(file);
    ASSERT_EQ(document.floors->getCount(), 1);
    EXPECT_EQ(document.leftOut.join('\n').toStdString(),
              "AreaName: is not text, and reads as nothing\n"
              "Region: is no key of this record, and not read\n"
              "Floors[0].BottomElev: is not a number, and reads as 0\n"
              "Floors[0].StdCount: is not a whole number of 32 bits, and reads as 0\n"
              "Floors[0].Remark: is not text, and reads as nothing\n"
              "Floors[0].height: is no key of this record, and not read: Height is one");
}

TEST_F(FloorsDocumentTest, floorsThatTheReaderPassesOverAreToldWithTheirPlaces)
{
    const QString file = fileOf("floors.json", R"({"AreaName": "A", "Floors": [7,
        {"Name": "F1", "BottomElev": 0, "Height": 3, "StdCount": 2, "Remark": ""}, {"Name": "F2"}]})");
    const FloorsDocument document = readFloorsDocument(file);
    ASSERT_EQ(document.floors->getCount(), 1);
    EXPECT_EQ(document.floors->getFloor(0)->stdCount(), 2);
    EXPECT_EQ(document.leftOut, (QStringList{"Floors[0]: is no object",
                                             "Floors[2]: lacks one of Name, BottomElev, Height, StdCount, Remark"}));
}

TEST_F(FloorsDocumentTest, fileThatIsNoFloorsDocumentIsToldWithItsReason)
{
    const QString file = fileOf("floors.json", R"({"AreaName": "A", "Floors": "none"})");
    EXPECT_EQ(failureOf([&] { readFloorsDocument(file); }), file.toStdString() + ": Floors: is no array");
    const QString other = fileOf("other.json", R"({"Floors": []})");
    EXPECT_EQ(failureOf([&] { readFloorsDocument(other); }),
              other.toStdString() + ": no floors document: AreaName or Floors is missing");
}

} // namespace
