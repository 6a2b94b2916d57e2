#include "doorwindow/ORVCADWinDoorEdoStruct.h"

#include "OpeningFixture.h"

namespace {

class ORVCADWinDoorEdoStructTest : public OpeningFixture
{
protected:
    /** A door "M1" with one placed object of that shape. */
    static QByteArray door(const QByteArray &shapeMembers)
    {
        return R"~({"name": "M1", "type": 4, "drawObjects": [{"properties": {"AboveFloorHeight": 120},
                  "shape": {"kind": "point",
                            "outline": "POLYGON((-450 -100, 450 -100, 450 100, -450 100, -450 -100))")~" +
               shapeMembers + "}}]}";
    }
    ORVCADWinDoorEdoStruct loaded(const QByteArray &elements)
    {
        load(elements);
        ORVCADWinDoorEdoStruct record;
        record.loadFromEdo(placed(4).value(0));
        return record;
    }
};

TEST_F(ORVCADWinDoorEdoStructTest, isFilledFromAPlacedObject)
{
    const auto record = loaded(door(R"(, "insertPoint": [1000, 200])"));
    EXPECT_EQ(record.elementName, "M1");
    EXPECT_EQ(record.x, 1000);
    EXPECT_EQ(record.y, 200);
    EXPECT_EQ(record.aboveFloorHeight, 120);
    EXPECT_EQ(record.floorName, "1");
    EXPECT_EQ(record.regionName, "House");
}

TEST_F(ORVCADWinDoorEdoStructTest, rotatedShapeGetsItsPlaceFromTheShapesAxes)
{
    // A quarter turn about (5000, 1000): X = 5000 - 200, Y = 1000 + 300.
    const auto record = loaded(door(R"(, "insertPoint": [300, 200],
        "coordinates": {"origin": [5000, 1000, 0], "u": [0, 1, 0], "v": [-1, 0, 0]})"));
    EXPECT_EQ(record.x, 4800);
    EXPECT_EQ(record.y, 1300);
}

TEST_F(ORVCADWinDoorEdoStructTest, angleAndMirrorOfTheShapeDoNotMoveItsPlace)
{
    const auto record = loaded(door(R"(, "insertPoint": [300, 200], "angle": 1.5, "mirror": true)"));
    EXPECT_EQ(record.x, 300);
    EXPECT_EQ(record.y, 200);
}

TEST_F(ORVCADWinDoorEdoStructTest, objectOfAnotherShapeIsAtTheOrigin)
{
    load(wall("Q1", 1003, "100 100, 5000 100"));
    ORVCADWinDoorEdoStruct record;
    record.loadFromEdo(placed(1003).value(0));
    EXPECT_EQ(record.elementName, "Q1");
    EXPECT_EQ(record.x, 0);
    EXPECT_EQ(record.y, 0);
}

TEST_F(ORVCADWinDoorEdoStructTest, nullObjectLeavesTheRecordAsItIs)
{
    ORVCADWinDoorEdoStruct record;
    record.x = 4;
    record.loadFromEdo(nullptr);
    EXPECT_EQ(record.x, 4);
}

TEST_F(ORVCADWinDoorEdoStructTest, writesSixKeysWithPlaceAsNumbers)
{
    ORVCADWinDoorEdoStruct record;
    record.elementName = "M1";
    record.x = 1234567.891; // as it is: no six digits here
    record.y = -0.5;
    record.aboveFloorHeight = 120;
    record.floorName = "2";
    record.regionName = "House";
    const QJsonObject expected{{"X", 1234567.891},        {"Y", -0.5},        {"elementName", "M1"},
                               {"nHeightFromFloor", 120}, {"floorName", "2"}, {"regionName", "House"}};
    EXPECT_EQ(record.toJson(), expected);
    EXPECT_EQ(ORVCADWinDoorEdoStruct::fromJson(expected).toJson(), expected);
}

TEST_F(ORVCADWinDoorEdoStructTest, missingOrMistypedKeysReadAsZeroOrEmpty)
{
    const auto record = ORVCADWinDoorEdoStruct::fromJson({{"X", "12"}, {"elementName", true}});
    EXPECT_EQ(record.x, 0);
    EXPECT_EQ(record.y, 0);
    EXPECT_EQ(record.elementName, "");
}

} // namespace
