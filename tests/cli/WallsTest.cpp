#include "cli/Walls.h"

#include "CommandFailures.h"
#include "HouseFixture.h"
#include "JsonTexts.h"
#include "WallReplies.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElements.h"

using namespace orvcad;
using clitest::with;
using walltest::element;
using walltest::mapOf;
using walltest::piece;

namespace {

class WallsTest : public HouseFixture
{
protected:
    void SetUp() override { openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)")); }

    WallOutcome apply(const std::vector<walltest::WallText> &walls) const
    {
        return applyWalls(*project, kBrick, kBrick.replyOf(mapOf(walls)), "walls.json");
    }

    const WallKind &kBrick = wallKindOf(QStringLiteral("brick"));
};

TEST_F(WallsTest, wallsAreMadeWithTheirPiecesAndToldWithPlaceAndFloor)
{
    const WallOutcome outcome = apply({{element("Q2"), QJsonArray{piece(), piece("0,6000,5000,6000")}}});
    EXPECT_EQ(outcome.members, 1);
    ASSERT_EQ(outcome.walls.size(), 1U);
    EXPECT_EQ(outcome.walls[0].toJson(), (QJsonObject{{"place", "BrickWallIdentifyData.key_0"},
                                                      {"name", "Q2"},
                                                      {"madeAs", "Q2"},
                                                      {"floor", "1"},
                                                      {"placed", 2},
                                                      {"leftOut", 0},
                                                      {"doubled", 0}}));
    EXPECT_EQ(outcome.text(), "1 brick wall read: 1 element made (0 under another name), 2 pieces placed, 0 left out\n"
                              "  Q2 on floor 1: made, 2 pieces placed");
    EXPECT_EQ(model().elements()->count(), 2);
    EXPECT_EQ(model().drawObjects()->count(), 3);
}

TEST_F(WallsTest, nameThatIsTakenIsToldWithTheOneMade)
{
    const WallOutcome outcome = apply({{element("Q1"), QJsonArray{piece()}}, {element("Q5"), QJsonArray{}}});
    EXPECT_EQ(outcome.renamed(), 1);
    EXPECT_EQ(outcome.placed(), 1);
    EXPECT_EQ(outcome.walls[0].text(), "Q1 on floor 1: made as Q1-1, 1 piece placed");
    EXPECT_EQ(outcome.walls[1].text(), "Q5 on floor 1: made, 0 pieces placed");
}

TEST_F(WallsTest, pieceWhereTheSameOneStandsIsCountedAsDoubled)
{
    QJsonObject same = piece("0,0,5000,0");
    same["sPfnStartPtTopElev"] = "";
    same["sPfnEndPtTopElev"] = "";
    const WallOutcome outcome = apply({{with(element("Q2"), "width", "200"), QJsonArray{same, piece()}},
                                       {element("Q3"), QJsonArray{piece("0,9,9,9")}}});
    EXPECT_EQ(outcome.walls[0].doubled, 1);
    EXPECT_EQ(outcome.walls[1].doubled, 0);
    EXPECT_EQ(outcome.doubled(), 1);
    EXPECT_TRUE(outcome.text().endsWith("\n1 object made where the same one stands already: was this applied before?"))
        << outcome.text().toStdString();
}

TEST_F(WallsTest, valueThatTheHostRefusesIsToldAtItsPiece)
{
    const WallOutcome outcome =
        apply({{element("Q2"), QJsonArray{piece(), with(piece("0,9,9,9"), "sPfnEndPtTopElev", "raft")}}});
    EXPECT_EQ(outcome.placed(), 2);
    ASSERT_EQ(outcome.leftOut.size(), 1U);
    EXPECT_EQ(outcome.leftOut[0].place, "BrickWallIdentifyData.value_0[1]");
    EXPECT_EQ(outcome.leftOut[0].name, "Q2");
    EXPECT_TRUE(outcome.leftOut[0].reason.startsWith("a value was refused: "))
        << outcome.leftOut[0].reason.toStdString();
}

TEST_F(WallsTest, piecesThatWereLeftOutAreCountedAtTheirWall)
{
    const WallOutcome outcome = apply({{element("Q2"), QJsonArray{piece(), 17}}});
    EXPECT_EQ(outcome.walls[0].text(), "Q2 on floor 1: made, 1 piece placed, 1 left out");
    EXPECT_EQ(outcome.headline(),
              "1 brick wall read: 1 element made (0 under another name), 1 piece placed, 0 left out, and 1 part of the "
              "rest");
}

TEST_F(WallsTest, documentThatIsNoReplyChangesNothing)
{
    EXPECT_EQ(clitest::failureOf([this] { applyWalls(*project, kBrick, {}, "walls.json"); }),
              "walls.json: eBrickWall: no object of that key: no reply of brick walls");
    EXPECT_EQ(model().elements()->count(), 1);
}

TEST_F(WallsTest, wallsOfOneKindAndFloorAreRemoved)
{
    openSample("precast-hall");
    const WallKind &force = wallKindOf(QStringLiteral("force"));
    EXPECT_EQ(removeWalls(*project, kBrick, floor("Ground floor")), 0);
    EXPECT_EQ(removeWalls(*project, force, floor("Ground floor")), 3);
    EXPECT_EQ(removeWalls(*project, force, floor("Ground floor")), 0);
    EXPECT_EQ(removeWalls(*project, force, floor("Upper part")), 3);
}

} // namespace
