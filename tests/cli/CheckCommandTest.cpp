#include "CliFixture.h"

namespace {

class CheckCommandTest : public CliFixture
{};

TEST_F(CheckCommandTest, exitCodeTellsTheWorstOfAllFiles)
{
    write("clean.json", QByteArray(R"({"AreaName": "A", "Floors": []})"));
    write("more.json", QByteArray(R"({"AreaName": "A", "Floors": [], "Remark": ""})"));
    write("wrong.json", QByteArray(R"({"AreaName": "A"})"));
    EXPECT_EQ(run({"check", "clean.json"}).exitCode, 0);
    EXPECT_EQ(run({"check", "clean.json", "more.json"}).exitCode, 3);
    const Result all = run({"check", "floors", "wrong.json", "clean.json", "more.json"});
    EXPECT_EQ(all.exitCode, 2);
    EXPECT_TRUE(all.out.endsWith("3 files: 1 faulty, 1 not read whole\n")) << all.out.toStdString();
    EXPECT_EQ(run({"check", "nothing.json"}).exitCode, 2);
}

TEST_F(CheckCommandTest, summaryIsOneObjectForAllFiles)
{
    write("wrong.json", QByteArray(R"({"AreaName": "A"})"));
    const QJsonObject json = run({"check", "wrong.json", "nothing.json", "--json"}).json();
    EXPECT_EQ(keys(json), "faulty,files,notReadWhole");
    EXPECT_EQ(json["faulty"], 2);
    EXPECT_EQ(json["files"][0]["faults"][0]["pointer"], "/Floors");
    EXPECT_TRUE(json["files"][1]["kind"].isNull());
}

TEST_F(CheckCommandTest, misspeltKindIsWrongUsage)
{
    const Result result = run({"check", "beems", "x.json"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "orvcad: \"beems\" is neither a file nor a kind of document; \"beams\" is one\n");
    EXPECT_EQ(run({"check", "beams"}).exitCode, 1);
    EXPECT_EQ(run({"check"}).exitCode, 1);
}

TEST_F(CheckCommandTest, whatTheCommandWritesIsClean)
{
    importSample("made-building");
    const QStringList floor{"--region", "主楼", "--floor", "1"};
    ASSERT_EQ(run(QStringList{"drawing", "make", "house.hbxdb", "-o", "d.cadi2"} + floor).exitCode, 0);
    ASSERT_EQ(run(QStringList{"beam", "export", "house.hbxdb", "-o", "beams.json"}).exitCode, 0);
    ASSERT_EQ(
        run(QStringList{"slab", "export", "house.hbxdb", "--drawing", "d.cadi2", "-o", "io.json"} + floor).exitCode, 0);
    ASSERT_EQ(run(QStringList{"opening", "export", "house.hbxdb", "-o", "openings.json"}).exitCode, 0);
    const Result result = run({"check", "house.hbxdb", "d.cadi2", "io.json", "openings.json"});
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
    // One beam of the sample has a width that no reply carries.
    const QJsonObject beams = run({"check", "beams.json", "--json"}).json();
    EXPECT_EQ(beams["files"][0]["dropped"].toArray().size(), 1);
    EXPECT_EQ(beams["files"][0]["dropped"][0]["message"],
              "LineWidth 250.5 is written as a whole number of millimetres");
    EXPECT_TRUE(beams["files"][0]["ignored"].toArray().isEmpty());
}

} // namespace
