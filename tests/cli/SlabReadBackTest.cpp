#include "cli/SlabReadBack.h"

#include "HouseFixture.h"
#include "JsonTexts.h"
#include "SlabReplies.h"
#include "cli/SlabExport.h"

using namespace orvcad;

namespace {

/** A slab of 4 m by 3 m that stands in the host, and what a reply may have said of it. */
class SlabReadBackTest : public HouseFixture
{
protected:
    void SetUp() override
    {
        openHouse(slab("B-h120", "POLYGON((0 0, 4000 0, 4000 3000, 0 3000, 0 0))"));
        m_board = slabDocument(*project, floor(), SlabParts())["boards"].toArray().at(0).toObject();
    }
    const QJsonObject &board() const { return m_board; }
    /** "place: reason" of what differs from a member that the slab was made of. */
    std::string changed(const QJsonObject &member, const char *array = "boards") const
    {
        SlabReplyCheck::Member made;
        for (const SlabArray &one : slabArrays())
            if (one.key == QLatin1String(array))
                made.array = &one;
        made.place = "boards[3]";
        made.json = member;
        return clitest::textOf(changedInHost(*project, floor(), {{m_board["id"].toInt(), &made}}));
    }

private:
    QJsonObject m_board;
};

TEST_F(SlabReadBackTest, memberThatStandsAsItWasSentIsNotTold) { EXPECT_EQ(changed(board()), ""); }

TEST_F(SlabReadBackTest, eachValueThatIsAnotherOneIsTold)
{
    EXPECT_EQ(changed(clitest::with(clitest::with(board(), "thinkness", 120.4), "elev", 2.95)),
              "boards[3].elev: 2.95 was sent, and 3 is what the host has\n"
              "boards[3].thinkness: 120.4 was sent, and 120 is what the host has");
}

TEST_F(SlabReadBackTest, identitiesNamesAndRemarksAreNotCompared)
{
    QJsonObject member = board();
    for (const char *key : {"name", "recongnizedID", "state_descript"})
        member[QLatin1String(key)] = "another";
    member["id"] = -1;
    EXPECT_EQ(changed(member), "");
}

TEST_F(SlabReadBackTest, objectThatIsNotExportedInItsArrayIsPassedOver)
{
    EXPECT_EQ(changed(clitest::with(board(), "thinkness", 1), "rafts"), "");
}

} // namespace
