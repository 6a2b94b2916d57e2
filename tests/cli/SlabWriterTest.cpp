#include "cli/SlabWriter.h"

#include "HouseFixture.h"
#include "JsonTexts.h"
#include "SlabReplies.h"
#include "platform/host/IHBXDrawObjs.h"

using namespace orvcad;
using clitest::textOf;
using clitest::with;
using namespace slabtest;

namespace {

class SlabWriterTest : public HouseFixture
{
protected:
    void SetUp() override
    {
        openHouse(slab("B-h120", "POLYGON((0 0, 9000 0, 9000 9000, 0 9000, 0 0))"));
        project->makeCurrent();
        project->setCurrent("House", "F");
        writer = std::make_unique<SlabWriter>(*project, floor());
    }
    /** Writes the sound members of a reply. */
    void write(const QJsonObject &model, const QSet<qint64> &under = {})
    {
        check = std::make_unique<SlabReplyCheck>(model);
        SlabWriter::Members members;
        for (const SlabReplyCheck::Member &member : check->sound())
            members.push_back(&member);
        writer->write(members, under);
    }
    int madeOf(const char *key) const
    {
        for (const SlabArray &array : slabArrays())
            if (array.key == QLatin1String(key))
                return writer->madeOf(array);
        return -1;
    }

    std::unique_ptr<SlabWriter> writer;
    std::unique_ptr<SlabReplyCheck> check;
};

TEST_F(SlabWriterTest, membersComeInAndAreNamedByTheirIdentities)
{
    write({{"boards", QJsonArray{board(1), board(2)}}, {"board_holes", QJsonArray{hole(11000)}}});
    EXPECT_EQ(madeOf("boards"), 2);
    EXPECT_EQ(madeOf("board_holes"), 1);
    EXPECT_EQ(madeOf("rafts"), 0);
    EXPECT_TRUE(writer->leftOut().empty());
    ASSERT_EQ(writer->ids().size(), 3U);
    QSet<QString> identities;
    for (const auto &[id, named] : writer->ids()) {
        EXPECT_TRUE(model().drawObjects()->drawObjById(id)) << id;
        identities.insert(named.toString());
    }
    EXPECT_EQ(identities, (QSet<QString>{identity(1), identity(2), identity(60)}));
}

TEST_F(SlabWriterTest, memberThatTheHostRefusesIsToldWithItsReasonAndTheOthersComeIn)
{
    const QJsonObject bowTie = with(board(1), "surface", "POLYGON((0 20000, 900 20900, 900 20000, 0 21900, 0 20000))");
    write({{"boards", QJsonArray{bowTie, board(2)}}});
    EXPECT_EQ(madeOf("boards"), 1);
    EXPECT_EQ(textOf(writer->leftOut()),
              "boards[0]: the host refused it: The outline of the draw object crosses or overlaps itself.");
}

TEST_F(SlabWriterTest, memberThatTheHostIsNotAskedAboutIsToldWhy)
{
    write({{"board_holes", QJsonArray{hole(-50000)}}});
    write({{"forced_bars", QJsonArray{with(bar(), "bar_info", "many")}}}, {19});
    EXPECT_EQ(textOf(writer->leftOut()), "board_holes[0]: no slab and no raft of the floor holds its middle\n"
                                         "forced_bars[0]: bar_info \"many\" tells no bars");
}

TEST_F(SlabWriterTest, nothingIsWrittenOfNothing)
{
    write({});
    EXPECT_EQ(model().drawObjects()->count(), 1);
    EXPECT_TRUE(writer->ids().empty());
}

} // namespace
