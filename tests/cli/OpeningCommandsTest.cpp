#include "CliFixture.h"
#include "embedded/ExchangeDocuments.h"

namespace {

class OpeningCommandsTest : public CliFixture
{
protected:
    /** The reason given for the member at that place of a reply with these members; empty when it was not left out. */
    QString reasonFor(int index, const QJsonArray &members)
    {
        importSmallHouse();
        writeReply(members);
        const Result result = run({"opening", "apply", "house.hbxdb", "reply.json", "--json"});
        for (const QJsonValue leftOut : result.json()["leftOut"].toArray())
            if (leftOut.toObject()["index"] == index)
                return leftOut.toObject()["reason"].toString();
        return {};
    }
    QString reasonFor(const QJsonObject &member) { return reasonFor(0, {member}); }
};

TEST_F(OpeningCommandsTest, applyMakesPlacesAndAttachesAndSaves)
{
    importSmallHouse();
    writeReply({elementMember("M1"), placedMember("M1", 1000, 0), placedMember("M1", 1000, 900)});
    const Result result = run({"opening", "apply", "house.hbxdb", "reply.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.json()["members"], 3);
    EXPECT_EQ(result.json()["elementsMade"], 1);
    EXPECT_EQ(result.json()["placed"], 2);
    EXPECT_EQ(result.json()["attached"], 1);
    EXPECT_EQ(result.json()["unattached"], 1);
    EXPECT_EQ(result.json()["leftOut"], QJsonArray());
    EXPECT_EQ(result.json()["saved"], true);
    EXPECT_EQ(run({"opening", "export", "house.hbxdb", "-o", "out.json", "--json"}).json()["placed"], 2);
}

TEST_F(OpeningCommandsTest, optionsWritesThoseOfDoorsAndWindowsByName)
{
    write("house.json", R"~({"format": "hbx-project", "version": 1, "name": "House", "regions": [], "options": [
        {"group": "WallHolesSetting", "name": "width", "value": "900"},
        {"group": "BeamSetting", "name": "KL", "value": "WKL"},
        {"group": "WallHolesSetting", "name": "sill", "value": "1"}]})~");
    ASSERT_EQ(run({"project", "import", "house.json", "-o", "house.hbxdb"}).exitCode, 0);
    const Result result = run({"opening", "options", "house.hbxdb", "-o", "options.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.json()["options"], 2);
    EXPECT_EQ(exchangetest::parsed(read("options.json")),
              (QJsonObject{{"ORVCADWindoorDataInputModel",
                            QJsonArray{QJsonObject{{"sill", "1"}}, QJsonObject{{"width", "900"}}}}}));
}

TEST_F(OpeningCommandsTest, optionsWithoutAFileGoToStandardOutput)
{
    importSmallHouse();
    const Result result = run({"opening", "options", "house.hbxdb"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(exchangetest::parsed(result.out), (QJsonObject{{"ORVCADWindoorDataInputModel", QJsonArray()}}));
}

TEST_F(OpeningCommandsTest, memberOfAnUnknownRegionIsLeftOut)
{
    EXPECT_EQ(reasonFor(with(elementMember("M1"), "regionName", "Barn")), "unknown region \"Barn\"");
}

TEST_F(OpeningCommandsTest, memberOfAnUnknownFloorIsLeftOut)
{
    EXPECT_EQ(reasonFor(with(elementMember("M1"), "floorName", "9")), "unknown floor code \"9\" in region \"House\"");
}

TEST_F(OpeningCommandsTest, placedObjectOfAnUnknownFloorIsLeftOut)
{
    EXPECT_EQ(reasonFor(1, {elementMember("M1"), with(placedMember("M1", 0, 0), "floorName", "9")}),
              "unknown floor code \"9\" in region \"House\"");
}

TEST_F(OpeningCommandsTest, placedObjectAheadOfItsElementIsLeftOut)
{
    EXPECT_EQ(reasonFor(0, {placedMember("M1", 0, 0), elementMember("M1")}),
              "its element \"M1\" stands behind it, as member 1");
}

TEST_F(OpeningCommandsTest, placedObjectWithoutAnElementIsLeftOut)
{
    EXPECT_EQ(reasonFor(placedMember("M1", 0, 0)), "the floor has no element \"M1\", and the reply makes none");
}

TEST_F(OpeningCommandsTest, placedObjectOfAnElementThatWasLeftOutIsLeftOutToo)
{
    EXPECT_EQ(reasonFor(1, {with(elementMember("M1"), "nWidth", "900"), placedMember("M1", 0, 0)}),
              "its element \"M1\", member 0, was left out");
}

TEST_F(OpeningCommandsTest, placedObjectOfAnElementThatIsNoOpeningIsLeftOut)
{
    EXPECT_EQ(reasonFor(placedMember("Q1", 0, 0)), "element \"Q1\" is no door or window");
}

TEST_F(OpeningCommandsTest, valueOfAWrongTypeIsLeftOut)
{
    EXPECT_EQ(reasonFor(with(elementMember("M1"), "nWidth", "900")), "nWidth is not a whole number of 32 bits");
}

TEST_F(OpeningCommandsTest, numberWithAFractionIsNoWholeNumber)
{
    EXPECT_EQ(reasonFor(with(elementMember("M1"), "nHeight", 2100.5)), "nHeight is not a whole number of 32 bits");
}

TEST_F(OpeningCommandsTest, placeThatIsNoNumberIsLeftOut)
{
    EXPECT_EQ(reasonFor(1, {elementMember("M1"), with(placedMember("M1", 0, 0), "X", true)}), "X is not a number");
}

TEST_F(OpeningCommandsTest, nameThatIsNoTextIsLeftOut)
{
    EXPECT_EQ(reasonFor(with(elementMember("M1"), "name", 4)), "name is not text");
}

TEST_F(OpeningCommandsTest, elementWithoutANameIsLeftOut) { EXPECT_EQ(reasonFor(elementMember("")), "has no name"); }

TEST_F(OpeningCommandsTest, elementOfAnotherTypeIsLeftOut)
{
    EXPECT_EQ(reasonFor(elementMember("M1", 19)), "type 19 is no door or window (4, 5, 6, 7)");
}

TEST_F(OpeningCommandsTest, memberThatIsNoObjectIsLeftOut) { EXPECT_EQ(reasonFor(0, {17}), "is no object"); }

TEST_F(OpeningCommandsTest, secondElementOfANameIsLeftOut)
{
    EXPECT_EQ(reasonFor(1, {elementMember("M1"), elementMember("M1", 5)}),
              "member 0 has that name on the floor already");
}

TEST_F(OpeningCommandsTest, elementThatTheFloorHasIsKeptAndItsNewPlacesJoinIt)
{
    importSmallHouse();
    writeReply({elementMember("M1"), placedMember("M1", 1000, 0)});
    ASSERT_EQ(run({"opening", "apply", "house.hbxdb", "reply.json"}).exitCode, 0);
    const Result again = run({"opening", "apply", "house.hbxdb", "reply.json", "--json"});
    EXPECT_EQ(again.exitCode, 3);
    EXPECT_EQ(again.json()["elementsMade"], 0);
    EXPECT_EQ(again.json()["placed"], 1);
    EXPECT_EQ(again.json()["leftOut"].toArray().size(), 1);
}

TEST_F(OpeningCommandsTest, leftOutMembersGiveExitCode3AndTheRestIsSaved)
{
    importSmallHouse();
    writeReply({elementMember("M1"), 17, placedMember("M1", 1000, 0)});
    const Result result = run({"opening", "apply", "house.hbxdb", "reply.json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.out.contains("left out: member 1 (no name): is no object")) << result.out.toStdString();
    EXPECT_EQ(run({"opening", "export", "house.hbxdb", "-o", "out.json", "--json"}).json()["placed"], 1);
}

TEST_F(OpeningCommandsTest, strictSavesNothingWhenAMemberIsLeftOut)
{
    importSmallHouse();
    const QByteArray before = read("house.hbxdb");
    writeReply({elementMember("M1"), 17});
    const Result result = run({"opening", "apply", "house.hbxdb", "reply.json", "--strict", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["saved"], false);
    EXPECT_EQ(read("house.hbxdb"), before);
}

TEST_F(OpeningCommandsTest, replyWithoutTheArrayIsRefusedAndTheProjectStaysAsItWas)
{
    importSmallHouse();
    const QByteArray before = read("house.hbxdb");
    for (const QByteArray &reply : {QByteArray("[]"), QByteArray("{}"), QByteArray(R"({"eDoorWin": 3})"),
                                    QByteArray(R"({"eDoorWin": {"ElementsAndEdos": {}}})"), QByteArray(),
                                    QByteArray("no json"), QByteArray(R"({"eDoorWin": {"ElementsAndEdos": [)")}) {
        write("reply.json", reply);
        const Result result = run({"opening", "apply", "house.hbxdb", "reply.json", "--json"});
        EXPECT_EQ(result.exitCode, 2) << reply.toStdString();
        EXPECT_EQ(result.error()["file"], "reply.json") << result.err.toStdString();
        EXPECT_FALSE(result.error()["reason"].toString().isEmpty());
        EXPECT_EQ(read("house.hbxdb"), before);
    }
}

TEST_F(OpeningCommandsTest, missingReplyIsNamed)
{
    importSmallHouse();
    const Result result = run({"opening", "apply", "house.hbxdb", "nowhere.json"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.err.contains("nowhere.json")) << result.err.toStdString();
}

TEST_F(OpeningCommandsTest, unknownRegionListsTheKnownOnes)
{
    importSmallHouse();
    const Result result = run({"opening", "export", "house.hbxdb", "--region", "Barn", "--floor", "1"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.err.contains("no region \"Barn\"; known regions: \"House\"")) << result.err.toStdString();
}

TEST_F(OpeningCommandsTest, unknownFloorListsTheKnownOnes)
{
    importSmallHouse();
    const Result result = run({"opening", "export", "house.hbxdb", "--floor", "Attic"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.err.contains("no floor \"Attic\" in region \"House\"; known floors: \"Level 1\""))
        << result.err.toStdString();
}

TEST_F(OpeningCommandsTest, exportWithoutAFileWritesThePayloadToStandardOutputAndTheSummaryToStandardError)
{
    importSmallHouse();
    const Result result = run({"opening", "export", "house.hbxdb"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(QJsonDocument::fromJson(result.out).object().contains("eDoorWin"));
    EXPECT_TRUE(result.err.contains("0 elements and 0 placed openings")) << result.err.toStdString();
}

TEST_F(OpeningCommandsTest, tenThousandMembersWithBrokenOnesPlaceEverySoundOne)
{
    importSmallHouse();
    QJsonArray members{elementMember("M1")};
    for (int i = 0; i < 10000; ++i)
        members.append(i % 10 == 3 ? QJsonValue("broken") : QJsonValue(placedMember("M1", i * 7, i * 3)));
    writeReply(members);
    const Result result = run({"opening", "apply", "house.hbxdb", "reply.json", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["placed"], 9000);
    EXPECT_EQ(result.json()["leftOut"].toArray().size(), 1000);
}

TEST_F(OpeningCommandsTest, longListOfLeftOutMembersIsCutInTheTextAndWholeInJson)
{
    importSmallHouse();
    QJsonArray members;
    for (int i = 0; i < 25; ++i)
        members.append(i);
    writeReply(members);
    const Result result = run({"opening", "apply", "house.hbxdb", "reply.json"});
    EXPECT_EQ(result.out.count("left out: member"), 20);
    EXPECT_TRUE(result.out.contains("and 5 more")) << result.out.toStdString();
}

class OpeningRoundTripTest : public CliFixture, public ::testing::WithParamInterface<const char *>
{
protected:
    static QJsonArray withoutIds(const QJsonDocument &reply)
    {
        QJsonArray members = reply.object()["eDoorWin"].toObject()["ElementsAndEdos"].toArray();
        for (QJsonValueRef member : members) {
            QJsonObject object = member.toObject();
            if (object.contains("elementID"))
                object["elementID"] = 0;
            member = object;
        }
        return members;
    }
    /** The building without its doors and windows. */
    static QByteArray stripped(const QString &building)
    {
        return exchangetest::withoutElements(exchangetest::building(building.toStdString()), {4, 5, 6, 7});
    }
    /** "floor: element name -> [type, wall, piece]" of each placed opening in the order of a building file. */
    static std::string attachments(const QJsonDocument &building)
    {
        QStringList lines;
        for (const QJsonValue region : building.object()["regions"].toArray())
            for (const QJsonValue floor : region.toObject()["floors"].toArray())
                for (const QJsonValue element : floor.toObject()["elements"].toArray())
                    appendAttachments(floor.toObject()["name"].toString(), element.toObject(), lines);
        return lines.join('\n').toStdString();
    }
    static void appendAttachments(const QString &floor, const QJsonObject &element, QStringList &lines)
    {
        const int type = element["type"].toInt();
        if (type < 4 || type > 7)
            return;
        for (const QJsonValue object : element["drawObjects"].toArray()) {
            const QJsonObject placed = object.toObject();
            lines.append(QStringLiteral("%1: %2 -> %3")
                             .arg(floor, element["name"].toString(),
                                  QJsonDocument(placed["attachedTo"].toArray()).toJson(QJsonDocument::Compact)));
        }
    }
};

TEST_P(OpeningRoundTripTest, openingsComeBackIntoTheStrippedBuildingAndIntoTheirWalls)
{
    const QString building = GetParam();
    importSample(building);
    ASSERT_EQ(run({"opening", "export", "house.hbxdb", "-o", "openings.json"}).exitCode, 0);

    write("stripped.json", stripped(building));
    ASSERT_EQ(run({"project", "import", "stripped.json", "-o", "stripped.hbxdb"}).exitCode, 0);
    const Result applied = run({"opening", "apply", "stripped.hbxdb", "openings.json", "--json"});
    EXPECT_EQ(applied.exitCode, 0) << applied.out.toStdString();

    ASSERT_EQ(run({"opening", "export", "stripped.hbxdb", "-o", "again.json"}).exitCode, 0);
    EXPECT_EQ(withoutIds(readJson("again.json")), withoutIds(readJson("openings.json")));

    ASSERT_EQ(run({"project", "export", "stripped.hbxdb", "-o", "again-building.json"}).exitCode, 0);
    QFile original(sample(building));
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    EXPECT_EQ(attachments(readJson("again-building.json")), attachments(QJsonDocument::fromJson(original.readAll())));
}

INSTANTIATE_TEST_SUITE_P(Buildings, OpeningRoundTripTest,
                         ::testing::Values("duplex-apartment", "masonry-block", "precast-hall", "made-building"));

} // namespace
