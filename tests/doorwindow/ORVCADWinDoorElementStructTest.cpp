#include "doorwindow/ORVCADWinDoorElementStruct.h"

#include "OpeningFixture.h"

namespace {

using ORVCADWinDoorElementStructTest = OpeningFixture;

TEST_F(ORVCADWinDoorElementStructTest, isFilledFromAnElementOfTheHost)
{
    load(R"({"name": "C1", "type": 5, "subType": 76,
             "properties": {"OpeningWidth": 1500, "OpeningHeight": 1800, "AboveFloorHeight": 900}})");
    ORVCADWinDoorElementStruct record;
    record.loadFromHBX(find("C1"));
    EXPECT_EQ(record.name, "C1");
    EXPECT_EQ(record.openingHeight, 1800);
    EXPECT_EQ(record.openingWidth, 1500);
    EXPECT_EQ(record.aboveFloorHeight, 900);
    EXPECT_EQ(record.elementType, 5);
    EXPECT_EQ(record.elementSubType, 76);
    EXPECT_EQ(record.floorName, "1"); // the floor's code
    EXPECT_EQ(record.regionName, "House");
    EXPECT_EQ(record.elementID, find("C1")->id());
}

TEST_F(ORVCADWinDoorElementStructTest, nullElementLeavesTheRecordAsItIs)
{
    ORVCADWinDoorElementStruct record;
    record.name = "kept";
    record.loadFromHBX(nullptr);
    EXPECT_EQ(record.name, "kept");
}

ORVCADWinDoorElementStruct sample()
{
    ORVCADWinDoorElementStruct record;
    record.name = "M1";
    record.openingHeight = 2100;
    record.openingWidth = 900;
    record.aboveFloorHeight = 50;
    record.elementType = 4;
    record.elementSubType = 14;
    record.floorName = "-1";
    record.regionName = "House";
    record.elementID = 9007199254740992; // 2^53, the largest id that a JSON number keeps
    return record;
}

TEST_F(ORVCADWinDoorElementStructTest, writesNineKeys)
{
    const QJsonObject expected{{"elementID", 9007199254740992.0}, {"name", "M1"},      {"nElementType", 4},
                               {"nSubElementType", 14},           {"nHeight", 2100},   {"nWidth", 900},
                               {"nHeightFromFloor", 50},          {"floorName", "-1"}, {"regionName", "House"}};
    EXPECT_EQ(sample().toJson(), expected);
}

TEST_F(ORVCADWinDoorElementStructTest, readsBackWhatItWrote)
{
    EXPECT_EQ(ORVCADWinDoorElementStruct::fromJson(sample().toJson()).toJson(), sample().toJson());
}

TEST_F(ORVCADWinDoorElementStructTest, missingOrMistypedKeysReadAsZeroOrEmpty)
{
    const auto record = ORVCADWinDoorElementStruct::fromJson({{"name", 3}, {"nWidth", "900"}, {"nHeight", 2.5}});
    EXPECT_EQ(record.name, "");
    EXPECT_EQ(record.openingWidth, 0);
    EXPECT_EQ(record.openingHeight, 0);
    EXPECT_EQ(record.elementID, 0);
    EXPECT_EQ(record.regionName, "");
}

} // namespace
