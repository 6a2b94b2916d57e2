#include "cli/Slabs.h"

#include "CommandFailures.h"
#include "HouseFixture.h"
#include "JsonTexts.h"
#include "SlabReplies.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElements.h"

using namespace orvcad;
using clitest::with;
using namespace slabtest;

namespace {

class SlabsTest : public HouseFixture
{
protected:
    void SetUp() override { openHouse(slab("B-h120", "POLYGON((0 0, 9000 0, 9000 9000, 0 9000, 0 0))")); }

    SlabOutcome apply(const QJsonObject &reply) const { return applySlabs(*project, floor(), reply, "reply.json"); }
};

TEST_F(SlabsTest, barsFindTheSlabsThatComeInWithThem)
{
    const SlabOutcome outcome =
        apply({{"forced_bars", QJsonArray{bar()}}, {"boards", QJsonArray{board(1)}}, {"rafts", QJsonArray{raft()}}});
    EXPECT_EQ(outcome.sum(&SlabOutcome::Array::made), 3);
    EXPECT_EQ(outcome.elementsMade, 3);
    EXPECT_TRUE(outcome.leftOut.empty()) << leftOutLines(outcome.leftOut).toStdString();
    EXPECT_EQ(outcome.ids.size(), 3U);
}

TEST_F(SlabsTest, outcomeIsToldArrayByArray)
{
    const SlabOutcome outcome = apply({{"boards", QJsonArray{board(1), with(board(2), "id", 5), 7}},
                                       {"rafts", QJsonArray()},
                                       {"walls", QJsonArray{QJsonObject()}}});
    EXPECT_EQ(outcome.text(), "3 members read: 1 made in 1 new element, 1 in the host already, 1 left out\n"
                              "  3 slabs: 1 made, 1 in the host already, 1 left out\n"
                              "  passed over: 1 member of supports and axis grids, which no reply makes\n"
                              "  left out: boards[2] (no name): is no object");
    const QJsonObject json = outcome.toJson();
    EXPECT_EQ(json["members"], 3);
    EXPECT_EQ(json["made"], 1);
    EXPECT_EQ(json["known"], 1);
    EXPECT_EQ(json["passedOver"], 1);
    EXPECT_EQ(json["arrays"].toArray().size(), 2);
    EXPECT_EQ(json["arrays"][0],
              QJsonValue(QJsonObject{{"array", "boards"}, {"members", 3}, {"made", 1}, {"known", 1}, {"leftOut", 1}}));
}

TEST_F(SlabsTest, identityThatRepeatsIsToldAndNamesBoth)
{
    const SlabOutcome outcome = apply({{"boards", QJsonArray{board(1), with(board(2), "recongnizedID", identity(1))}}});
    EXPECT_EQ(outcome.repeated, 1);
    EXPECT_TRUE(outcome.text().contains("1 member with the identity of one before: the id map names both alike"));
    const QJsonObject ids = outcome.idMap();
    ASSERT_EQ(ids.size(), 2);
    for (auto id = ids.begin(); id != ids.end(); ++id) {
        EXPECT_TRUE(model().drawObjects()->drawObjById(id.key().toLongLong())) << id.key().toStdString();
        EXPECT_EQ(*id, identity(1));
    }
}

TEST_F(SlabsTest, documentThatIsNoReplyChangesNothing)
{
    EXPECT_EQ(clitest::failureOf([this] { apply({{"model", 1}}); }), "reply.json: model: is no object");
    EXPECT_EQ(model().drawObjects()->count(), 1);
}

TEST_F(SlabsTest, slabsRaftsHolesAndBarsOfAFloorAreRemovedAndNothingElse)
{
    openHouse(slab("B-h120", "POLYGON((0 0, 9000 0, 9000 9000, 0 9000, 0 0))") + ',' +
              wall("Q1", "LINESTRING(0 0, 5000 0)"));
    apply({{"forced_bars", QJsonArray{with(bar(), "surface", rectangle(0, 0, 4000, 3000))}},
           {"board_holes", QJsonArray{hole()}},
           {"rafts", QJsonArray{raft()}}});
    EXPECT_EQ(removeSlabs(*project, floor()), 4);
    EXPECT_EQ(model().elements()->count(), 1);
    EXPECT_EQ(model().drawObjects()->count(), 1);
    EXPECT_EQ(removeSlabs(*project, floor()), 0);
}

} // namespace
