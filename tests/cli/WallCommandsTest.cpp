#include "CliFixture.h"
#include "WallReplies.h"
#include "embedded/ExchangeDocuments.h"

#include <algorithm>

using walltest::element;
using walltest::piece;

namespace {

/** Walls of a reply, and changes to them by name of key. */
class WallCommandsTest : public CliFixture
{
protected:
    using Wall = walltest::WallText;
    void writeReply(const QJsonObject &map) const
    {
        const QJsonObject document{{"BrickWallIdentifyData", map}};
        write("walls.json", QJsonObject{{"eBrickWall", QJsonObject{{"ElementsAndEdos", document}}}});
    }
    Result applyFile(const QStringList &more = {"--json"}) const
    {
        return run(QStringList{"wall", "apply", "house.hbxdb", "--kind", "brick", "walls.json"} + more);
    }
    Result apply(const std::vector<Wall> &walls)
    {
        importSmallHouse();
        writeReply(walltest::mapOf(walls));
        return applyFile();
    }
    /** "place: reason" of all that was left out. */
    static QStringList leftOut(const Result &result)
    {
        QStringList lines;
        for (const QJsonValue one : result.json()["leftOut"].toArray())
            lines.append(one.toObject()["place"].toString() + ": " + one.toObject()["reason"].toString());
        return lines;
    }
    /** "name: as, placed" of all walls made. */
    static QStringList made(const Result &result)
    {
        QStringList lines;
        for (const QJsonValue one : result.json()["walls"].toArray())
            lines.append(QStringLiteral("%1: %2, %3")
                             .arg(one.toObject()["name"].toString(), one.toObject()["madeAs"].toString())
                             .arg(one.toObject()["placed"].toInt()));
        return lines;
    }
};

const QString kPlace = "BrickWallIdentifyData.";

TEST_F(WallCommandsTest, applyMakesPlacesAndSaves)
{
    const Result result =
        apply({{element("Q2"), QJsonArray{piece(), piece("0,6000,5000,6000")}}, {element("Q3"), QJsonArray{}}});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(keys(result.json()), "doubled,elementsMade,kind,leftOut,members,placed,project,renamed,saved,walls");
    EXPECT_EQ(keys(result.json()["walls"].toArray()[0]), "doubled,floor,leftOut,madeAs,name,place,placed");
    EXPECT_EQ(result.json()["kind"], "brick");
    EXPECT_EQ(result.json()["members"], 2);
    EXPECT_EQ(result.json()["elementsMade"], 2);
    EXPECT_EQ(result.json()["renamed"], 0);
    EXPECT_EQ(result.json()["placed"], 2);
    EXPECT_EQ(result.json()["doubled"], 0);
    EXPECT_EQ(result.json()["saved"], true);
    EXPECT_EQ(made(result), (QStringList{"Q2: Q2, 2", "Q3: Q3, 0"}));
    EXPECT_EQ(leftOut(result), QStringList());
    const QJsonObject again =
        run({"wall", "reply", "house.hbxdb", "--kind", "brick", "-o", "out.json", "--json"}).json();
    EXPECT_EQ(again["elements"], 2); // Q1 and Q2
    EXPECT_EQ(again["pieces"], 3);
    EXPECT_EQ(again["withoutPieces"], 1);
}

TEST_F(WallCommandsTest, applySaysWhatWasMadeAndLeftOut)
{
    importSmallHouse();
    writeReply(walltest::mapOf({{element("Q1"), QJsonArray{piece(), 17}}}));
    const Result result = applyFile(QStringList());
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.out.toStdString(),
              "1 brick wall read: 1 element made (1 under another name), 1 piece placed, 0 left out, and 2 parts of "
              "the rest\n"
              "  Q1 on floor 1: made as Q1-1, 1 piece placed, 1 left out\n"
              "  left out: BrickWallIdentifyData.value_0[1] (Q1): is no object\n"
              "  left out: BrickWallIdentifyData.key_0.entName (Q1): the floor has that name already: made as "
              "\"Q1-1\"\n");
}

TEST_F(WallCommandsTest, nameThatIsTakenIsToldWithTheOneMade)
{
    const Result result = apply({{element("Q1"), QJsonArray{piece()}}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result),
              QStringList(kPlace + "key_0.entName: the floor has that name already: made as \"Q1-1\""));
    EXPECT_EQ(result.json()["renamed"], 1);
    EXPECT_EQ(made(result), (QStringList{"Q1: Q1-1, 1"}));
}

TEST_F(WallCommandsTest, wallWhereTheSameOneStandsIsToldAsDoubled)
{
    const QJsonObject same = with(piece("0,0,5000,0"), "sPfnStartPtTopElev", "");
    const Result result =
        apply({{with(element("Q2"), "width", "200"), QJsonArray{with(same, "sPfnEndPtTopElev", ""), piece()}}});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.json()["doubled"], 1);
}

TEST_F(WallCommandsTest, forceWallsComeByTheirOwnKey)
{
    importSmallHouse();
    const QJsonObject document{
        {"ForceWallIdentifyData", walltest::mapOf({{without(element("W1", "0"), "material"), QJsonArray{piece()}}})}};
    write("walls.json", QJsonObject{{"eWall", QJsonObject{{"ElementsAndEdos", document}}}});
    const Result result = run({"wall", "apply", "house.hbxdb", "--kind", "force", "walls.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.json()["kind"], "force");
    EXPECT_EQ(made(result), (QStringList{"W1: W1, 1"}));
    EXPECT_EQ(applyFile().error()["reason"], "no object of that key: no reply of brick walls");
}

TEST_F(WallCommandsTest, elevationThatTheHostRefusesIsToldAndThePieceIsPlaced)
{
    const Result result =
        apply({{element("Q2"), QJsonArray{piece(), with(piece("0,9,9,9"), "sPfnEndPtTopElev", "raft")}}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(made(result), (QStringList{"Q2: Q2, 2"}));
    ASSERT_EQ(leftOut(result).size(), 1);
    EXPECT_TRUE(leftOut(result)[0].startsWith(kPlace + "value_0[1]: a value was refused: "))
        << leftOut(result)[0].toStdString();
}

TEST_F(WallCommandsTest, barTextIsCutAsTheFormDoesAndThatIsTold)
{
    const Result result = apply({{with(element("Q2"), "throughBar", "A6@100/200"), QJsonArray{piece()}}});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(made(result), (QStringList{"Q2: Q2, 1"}));
    EXPECT_EQ(leftOut(result), (QStringList{kPlace + "key_0: throughBar \"A6@100/200\" is cut to \"A6@100\""}));
}

TEST_F(WallCommandsTest, textAndSegmentsOfAPieceMayHoldAnything)
{
    QJsonObject odd = with(piece(), "sStrTextInfo", "Q2/sWorldLine:0,0,1,1");
    odd["sSegmentEntityDataList"] = "1,2,/3,";
    const Result result = apply({{element("Q2"), QJsonArray{odd}}});
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
    ASSERT_EQ(run({"wall", "reply", "house.hbxdb", "--kind", "brick", "-o", "out.json"}).exitCode, 0);
    EXPECT_TRUE(read("out.json").contains("\"0,3000,5000,3000\"")); // not what stands behind the "/"
}

TEST_F(WallCommandsTest, wallsAreMadeInTheOrderOfTheirIds)
{
    const Result result = apply({{with(element("Q9"), "edoId", "10"), QJsonArray{piece()}},
                                 {with(element("Q8"), "edoId", "9"), QJsonArray{piece("0,9,9,9")}}});
    EXPECT_EQ(made(result), (QStringList{"Q8: Q8, 1", "Q9: Q9, 1"}));
}

TEST_F(WallCommandsTest, secondOfTwoEqualElementsIsLeftOut)
{
    const Result result = apply({{element("Q2"), QJsonArray{piece()}}, {element("Q2"), QJsonArray{piece()}}});
    EXPECT_EQ(leftOut(result), (QStringList{kPlace + "key_1: is the same element as " + kPlace + "key_0"}));
    EXPECT_EQ(made(result), (QStringList{"Q2: Q2, 1"}));
}

TEST_F(WallCommandsTest, keysThatAreNoEntriesAreTold)
{
    importSmallHouse();
    QJsonObject map = walltest::mapOf({{element("Q2"), QJsonArray{piece()}}});
    map["key_7"] = element("Q3");
    writeReply(map);
    const Result result = applyFile();
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result),
              (QStringList{kPlace + "key_7: is not read: half of the 3 keys are entries, counted from 0"}));
    EXPECT_EQ(made(result), (QStringList{"Q2: Q2, 1"}));
}

TEST_F(WallCommandsTest, strictSavesNothingWhenSomethingIsLeftOut)
{
    importSmallHouse();
    const QByteArray before = read("house.hbxdb");
    writeReply(walltest::mapOf({{element("Q2"), QJsonArray{piece(), 17}}}));
    const Result result = applyFile({"--strict", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["saved"], false);
    EXPECT_EQ(read("house.hbxdb"), before);
}

TEST_F(WallCommandsTest, kindMustBeBrickOrForce)
{
    importSmallHouse();
    EXPECT_EQ(run({"wall", "apply", "house.hbxdb", "walls.json"}).exitCode, 1);
    EXPECT_EQ(run({"wall", "apply", "house.hbxdb", "--kind", "glass", "walls.json"}).exitCode, 1);
    EXPECT_EQ(run({"wall", "reply", "house.hbxdb"}).exitCode, 1);
}

TEST_F(WallCommandsTest, documentThatIsNoReplyIsRefusedWithItsPlaceAndTheProjectStaysAsItWas)
{
    importSmallHouse();
    const QByteArray before = read("house.hbxdb");
    struct Broken
    {
        QByteArray text;
        const char *place;
    };
    for (const Broken &broken :
         {Broken{"{}", "eBrickWall"}, Broken{R"({"eBrickWall": 3})", "eBrickWall"},
          Broken{R"({"eBrickWall": {"ElementsAndEdos": []}})", "eBrickWall.ElementsAndEdos"},
          Broken{R"({"eBrickWall": {"ElementsAndEdos": {"BrickWallIdentifyData": 1}}})",
                 "eBrickWall.ElementsAndEdos.BrickWallIdentifyData"},
          Broken{R"({"eWall": {"ElementsAndEdos": {"ForceWallIdentifyData": {}}}})", "eBrickWall"}}) {
        write("walls.json", broken.text);
        const QJsonObject error =
            refusal({"wall", "apply", "house.hbxdb", "--kind", "brick", "walls.json"}, "walls.json");
        EXPECT_EQ(error["place"], broken.place) << broken.text.toStdString();
        EXPECT_EQ(error["reason"], "no object of that key: no reply of brick walls");
    }
    for (const char *text : {"", "no json", "{\"eBrickWall\": ", "\"text\""}) {
        write("walls.json", QByteArray(text));
        refusal({"wall", "apply", "house.hbxdb", "--kind", "brick", "walls.json"}, "walls.json");
    }
    EXPECT_EQ(read("house.hbxdb"), before);
}

TEST_F(WallCommandsTest, missingFilesAreNamed)
{
    importSmallHouse();
    refusal({"wall", "apply", "house.hbxdb", "--kind", "brick", "nowhere.json"}, "nowhere.json");
    refusal({"wall", "reply", "nowhere.hbxdb", "--kind", "brick"}, "nowhere.hbxdb");
}

TEST_F(WallCommandsTest, replyWritesTheWallsOfAFloor)
{
    importSmallHouse();
    const Result result = run({"wall", "reply", "house.hbxdb", "--kind", "brick", "--region", "House", "--floor", "1",
                               "-o", "out.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(keys(result.json()), "elements,floors,kind,leftOut,output,pieces,withoutPieces");
    EXPECT_EQ(result.json()["elements"], 1);
    EXPECT_EQ(result.json()["pieces"], 1);
    const QJsonObject map = readJson("out.json")
                                .object()["eBrickWall"]
                                .toObject()["ElementsAndEdos"]
                                .toObject()["BrickWallIdentifyData"]
                                .toObject();
    EXPECT_EQ(map["key_0"].toObject()["entName"], "Q1");
    EXPECT_EQ(map["key_0"].toObject()["width"], "200");
    EXPECT_EQ(map["value_0"].toArray()[0].toObject()["sWorldLine"], "0,0,5000,0");
    EXPECT_EQ(map["value_0"].toArray()[0].toObject()["sPfnStartPtTopElev"], "层顶标高");
}

TEST_F(WallCommandsTest, replyWithoutAFileGoesToStandardOutputAndItsSummaryToStandardError)
{
    importSmallHouse();
    const Result result = run({"wall", "reply", "house.hbxdb", "--kind", "force"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(QJsonDocument::fromJson(result.out).object().contains("eWall"));
    EXPECT_EQ(result.err.toStdString(), "Wrote 0 force walls in 0 pieces of 1 floor\n");
}

TEST_F(WallCommandsTest, replyTellsTheNamesAndBarsThatItsFormCannotHold)
{
    write("house.json", QByteArray(R"~({"format": "hbx-project", "version": 1, "name": "Odd names",
        "regions": [{"name": "House", "floors": [{"name": "Level 1", "code": "1", "bottomElev": 0, "height": 3,
        "elements": [
        {"name": "W/1", "type": 0, "properties": {"Thickness": 200}, "drawObjects": [
          {"shape": {"kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 200}}]},
        {"name": "W2", "type": 0, "properties": {"Thickness": 200, "TieBar": "A6@100/200"}, "drawObjects": [
          {"shape": {"kind": "line", "axis": "LINESTRING(0 9, 5000 9)", "width": 200}}]}]}]}]})~"));
    ASSERT_EQ(run({"project", "import", "house.json", "-o", "house.hbxdb"}).exitCode, 0);
    const Result result = run({"wall", "reply", "house.hbxdb", "--kind", "force", "-o", "out.json", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(leftOut(result), (QStringList{"floor Level 1: entName holds \"/\" or \":\", which cuts it",
                                            "floor Level 1: tieBar \"A6@100/200\" is cut to \"A6@100\""}));
    EXPECT_EQ(result.json()["elements"], 1);
}

TEST_F(WallCommandsTest, tenThousandPiecesWithBrokenOnesPlaceEverySoundOne)
{
    importSmallHouse();
    QJsonArray pieces;
    for (int i = 0; i < 10000; ++i)
        pieces.append(i % 10 == 3 ? QJsonValue("broken") : QJsonValue(piece(QString("0,%1,500,%1").arg(i * 5))));
    writeReply(walltest::mapOf({{element("Q2"), pieces}}));
    const Result result = applyFile();
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["placed"], 9000);
    EXPECT_EQ(result.json()["leftOut"].toArray().size(), 1000);
}

struct Building
{
    const char *name;
    const char *kind;
    int elements; ///< counted in the building file
    int pieces;
};
class WallCopyTest : public CliFixture, public ::testing::WithParamInterface<Building>
{
protected:
    /** Doors and windows go, too: they name the walls that they stand in. */
    static QByteArray stripped(const QString &building)
    {
        return exchangetest::withoutElements(exchangetest::building(building.toStdString()), {0, 1003, 4, 5, 6, 7});
    }
    static QJsonObject mapIn(const QJsonDocument &reply)
    {
        const QString above = GetParam().kind == std::string("brick") ? "eBrickWall" : "eWall";
        return reply.object()[above].toObject()["ElementsAndEdos"].toObject().begin()->toObject();
    }
    /** Element and pieces of each wall, as text, without the ids of the project; sorted. */
    static QStringList walls(const QJsonDocument &reply)
    {
        const QJsonObject map = mapIn(reply);
        QStringList lines;
        for (int i = 0; i < map.size() / 2; ++i) {
            QJsonObject element = map[QStringLiteral("key_%1").arg(i)].toObject();
            element.remove("edoId");
            element.remove("typePropertyValue"); // of the host's own: a reply does not write it
            const QJsonArray wall{element, map[QStringLiteral("value_%1").arg(i)]};
            lines.append(QJsonDocument(wall).toJson(QJsonDocument::Compact));
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }
};

TEST_P(WallCopyTest, wallsOfAllFloorsGoIntoACopyWithoutWallsAndOutAgainTheSame)
{
    const QString building = GetParam().name;
    const QString kind = GetParam().kind;
    importSample(building);
    const Result written = run({"wall", "reply", "house.hbxdb", "--kind", kind, "-o", "walls.json", "--json"});
    EXPECT_EQ(written.exitCode, 0) << written.out.toStdString();
    EXPECT_EQ(written.json()["elements"], GetParam().elements);
    EXPECT_EQ(written.json()["pieces"], GetParam().pieces);

    write("stripped.json", stripped(building));
    ASSERT_EQ(run({"project", "import", "stripped.json", "-o", "stripped.hbxdb"}).exitCode, 0);
    const Result applied = run({"wall", "apply", "stripped.hbxdb", "--kind", kind, "walls.json", "--json"});
    EXPECT_EQ(applied.exitCode, 0) << applied.out.toStdString();
    EXPECT_EQ(applied.json()["elementsMade"], GetParam().elements);
    EXPECT_EQ(applied.json()["renamed"], 0);
    EXPECT_EQ(applied.json()["placed"], GetParam().pieces);

    ASSERT_EQ(run({"wall", "reply", "stripped.hbxdb", "--kind", kind, "-o", "again.json"}).exitCode, 0);
    EXPECT_EQ(walls(readJson("again.json")), walls(readJson("walls.json")));
}

INSTANTIATE_TEST_SUITE_P(
    Buildings, WallCopyTest,
    ::testing::Values(Building{"duplex-apartment", "force", 2, 7}, Building{"duplex-apartment", "brick", 11, 49},
                      Building{"masonry-block", "brick", 15, 154}, Building{"precast-hall", "force", 6, 72},
                      Building{"made-building", "force", 2, 3}, Building{"made-building", "brick", 5, 5}));

} // namespace
