#include "FileHarmFixture.h"
#include "platform/embedded/HBXProject.h"

#include <fcntl.h>

using namespace crashtest;

namespace {

void closeOutput() { close(STDOUT_FILENO); }

void fillOutput()
{
    const int full = open("/dev/full", O_WRONLY);
    if (full == -1)
        _exit(127);
    dup2(full, STDOUT_FILENO);
    close(full);
}

/** A pipe that nobody reads. */
void breakOutput()
{
    int ends[2];
    if (pipe(ends) != 0)
        _exit(127);
    close(ends[0]);
    dup2(ends[1], STDOUT_FILENO);
    close(ends[1]);
}

/** An output that takes nothing. */
struct Output
{
    const char *name;
    void (*make)();
    const char *reason;
};

void PrintTo(const Output &output, std::ostream *out) { *out << output.name; }

const Output kOutputs[] = {
    {"closed", closeOutput, "Bad file descriptor"},
    {"full", fillOutput, "No space left on device"},
    {"broken", breakOutput, "Broken pipe"},
};

class StandardStreamTest : public FileHarmFixture, public ::testing::WithParamInterface<Output>
{
protected:
    void SetUp() override { makeHouse(); }

    /** The message about standard output, with what is done all the same. */
    static std::string message(const char *standing = "")
    {
        return std::string("orvcad: standard output: cannot be written: ") + GetParam().reason + standing + '\n';
    }
    Result fail(const QStringList &arguments) const
    {
        Result result = run(arguments, GetParam().make);
        EXPECT_EQ(result.exitCode, 2) << arguments.join(' ').toStdString();
        return result;
    }
};

} // namespace

TEST_P(StandardStreamTest, resultThatIsNotTakenIsTold)
{
    const Files before = filesIn(folder());
    const QStringList commands[] = {
        {"project", "export", "house.hbxdb"},
        {"project", "export", "house.hbxdb", "-o", "-"},
        {"project", "info", "house.hbxdb"},
        {"project", "info", "house.hbxdb", "--json", "--quiet"},
        {"wall", "reply", "house.hbxdb", "--kind", "brick"},
        {"drawings", "words", "3"},
    };
    for (const QStringList &command : commands)
        EXPECT_NE(fail(command).err.indexOf(GetParam().reason), -1) << command.join(' ').toStdString();
    EXPECT_EQ(changesOf(before, filesIn(folder())), "");
}

TEST_P(StandardStreamTest, helpAndVersionThatAreNotTakenAreTold)
{
    for (const char *request : {"--version", "--help"})
        EXPECT_EQ(fail({request}).err.toStdString(), message());
}

TEST_P(StandardStreamTest, errorIsAnObjectWithJson)
{
    const Result result = fail({"project", "info", "house.hbxdb", "--json"});
    EXPECT_EQ(result.error()["file"], "standard output");
    EXPECT_EQ(result.error()["reason"], QString("cannot be written: ") + GetParam().reason);
}

TEST_P(StandardStreamTest, whatIsWrittenIntoAFileStaysWhole)
{
    const QByteArray whole = run({"project", "export", "house.hbxdb"}).out;
    EXPECT_EQ(fail({"project", "export", "house.hbxdb", "-o", "result"}).err.toStdString(),
              message("; result is written all the same"));
    EXPECT_TRUE(read("result") == whole) << "something else stands in the file";
}

TEST_P(StandardStreamTest, projectIsWholeWhenTheSummaryIsNotTaken)
{
    const QByteArray before = read("house.hbxdb");
    for (const Writer &writer : kWriters) {
        write("house.hbxdb", before);
        if (!writer.arguments.contains("apply"))
            continue;
        EXPECT_EQ(fail(writer.arguments).err.toStdString(), message("; the project is saved all the same"))
            << writer.name;
        EXPECT_FALSE(read("house.hbxdb") == before) << writer.name;
        EXPECT_EQ(run({"project", "info", "house.hbxdb"}).exitCode, 0) << writer.name;
    }
}

TEST_P(StandardStreamTest, importedProjectIsWholeWhenTheSummaryIsNotTaken)
{
    const QByteArray before = run({"project", "export", "house.hbxdb"}).out;
    EXPECT_EQ(fail({"project", "import", "house.json", "-o", "other.hbxdb"}).err.toStdString(),
              message("; other.hbxdb is written all the same"));
    EXPECT_EQ(run({"project", "export", "other.hbxdb"}).out, before);
}

TEST_P(StandardStreamTest, idsThatAreNotTakenKeepSlabsFromBeingSaved)
{
    const Files before = filesIn(folder());
    EXPECT_EQ(fail(kWriters[1].arguments + QStringList{"--ids", "-"}).err.toStdString(), message());
    EXPECT_EQ(changesOf(before, filesIn(folder())), "");
}

INSTANTIATE_TEST_SUITE_P(Outputs, StandardStreamTest, ::testing::ValuesIn(kOutputs), nameOf<Output>);

TEST_F(StandardStreamTest, outputCarriesTheResultAlone)
{
    ASSERT_EQ(run({"project", "export", "house.hbxdb", "-o", "result"}).exitCode, 0);
    for (const QStringList &flags : {QStringList(), QStringList("--json"), QStringList("--quiet")}) {
        const Result result = run(QStringList{"project", "export", "house.hbxdb"} + flags);
        EXPECT_TRUE(result.out == read("result")) << flags.join(' ').toStdString();
        EXPECT_EQ(result.err.isEmpty(), flags.contains("--quiet")) << result.err.toStdString();
    }
}

TEST_F(StandardStreamTest, filesStayWholeWhenAllStandardStreamsAreClosed)
{
    const auto closeAll = [] {
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            close(stream);
    };
    const QByteArray whole = run({"project", "export", "house.hbxdb"}).out;
    EXPECT_EQ(run({"project", "export", "house.hbxdb", "-o", "result", "--quiet"}, closeAll).exitCode, 0);
    EXPECT_TRUE(read("result") == whole);
    EXPECT_EQ(run({"project", "import", "house.json", "-o", "other.hbxdb"}, closeAll).exitCode, 2);
    EXPECT_EQ(run({"project", "export", "other.hbxdb"}).out, whole);
}
