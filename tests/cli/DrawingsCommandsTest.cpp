#include "CliFixture.h"
#include "DrawingSets.h"

using clitest::emptySet;
using clitest::fileContent;

namespace {

const QString kSet = QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.drawing-set.json");
const QString kExchange = QStringLiteral(ORVCAD_EXAMPLES "/masonry-block.floor-sdc.json");

class DrawingsCommandsTest : public CliFixture
{
protected:
    /** The floors of a sample building as "name code bottom height", lowest first. */
    QStringList floorsOfSample(const QString &building)
    {
        importSample(building);
        QStringList rows;
        const QJsonObject info = run({"project", "info", "house.hbxdb", "--json"}).json();
        for (const QJsonValue region : info["regions"].toArray())
            for (const QJsonValue floor : region.toObject()["floors"].toArray())
                rows.append(floorRow(floor.toObject(), "name", "bottomElev"));
        return rows;
    }
    static QString floorRow(const QJsonObject &floor, const char *name, const char *bottom)
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(floor[QLatin1String(name)].toString(), floor["code"].toString())
            .arg(floor[QLatin1String(bottom)].toDouble())
            .arg(floor["height"].toDouble());
    }
    static QJsonObject rowOf(const QJsonValue &rows, const QString &name, const char *key = "name")
    {
        for (const QJsonValue row : rows.toArray())
            if (row.toObject()[QLatin1String(key)] == name)
                return row.toObject();
        return {};
    }
};

// drawings show

TEST_F(DrawingsCommandsTest, showTellsStagesFloorsDrawingsAndLayersOfTheExample)
{
    const Result result = run({"drawings", "show", kSet, "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    const QJsonObject shown = result.json();
    EXPECT_EQ(keys(shown), "areaName,drawings,floors,layers,notRead,stages");
    EXPECT_EQ(shown["areaName"], "Hall");
    ASSERT_EQ(shown["stages"].toArray().size(), 8);
    EXPECT_EQ(shown["stages"].toArray()[0].toObject(),
              (QJsonObject{{"key", "splitDrawing"}, {"present", true}, {"entries", 9}}));
    EXPECT_EQ(rowOf(shown["stages"], "matchFloorInfo", "key")["entries"], 3);

    EXPECT_EQ(rowOf(shown["floors"], "Upper part"),
              (QJsonObject{{"name", "Upper part"},
                           {"code", "2"},
                           {"bottomElev", 4.96},
                           {"height", 3.04},
                           {"standardCount", 1},
                           {"drawings", QJsonArray{"S-08 屋面梁平面图", "S-09 墙平面图"}}}));
    EXPECT_EQ(rowOf(shown["drawings"], QStringLiteral("S-04 柱平面图")),
              (QJsonObject{{"name", "S-04 柱平面图"},
                           {"parent", "precast-hall-structure"},
                           {"floors", QJsonArray{QJsonObject{{"regionID", 1}, {"floor", "Ground floor"}}}},
                           {"types", QJsonArray{"柱"}},
                           {"tables", 1},
                           {"layers", 2},
                           {"objects", 24},
                           {"originScale", 100},
                           {"newScale", 1},
                           {"crossings", 3}}));
    EXPECT_EQ(rowOf(shown["layers"], QStringLiteral("梁"), "type"),
              (QJsonObject{{"type", "梁"},
                           {"number", 15},
                           {"drawings", 3},
                           {"layers", 4},
                           {"objects", 33},
                           {"names", QJsonArray{"S-BEAM", "S-BEAM-EDGE"}}}));
}

TEST_F(DrawingsCommandsTest, exampleSetHasTheFloorsOfItsBuilding)
{
    QStringList rows;
    for (const QJsonValue floor : run({"drawings", "show", kSet, "--json"}).json()["floors"].toArray())
        rows.append(floorRow(floor.toObject(), "name", "bottomElev"));
    EXPECT_EQ(rows, floorsOfSample("precast-hall"));
}

TEST_F(DrawingsCommandsTest, showPrintsTablesForPeople)
{
    const Result result = run({"drawings", "show", kSet});
    const QString text = QString::fromUtf8(result.out);
    EXPECT_TRUE(text.startsWith("Drawing set of Hall: 8 of 8 stages, 9 drawings, 3 floors\n\nStages\n"));
    for (const char *line : {"Ground floor  1            0      4.96        1  S-04 柱平面图, S-05 梁平面图, "
                             "S-06 板平面图, S-07 墙平面图\n",
                             "\nS-08 屋面梁平面图  precast-hall-structure  Upper part    梁                  -       1"
                             "       10     50            3\n",
                             "\n柱                   1       2       24  S-COLU, S-COLU-ROUND\n"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(line))) << line << '\n' << result.out.toStdString();
}

TEST_F(DrawingsCommandsTest, stagesThatHaveNotRunAreToldFromThoseWithoutEntries)
{
    QJsonObject set = emptySet();
    set["reviseScale"] = QJsonArray();
    write("set.json", set);
    const QJsonObject shown = run({"drawings", "show", "set.json", "--json"}).json();
    for (const QJsonValue stage : shown["stages"].toArray()) {
        EXPECT_EQ(stage.toObject()["present"].toBool(), stage.toObject()["key"] == "reviseScale");
        EXPECT_EQ(stage.toObject()["entries"], 0);
    }
    const QByteArray text = run({"drawings", "show", "set.json"}).out;
    EXPECT_TRUE(text.startsWith("Drawing set: 1 of 8 stages, 0 drawings, 0 floors\n")) << text.toStdString();
    EXPECT_EQ(text.count("has not run\n"), 7);
    EXPECT_TRUE(text.contains("reviseScale       0 drawings\n")) << text.toStdString();
}

TEST_F(DrawingsCommandsTest, setThatIsNoneIsRefusedWithItsPlace)
{
    const char *const foreign = "no drawing-set file: none of its stages is there";
    expectRefusals({"drawings", "show"}, "set.json",
                   {{"", "", "the file is empty"},
                    {"[]", "", "no drawing-set file: its top is no object"},
                    {"{}", "", foreign},
                    {R"({"format": "hbx-project", "version": 1})", "", foreign},
                    {R"({"SPLITDRAWING": {}})", "", foreign},
                    {R"({"splitDrawing": {}})", "parseDrawing", "is missing"},
                    {"{\n  \"splitDrawing\" {}\n}", "line 2, column 18",
                     "not JSON: Missing a colon after a name of object member."}});
    EXPECT_EQ(refusal({"drawings", "show", kExchange}, kExchange)["reason"], foreign);
    EXPECT_EQ(refusal({"drawings", "show", "."}, ".")["reason"], "is a directory");
    refusal({"drawings", "show", "nowhere.json"}, "nowhere.json");
}

TEST_F(DrawingsCommandsTest, truncatedSetIsRefusedWhereverItIsCut)
{
    expectRefusalOfCuts({"drawings", "show"}, fileContent(kSet), 977);
}

// drawings floors

TEST_F(DrawingsCommandsTest, exampleExchangeIsTheSameDocumentWhenWrittenAgain)
{
    const Result result = run({"drawings", "floors", kExchange, "-o", "again.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(keys(result.json()), "floors,notKept,notStable,same");
    EXPECT_EQ(result.json()["same"], true);
    EXPECT_EQ(result.json()["notKept"], QJsonArray());
    EXPECT_EQ(result.json()["floors"].toArray()[4].toObject(), (QJsonObject{{"id", 105},
                                                                            {"description", "Level 4"},
                                                                            {"code", "4"},
                                                                            {"height", 1.2},
                                                                            {"structuralElevation", 11},
                                                                            {"standardCount", 1},
                                                                            {"regionID", 1},
                                                                            {"region", "Block"},
                                                                            {"settings", 2}}));
    EXPECT_EQ(read("again.json"), fileContent(kExchange));
}

TEST_F(DrawingsCommandsTest, exampleExchangeHasTheFloorsOfItsBuilding)
{
    QStringList rows;
    for (const QJsonValue floor : run({"drawings", "floors", kExchange, "--json"}).json()["floors"].toArray())
        rows.append(floorRow(floor.toObject(), "description", "structuralElevation"));
    EXPECT_EQ(rows, floorsOfSample("masonry-block"));
}

TEST_F(DrawingsCommandsTest, exchangeGoesToStandardOutputAndTheSummaryBesideIt)
{
    const Result result = run({"drawings", "floors", kExchange, "-o", "-"});
    EXPECT_EQ(result.out, fileContent(kExchange));
    EXPECT_TRUE(result.err.startsWith("Floor exchange of 6 floors: written again, it is the same document\n"));
}

TEST_F(DrawingsCommandsTest, floorsArePrintedAsATableWithADashForNoValue)
{
    write("floors.json", QByteArray(R"({"FloorSDCData": [{"ID": 1, "Height": 3.3, "Region": {}, "Remark": 7}]})"));
    const QList<QByteArray> lines = run({"drawings", "floors", "floors.json"}).out.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0], "Floor exchange of 1 floor: written again, it differs at 1 place");
    EXPECT_EQ(lines[1].simplified(), "id floor code height elevation storeys region settings");
    EXPECT_EQ(lines[2].simplified(), "1 - - 3.3 - - - 0");
    EXPECT_EQ(lines[3], "not kept: FloorSDCData[0].Remark: is no text, so the field has no value");
}

TEST_F(DrawingsCommandsTest, exchangeOfWhichSomethingIsNotWrittenAgainIsNotDone)
{
    const auto exitCodeOf = [&](const char *floor) {
        write("floors.json", QByteArray(R"({"FloorSDCData": [{"Region": {}, )") + floor + "}]}");
        return run({"drawings", "floors", "floors.json"}).exitCode;
    };
    EXPECT_EQ(exitCodeOf(R"("Remark": "7")"), 0);
    EXPECT_EQ(exitCodeOf(R"("ConcreteAnchorJoint": [])"), 0); // says as little as none
    EXPECT_EQ(exitCodeOf(R"("Remark": 7)"), 3);
    EXPECT_EQ(exitCodeOf(R"("Remarks": "7")"), 3);
}

TEST_F(DrawingsCommandsTest, memberOfASetThatNothingReadsIsTold)
{
    QJsonObject set = clitest::fileObject(kSet);
    set["splitDrawing"] = with(set["splitDrawing"].toObject(), "SavePath", "/");
    write("set.json", set);
    const Result result = run({"drawings", "show", "set.json", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.json()["notRead"],
              QJsonValue(QJsonArray{QJsonObject{{"place", "splitDrawing.SavePath"},
                                                {"reason", "is no member of this format, and not read"}}}));
    EXPECT_TRUE(run({"drawings", "show", "set.json"})
                    .out.endsWith("\nnot read: splitDrawing.SavePath: is no member of this format, and not read\n"));
}

TEST_F(DrawingsCommandsTest, exchangeThatIsRefusedWritesNoFile)
{
    write("floors.json", QByteArray(R"({"FloorSDCData": [{"Region": {}}, {"Region": {"ID": "3"}}]})"));
    const QJsonObject error = refusal({"drawings", "floors", "floors.json", "-o", "again.json"}, "floors.json");
    EXPECT_EQ(error["place"], "FloorSDCData[1].Region.ID");
    EXPECT_EQ(error["reason"], "is no whole number from -2147483647 to 2147483647");
    EXPECT_FALSE(exists("again.json"));
}

TEST_F(DrawingsCommandsTest, exchangeThatIsNoneIsRefused)
{
    EXPECT_EQ(refusal({"drawings", "floors", kSet}, kSet)["reason"], "no floor exchange: FloorSDCData is missing");
    expectRefusals({"drawings", "floors"}, "floors.json",
                   {{"[]", "", "no floor exchange: its top is no object"}, {"", "", "the file is empty"}});
    EXPECT_EQ(refusal({"drawings", "floors", "."}, ".")["reason"], "is a directory");
}

TEST_F(DrawingsCommandsTest, truncatedExchangeIsRefusedWhereverItIsCut)
{
    expectRefusalOfCuts({"drawings", "floors"}, fileContent(kExchange), 1013);
}

// drawings words

TEST_F(DrawingsCommandsTest, numberGivesItsNameAndAllWrittenForms)
{
    const Result result = run({"drawings", "words", "-2", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.json(), (QJsonObject{{"asked", "-2"},
                                          {"number", -2},
                                          {"name", "第-2层"},
                                          {"names", QJsonArray{"第负二", "负二", "地下二", "第负二层", "负二层",
                                                               "地下二层", "-2F", "-2层", "第-2层"}},
                                          {"otherWords", QJsonArray()}}));
    EXPECT_TRUE(run({"drawings", "words", "12"}).out.startsWith("Floor 12: 第12层\n十二\n十二层\n"));
    EXPECT_TRUE(run({"drawings", "words", "--quiet", "12"}).out.isEmpty());
}

TEST_F(DrawingsCommandsTest, wordGivesTheFloorThatItNames)
{
    const QJsonObject basement = run({"drawings", "words", "地下二层", "--json"}).json();
    EXPECT_EQ(basement["number"], -2);
    EXPECT_EQ(basement["names"].toArray().size(), 9);
    EXPECT_EQ(run({"drawings", "words", "5F", "--json"}).json()["name"], "第5层");
}

TEST_F(DrawingsCommandsTest, wordOfATopFloorGivesItsOtherForm)
{
    const QJsonObject roof = run({"drawings", "words", "屋面", "--json"}).json();
    EXPECT_TRUE(roof["number"].isNull());
    EXPECT_EQ(roof["otherWords"], QJsonArray{"屋面层"});
    EXPECT_EQ(run({"drawings", "words", "阁楼层"}).out, "Top floor 阁楼层\n阁楼\n");
}

TEST_F(DrawingsCommandsTest, wordThatNamesNoFloorIsAnsweredWithNothing)
{
    for (const char *word : {"标准层", "castle", "５层", "", " "}) {
        const Result result = run({"drawings", "words", QString::fromUtf8(word), "--json"});
        EXPECT_EQ(result.exitCode, 0) << word << result.err.toStdString();
        EXPECT_TRUE(result.json()["number"].isNull()) << word;
        EXPECT_EQ(result.json()["names"], QJsonArray()) << word;
    }
    EXPECT_EQ(run({"drawings", "words", "标准层"}).out, "No floor is written \"标准层\"\n");
}

TEST_F(DrawingsCommandsTest, numberThatNoFloorHasIsWrongUsage)
{
    for (const char *number : {"0", "1000", "-1000", "99999999999", "-0", "+1000"}) {
        const Result result = run({"drawings", "words", number});
        EXPECT_EQ(result.exitCode, 1) << number;
        EXPECT_TRUE(result.out.isEmpty());
        EXPECT_EQ(result.err, QByteArray("orvcad: FLOOR: no floor has the number ") + number +
                                  "; floors go from 1 to 999 and from -1 to -999\n");
    }
    EXPECT_EQ(run({"drawings", "words", "+3", "--json"}).json()["number"], 3);
}

} // namespace
