#include "cli/FileBatch.h"

#include "CliFixture.h"
#include "CommandFailures.h"

using namespace orvcad;

namespace {

/** A verb whose end is told by the name of its file. */
Summary endOf(const Arguments &arguments)
{
    const QString file = Arguments::text(arguments.input);
    if (file.contains("bad"))
        throw CommandFailure(kBadInput, file, "line 1", "is no document");
    if (file.contains("odd"))
        return {"told\nin lines", {{"left", 1}}, kLeftOut};
    return {"told " + Arguments::text(arguments.output), {{"output", Arguments::text(arguments.output)}}};
}
Summary misused(const Arguments & /*arguments*/) { throw CommandFailure(kWrongUsage, "there is no such thing"); }

class FileBatchTest : public CliFixture
{
protected:
    static FileBatch batchOf(const std::vector<std::string> &files, const std::string &ending = {})
    {
        FileBatch batch;
        batch.files = files;
        batch.file = &Arguments::input;
        if (!ending.empty())
            batch.ending = [ending](const Arguments & /*arguments*/) { return ending; };
        return batch;
    }
    static Arguments into(const QString &output)
    {
        Arguments arguments;
        arguments.output = output.toStdString();
        return arguments;
    }
};

TEST_F(FileBatchTest, oneFileIsOneRun)
{
    const Summary summary = batchOf({"a.json"}, ".svg").run(endOf, into("a.svg"));
    EXPECT_EQ(summary.text, "told a.svg");
    EXPECT_EQ(summary.json, (QJsonObject{{"output", "a.svg"}}));
    EXPECT_NE(clitest::failureOf([] { batchOf({"bad.json"}).run(endOf, {}); }).find("is no document"),
              std::string::npos);
}

TEST_F(FileBatchTest, manyFilesHaveVerdictsOfTheirOwnAndTheWorstIsThatOfAll)
{
    const Summary summary = batchOf({"a.json", "bad.json", "odd.json", "b.json"}).run(endOf, {});
    EXPECT_EQ(summary.exitCode, kBadInput);
    EXPECT_EQ(summary.text.toStdString(), "a.json: told \nodd.json:\ntold\nin lines\nb.json: told \n"
                                          "4 files: 2 done, 1 with something left out, 1 failed");
    EXPECT_EQ(summary.failures, QStringList{"bad.json: line 1: is no document"});
    const QJsonArray files = summary.json["files"].toArray();
    ASSERT_EQ(files.size(), 4);
    EXPECT_EQ(summary.json["exitCode"], 2);
    EXPECT_EQ(files[1], QJsonValue(QJsonObject{{"file", "bad.json"},
                                               {"exitCode", 2},
                                               {"error", QJsonObject{{"message", "bad.json: line 1: is no document"},
                                                                     {"file", "bad.json"},
                                                                     {"place", "line 1"},
                                                                     {"reason", "is no document"}}}}));
    EXPECT_EQ(files[2],
              QJsonValue(QJsonObject{{"file", "odd.json"}, {"exitCode", 3}, {"summary", QJsonObject{{"left", 1}}}}));
    EXPECT_EQ(batchOf({"a.json", "odd.json"}).run(endOf, {}).exitCode, kLeftOut);
    EXPECT_EQ(batchOf({"a.json", "b.json"}).run(endOf, {}).exitCode, kDone);
}

TEST_F(FileBatchTest, resultsOfManyFilesGoIntoADirectoryThatIsMade)
{
    const QString directory = path("made/here");
    const Summary summary = batchOf({"x/a.json", "y/b.v2.json"}, ".svg").run(endOf, into(directory));
    EXPECT_TRUE(QDir(directory).exists());
    const QJsonArray files = summary.json["files"].toArray();
    EXPECT_EQ(files[0].toObject()["summary"].toObject()["output"].toString(), directory + "/a.svg");
    EXPECT_EQ(files[1].toObject()["summary"].toObject()["output"].toString(), directory + "/b.v2.svg");
}

TEST_F(FileBatchTest, nameThatEndsWithASlashIsADirectoryForOneFileToo)
{
    EXPECT_EQ(batchOf({"a.json"}, ".svg").run(endOf, into(path("made/"))).text, "told " + path("made/a.svg"));
}

TEST_F(FileBatchTest, resultsOfTheSameNameAreRefusedBeforeAnythingIsDone)
{
    EXPECT_EQ(clitest::failureOf(
                  [&] {
                      batchOf({"x/a.json", "y/a.json"}, ".svg").run(endOf, into(path("d")));
                  },
                  kWrongUsage),
              ("x/a.json and y/a.json would both be written to " + path("d/a.svg")).toStdString());
}

TEST_F(FileBatchTest, manyResultsNeedADirectory)
{
    FileBatch batch = batchOf({"a.json", "b.json"}, ".svg");
    batch.isOutputRequired = true;
    EXPECT_EQ(clitest::failureOf([&] { batch.run(endOf, {}); }, kWrongUsage),
              "--output is required for several files: a directory");
    EXPECT_EQ(clitest::failureOf([&] { batch.run(endOf, into("-")); }, kWrongUsage),
              "--output -: several files would run into each other");
    write("taken", QByteArray("a file"));
    EXPECT_EQ(clitest::failureOf([&] { batch.run(endOf, into(path("taken"))); }),
              (path("taken") + ": is no directory, as several files need").toStdString());
}

TEST_F(FileBatchTest, wrongUsageEndsTheCommandAtOnce)
{
    EXPECT_EQ(clitest::failureOf(
                  [] {
                      batchOf({"a.json", "b.json"}).run(misused, {});
                  },
                  kWrongUsage),
              "there is no such thing");
}

TEST_F(FileBatchTest, verbWithoutSuchAListRunsOnce) { EXPECT_EQ(FileBatch().run(endOf, into("x")).text, "told x"); }

TEST_F(FileBatchTest, commandGoesThroughManyFilesAndTellsFailuresOnStandardError)
{
    importSmallHouse();
    ASSERT_TRUE(QFile::copy(path("house.hbxdb"), path("barn.hbxdb")));
    const Result result = run({"project", "info", "house.hbxdb", "nowhere.hbxdb", "barn.hbxdb"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.out.startsWith("house.hbxdb:\nSmall house: 1 region")) << result.out.toStdString();
    EXPECT_TRUE(result.out.endsWith("\n3 files: 2 done, 0 with something left out, 1 failed\n"))
        << result.out.toStdString();
    EXPECT_TRUE(result.err.startsWith("orvcad: nowhere.hbxdb: ")) << result.err.toStdString();
    EXPECT_EQ(result.err.count('\n'), 1);

    const Result json = run({"project", "info", "house.hbxdb", "nowhere.hbxdb", "barn.hbxdb", "--json"});
    EXPECT_EQ(json.exitCode, 2);
    EXPECT_TRUE(json.err.isEmpty()) << json.err.toStdString();
    EXPECT_EQ(json.json()["files"].toArray().at(2).toObject()["summary"].toObject()["name"], "Small house");

    const Result quiet = run({"project", "info", "house.hbxdb", "nowhere.hbxdb", "--quiet"});
    EXPECT_TRUE(quiet.out.isEmpty());
    EXPECT_EQ(quiet.err.count('\n'), 1);
}

TEST_F(FileBatchTest, manyVerbsWriteSideBySideIntoOneDirectory)
{
    importSample("masonry-block");
    ASSERT_TRUE(QFile::copy(path("house.hbxdb"), path("barn.hbxdb")));
    const QStringList projects{"house.hbxdb", "barn.hbxdb"};
    const QStringList commands[] = {{"project", "export"},
                                    {"floors", "export"},
                                    {"opening", "export"},
                                    {"opening", "options"},
                                    {"slab", "export", "--floor", "1"},
                                    {"beam", "export"},
                                    {"beam", "identify-input", "--floor", "1"},
                                    {"beam", "seats", "export"},
                                    {"wall", "export", "--kind", "brick", "--floor", "1"},
                                    {"wall", "export", "--kind", "force", "--format", "xml", "--floor", "1"},
                                    {"wall", "reply", "--kind", "brick"},
                                    {"drawing", "make", "--floor", "1"},
                                    {"draw", "--floor", "1"}};
    for (const QStringList &command : commands)
        EXPECT_EQ(run(command + projects + QStringList{"-o", "out"}).exitCode, 0) << command.join(' ').toStdString();
    EXPECT_EQ(QDir(path("out")).entryList({"barn.*"}, QDir::Files, QDir::Name).join(' ').toStdString(),
              "barn.beam-input.json barn.beams.json barn.brick-wall-reply.json barn.brick-walls.json barn.cadi2 "
              "barn.floors.json barn.force-walls.xml barn.json barn.opening-options.json barn.openings.json "
              "barn.seats.json barn.slabs.json barn.svg");
    EXPECT_EQ(read("out/barn.beams.json"), read("out/house.beams.json"));
    EXPECT_EQ(run({"beam", "export", "house.hbxdb"}).out, read("out/house.beams.json"));

    EXPECT_EQ(run({"project", "import", "out/barn.json", "out/house.json", "-o", "back/"}).exitCode, 0);
    EXPECT_EQ(run({"project", "info", "back/barn.hbxdb", "--json"}).json()["name"], "Masonry block");
    EXPECT_EQ(run({"floors", "show", "out/barn.floors.json", "out/house.floors.json"}).exitCode, 0);
    EXPECT_EQ(run({"drawing", "show", "out/barn.cadi2", "out/house.cadi2"}).exitCode, 0);
}

} // namespace
