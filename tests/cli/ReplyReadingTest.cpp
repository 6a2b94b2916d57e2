#include "cli/ReplyReading.h"

#include "BeamReplies.h"
#include "JsonTexts.h"
#include "OpeningReplies.h"
#include "SlabReplies.h"
#include "WallReplies.h"
#include "cli/DocumentKinds.h"
#include "cli/SchemaCheck.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace orvcad;
using clitest::with;
using clitest::without;
using openingtest::elementMember;
using openingtest::placedMember;
using openingtest::replyOf;

namespace {

/** "place: reason" of each finding, with those of the schema in mind. */
std::string readingsOf(const char *kindName, const QJsonObject &reply)
{
    const DocumentKind &kind = *documentKind(kindName);
    const QByteArray text = QJsonDocument(reply).toJson();
    const JsonTree document(text);
    const FaultyValues faults(document, schemaFindings(document, kind.schema()).findings);
    QStringList lines;
    for (const CheckFinding &finding : kind.memberReading(document, text, faults))
        lines.append(document.path(finding.node, finding.missingKey) + QStringLiteral(": ") + finding.message);
    return lines.join('\n').toStdString();
}

std::string openings(const QJsonArray &members) { return readingsOf("opening-reply", replyOf(members)); }

QJsonObject wallReply(const QJsonObject &map)
{
    return {{"eBrickWall", QJsonObject{{"ElementsAndEdos", QJsonObject{{"BrickWallIdentifyData", map}}}}}};
}
std::string walls(const QJsonObject &map) { return readingsOf("wall-reply", wallReply(map)); }

TEST(ReplyReadingTest, elementOfANameThatOneBeforeHasIsLeftOut)
{
    EXPECT_EQ(openings({elementMember("M1"), elementMember("M2"), elementMember("M1")}),
              "eDoorWin.ElementsAndEdos[2]: member 0 has that name on the floor already");
    EXPECT_EQ(openings({elementMember("M1"), elementMember("M1", 4, "Tower")}), "");
}

TEST(ReplyReadingTest, placedObjectInFrontOfItsElementIsLeftOut)
{
    EXPECT_EQ(openings({placedMember("M1", 0, 0), elementMember("M1"), placedMember("M1", 0, 0)}),
              "eDoorWin.ElementsAndEdos[0]: its element \"M1\" stands behind it, as member 1");
}

TEST(ReplyReadingTest, elementThatTheReplyDoesNotMakeIsTakenForGranted)
{
    EXPECT_EQ(openings({placedMember("M7", 0, 0), placedMember("M7", 0, 0, "Tower")}), "");
}

TEST(ReplyReadingTest, regionWithoutANameIsInNoBuilding)
{
    EXPECT_EQ(openings({elementMember("M1", 4, "")}), "eDoorWin.ElementsAndEdos[0]: unknown region \"\"");
}

TEST(ReplyReadingTest, whatFollowsFromAFaultIsNotTold)
{
    const QJsonObject faulty = with(elementMember("M1"), "nWidth", "wide");
    EXPECT_EQ(openings({faulty, placedMember("M1", 0, 0)}), "");
    EXPECT_EQ(openings({placedMember("M1", 0, 0), faulty}), "");
    EXPECT_EQ(openings({faulty, elementMember("M2"), elementMember("M2")}),
              "eDoorWin.ElementsAndEdos[2]: member 1 has that name on the floor already");
}

TEST(ReplyReadingTest, wallThatIsEqualToOneBeforeIsLeftOut)
{
    const QJsonObject map{{"key_0", walltest::element("Q1")},
                          {"value_0", QJsonArray{walltest::piece()}},
                          {"key_1", walltest::element("Q1")},
                          {"value_1", QJsonArray()}};
    EXPECT_EQ(walls(map), "eBrickWall.ElementsAndEdos.BrickWallIdentifyData.key_1: "
                          "is the same element as BrickWallIdentifyData.key_0");
    QJsonObject faulty = map;
    faulty["key_1"] = with(walltest::element("Q1"), "width", "thin");
    EXPECT_EQ(walls(faulty), "");
}

TEST(ReplyReadingTest, wallOfANameThatOneBeforeHasIsMadeUnderAnotherOne)
{
    const QJsonObject map{{"key_0", walltest::element("Q1")},
                          {"value_0", QJsonArray()},
                          {"key_1", with(walltest::element("Q1"), "width", "240")},
                          {"value_1", QJsonArray()},
                          {"key_2", with(walltest::element("Q1"), "floorCode", "2")},
                          {"value_2", QJsonArray()}};
    EXPECT_EQ(walls(map), "eBrickWall.ElementsAndEdos.BrickWallIdentifyData.key_1.entName: "
                          "is the name of BrickWallIdentifyData.key_0, too: the wall is made under another one");
}

TEST(ReplyReadingTest, wallsWithAGapInTheirNumbersAreToldUnlessAKeyIsMisspelt)
{
    const QJsonObject map{
        {"key_0", walltest::element("Q1")}, {"value_0", QJsonArray()}, {"key_1", walltest::element("Q2")}};
    EXPECT_EQ(walls(map), "eBrickWall.ElementsAndEdos.BrickWallIdentifyData.key_1: "
                          "is not read: half of the 3 keys are entries, counted from 0");
    EXPECT_EQ(walls(with(map, "vlaue_1", QJsonArray())), "");
}

TEST(ReplyReadingTest, pieceWithoutALengthIsLeftOut)
{
    const QJsonObject map{{"key_0", walltest::element("Q1")},
                          {"value_0", QJsonArray{walltest::piece(), walltest::piece("5,5,5,5")}}};
    EXPECT_EQ(walls(map), "eBrickWall.ElementsAndEdos.BrickWallIdentifyData.value_0[1]: sWorldLine has no length");
}

TEST(ReplyReadingTest, barsWithoutADirectionAreLeftOutOfBothDocumentsOfSlabs)
{
    const QJsonObject model{{"boards", QJsonArray{slabtest::board()}},
                            {"forced_bars", QJsonArray{slabtest::bar(), with(slabtest::bar(), "direction_x", 0)}}};
    EXPECT_EQ(readingsOf("slab-model", model), "forced_bars[1]: its direction has no length");
    EXPECT_EQ(readingsOf("slab-io", {{"model", model}}), "model.forced_bars[1]: its direction has no length");
}

TEST(ReplyReadingTest, documentOfSlabsWithoutAModelIsNotRead)
{
    EXPECT_EQ(readingsOf("slab-io", {{"options", QJsonObject()}, {"stat", QJsonObject()}}), "");
}

TEST(ReplyReadingTest, memberOfSlabsThatTheHostHasIsNotLookedAt)
{
    const QJsonObject known = with(without(slabtest::board(), "thinkness"), "id", 5);
    EXPECT_EQ(readingsOf("slab-model", {{"boards", QJsonArray{known}}}), "");
    EXPECT_EQ(readingsOf("slab-model", {{"boards", QJsonArray{with(known, "id", -1)}}}),
              "boards[0]: thinkness is missing");
}

TEST(ReplyReadingTest, beamOfANameThatAnotherOneHasIsToldWithWhatItLoses)
{
    QJsonObject element = clitest::element();
    for (const char *key : {"SpanCount", "TopThroughBar", "BottomThroughBar", "SideBar"})
        element[QLatin1String(key)] = QString();
    element["Type"] = 1;
    const QJsonArray beams{clitest::beam(element, {}), clitest::beam(with(element, "SectionWidth", 250), {})};
    EXPECT_EQ(readingsOf("beams", {{"Beam", beams}, {"LinkBeam", QJsonArray()}, {"FDBeam", QJsonArray()}}),
              "Beam[0]: has the name of Beam[1], whose values take the place of its own");
}

TEST(ReplyReadingTest, seatWithoutAnOutlineIsLeftOut)
{
    const QJsonArray piles{clitest::pile(), with(clitest::pile(), "WorldPoly", "")};
    EXPECT_EQ(readingsOf("beam-seats", {{"etPile", piles}}), "etPile[1]: WorldPoly is no outline");
}

} // namespace
