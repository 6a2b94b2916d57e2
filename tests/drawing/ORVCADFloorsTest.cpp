#include "drawing/ORVCADFloors.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gmock/gmock.h>

#include <limits>
#include <memory>

namespace {

class ORVCADFloorsTest : public testing::Test
{
protected:
    ORVCADFloor *add(const char *name, double bottom, double height = 3.0, int stdCount = 1)
    {
        auto *floor = new ORVCADFloor(QString::fromUtf8(name), bottom, height, stdCount, QString());
        floors.addFloor(floor);
        return floor;
    }
    static std::unique_ptr<ORVCADFloors> readFrom(const char *json)
    {
        return std::unique_ptr<ORVCADFloors>(ORVCADFloors::fromJson(QJsonDocument::fromJson(json).object()));
    }

    ORVCADFloors floors;
};

} // namespace

TEST_F(ORVCADFloorsTest, emptySetFindsNothing)
{
    EXPECT_EQ(floors.getCount(), 0);
    EXPECT_EQ(floors.getAreaName(), "");
    EXPECT_EQ(floors.getCurrentFloor(), nullptr);
    EXPECT_EQ(floors.getHighestFloor(), nullptr);
    EXPECT_EQ(floors.getLowestFloor(), nullptr);
    EXPECT_EQ(floors.getBaseFloor(), nullptr);
    EXPECT_EQ(floors.getFirstFloor(), nullptr);
    EXPECT_EQ(floors.getMinGreaterZeroFloor(), nullptr);
    EXPECT_EQ(floors.getHighOneFloor(0), nullptr);
    EXPECT_EQ(floors.getFloor(0), nullptr);
    EXPECT_EQ(floors.getFloor(QString()), nullptr);
    EXPECT_EQ(QJsonDocument(floors.toJson()).toJson(QJsonDocument::Compact), R"({"AreaName":"","Floors":[]})");
}

TEST_F(ORVCADFloorsTest, floorsStandInTheOrderInWhichTheyWereAdded)
{
    auto *upper = add("F2", 3.0);
    auto *lower = add("F1", 0.0);
    EXPECT_EQ(floors.getCount(), 2);
    EXPECT_EQ(floors.getFloor(0), upper);
    EXPECT_EQ(floors.getFloor(1), lower);
    EXPECT_EQ(floors.getFloors(), (QList<ORVCADFloor *>{upper, lower}));
}

TEST_F(ORVCADFloorsTest, nullIsNotAdded)
{
    floors.addFloor(nullptr);
    EXPECT_EQ(floors.getCount(), 0);
}

TEST_F(ORVCADFloorsTest, listThatIsHandedOutIsTheSetsOwn)
{
    floors.getFloors().append(new ORVCADFloor(QStringLiteral("F1"), 0.0, 3.0));
    EXPECT_EQ(floors.getCount(), 1);
}

TEST_F(ORVCADFloorsTest, indexOutOfRangeGivesNull)
{
    add("F1", 0.0);
    EXPECT_EQ(floors.getFloor(-1), nullptr);
    EXPECT_EQ(floors.getFloor(2), nullptr);
    EXPECT_EQ(floors.getHighOneFloor(-1), nullptr);
    EXPECT_EQ(floors.getHighOneFloor(2), nullptr);
}

TEST_F(ORVCADFloorsTest, indexEqualToTheCountGivesNull)
{
    add("F1", 0.0);
    add("F2", 3.0);
    EXPECT_EQ(floors.getFloor(2), nullptr);
    EXPECT_EQ(floors.getHighOneFloor(2), nullptr);
}

TEST_F(ORVCADFloorsTest, floorIsFoundByItsExactName)
{
    auto *first = add("f1", 0.0);
    auto *second = add("F1", 3.0);
    add("F1", 6.0);
    EXPECT_EQ(floors.getFloor(QStringLiteral("F1")), second);
    EXPECT_EQ(floors.getFloor(QStringLiteral("f1")), first);
    EXPECT_EQ(floors.getFloor(QStringLiteral("F1 ")), nullptr);
    EXPECT_EQ(floors.getFloor(QString()), nullptr);
}

TEST_F(ORVCADFloorsTest, earlierOfTwoBaseFloorsCounts)
{
    add("F1", 0.0);
    auto *first = add("基础层", -2.0);
    add("基础", -4.0);
    EXPECT_EQ(floors.getBaseFloor(), first);
}

TEST_F(ORVCADFloorsTest, earlierOfTwoFirstFloorsCounts)
{
    add("F5", 12.0);
    auto *byName = add("1", 20.0);
    add("ground", -0.5);
    EXPECT_EQ(floors.getFirstFloor(), byName);
}

TEST_F(ORVCADFloorsTest, highestAndLowestGoByBottomElevation)
{
    add("F2", 3.0, 50.0);
    auto *lowest = add("B1", -3.0);
    auto *highest = add("F3", 6.0);
    EXPECT_EQ(floors.getHighestFloor(), highest);
    EXPECT_EQ(floors.getLowestFloor(), lowest);
}

TEST_F(ORVCADFloorsTest, earlierOfEquallyHighFloorsIsHighestAndLowest)
{
    auto *low = add("low", 0.0);
    add("low too", 0.0);
    auto *high = add("high", 6.0);
    add("high too", 6.0);
    add("high within the tolerance", 6.0 + 5e-13);
    EXPECT_EQ(floors.getHighestFloor(), high);
    EXPECT_EQ(floors.getLowestFloor(), low);
}

TEST_F(ORVCADFloorsTest, upstairsStartsWhereTheFloorEnds)
{
    auto *third = add("F3", 6.6, 3.3);
    auto *first = add("F1", 0.0, 3.3);
    auto *second = add("F2", 3.3, 3.3);
    EXPECT_EQ(floors.getUpstairFloor(first), second);
    EXPECT_EQ(floors.getUpstairFloor(second), third);
    EXPECT_EQ(floors.getUpstairFloor(third), nullptr);
    EXPECT_EQ(floors.getDownstairFloor(third), second);
    EXPECT_EQ(floors.getDownstairFloor(second), first);
    EXPECT_EQ(floors.getDownstairFloor(first), nullptr);
    EXPECT_EQ(floors.getUpstairFloor(nullptr), nullptr);
    EXPECT_EQ(floors.getDownstairFloor(nullptr), nullptr);
}

TEST_F(ORVCADFloorsTest, firstInTheListCountsAmongFloorsThatFit)
{
    auto *ground = add("F1", 0.0);
    auto *above = add("F2", 3.0);
    add("F2 too", 3.0);
    EXPECT_EQ(floors.getUpstairFloor(ground), above);
    auto *roof = add("roof", 6.0);
    EXPECT_EQ(floors.getDownstairFloor(roof), above);
}

TEST_F(ORVCADFloorsTest, upstairsOfAFloorWithoutHeightIsThreeMetresUp)
{
    auto *flat = add("F3", 6.0, 0.0);
    auto *above = add("F4", 9.0);
    EXPECT_EQ(floors.getUpstairFloor(flat), above);
}

TEST_F(ORVCADFloorsTest, threeMetresCountOnceForAStandardFloorWithoutHeight)
{
    auto *standard = add("F3", 6.0, 0.0, 5);
    add("F8", 21.0);
    auto *above = add("F4", 9.0);
    EXPECT_EQ(floors.getUpstairFloor(standard), above);
}

TEST_F(ORVCADFloorsTest, wayUpCountsStandardStoreysAndWayDownDoesNot)
{
    auto *standard = add("F2", 3.0, 3.0, 4);
    auto *above = add("F6", 15.0);
    EXPECT_EQ(floors.getUpstairFloor(standard), above);
    EXPECT_EQ(floors.getDownstairFloor(above), nullptr);
    auto *within = add("F3", 6.0);
    EXPECT_EQ(floors.getDownstairFloor(within), standard);
}

TEST_F(ORVCADFloorsTest, standardCountBelowTwoAddsNothing)
{
    auto *above = add("F2", 3.0);
    for (const int count : {1, 0, -5, std::numeric_limits<int>::min()})
        EXPECT_EQ(floors.getUpstairFloor(add("F1", 0.0, 3.0, count)), above) << count;
}

TEST_F(ORVCADFloorsTest, floorAtExactlyZeroIsTheLowestAboveGround)
{
    add("B2", -6.0);
    add("B1", -3.0);
    auto *ground = add("F1", 0.0);
    add("F2", 3.0);
    EXPECT_EQ(floors.getMinGreaterZeroFloor(), ground);
}

TEST_F(ORVCADFloorsTest, lowestFloorMayBeAboveGroundItself)
{
    auto *lowest = add("F2", 3.0);
    EXPECT_EQ(floors.getMinGreaterZeroFloor(), lowest);
}

TEST_F(ORVCADFloorsTest, gapBelowZeroEndsTheWalkUp)
{
    add("B2", -7.0, 3.0);
    add("B1", -3.0);
    add("F1", 0.0);
    EXPECT_EQ(floors.getMinGreaterZeroFloor(), nullptr);
}

TEST_F(ORVCADFloorsTest, walkUpEndsAtAFloorItHasVisited)
{
    add("up", -6.0, 3.0);
    add("down", -3.0, -3.0);
    EXPECT_EQ(floors.getMinGreaterZeroFloor(), nullptr);
}

TEST_F(ORVCADFloorsTest, nextHigherFloorGoesByBottomElevation)
{
    add("F4", 9.0);
    auto *second = add("F2", 3.0);
    add("F3", 6.0);
    add("F1", 0.0);
    EXPECT_EQ(floors.getHighOneFloor(3), second);
    EXPECT_EQ(floors.getHighOneFloor(0), nullptr);
}

TEST_F(ORVCADFloorsTest, laterOfEquallyHighFloorsIsNextHigherUnlikeHighest)
{
    add("F1", 0.0);
    auto *earlier = add("F2", 3.0);
    auto *later = add("F2 too", 3.0);
    EXPECT_EQ(floors.getHighestFloor(), earlier);
    EXPECT_EQ(floors.getHighOneFloor(0), later);
}

TEST_F(ORVCADFloorsTest, currentFloorIsBorrowedAndNotChecked)
{
    ORVCADFloor foreign;
    floors.setCurrentFloor(&foreign);
    EXPECT_EQ(floors.getCurrentFloor(), &foreign);
    floors.setCurrentFloor(nullptr);
    EXPECT_EQ(floors.getCurrentFloor(), nullptr);
}

TEST_F(ORVCADFloorsTest, currentFloorIsSetByNameAndAnUnknownNameChangesNothing)
{
    auto *first = add("F1", 0.0);
    add("F1", 3.0);
    floors.setCurrentFloor(QStringLiteral("F1"));
    EXPECT_EQ(floors.getCurrentFloor(), first);
    floors.setCurrentFloor(QStringLiteral("f1"));
    EXPECT_EQ(floors.getCurrentFloor(), first);
}

TEST_F(ORVCADFloorsTest, copyHoldsTheVerySameFloors)
{
    auto *floor = add("F1", 0.0);
    floors.setCurrentFloor(floor);
    ORVCADFloors copy = floors;
    ORVCADFloors assigned;
    assigned = floors;
    EXPECT_EQ(copy.getFloor(0), floor);
    EXPECT_EQ(copy.getCurrentFloor(), floor);
    EXPECT_EQ(assigned.getFloor(0), floor);
    EXPECT_EQ(assigned.getCurrentFloor(), floor);
    copy.getFloors().clear(); // only one of them may own the floors in the end
    assigned.getFloors().clear();
}

TEST_F(ORVCADFloorsTest, nullThatACallerPutIntoTheListIsPassedOver)
{
    floors.getFloors().append(nullptr);
    auto *floor = add("F1", 0.0);
    EXPECT_EQ(floors.getFloor(QStringLiteral("F1")), floor);
    EXPECT_EQ(floors.getHighestFloor(), floor);
    EXPECT_EQ(floors.getLowestFloor(), floor);
    EXPECT_EQ(floors.getHighOneFloor(0), nullptr);
    EXPECT_EQ(floors.getHighOneFloor(1), nullptr);
    EXPECT_EQ(floors.toJson().value("Floors").toArray().size(), 1);
}

TEST_F(ORVCADFloorsTest, areaAndFloorsAreWrittenInListOrder)
{
    floors.setAreaName(QStringLiteral("一区"));
    add("F2", 3.0, 3.3, 2)->setCode(QStringLiteral("2"));
    floors.setCurrentFloor(add("F1", 0.0));
    EXPECT_EQ(QJsonDocument(floors.toJson()).toJson(QJsonDocument::Compact),
              QByteArray(R"({"AreaName":"一区","Floors":[)"
                         R"({"BottomElev":3,"Code":"2","Height":3.3,"Name":"F2","Remark":"","StdCount":2},)"
                         R"({"BottomElev":0,"Code":"","Height":3,"Name":"F1","Remark":"","StdCount":1}]})"));
}

TEST_F(ORVCADFloorsTest, floorsAreReadInListOrderWithoutCodesAndCurrentFloor)
{
    const auto read = readFrom(R"({"AreaName": "A", "Floors": [
        {"Name": "F2", "Code": "2", "BottomElev": 3, "Height": 3.3, "StdCount": 2, "Remark": ""},
        {"Name": "F1", "Code": "1", "BottomElev": 0, "Height": 3, "StdCount": 1, "Remark": "r"}]})");
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->getAreaName(), "A");
    ASSERT_EQ(read->getCount(), 2);
    EXPECT_EQ(read->getFloor(0)->name(), "F2");
    EXPECT_EQ(read->getFloor(1)->remark(), "r");
    EXPECT_EQ(read->getFloor(1)->code(), "");
    EXPECT_EQ(read->getCurrentFloor(), nullptr);
}

TEST_F(ORVCADFloorsTest, floorThatLacksAKeyIsLeftOut)
{
    const auto read = readFrom(R"({"AreaName": "A", "Floors": [
        {"Name": "F1", "BottomElev": 0, "Height": 3, "StdCount": 1, "Remark": ""},
        {"Name": "F2", "BottomElev": 3, "Height": 3, "StdCount": 1}, 17,
        {"Name": "F3", "BottomElev": 6, "Height": 3, "StdCount": 1, "Remark": ""}]})");
    ASSERT_NE(read, nullptr);
    ASSERT_EQ(read->getCount(), 2);
    EXPECT_EQ(read->getFloor(0)->name(), "F1");
    EXPECT_EQ(read->getFloor(1)->name(), "F3");
}

TEST_F(ORVCADFloorsTest, areaNameAndFloorsAreRequired)
{
    EXPECT_EQ(readFrom("{}"), nullptr);
    EXPECT_EQ(readFrom(R"({"AreaName": "A"})"), nullptr);
    EXPECT_EQ(readFrom(R"({"Floors": []})"), nullptr);
}

TEST_F(ORVCADFloorsTest, mistypedAreaNameAndFloorsReadAsEmpty)
{
    const auto read = readFrom(R"({"AreaName": 1, "Floors": "x"})");
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->getAreaName(), "");
    EXPECT_EQ(read->getCount(), 0);
}
