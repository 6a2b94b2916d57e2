#include "cli/FloorCopy.h"

#include "HouseFixture.h"
#include "cli/BeamComparison.h"
#include "cli/FloorLookup.h"
#include "cli/SlabComparison.h"
#include "cli/WallComparison.h"
#include "cli/WallKind.h"

using namespace orvcad;

namespace {

using FloorCopyTest = HouseFixture;

TEST_F(FloorCopyTest, floorIsMadeInAnEmptyHouseAndWhatNoRoadCarriesIsTold)
{
    openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + doorIn("M1", "Q1", 1500, 0) + ',' + column("Z1", 0, 0));
    const Project other = houseOf(QByteArray());
    FloorCopy copy(*project, floor(), copyRoadWords());
    copy.put(*other, floorOf(other, "F"));
    EXPECT_TRUE(copy.isComplete()) << copy.text().toStdString();
    EXPECT_EQ(
        copy.text().toStdString(),
        "Copied F of House to F of House\n"
        "wall: 1 brick wall read: 1 element made (0 under another name), 1 piece placed, 0 left out\n"
        "wall: 0 force walls read: 0 elements made (0 under another name), 0 pieces placed, 0 left out\n"
        "opening: 2 members read: 1 element made, 1 opening placed (1 in a wall, 0 in none), 0 left out\n"
        "seat: 0 seats read, 0 left out\n"
        "beam: 0 beams read: 0 elements, 0 chains of 0 segments, 0 spans made (and 0 elements reused), 0 left out\n"
        "slab: 0 members read: 0 made in 0 new elements, 0 in the host already, 0 left out\n"
        "not carried: 1 column");
    const QJsonObject json = copy.toJson();
    EXPECT_EQ(json["from"], QJsonValue(QJsonObject{{"region", "House"}, {"floor", "F"}}));
    EXPECT_EQ(json["to"], json["from"]);
    ASSERT_EQ(json["roads"].toArray().size(), 6);
    EXPECT_EQ(json["roads"].toArray().at(2)["road"], "opening");
    EXPECT_EQ(json["roads"].toArray().at(2)["placed"], 1);
    EXPECT_EQ(json["roads"].toArray().at(2)["notWritten"].toArray(), QJsonArray());
    EXPECT_EQ(json["notCarried"].toArray(),
              (QJsonArray{QJsonObject{{"type", 25}, {"title", "column"}, {"elements", 1}, {"drawObjects", 1}}}));
}

TEST_F(FloorCopyTest, roadsThatAreNotAskedForCarryNothing)
{
    openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' +
              slab("B1", "POLYGON((0 0, 5000 0, 5000 5000, 0 5000, 0 0))"));
    const Project other = houseOf(QByteArray());
    FloorCopy copy(*project, floor(), {"slab"});
    copy.put(*other, floorOf(other, "F"));
    EXPECT_EQ(copy.toJson()["roads"].toArray().size(), 1);
    EXPECT_TRUE(copy.text().endsWith("not carried: 1 brick wall")) << copy.text().toStdString();
    QList<IHBXElementDrawObj *> walls;
    floorOf(other, "F").drawObjsOfTypes(walls, {1003}, true);
    EXPECT_TRUE(walls.isEmpty());
}

TEST_F(FloorCopyTest, wallOfANameThatIsTakenIsToldAndMakesTheCopyIncomplete)
{
    openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)"));
    const Project other = houseOf(wall("Q1", "LINESTRING(0 900, 5000 900)"));
    FloorCopy copy(*project, floor(), {"wall"});
    copy.put(*other, floorOf(other, "F"));
    EXPECT_FALSE(copy.isComplete());
    EXPECT_TRUE(copy.text().contains("the floor has that name already: made as \"")) << copy.text().toStdString();
}

TEST_F(FloorCopyTest, wallThatTheFormCannotHoldMakesTheCopyIncomplete)
{
    openHouse(wall("Q:1", "LINESTRING(0 0, 5000 0)"));
    const Project other = houseOf(QByteArray());
    FloorCopy copy(*project, floor(), {"wall"});
    copy.put(*other, floorOf(other, "F"));
    EXPECT_FALSE(copy.isComplete());
    EXPECT_EQ(copy.toJson()["roads"].toArray().at(0)["notWritten"].toArray().size(), 1);
}

/** A building that keeps its regions and floors alone. */
QByteArray emptied(const char *building)
{
    QJsonObject document = exchangetest::parsed(exchangetest::building(building));
    QJsonArray regions = document["regions"].toArray();
    for (QJsonValueRef region : regions) {
        QJsonObject regionObject = region.toObject();
        QJsonArray floors = regionObject["floors"].toArray();
        for (QJsonValueRef floor : floors) {
            QJsonObject floorObject = floor.toObject();
            floorObject["elements"] = QJsonArray();
            floor = floorObject;
        }
        regionObject["floors"] = floors;
        region = regionObject;
    }
    document["regions"] = regions;
    return QJsonDocument(document).toJson();
}

/** Placed seats get the elevations of their element, and those of the hall have others. */
bool losesElevationsOfSeats(const IHBXFloor &floor)
{
    return floor.region()->name() == "Hall" && floor.name() == "Foundation";
}

class FloorCopyOfBuildingsTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(FloorCopyOfBuildingsTest, everyFloorArrivesInTheEmptiedBuildingAsItWas)
{
    const auto original = exchangetest::projectOf(exchangetest::building(GetParam()));
    const auto copy = exchangetest::projectOf(emptied(GetParam()));
    for (IHBXFloor *from : pickFloors(*original, QString(), QString())) {
        IHBXFloor &to = requireFloor(*copy, requireRegion(*copy, from->region()->name()), from->name());
        FloorCopy floorCopy(*original, *from, copyRoadWords());
        floorCopy.put(*copy, to);
        EXPECT_EQ(floorCopy.isComplete(), !losesElevationsOfSeats(*from)) << floorCopy.text().toStdString();
        const std::string floor = from->name().toStdString();
        const SlabComparison slabs = compareSlabs(*original->service()->model(), *from, *copy->service()->model(), to);
        EXPECT_TRUE(slabs.isSame()) << floor << slabs.text().toStdString();
        const BeamComparison beams = compareBeams(*original, *copy, from->name());
        EXPECT_TRUE(beams.isSame()) << floor << beams.text().toStdString();
        for (const WallKind &kind : wallKinds()) {
            const WallComparison walls = compareWalls(*original, *copy, kind, from->name());
            EXPECT_TRUE(walls.isSame()) << floor << walls.text().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Buildings, FloorCopyOfBuildingsTest,
                         ::testing::Values("duplex-apartment", "precast-hall", "masonry-block"));

} // namespace
