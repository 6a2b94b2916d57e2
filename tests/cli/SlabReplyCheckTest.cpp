#include "cli/SlabReplyCheck.h"

#include "CommandFailures.h"
#include "JsonTexts.h"
#include "SlabReplies.h"

using namespace orvcad;
using clitest::textOf;
using clitest::with;
using clitest::without;
using namespace slabtest;

namespace {

TEST(SlabReplyCheckTest, soundMembersStandInTheOrderInWhichTheyAreWritten)
{
    const SlabReplyCheck check({{"forced_bars", QJsonArray{bar()}},
                                {"board_holes", QJsonArray{hole()}},
                                {"boards", QJsonArray{board(1), board(2)}}});
    EXPECT_TRUE(check.leftOut().empty());
    QStringList places;
    for (const SlabReplyCheck::Member &member : check.sound())
        places.append(member.place);
    EXPECT_EQ(places, (QStringList{"boards[0]", "boards[1]", "board_holes[0]", "forced_bars[0]"}));
    ASSERT_EQ(check.counts().size(), 3U);
    EXPECT_EQ(check.counts()[0].array->key, "boards");
    EXPECT_EQ(check.counts()[0].members, 2);
}

TEST(SlabReplyCheckTest, memberIsWrittenUnderAnIdentityOfItsOwnAndItsOldOneIsKept)
{
    const SlabReplyCheck check({{"boards", QJsonArray{board(1), board(1)}}});
    ASSERT_EQ(check.sound().size(), 2U);
    const SlabReplyCheck::Member &first = check.sound()[0];
    const SlabReplyCheck::Member &second = check.sound()[1];
    EXPECT_EQ(first.identity.toString(), identity(1));
    EXPECT_EQ(second.identity.toString(), identity(1));
    EXPECT_NE(first.written, second.written);
    EXPECT_EQ(first.json, with(board(1), "recongnizedID", first.written.toString()));
    EXPECT_EQ(check.repeated(), 1);
}

TEST(SlabReplyCheckTest, membersWithoutAnIdentityDoNotRepeatOne)
{
    const SlabReplyCheck check(
        {{"boards", QJsonArray{without(board(1), "recongnizedID"), with(board(2), "recongnizedID", "no identity")}}});
    EXPECT_EQ(check.sound().size(), 2U);
    EXPECT_TRUE(check.sound()[1].identity.isNull());
    EXPECT_EQ(check.repeated(), 0);
}

TEST(SlabReplyCheckTest, whatTheHostHasIsKnownHoweverItLooks)
{
    const SlabReplyCheck check({{"boards", QJsonArray{QJsonObject{{"id", 3}}, board(1), with(board(2), "id", 0)}}});
    EXPECT_EQ(check.sound().size(), 2U);
    EXPECT_TRUE(check.leftOut().empty());
    EXPECT_EQ(check.counts()[0].known, 1);
    EXPECT_EQ(check.counts()[0].members, 3);
}

TEST(SlabReplyCheckTest, membersThatMeanNothingAreLeftOutWithPlaceNameAndReason)
{
    const QJsonObject named = with(board(1), "name", "B-7");
    const SlabReplyCheck check({{"boards", QJsonArray{7, without(named, "elev"), with(named, "elev", "3"),
                                                      with(named, "id", 1.5), with(named, "surface", "POLYGON")}},
                                {"negative_forced_bars", QJsonArray{with(negativeBar(), "line", "")}}});
    EXPECT_TRUE(check.sound().empty());
    EXPECT_EQ(textOf(check.leftOut()), "boards[0]: is no object\n"
                                       "boards[1]: elev is missing\n"
                                       "boards[2]: elev is not a number\n"
                                       "boards[3]: id is not a whole number of 32 bits\n"
                                       "boards[4]: surface is no outline\n"
                                       "negative_forced_bars[0]: line is no curve");
    EXPECT_EQ(check.leftOut()[0].name, "");
    EXPECT_EQ(check.leftOut()[1].name, "B-7");
}

TEST(SlabReplyCheckTest, supportsAndAxesArePassedOver)
{
    const SlabReplyCheck check({{"walls", QJsonArray{1, 2}}, {"axisGrids", QJsonArray{3}}});
    EXPECT_EQ(check.passedOver(), 3);
    EXPECT_TRUE(check.counts().empty());
    EXPECT_TRUE(check.leftOut().empty());
}

TEST(SlabReplyCheckTest, arrayThatIsNoneIsLeftOut)
{
    const SlabReplyCheck check({{"boards", "many"}, {"walls", 7}, {"rafts", QJsonArray{raft()}}});
    EXPECT_EQ(textOf(check.leftOut()), "boards: is no array\nwalls: is no array");
    EXPECT_EQ(check.sound().size(), 1U);
}

TEST(SlabModelOfTest, modelStandsAloneOrInAnIoDocument)
{
    const QJsonObject model{{"rafts", QJsonArray()}};
    EXPECT_EQ(slabModelOf(model, "reply.json"), model);
    EXPECT_EQ(slabModelOf({{"model", model}, {"state", 1}}, "reply.json"), model);
    EXPECT_EQ(slabModelOf({{"model", QJsonObject()}}, "reply.json"), QJsonObject());
}

TEST(SlabModelOfTest, documentWithoutAModelIsRefusedWithItsPlace)
{
    EXPECT_EQ(clitest::failureOf([] {
                  slabModelOf({{"x", 1}}, "reply.json");
              }),
              "reply.json: has neither \"model\" nor an array of slabs, rafts, holes or bars: no reply of slabs");
    EXPECT_EQ(clitest::failureOf([] {
                  slabModelOf({{"model", QJsonArray()}}, "reply.json");
              }),
              "reply.json: model: is no object");
}

} // namespace
