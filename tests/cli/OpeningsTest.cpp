#include "cli/Openings.h"

#include "CommandFailures.h"
#include "HouseFixture.h"
#include "OpeningReplies.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"

using namespace orvcad;
using openingtest::elementMember;
using openingtest::placedMember;
using openingtest::replyOf;

namespace {

/** A house with a brick wall Q1 along the x axis. */
class OpeningsTest : public HouseFixture
{
protected:
    void SetUp() override { openHouse(q1); }

    const QByteArray q1 = wall("Q1", "LINESTRING(0 0, 5000 0)");
};

TEST_F(OpeningsTest, openingsAreMadePlacedAndAttachedToTheWallsThatTheyStandIn)
{
    const OpeningOutcome outcome =
        applyOpenings(*project, {elementMember("M1"), placedMember("M1", 1000, 0), placedMember("M1", 1000, 900), 17});
    EXPECT_EQ(outcome.members, 4);
    EXPECT_EQ(outcome.made.elements, 1);
    EXPECT_EQ(outcome.made.placed, 2);
    EXPECT_EQ(outcome.made.attached, 1);
    EXPECT_EQ(outcome.text(), "4 members read: 1 element made, 2 openings placed (1 in a wall, 1 in none), 1 left out\n"
                              "  left out: member 3 (no name): is no object");
    EXPECT_EQ(outcome.toJson()["elementsMade"], 1);
    EXPECT_EQ(outcome.toJson()["unattached"], 1);
    EXPECT_EQ(outcome.toJson()["leftOut"].toArray().size(), 1);
    EXPECT_EQ(placedOpenings(floor()).size(), 2U);
}

TEST_F(OpeningsTest, whatIsWrittenIsTakenAgainAndWrittenTheSame)
{
    openHouse(q1 + ',' + doorIn("M1", "Q1", 1000, 0));
    OpeningCounts counts;
    const QJsonObject reply = openingReply(model(), {&floor()}, counts);
    EXPECT_EQ(counts.elements, 1);
    EXPECT_EQ(counts.placed, 1);
    EXPECT_EQ(counts.attached, 1);
    const QJsonArray members = openingMembers(reply, "reply.json");
    ASSERT_EQ(members.size(), 2);
    EXPECT_EQ(members[0]["name"], "M1");
    EXPECT_EQ(members[1]["elementName"], "M1");
    EXPECT_EQ(members[1]["X"], 1000);

    EXPECT_EQ(removeOpenings(*project), 1);
    EXPECT_TRUE(applyOpenings(*project, members).leftOut.empty());
    OpeningCounts again;
    const QJsonArray written = openingMembers(openingReply(model(), {&floor()}, again), "reply.json");
    EXPECT_EQ(again.attached, 1);
    EXPECT_EQ(written[1], members[1]);
}

TEST_F(OpeningsTest, floorsThatAreNotAskedForAreNotWritten)
{
    OpeningCounts counts;
    const QJsonObject reply = openingReply(model(), {}, counts);
    EXPECT_EQ(openingMembers(reply, "reply.json"), QJsonArray());
    EXPECT_EQ(counts.placed, 0);
}

TEST_F(OpeningsTest, openingsOfAllFloorsAreRemovedAndTheirWallsStay)
{
    openSample("duplex-apartment"); // doors and windows: 3 and 2 on Level 1, 2 and 5 on Level 2, 1 on the roof
    const int elements = model().elements()->count();
    EXPECT_EQ(removeOpenings(*project), 13);
    EXPECT_EQ(model().elements()->count(), elements - 13);
    EXPECT_TRUE(placedOpenings(floor("Level 1")).empty());
    EXPECT_EQ(removeOpenings(*project), 0);
}

TEST_F(OpeningsTest, documentWithoutMembersIsRefusedAtItsPlace)
{
    const auto refusalOf = [](const QJsonObject &reply) {
        return clitest::failureOf([&reply] { openingMembers(reply, "reply.json"); });
    };
    EXPECT_EQ(refusalOf({}), "reply.json: eDoorWin: no object of that key: no reply of openings");
    EXPECT_EQ(refusalOf({{"eDoorWin", 3}}), "reply.json: eDoorWin: no object of that key: no reply of openings");
    EXPECT_EQ(refusalOf({{"eDoorWin", QJsonObject()}}), "reply.json: eDoorWin.ElementsAndEdos: is no array");
    EXPECT_EQ(openingMembers(replyOf({7}), "reply.json"), QJsonArray{7});
}

} // namespace
