#include "cli/FloorMove.h"

#include "HouseFixture.h"

#include <QJsonArray>

using orvcad::FloorMove;
using orvcad::FloorPlace;

namespace {

/** From Level 1 of East, between 0 and 3 m, to Level 2 of West, between 3 and 7 m. */
const FloorPlace kFrom{"East", "Level 1", "1", 0.0, 3.0};
const FloorPlace kTo{"West", "Level 2", "2", 3.0, 7.0};
const FloorMove kMove(kFrom, kTo);

TEST(FloorMoveTest, namesAndCodesOfTheFloorBecomeTheOthers)
{
    const QJsonObject beam{{"RegionName", "East"}, {"FloorName", "Level 1"}};
    const QJsonObject opening{{"regionName", "East"}, {"floorName", "1"}};
    const QJsonObject wall{{"region", "East"}, {"floorCode", "1"}};
    const QJsonObject moved = kMove.moved({{"members", QJsonArray{beam, opening, QJsonObject{{"key_0", wall}}}}});
    EXPECT_EQ(moved["members"].toArray(),
              (QJsonArray{QJsonObject{{"RegionName", "West"}, {"FloorName", "Level 2"}},
                          QJsonObject{{"regionName", "West"}, {"floorName", "2"}},
                          QJsonObject{{"key_0", QJsonObject{{"region", "West"}, {"floorCode", "2"}}}}}));
}

TEST(FloorMoveTest, otherMembersThatReadTheSameStay)
{
    const QJsonObject document{{"Name", "Level 1"}, {"elementName", "1"}, {"floorName", "7"}, {"width", 3}};
    EXPECT_EQ(kMove.moved(document), document);
}

TEST(FloorMoveTest, elevationKeepsItsDistanceToTheNearerEndOfTheFloor)
{
    EXPECT_EQ(kMove.movedElevation(3.0), 7.0);
    EXPECT_EQ(kMove.movedElevation(2.95), 6.95);
    EXPECT_EQ(kMove.movedElevation(0.0), 3.0);
    EXPECT_EQ(kMove.movedElevation(-0.05), 2.95);
    EXPECT_EQ(kMove.movedElevation(1.5), 4.5); // half way belongs to the bottom
}

TEST(FloorMoveTest, elevationsMoveAsNumbersAndAsTexts)
{
    const QJsonObject moved =
        kMove.moved({{"elev", 2.95}, {"StartPtTopElev", "2.8"}, {"sPfnEndPtBottomElev", "0"}, {"EDOTopElev", "3.1"}});
    EXPECT_EQ(
        moved,
        (QJsonObject{{"elev", 6.95}, {"StartPtTopElev", "6.8"}, {"sPfnEndPtBottomElev", "3"}, {"EDOTopElev", "7.1"}}));
}

TEST(FloorMoveTest, wordsForTopAndBottomAndWhatIsNoElevationStay)
{
    const QJsonObject document{
        {"StartPtTopElev", "层顶标高-0.6"}, {"TopElev", "层底标高"}, {"EDOTopElev", ""}, {"BtmElev", "above"}};
    EXPECT_EQ(kMove.moved(document), document);
}

TEST(FloorMoveTest, floorAtTheSameHeightLeavesEachElevationAsItIsWritten)
{
    const FloorMove level(kFrom, {"West", "Level 1", "1", 0.0, 3.0});
    const QJsonObject document{{"StartPtTopElev", "2.80"}, {"elev", 1.0 / 3.0}};
    EXPECT_EQ(level.moved(document), document);
}

using FloorPlaceTest = HouseFixture;

TEST_F(FloorPlaceTest, placeIsThatOfTheHost)
{
    openHouse();
    const FloorPlace place = orvcad::placeOf(floor());
    EXPECT_EQ(place.text(), "F of House");
    EXPECT_EQ(place.toJson(), (QJsonObject{{"region", "House"}, {"floor", "F"}}));
    EXPECT_EQ(place.code, "1");
    EXPECT_EQ(place.bottom, 0.0);
    EXPECT_EQ(place.top, 3.0);
}

} // namespace
