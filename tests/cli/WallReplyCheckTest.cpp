#include "cli/WallReplyCheck.h"

#include "CommandFailures.h"
#include "HouseFixture.h"
#include "JsonTexts.h"
#include "WallReplies.h"
#include "cli/Walls.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElements.h"

using namespace orvcad;
using clitest::textOf;
using clitest::with;
using clitest::without;
using walltest::element;
using walltest::mapOf;
using walltest::piece;

namespace {

class WallReplyCheckTest : public HouseFixture
{
protected:
    void SetUp() override { openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)")); }

    WallReplyCheck check(const QJsonObject &map) const
    {
        return WallReplyCheck(model(), kBrick, kBrick.replyOf(map), "walls.json");
    }
    static std::string places(const WallReplyCheck &check)
    {
        QStringList places;
        for (const WallReplyCheck::Member &member : check.sound())
            places.append(member.place + member.piecePlaces.join(QString()));
        return places.join('\n').toStdString();
    }

    const WallKind &kBrick = wallKindOf(QStringLiteral("brick"));
};

TEST_F(WallReplyCheckTest, soundWallsKeepTheKeysThatAreUsedAndTellTheirPlaces)
{
    const WallReplyCheck checked =
        check(mapOf({{with(element("Q2"), "remark", "x"), QJsonArray{with(piece(), "sStrTextInfo", "a/b"), piece()}}}));
    EXPECT_EQ(checked.memberCount(), 1);
    EXPECT_EQ(textOf(checked.leftOut()), "BrickWallIdentifyData.key_0.remark: is no key of this record, and not read");
    EXPECT_FALSE(checked.leftOut()[0].isWhole);
    ASSERT_EQ(checked.sound().size(), 1U);
    const WallReplyCheck::Member &member = checked.sound()[0];
    EXPECT_EQ(member.place, "BrickWallIdentifyData.key_0");
    EXPECT_EQ(member.edoId, 7);
    EXPECT_EQ(member.text(QLatin1String("entName")), "Q2");
    EXPECT_EQ(member.element, without(element("Q2"), "edoId"));
    EXPECT_EQ(member.pieces, (QJsonArray{piece(), piece()}));
    EXPECT_EQ(member.piecePlaces,
              (QStringList{"BrickWallIdentifyData.value_0[0]", "BrickWallIdentifyData.value_0[1]"}));
    EXPECT_EQ(member.leftOut, 0);
}

TEST_F(WallReplyCheckTest, keysThatNothingReadsAreToldOfElementsAndPieces)
{
    const WallReplyCheck checked =
        check(mapOf({{with(element("Q2"), "tieBar", "A6@500"), QJsonArray{with(piece(), "sworldline", "")}}}));
    EXPECT_EQ(textOf(checked.leftOut()),
              "BrickWallIdentifyData.key_0.tieBar: is no key of this record, and not read\n" // of force walls
              "BrickWallIdentifyData.value_0[0].sworldline: is no key of this record, and not read: sWorldLine is one");
    EXPECT_EQ(checked.sound().size(), 1U);
}

TEST_F(WallReplyCheckTest, wallGoesOnWithoutThePiecesThatAreLeftOut)
{
    const WallReplyCheck checked = check(mapOf({{element("Q2"), QJsonArray{17, piece(), "x"}}}));
    EXPECT_EQ(textOf(checked.leftOut()),
              "BrickWallIdentifyData.value_0[0]: is no object\nBrickWallIdentifyData.value_0[2]: is no object");
    ASSERT_EQ(checked.sound().size(), 1U);
    EXPECT_EQ(checked.sound()[0].leftOut, 2);
    EXPECT_EQ(checked.sound()[0].piecePlaces, QStringList{"BrickWallIdentifyData.value_0[1]"});
}

TEST_F(WallReplyCheckTest, wallsStandInTheOrderOfTheirIds)
{
    const WallReplyCheck checked = check(mapOf({{with(element("Q9"), "edoId", "10"), QJsonArray{}},
                                                {with(element("Q8"), "edoId", "9"), QJsonArray{}},
                                                {with(element("Q7"), "edoId", "9"), QJsonArray{}}}));
    EXPECT_EQ(places(checked), "BrickWallIdentifyData.key_1\nBrickWallIdentifyData.key_2\nBrickWallIdentifyData.key_0");
}

TEST_F(WallReplyCheckTest, widthOfMinusOneLeavesTheHostsOwn)
{
    const WallReplyCheck checked = check(mapOf({{with(element("Q2"), "width", "-1"), QJsonArray{piece()}}}));
    EXPECT_EQ(textOf(checked.leftOut()), "");
    EXPECT_EQ(checked.sound().size(), 1U);
}

TEST_F(WallReplyCheckTest, checkChangesNothing)
{
    check(mapOf({{element("Q2"), QJsonArray{piece()}}}));
    EXPECT_EQ(model().elements()->count(), 1);
    EXPECT_EQ(model().drawObjects()->count(), 1);
}

TEST_F(WallReplyCheckTest, documentThatIsNoReplyIsRefusedAtItsPlace)
{
    const auto refusalOf = [this](const QJsonObject &reply) {
        return clitest::failureOf([&] { WallReplyCheck(model(), kBrick, reply, "walls.json"); });
    };
    const std::string reason = ": no object of that key: no reply of brick walls";
    EXPECT_EQ(refusalOf({}), "walls.json: eBrickWall" + reason);
    EXPECT_EQ(refusalOf({{"eBrickWall", QJsonObject()}}), "walls.json: eBrickWall.ElementsAndEdos" + reason);
    EXPECT_EQ(refusalOf({{"eBrickWall", QJsonObject{{"ElementsAndEdos", QJsonObject()}}}}),
              "walls.json: eBrickWall.ElementsAndEdos.BrickWallIdentifyData" + reason);
}

TEST_F(WallReplyCheckTest, nameThatTheFormCutsIsToldAndTheFirstOfThemOnly)
{
    EXPECT_EQ(cutName(element("Q2")), "");
    EXPECT_EQ(cutName({{"entName", "Q/2"}, {"region", "A:B"}}), "entName holds \"/\" or \":\", which cuts it");
    EXPECT_EQ(cutName({{"throughBar", "A6@100/200"}}), ""); // no name
}

TEST_F(WallReplyCheckTest, barsThatTheFormCutsAreToldWithWhatIsLeftOfThem)
{
    EXPECT_EQ(cutBars(element("Q2")), QStringList());
    EXPECT_EQ(cutBars({{"throughBar", "A6@100/200"}, {"tieBar", "x:1"}, {"entName", "Q/2"}}),
              (QStringList{"throughBar \"A6@100/200\" is cut to \"A6@100\"", "tieBar \"x:1\" is cut to \"x\""}));
}

/** An element or a piece that is not as it should be, and what is said of it. */
struct Damage
{
    const char *name;
    QJsonValue element;
    QJsonValue pieces;
    const char *leftOut;
    int madeWalls;
};

class DamagedWallTest : public HouseFixture, public ::testing::WithParamInterface<int>
{
protected:
    static std::vector<Damage> damages()
    {
        const QJsonObject q2 = element("Q2");
        const QJsonArray one{piece()};
        const auto odd = [](const QString &key, const QJsonValue &value) {
            return QJsonArray{with(piece(), key, value)};
        };
        return {
            {"element no object", 17, one, "key_0: is no object", 0},
            {"element missing", QJsonValue(QJsonValue::Undefined), one, "key_0: is missing", 0},
            {"pieces no array", q2, "text", "key_0: its pieces are no array", 0},
            {"no name key", without(q2, "entName"), one, "key_0: entName is missing", 0},
            {"empty name", with(q2, "entName", ""), one, "key_0: has no name", 0},
            {"name no text", with(q2, "entName", 2), one, "key_0: entName is not text", 0},
            {"name with a slash", with(q2, "entName", "Q/2"), one, "key_0: entName holds \"/\" or \":\", which cuts it",
             0},
            {"name with a colon", with(q2, "entName", "Q:2"), one, "key_0: entName holds \"/\" or \":\", which cuts it",
             0},
            {"no type", without(q2, "elementType"), one, "key_0: elementType is missing", 0},
            {"type a number", with(q2, "elementType", 1003), one, "key_0: elementType is not text", 0},
            {"type a word", with(q2, "elementType", "brick"), one,
             "key_0: elementType is not the text of a whole number", 0},
            {"other type", with(q2, "elementType", "0"), one, "key_0: type 0 is no brick wall (1003)", 0},
            {"sub-type a word", with(q2, "elementSubType", "x"), one,
             "key_0: elementSubType is not the text of a whole number", 0},
            {"no width", without(q2, "width"), one, "key_0: width is missing", 0},
            {"width 0", with(q2, "width", "0"), one, "key_0: width is not above 0", 0},
            {"width below 0", with(q2, "width", "-200"), one, "key_0: width is not above 0", 0},
            {"width with a fraction", with(q2, "width", "120.5"), one, "key_0: width is not the text of a whole number",
             0},
            {"width too large", with(q2, "width", "3000000000"), one, "key_0: width is not the text of a whole number",
             0},
            {"material a word", with(q2, "material", "brick"), one, "key_0: material is not the text of a whole number",
             0},
            {"unknown region", with(q2, "region", "Barn"), one, "key_0: unknown region \"Barn\"", 0},
            {"no region", without(q2, "region"), one, "key_0: region is missing", 0},
            {"unknown floor", with(q2, "floorCode", "9"), one, "key_0: unknown floor code \"9\" in region \"House\"",
             0},
            {"bar no text", with(q2, "throughBar", 6), one, "key_0: throughBar is not text", 0},
            {"piece no object", q2, QJsonArray{QJsonArray{}}, "value_0[0]: is no object", 1},
            {"piece without axis", q2, QJsonArray{without(piece(), "sWorldLine")}, "value_0[0]: sWorldLine is missing",
             1},
            {"axis no text", q2, odd("sWorldLine", 5), "value_0[0]: sWorldLine is not text", 1},
            {"axis no curve", q2, odd("sWorldLine", "0,0"), "value_0[0]: sWorldLine is no curve", 1},
            {"axis words", q2, odd("sWorldLine", "a,b,c,d"), "value_0[0]: sWorldLine is no curve", 1},
            {"axis of no length", q2, odd("sWorldLine", "5,5,5,5"), "value_0[0]: sWorldLine has no length", 1},
            {"elevation no text", q2, odd("sPfnEndPtTopElev", 2.8), "value_0[0]: sPfnEndPtTopElev is not text", 1},
            {"elevation with a colon", q2, odd("sPfnEndPtTopElev", "top:2"),
             "value_0[0]: sPfnEndPtTopElev holds \"/\" or \":\", which cuts it", 1},
        };
    }
};

/** The damaged wall and a sound one, Q5, are written into a building. */
TEST_P(DamagedWallTest, isLeftOutWithItsPlaceAndTheOtherWallIsPlaced)
{
    const Damage damage = damages()[static_cast<std::size_t>(GetParam())];
    openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)"));
    QJsonObject map = mapOf({{damage.element, damage.pieces}, {element("Q5"), QJsonArray{piece()}}});
    if (damage.element.isUndefined())
        map["other"] = 1; // keeps the number of entries
    const WallKind &brick = wallKindOf(QStringLiteral("brick"));
    const WallOutcome outcome = applyWalls(*project, brick, brick.replyOf(map), "walls.json");
    ASSERT_FALSE(outcome.leftOut.empty()) << damage.name;
    EXPECT_EQ((outcome.leftOut[0].place + ": " + outcome.leftOut[0].reason).toStdString(),
              std::string("BrickWallIdentifyData.") + damage.leftOut)
        << damage.name;
    ASSERT_EQ(outcome.walls.size(), static_cast<std::size_t>(damage.madeWalls + 1)) << damage.name;
    EXPECT_EQ(outcome.walls.back().name, "Q5") << damage.name;
    EXPECT_EQ(outcome.walls.back().placed, 1) << damage.name;
}

INSTANTIATE_TEST_SUITE_P(Damages, DamagedWallTest, ::testing::Range(0, 31));

} // namespace
