#include "SlabCliFixture.h"

namespace {

/** Damaged payloads: what means something is taken, what does not is left out with its place and reason, and nothing else is
 *  lost. */
class SlabDamageTest : public SlabCliFixture
{
protected:
    /** Applies two slabs, the first one damaged; the second has to come in. */
    std::string leftOutOf(const QJsonValue &damaged)
    {
        const Result result = apply({{"boards", QJsonArray{damaged, board(7)}}});
        EXPECT_EQ(result.exitCode, 3) << result.err.toStdString();
        EXPECT_EQ(result.json()["made"], 1);
        EXPECT_EQ(result.json()["saved"], true);
        return leftOut(result);
    }
    /** The same of a slab that is taken as it is; what the project then has of it. */
    QJsonObject takenAs(const QJsonObject &odd)
    {
        const Result result = apply({{"boards", QJsonArray{odd}}});
        EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
        return exported()["boards"].toArray().last().toObject();
    }
};

TEST_F(SlabDamageTest, membersThatCannotBeReadAreLeftOutWithPlaceAndReason)
{
    const QPair<QJsonValue, std::string> cases[] = {
        {7, "is no object"},
        {QJsonValue(), "is no object"},
        {QJsonArray{board()}, "is no object"},
        {QJsonObject(), "surface is missing"},
        {without(board(), "surface"), "surface is missing"},
        {without(board(), "thinkness"), "thinkness is missing"},
        {without(board(), "elev"), "elev is missing"},
        {with(board(), "name", 7), "name is not text"},
        {with(board(), "recongnizedID", 7), "recongnizedID is not text"},
        {with(board(), "thinkness", "120"), "thinkness is not a number"},
        {with(board(), "thinkness", "nan"), "thinkness is not a number"},
        {with(board(), "elev", "NaN"), "elev is not a number"},
        {with(board(), "elev", "Infinity"), "elev is not a number"},
        {with(board(), "elev", QJsonValue()), "elev is not a number"}, // what a number that is not finite becomes
        {with(board(), "elev", true), "elev is not a number"},
        {with(board(), "id", "5"), "id is not a number"},
        {with(board(), "id", 4294967297.0), "id is not a whole number of 32 bits"},
        {with(board(), "id", -1e300), "id is not a whole number of 32 bits"},
        {with(board(), "id", 1.5), "id is not a whole number of 32 bits"},
        {with(board(), "surface", QJsonArray()), "surface is not text"},
        {with(board(), "surface", ""), "surface is no outline"},
        {with(board(), "surface", "POLYGON"), "surface is no outline"},
        {with(board(), "surface", "POLYGON((0 0, 1 0, 1 1"), "surface is no outline"},
        {with(board(), "surface", "POLYGON((nan nan, 1 0, 1 1, nan nan))"), "surface is no outline"},
        {with(board(), "surface", "POLYGON((inf 0, 1 0, 1 1, inf 0))"), "surface is no outline"},
        {with(board(), "surface", "LINESTRING(0 0, 1 0)"), "surface is no outline"},
        {with(board(), "surface", QString(1000000, '(')), "surface is no outline"},
    };
    for (const auto &each : cases) {
        SetUp();
        EXPECT_EQ(leftOutOf(each.first), "boards[0]: " + each.second);
    }
}

TEST_F(SlabDamageTest, outlinesThatAreNoneAreRefusedByTheHost)
{
    const QPair<const char *, std::string> cases[] = {
        {"POLYGON EMPTY", "The outline of the draw object has no edges."},
        {"POLYGON((0 0, 0 0, 0 0, 0 0))", "The outline of the draw object has an edge of no length."},
        {"POLYGON((20000 0, 21000 0, 22000 0, 20000 0))", "The outline of the draw object has no area."},
    };
    for (const auto &each : cases) {
        SetUp();
        EXPECT_EQ(leftOutOf(with(board(), "surface", each.first)), "boards[0]: the host refused it: " + each.second);
    }
}

TEST_F(SlabDamageTest, oddValuesAreReadAsTheyStand)
{
    EXPECT_EQ(takenAs(with(board(1), "id", 0))["name"], "B-h100");             // only an id above 0 is the host's
    EXPECT_EQ(takenAs(with(board(3), "type", "any"))["name"], "B-h100");       // never read
    EXPECT_EQ(takenAs(with(board(4), "state_descript", 7))["name"], "B-h100"); // never written
    EXPECT_EQ(takenAs(without(board(6), "name"))["name"], "B-h100");
    EXPECT_EQ(takenAs(without(board(8), "id"))["name"], "B-h100");
}

TEST_F(SlabDamageTest, valueThatArrivesAsAnotherOneIsTold)
{
    const Result result = apply({{"boards", QJsonArray{with(board(2), "thinkness", 120.9)}}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result), "boards[0].thinkness: 120.9 was sent, and 120 is what the host has");
    EXPECT_EQ(result.json()["made"], 1);
}

TEST_F(SlabDamageTest, keyThatNothingReadsIsToldAndTheMemberIsMade)
{
    const Result result = apply(
        {{"boards", QJsonArray{with(with(board(5), "of another version", 7), "Elev", 3)}}, {"board", QJsonArray()}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result), "boards[0].Elev: is no key of this record, and not read: elev is one\n"
                               "boards[0].of another version: is no key of this record, and not read\n"
                               "board: is no key of this record, and not read: boards is one");
    EXPECT_EQ(result.json()["made"], 1);
}

TEST_F(SlabDamageTest, barThatCannotBeDrawnIsLeftOut)
{
    const QJsonObject still = with(with(bar(), "direction_x", 0), "direction_y", 1e-300);
    const QJsonObject narrow = with(with(negativeBar(), "left_strech_length", 0), "right_strech_length", 0);
    const Result result =
        apply({{"boards", QJsonArray{board(1)}},
               {"forced_bars", QJsonArray{still, with(bar(), "ref_point_y", -2e9)}},
               {"negative_forced_bars", QJsonArray{narrow, with(negativeBar(), "line", "LINESTRING(5 5, 5 5)")}}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result), "forced_bars[0]: its direction has no length\n"
                               "forced_bars[1]: ref_point_y lies beyond 1000000 m\n"
                               "negative_forced_bars[0]: it stretches to neither side of its line\n"
                               "negative_forced_bars[1]: line has no length");
    EXPECT_EQ(result.json()["made"], 1);
}

TEST_F(SlabDamageTest, identityThatIsNoneIsTold)
{
    const Result result = apply({{"boards", QJsonArray{with(board(1), "recongnizedID", "first")}}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result), "boards[0].recongnizedID: is no identity");
    EXPECT_EQ(result.json()["made"], 1);
}

TEST_F(SlabDamageTest, nameOfAMillionCharactersIsTaken)
{
    const QString name(1000000, QChar(0x677F));
    EXPECT_EQ(takenAs(with(board(), "name", name))["name"], name);
    // And is cut where a line of the summary tells it.
    write("reply.json", QJsonObject{{"boards", QJsonArray{with(with(board(), "name", name), "elev", "?")}}});
    const Result result = run({"slab", "apply", "house.hbxdb", "--floor", "F", "reply.json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_LT(result.out.size(), 1000);
}

TEST_F(SlabDamageTest, membersOfOneIdentityAreAllMadeAndTold)
{
    const Result result =
        apply({{"boards", QJsonArray{board(1), with(board(2), "recongnizedID", identity(1))}}}, {"--ids", "ids.json"});
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
    EXPECT_EQ(result.json()["made"], 2);
    EXPECT_EQ(result.json()["repeatedIdentities"], 1);
    const QJsonObject ids = readJson("ids.json").object();
    ASSERT_EQ(ids.size(), 2);
    for (const QJsonValue named : ids)
        EXPECT_EQ(named, identity(1));
}

TEST_F(SlabDamageTest, membersWithoutAnIdentityAreMadeAndNamedByTheNullOne)
{
    const Result result = apply(
        {{"boards", QJsonArray{without(board(1), "recongnizedID"), with(board(2), "recongnizedID", "no identity")}}},
        {"--ids", "ids.json"});
    EXPECT_EQ(result.json()["made"], 2);
    EXPECT_EQ(result.json()["repeatedIdentities"], 0);
    for (const QJsonValue named : readJson("ids.json").object())
        EXPECT_EQ(named, "{00000000-0000-0000-0000-000000000000}");
}

TEST_F(SlabDamageTest, missingArraysAreEmptyAndThoseThatAreNoneAreLeftOut)
{
    Result result = apply({{"rafts", QJsonArray()}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.json()["members"], 0);
    result = apply({{"boards", "many"}, {"board_holes", QJsonValue()}, {"walls", 7}, {"rafts", QJsonArray{raft()}}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result), "boards: is no array\nboard_holes: is no array\nwalls: is no array");
    EXPECT_EQ(result.json()["made"], 1);
}

TEST_F(SlabDamageTest, barsAreHeldToTheirOwnKeys)
{
    const QPair<QJsonObject, std::string> cases[] = {
        {{{"negative_forced_bars", QJsonArray{without(negativeBar(), "line")}}},
         "negative_forced_bars[0]: line is missing"},
        {{{"negative_forced_bars", QJsonArray{with(negativeBar(), "line", rectangle(0, 0, 1, 1))}}},
         "negative_forced_bars[0]: line is no curve"},
        {{{"negative_forced_bars", QJsonArray{with(negativeBar(), "label_position", 2.5)}}},
         "negative_forced_bars[0]: label_position is not a whole number of 32 bits"},
        {{{"forced_bars", QJsonArray{without(bar(), "direction_x")}}}, "forced_bars[0]: direction_x is missing"},
        {{{"forced_bars", QJsonArray{with(bar(), "ref_point_valid", 1)}}},
         "forced_bars[0]: ref_point_valid is not true or false"},
        {{{"raft_main_forced_bars", QJsonArray{with(bar(), "forced_type", 1e12)}}},
         "raft_main_forced_bars[0]: forced_type is not a whole number of 32 bits"},
        {{{"straddle_forced_bars", QJsonArray{with(bar(), "surface", rectangle(0, 0, 1, 1) + ';')}}},
         "straddle_forced_bars[0]: surface is no outline"},
    };
    for (const auto &each : cases) {
        const Result result = apply(each.first);
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_EQ(leftOut(result), each.second);
    }
}

TEST_F(SlabDamageTest, barOfNoDirectionAndNoLengthBreaksNothing)
{
    const Result result =
        apply({{"forced_bars", QJsonArray{with(with(bar(), "direction_x", 0), "forced_type", -1)}},
               {"raft_straddle_main_forced_bars", QJsonArray{with(bar(), "row_number", 2147483647)}},
               {"negative_forced_bars",
                QJsonArray{with(with(negativeBar(), "left_strech_length", 0), "right_strech_length", 0),
                           with(negativeBar(), "line", "LINESTRING(0 0, 0 0)")}}});
    EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 3) << result.err.toStdString();
}

TEST_F(SlabDamageTest, documentThatIsNoReplyIsRefusedWithItsPlace)
{
    const QStringList arguments{"slab", "apply", "house.hbxdb", "--floor", "F", "reply.json"};
    write("reply.json", QByteArray("{\"boards\": [}"));
    refusal(arguments, "reply.json");
    write("reply.json", QByteArray("[]"));
    refusal(arguments, "reply.json");
    write("reply.json", QByteArray("{\"model\": []}"));
    EXPECT_EQ(refusal(arguments, "reply.json")["place"], "model");
    write("reply.json", QByteArray("{\"boards\": ") + QByteArray(100000, '['));
    refusal(arguments, "reply.json");
    write("reply.json", QByteArray());
    refusal(arguments, "reply.json");
}

TEST_F(SlabDamageTest, asNewTakesDamagedDocumentsAsTheyAre)
{
    const Result result =
        apply({{"boards", QJsonArray{7, with(board(1), "id", 4294967297.0), with(board(2), "recongnizedID", 7)}},
               {"rafts", "none"}},
              {"--as-new"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["made"], 2); // its id goes, and it gets an identity
    EXPECT_EQ(leftOut(result), "boards[0]: is no object\nrafts: is no array");
}

} // namespace
