#include "cli/WallReply.h"

#include "HouseFixture.h"
#include "JsonTexts.h"

using namespace orvcad;

namespace {

class WallReplyTest : public HouseFixture
{
protected:
    WallReply replyOf(const char *kind) const
    {
        return WallReply(*project, wallKindOf(QLatin1String(kind)), {&floor()});
    }
};

TEST_F(WallReplyTest, wallsOfTheKindStandInTheHostsOrderWithTheirPieces)
{
    openHouse(wall("Q2", "LINESTRING(0 0, 5000 0)") + ',' + wall("W1", "LINESTRING(0 900, 5000 900)", 0) + ',' +
              wall("Q1", "LINESTRING(0 1800, 5000 1800)"));
    const WallReply reply = replyOf("brick");
    const QJsonObject map = wallKindOf("brick").mapIn(reply.document());
    ASSERT_EQ(wallCount(map), 2);
    EXPECT_EQ(map["key_0"]["entName"], "Q2");
    EXPECT_EQ(map["key_0"]["width"], "200");
    EXPECT_EQ(map["key_0"]["region"], "House");
    EXPECT_EQ(map["key_0"]["floorCode"], "1");
    EXPECT_EQ(map["key_1"]["entName"], "Q1");
    EXPECT_EQ(map["value_1"][0]["sWorldLine"], "0,1800,5000,1800");
    EXPECT_EQ(reply.pieces(), 2);
    EXPECT_EQ(reply.headline(), "2 brick walls in 2 pieces of 1 floor");
    EXPECT_EQ(replyOf("force").headline(), "1 force wall in 1 piece of 1 floor");
}

TEST_F(WallReplyTest, wallsThatAreNotPlacedAreCountedAndNotWritten)
{
    openHouse(R"~({"name": "Q1", "type": 1003, "properties": {"Thickness": 200}})~");
    const WallReply reply = replyOf("brick");
    EXPECT_EQ(wallKindOf("brick").mapIn(reply.document()), QJsonObject());
    EXPECT_EQ(reply.text(), "0 brick walls (1 more of which none is placed) in 0 pieces of 1 floor");
    EXPECT_EQ(reply.toJson(), (QJsonObject{{"kind", "brick"},
                                           {"floors", 1},
                                           {"elements", 0},
                                           {"withoutPieces", 1},
                                           {"pieces", 0},
                                           {"leftOut", QJsonArray()}}));
}

TEST_F(WallReplyTest, nameThatTheFormCutsKeepsTheWallOut)
{
    openHouse(wall("Q/1", "LINESTRING(0 0, 5000 0)"));
    const WallReply reply = replyOf("brick");
    EXPECT_EQ(clitest::textOf(reply.leftOut()), "floor F: entName holds \"/\" or \":\", which cuts it");
    EXPECT_EQ(reply.pieces(), 0);
    EXPECT_EQ(reply.text(), "0 brick walls in 0 pieces of 1 floor\n"
                            "  left out: floor F (Q/1): entName holds \"/\" or \":\", which cuts it");
}

TEST_F(WallReplyTest, buildingWithoutWallsGivesAnEmptyReply)
{
    openHouse();
    const WallReply reply = replyOf("force");
    EXPECT_TRUE(reply.document().contains("eWall"));
    EXPECT_TRUE(reply.leftOut().empty());
    EXPECT_EQ(reply.headline(), "0 force walls in 0 pieces of 1 floor");
}

} // namespace
