#include "FileHarmFixture.h"
#include "embedded/ProjectFiles.h"

#include <sys/stat.h>

#include <cstdio>

using namespace crashtest;
using projecttest::OtherProgram;

namespace {

class FilesInUseTest : public FileHarmFixture
{
protected:
    void SetUp() override { makeHouse(); }
};

/** Things that happen between the moment a command has opened its project and the moment it saves: the command waits in
 *  between for its reply, out of a pipe. */
class OpenProjectTest : public FileHarmFixture
{
protected:
    void SetUp() override
    {
        makeHouse();
        ASSERT_EQ(mkfifo(qPrintable(path("reply")), 0600), 0);
    }
    void TearDown() override { QFile::remove(path("reply")); }

    /** Runs an apply, and the event in its middle. */
    Result applyWith(const std::function<void()> &event) const
    {
        QProcess process;
        start(process, {"opening", "apply", "house.hbxdb", "reply"});
        QFile reply(path("reply"));
        EXPECT_TRUE(reply.open(QIODevice::WriteOnly)); // waits until the command opens it to read
        event();
        reply.write(read("openings.json"));
        reply.close();
        return resultOf(process);
    }
    /** The command is refused for that reason, and what the event has put there stays. */
    void expectRefused(const char *reason, const std::function<void()> &event) const
    {
        QByteArray there;
        const Result result = applyWith([&] {
            event();
            there = bytesOfProject();
        });
        EXPECT_EQ(result.exitCode, 2) << result.err.toStdString();
        EXPECT_EQ(result.err.toStdString(), std::string("orvcad: house.hbxdb: ") + reason + '\n');
        EXPECT_TRUE(bytesOfProject() == there);
    }
    QByteArray bytesOfProject() const
    {
        return QFileInfo(path("house.hbxdb")).isFile() ? read("house.hbxdb") : QByteArray();
    }
    void putInPlace(const QString &name) const
    {
        EXPECT_EQ(std::rename(qPrintable(path(name)), qPrintable(path("house.hbxdb"))), 0);
    }
};

} // namespace

// While a test holds a lock it must not open the file itself: a process loses its locks when it closes any handle of a
// file.
TEST_F(FilesInUseTest, projectThatAnotherProgramWritesIsLeftAlone)
{
    const Files before = filesIn(folder());
    {
        OtherProgram other(path("house.hbxdb"));
        other.run("BEGIN IMMEDIATE");
        for (const Writer &writer : kWriters) {
            const Result result = run(writer.arguments);
            EXPECT_EQ(result.exitCode, 2) << writer.name;
            EXPECT_EQ(result.err, "orvcad: house.hbxdb: is being written by another program\n") << writer.name;
            EXPECT_EQ(result.out, "") << writer.name;
        }
        other.run("ROLLBACK");
    }
    EXPECT_EQ(changesOf(before, filesIn(folder())), "");
}

TEST_F(OpenProjectTest, replyOutOfAPipeIsApplied)
{
    const Result result = applyWith([] {});
    EXPECT_NE(result.exitCode, 2) << result.err.toStdString();
}

TEST_F(OpenProjectTest, projectThatIsReplacedByAnotherOneIsNotSavedOver)
{
    ASSERT_EQ(run({"project", "import", "house.json", "-o", "other.hbxdb"}).exitCode, 0);
    expectRefused("was changed by another program since it was opened", [&] { putInPlace("other.hbxdb"); });
}

TEST_F(OpenProjectTest, projectThatIsReplacedBySomethingElseIsNotSavedOver)
{
    write("letter", QByteArray("this is a letter, not a building\n").repeated(200));
    expectRefused("is no project file", [&] { putInPlace("letter"); });
}

TEST_F(OpenProjectTest, projectThatIsTakenAwayIsNotMadeAnew)
{
    expectRefused("does not exist", [&] { QFile::remove(path("house.hbxdb")); });
    EXPECT_FALSE(exists("house.hbxdb"));
}

TEST_F(OpenProjectTest, projectInPlaceOfWhichStandsAFolderIsTold)
{
    expectRefused("is no file", [&] {
        QFile::remove(path("house.hbxdb"));
        QDir().mkdir(path("house.hbxdb"));
    });
}

TEST_F(OpenProjectTest, copyOfTheProjectInItsPlaceIsSavedInto)
{
    ASSERT_TRUE(QFile::copy(path("house.hbxdb"), path("copy.hbxdb")));
    const QByteArray before = bytesOfProject();
    EXPECT_NE(applyWith([&] { putInPlace("copy.hbxdb"); }).exitCode, 2);
    EXPECT_FALSE(bytesOfProject() == before);
}

TEST_F(OpenProjectTest, projectThatAnotherProgramBeginsToWriteIsLeftAlone)
{
    const QByteArray before = bytesOfProject();
    {
        OtherProgram other(path("house.hbxdb"));
        const Result result = applyWith([&] { other.run("BEGIN IMMEDIATE"); });
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.err, "orvcad: house.hbxdb: is being written by another program\n");
        other.run("ROLLBACK");
    }
    EXPECT_TRUE(bytesOfProject() == before);
}

TEST_F(FilesInUseTest, importOverAnInterruptedSaveTakesItsJournalAway)
{
    // What a killed save leaves: pages of it in the file, and the journal that takes them back.
    const QByteArray before = read("house.hbxdb");
    {
        OtherProgram other(path("house.hbxdb"));
        other.run(
            "PRAGMA cache_size=1; BEGIN; UPDATE draw_object SET layer = 7; UPDATE element SET sub_type = 7; UPDATE "
            "shape SET height = 7");
        write("torn.hbxdb", read("house.hbxdb"));
        write("torn.hbxdb-journal", read("house.hbxdb-journal"));
        other.run("ROLLBACK");
    }
    ASSERT_FALSE(read("torn.hbxdb") == before) << "nothing of the save has reached the file";
    EXPECT_EQ(run({"project", "import", "house.json", "-o", "torn.hbxdb"}).exitCode, 0);
    EXPECT_FALSE(exists("torn.hbxdb-journal")); // it would put pages of the old file into the new one
    EXPECT_EQ(run({"project", "export", "torn.hbxdb", "-o", "torn.json"}).exitCode, 0);
    EXPECT_EQ(run({"project", "export", "house.hbxdb", "-o", "whole.json"}).exitCode, 0);
    EXPECT_TRUE(read("torn.json") == read("whole.json"));
}

TEST_F(FilesInUseTest, idsOfSlabsThatAreNotSavedLeaveTheirFileAsItIs)
{
    leaveCountsOut();
    Writer apply = kWriters[1];
    apply.arguments += {"--ids", "result"};
    expectUnharmed(apply, [] { limitFiles(1000); });
    write("result", QByteArray());
    EXPECT_NE(run(apply.arguments).exitCode, 2);
    EXPECT_NE(readJson("result").object().size(), 0);
}

TEST_F(FilesInUseTest, pipeInPlaceOfAResultGetsTheResult)
{
    const QByteArray whole = run({"project", "export", "house.hbxdb"}).out;
    ASSERT_EQ(mkfifo(qPrintable(path("pipe")), 0600), 0);
    QProcess process;
    start(process, {"project", "export", "house.hbxdb", "-o", "pipe"});
    QFile pipe(path("pipe"));
    ASSERT_TRUE(pipe.open(QIODevice::ReadOnly));
    EXPECT_EQ(pipe.readAll(), whole);
    EXPECT_EQ(resultOf(process).exitCode, 0);
    struct stat info;
    ASSERT_EQ(stat(qPrintable(path("pipe")), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));
}

TEST_F(FilesInUseTest, projectAndDrawingDoNotTakeThePlaceOfAPipe)
{
    ASSERT_EQ(mkfifo(qPrintable(path("pipe")), 0600), 0);
    EXPECT_EQ(run({"project", "import", "house.json", "-o", "pipe"}).err, "orvcad: pipe: is no file\n");
    EXPECT_EQ(run({"drawing", "make", "house.hbxdb", "--region", kRegion, "--floor", "1", "-o", "pipe"}).err,
              "orvcad: pipe: is no file\n");
    struct stat info;
    ASSERT_EQ(stat(qPrintable(path("pipe")), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));
}
