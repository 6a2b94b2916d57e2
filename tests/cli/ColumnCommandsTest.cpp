#include "CliFixture.h"

namespace {

class ColumnCommandsTest : public CliFixture
{
protected:
    static QString columnSample(const QString &name)
    {
        return QStringLiteral(ORVCAD_TEST_DATA "/columns/") + name + ".json";
    }
    void copySample(const QString &name) const { ASSERT_TRUE(QFile::copy(columnSample(name), path(name + ".json"))); }
};

TEST_F(ColumnCommandsTest, checkTellsWhatASoundDocumentHolds)
{
    copySample("results");
    const Result result = run({"column", "check", "results.json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "results.json: results of identification: cadLines 2, cadTexts 1, columns 1, "
                          "drawing \"柱平法图-01\", floorCode \"2\", toCreate 1\n"
                          "written again, it is the same document\n");
    EXPECT_EQ(result.err, "");
}

TEST_F(ColumnCommandsTest, everyKindOfDocumentIsChecked)
{
    for (const char *name : {"results", "check-input", "identify-input"}) {
        copySample(name);
        const QString file = QString(name) + ".json";
        const Result result = run({"column", "check", file, "--json"});
        EXPECT_EQ(result.exitCode, 0) << name;
        EXPECT_EQ(result.json()["kind"], name);
        EXPECT_EQ(result.json()["file"], file);
        EXPECT_EQ(result.json()["findings"], QJsonArray()) << name;
        EXPECT_EQ(result.json()["missingKeys"], 0) << name;
        EXPECT_EQ(result.json()["same"], true) << name;
        EXPECT_EQ(result.json()["notKept"], QJsonArray()) << name;
    }
}

TEST_F(ColumnCommandsTest, findingsAreToldWithFilePlaceAndReason)
{
    write("reply.json", QByteArray(R"({"drawing": "S-07", "floorCode": "3",
        "resultData": [{"columnName": "KZ-1", "poly": "rubbish"}, {"bCreateElement": "yes"}]})"));
    const Result result = run({"column", "check", "reply.json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.out, "reply.json: results of identification: cadLines 0, cadTexts 0, columns 2, "
                          "drawing \"S-07\", floorCode \"3\", toCreate 0\n"
                          "reply.json: resultData[0].poly: is no text of an outline\n"
                          "reply.json: resultData[1].bCreateElement: is not true or false\n"
                          "missing keys, read as 0, false or empty: 17\n"
                          "written again, it differs at 2 places\n");
    const Result json = run({"column", "check", "reply.json", "--json"});
    EXPECT_EQ(json.exitCode, 3);
    EXPECT_EQ(keys(json.json()),
              "cadLines,cadTexts,columns,drawing,file,findings,floorCode,kind,missingKeys,notKept,same,toCreate");
    EXPECT_EQ(json.json()["findings"].toArray()[1].toObject(),
              (QJsonObject{{"place", "resultData[1].bCreateElement"}, {"reason", "is not true or false"}}));
}

TEST_F(ColumnCommandsTest, soundValueThatIsWrittenOtherwiseIsToldAndNoFault)
{
    write("reply.json", QByteArray(R"({"drawing": "S-07", "floorCode": "3",
        "resultData": [{"cadLineIDs": [7, 9007199254740993], "columnInfo": {"position": "123456.78,0"}}]})"));
    const Result result = run({"column", "check", "reply.json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(
        result.out,
        "reply.json: results of identification: cadLines 2, cadTexts 0, columns 1, "
        "drawing \"S-07\", floorCode \"3\", toCreate 0\n"
        "reply.json: resultData[0].cadLineIDs[1]: is written as 9007199254740992: a number has 53 bits\n"
        "reply.json: resultData[0].columnInfo.position: is written as \"123457,0\": geometry has one form and six "
        "digits\n"
        "missing keys, read as 0, false or empty: 20\n"
        "written again, it differs at 2 places\n");
    const QJsonObject json = run({"column", "check", "reply.json", "--json"}).json();
    EXPECT_EQ(json["findings"], QJsonArray());
    EXPECT_EQ(json["same"], false);
    EXPECT_EQ(json["notKept"].toArray()[0].toObject()["place"], "resultData[0].cadLineIDs[1]");
}

TEST_F(ColumnCommandsTest, fileThatIsNoColumnRecordIsRefused)
{
    expectRefusals({"column", "check"}, "columns.json",
                   {{"", "", "the file is empty"},
                    {"[]", "", "no column record: its top is no object"},
                    {"{}", "", "no column record: it has none of the keys of one"},
                    {R"({"AreaName": "A", "Floors": []})", "", "no column record: it has none of the keys of one"},
                    {"{\n  \"drawing\" \"A\"\n}", "line 2, column 13",
                     "not JSON: Missing a colon after a name of object member."}});
    refusal({"column", "check", "nowhere.json"}, "nowhere.json");
    EXPECT_EQ(refusal({"column", "check", "."}, ".")["reason"], "is a directory");
}

TEST_F(ColumnCommandsTest, truncatedDocumentIsRefusedWhereverItIsCut)
{
    copySample("results");
    expectRefusalOfCuts({"column", "check"}, read("results.json"), 211);
}

TEST_F(ColumnCommandsTest, quietCheckTellsByItsExitCodeAlone)
{
    write("reply.json", QByteArray(R"({"resultData": 7})"));
    const Result result = run({"column", "check", "reply.json", "--quiet"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.out + result.err, "");
}

TEST_F(ColumnCommandsTest, missingFileNameIsWrongUsage)
{
    EXPECT_EQ(run({"column", "check"}).exitCode, 1);
    EXPECT_EQ(run({"column"}).exitCode, 1);
    EXPECT_EQ(run({"column", "mend", "x.json"}).exitCode, 1);
}

} // namespace
