#include "cli/CopyRoads.h"

#include "HouseFixture.h"
#include "cli/ProjectInfo.h"

using namespace orvcad;

namespace {

using CopyRoadsTest = HouseFixture;

TEST_F(CopyRoadsTest, wordsAreThoseOfTheOption)
{
    EXPECT_EQ(copyRoadWords(), (std::vector<std::string>{"wall", "opening", "seat", "beam", "slab"}));
}

TEST_F(CopyRoadsTest, noTypeIsCarriedTwice)
{
    QSet<qint64> carried;
    for (const CopyRoad &road : copyRoads()) {
        EXPECT_FALSE(carried.intersects(road.types)) << road.word;
        carried += road.types;
    }
    EXPECT_TRUE(carried.contains(1003));
    EXPECT_FALSE(carried.contains(25)); // no reply makes columns
}

TEST_F(CopyRoadsTest, whatARoadWritesItAppliesToAnotherHouse)
{
    openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + wall("W1", "LINESTRING(0 0, 0 5000)", 0) + ',' +
              doorIn("M1", "Q1", 1500, 0) + ',' + slab("B1", "POLYGON((0 0, 5000 0, 5000 5000, 0 5000, 0 0))"));
    const Project copy = houseOf(QByteArray());
    for (const CopyRoad &road : copyRoads()) {
        const CopyRoad::Document document = road.write(*project, floor());
        EXPECT_TRUE(document.leftOut.empty()) << road.word;
        const CopyRoad::Outcome outcome = road.apply(*copy, floorOf(copy, "F"), document.reply, "reply.json");
        EXPECT_TRUE(outcome.isComplete) << outcome.text.toStdString();
        EXPECT_EQ(outcome.json["leftOut"].toArray(), QJsonArray());
    }
    EXPECT_EQ(projectInfo(*copy).table().toStdString(), projectInfo(*project).table().toStdString());
}

TEST_F(CopyRoadsTest, wallWhoseNameTheFormCannotHoldIsToldByTheDocument)
{
    openHouse(wall("Q:1", "LINESTRING(0 0, 5000 0)"));
    const CopyRoad::Document document = copyRoads().front().write(*project, floor());
    ASSERT_EQ(document.leftOut.size(), 1U);
    EXPECT_EQ(document.leftOut[0].name, "Q:1");
}

} // namespace
