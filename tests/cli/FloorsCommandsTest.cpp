#include "CliFixture.h"

namespace {

class FloorsCommandsTest : public CliFixture
{
protected:
    static QJsonObject floor(const QString &name, double bottom, double height, int standardCount = 1)
    {
        return {{"Name", name}, {"Code", ""}, {"BottomElev", bottom}, {"Height", height}, {"StdCount", standardCount},
                {"Remark", ""}};
    }
    void writeFloors(const QJsonArray &floors) const
    {
        write("floors.json", QJsonObject{{"AreaName", "Tower"}, {"Floors", floors}});
    }
    /** "name bottom top | upstairs | downstairs" of each floor that floors show tells. */
    static std::string rows(const QJsonObject &shown)
    {
        QStringList rows;
        for (const QJsonValue value : shown["floors"].toArray()) {
            const QJsonObject floor = value.toObject();
            const auto name = [](const QJsonValue &other) { return other.isNull() ? "-" : other.toString(); };
            rows.append(QStringLiteral("%1 %2 %3 | %4 | %5")
                            .arg(floor["name"].toString())
                            .arg(floor["bottomElev"].toDouble())
                            .arg(floor["topElev"].toDouble())
                            .arg(name(floor["upstairs"]), name(floor["downstairs"])));
        }
        return rows.join('\n').toStdString();
    }
};

TEST_F(FloorsCommandsTest, exportWritesTheFloorsOfARegion)
{
    importSample("masonry-block");
    const Result result = run({"floors", "export", "house.hbxdb", "--region", "Block", "-o", "floors.json", "--json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(keys(result.json()), "areaName,floors,output");
    EXPECT_EQ(result.json(), (QJsonObject{{"areaName", "Block"}, {"floors", 6}, {"output", "floors.json"}}));

    const QJsonObject document = readJson("floors.json").object();
    EXPECT_EQ(document["AreaName"], "Block");
    ASSERT_EQ(document["Floors"].toArray().size(), 6);
    EXPECT_EQ(
        document["Floors"].toArray()[3].toObject(),
        (QJsonObject{
            {"Name", "Level 3"}, {"Code", "3"}, {"BottomElev", 8}, {"Height", 3}, {"StdCount", 1}, {"Remark", ""}}));
}

TEST_F(FloorsCommandsTest, exportTellsPeopleWhatItWrote)
{
    importSample("masonry-block");
    const Result toFile = run({"floors", "export", "house.hbxdb", "-o", "floors.json"});
    EXPECT_EQ(toFile.out, "Wrote 6 floors of Block\n");
    const Result toStdout = run({"floors", "export", "house.hbxdb"});
    EXPECT_EQ(toStdout.out, read("floors.json"));
    EXPECT_EQ(toStdout.err, "Wrote 6 floors of Block\n");
}

TEST_F(FloorsCommandsTest, showTellsHowTheFloorsOfASampleStand)
{
    importSample("masonry-block");
    ASSERT_EQ(run({"floors", "export", "house.hbxdb", "-o", "floors.json"}).exitCode, 0);
    const Result result = run({"floors", "show", "floors.json", "--json"});
    EXPECT_EQ(result.exitCode, 0);
    const QJsonObject shown = result.json();
    EXPECT_EQ(keys(shown), "areaName,base,first,floors,highest,leftOut,lowest");
    EXPECT_EQ(keys(shown["floors"].toArray()[0]), "bottomElev,downstairs,height,name,standardCount,topElev,upstairs");
    EXPECT_EQ(shown["areaName"], "Block");
    EXPECT_EQ(rows(shown), "Foundation -1 0 | Level 1 | -\n"
                           "Level 1 0 4 | Level 2 | Foundation\n"
                           "Level 2 4 8 | Level 3 | Level 1\n"
                           "Level 3 8 11 | Level 4 | Level 2\n"
                           "Level 4 11 12.2 | Level 5 | Level 3\n"
                           "Level 5 12.2 15.2 | - | Level 4");
    // No code comes back, and no name holds 基础: nothing tells the base floor.
    EXPECT_TRUE(shown["base"].isNull());
    EXPECT_EQ(shown["first"], "Level 1");
    EXPECT_EQ(shown["highest"], "Level 5");
    EXPECT_EQ(shown["lowest"], "Foundation");
    EXPECT_EQ(shown["leftOut"], QJsonArray());
}

TEST_F(FloorsCommandsTest, showKeepsTheOrderOfTheDocumentAndTellsOfAGap)
{
    const Result imported = run({"project", "import", sample("made-building"), "-o", "house.hbxdb"});
    ASSERT_EQ(imported.exitCode, 0) << imported.err.toStdString();
    ASSERT_EQ(run({"floors", "export", "house.hbxdb", "--region", "主楼", "-o", "main.json"}).exitCode, 0);
    const QJsonObject main = run({"floors", "show", "main.json", "--json"}).json();
    EXPECT_EQ(rows(main), "第2层 3.6 6.9 | - | 第1层\n"
                          "基础层 -1.8 0 | 第1层 | -\n"
                          "第1层 0 3.6 | 第2层 | 基础层");
    EXPECT_EQ(main["base"], "基础层");
    EXPECT_EQ(main["first"], "第1层");
    EXPECT_EQ(main["highest"], "第2层");

    ASSERT_EQ(run({"floors", "export", "house.hbxdb", "--region", "附楼 Annex", "-o", "annex.json"}).exitCode, 0);
    EXPECT_EQ(rows(run({"floors", "show", "annex.json", "--json"}).json()), "Roof 8.4 11.4 | - | -\n"
                                                                            "Ground 0 4.2 | - | -");
}

TEST_F(FloorsCommandsTest, wayUpCountsWhatAStandardFloorStandsForAndTheWayDownDoesNot)
{
    writeFloors({floor("F1", 0, 3), floor("F2", 3, 3, 4), floor("F6", 15, 3)});
    EXPECT_EQ(rows(run({"floors", "show", "floors.json", "--json"}).json()), "F1 0 3 | F2 | -\n"
                                                                             "F2 3 6 | F6 | F1\n"
                                                                             "F6 15 18 | - | -");
}

TEST_F(FloorsCommandsTest, showPrintsATableForPeople)
{
    writeFloors({floor("基础层", -1.5, 1.5), floor("F1", 0, 3.9)});
    const Result result = run({"floors", "show", "floors.json"});
    EXPECT_EQ(result.exitCode, 0);
    const QList<QByteArray> lines = result.out.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 5) << result.out.toStdString();
    EXPECT_EQ(lines[0], "Area Tower");
    EXPECT_EQ(lines[1].simplified(), "no floor bottom m top m storeys upstairs downstairs");
    EXPECT_EQ(lines[2].simplified(), "1 基础层 -1.5 0 1 F1 -");
    EXPECT_EQ(lines[3].simplified(), "2 F1 0 3.9 1 - 基础层");
    EXPECT_EQ(lines[4], "base 基础层, first F1, highest F1, lowest 基础层");
}

TEST_F(FloorsCommandsTest, emptyDocumentHasNoFloors)
{
    writeFloors({});
    const QJsonObject shown = run({"floors", "show", "floors.json", "--json"}).json();
    for (const char *which : {"base", "first", "highest", "lowest"})
        EXPECT_TRUE(shown[which].isNull()) << which;
    EXPECT_EQ(shown["floors"], QJsonArray());
}

TEST_F(FloorsCommandsTest, floorThatLacksAKeyIsLeftOutAndNamed)
{
    for (const char *key : {"Name", "BottomElev", "Height", "StdCount", "Remark"}) {
        QJsonObject lacking = floor("F2", 3, 3);
        lacking.remove(QLatin1String(key));
        writeFloors({floor("F1", 0, 3), lacking, floor("F3", 6, 3)});
        const Result result = run({"floors", "show", "floors.json", "--json"});
        EXPECT_EQ(result.exitCode, 3) << key;
        EXPECT_EQ(rows(result.json()), "F1 0 3 | - | -\nF3 6 9 | - | -") << key;
        EXPECT_EQ(result.json()["leftOut"],
                  QJsonArray{"Floors[1]: lacks one of Name, BottomElev, Height, StdCount, Remark"});
    }
}

TEST_F(FloorsCommandsTest, memberThatIsNoObjectIsLeftOutAndNamed)
{
    writeFloors({7, floor("F1", 0, 3)});
    const Result result = run({"floors", "show", "floors.json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.out.contains("\nleft out: Floors[0]: is no object\n")) << result.out.toStdString();
}

TEST_F(FloorsCommandsTest, floorWithoutACodeIsNotLeftOutSinceCodesAreNeverRead)
{
    QJsonObject codeless = floor("F1", 0, 3);
    codeless.remove("Code");
    writeFloors({codeless});
    EXPECT_EQ(run({"floors", "show", "floors.json"}).exitCode, 0);
}

TEST_F(FloorsCommandsTest, documentThatIsNoFloorsDocumentIsRefusedWithItsPlace)
{
    const char *const lacking = "no floors document: AreaName or Floors is missing";
    expectRefusals(
        {"floors", "show"}, "floors.json",
        {{"", "", "the file is empty"},
         {" \n\t", "", "the file is empty"},
         {"[]", "", "no floors document: its top is no object"},
         {"{}", "", lacking},
         {R"({"AreaName": "A"})", "", lacking},
         {R"({"Floors": []})", "", lacking},
         {R"({"AreaName": "A", "Floors": {}})", "Floors", "is no array"},
         {"{\n  \"AreaName\" \"A\"\n}", "line 2, column 14",
          "not JSON: Missing a colon after a name of object member."},
         {"{\n  \"AreaName\": \"A\",\n  \"Floors\": [x]\n}", "line 3, column 14", "not JSON: Invalid value."}});
}

TEST_F(FloorsCommandsTest, truncatedDocumentIsRefusedWhereverItIsCut)
{
    writeFloors({floor("F1", 0, 3), floor("F2", 3, 3)});
    expectRefusalOfCuts({"floors", "show"}, read("floors.json"), 17);
}

TEST_F(FloorsCommandsTest, missingDocumentAndADirectoryAreRefused)
{
    refusal({"floors", "show", "nowhere.json"}, "nowhere.json");
    EXPECT_EQ(refusal({"floors", "show", "."}, ".")["reason"], "is a directory");
}

TEST_F(FloorsCommandsTest, unknownRegionListsTheKnownOnes)
{
    importSample("made-building");
    const QJsonObject error = refusal({"floors", "export", "house.hbxdb", "--region", "Barn"}, "house.hbxdb");
    EXPECT_EQ(error["reason"].toString(),
              QStringLiteral("no region \"Barn\"; known regions: \"主楼\", \"附楼 Annex\""));
}

TEST_F(FloorsCommandsTest, regionMustBeNamedWhereThereAreSeveral)
{
    importSample("made-building");
    const QJsonObject error = refusal({"floors", "export", "house.hbxdb"}, "house.hbxdb");
    EXPECT_EQ(error["reason"].toString(),
              QStringLiteral("no --region is given; known regions: \"主楼\", \"附楼 Annex\""));
}

} // namespace
