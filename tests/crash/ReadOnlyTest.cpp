#include "FileHarmFixture.h"

#include <sys/stat.h>

using namespace crashtest;

namespace {

/** Runs commands as somebody whom the modes of files stop. */
class ReadOnlyTest : public FileHarmFixture
{
protected:
    void SetUp() override
    {
        makeHouse();
        leaveCountsOut();
        give(folder());
        for (const QString &name : filesIn(folder()).keys())
            give(path(name));
        if (run({"--version"}, dropRights).exitCode != 0)
            GTEST_SKIP() << "the command cannot be run without the rights of root";
    }
    void TearDown() override { chmod(qPrintable(folder()), 0700); }

    static void give(const QString &path)
    {
        if (geteuid() == 0) {
            EXPECT_EQ(chown(qPrintable(path), kNobody, kNobody), 0) << path.toStdString();
        }
    }
    void setMode(const QString &name, mode_t mode) const { EXPECT_EQ(chmod(qPrintable(path(name)), mode), 0); }
};

} // namespace

TEST_F(ReadOnlyTest, readOnlyFileIsNotWrittenAndNotReplaced)
{
    forEachWriter([&](const Writer &writer) {
        setMode(writer.file, 0444);
        expectUnharmed(writer, dropRights);
        setMode(writer.file, 0644);
    });
}

TEST_F(ReadOnlyTest, fileInAReadOnlyFolderIsNotWritten)
{
    setMode(".", 0555);
    forEachWriter([&](const Writer &writer) { expectUnharmed(writer, dropRights); });
}

TEST_F(ReadOnlyTest, fileThatMayBeWrittenIs)
{
    forEachWriter([&](const Writer &writer) {
        const Files before = filesIn(folder());
        const Result result = run(writer.arguments, dropRights);
        EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 3) << result.err.toStdString();
        EXPECT_EQ(changesOf(before, filesIn(folder())), std::string(writer.file) + " is changed");
        restore(before);
        give(path(writer.file));
    });
}

TEST_F(ReadOnlyTest, fileThatMayNotBeReadIsTold)
{
    setMode("house.hbxdb", 0000);
    EXPECT_EQ(run({"project", "info", "house.hbxdb"}, dropRights).err,
              "orvcad: house.hbxdb: cannot be read: Permission denied\n");
    setMode("house.json", 0000);
    EXPECT_EQ(run({"project", "import", "house.json", "-o", "other.hbxdb"}, dropRights).err,
              "orvcad: house.json: Permission denied\n");
    EXPECT_FALSE(exists("other.hbxdb"));
}

TEST_F(ReadOnlyTest, readOnlyProjectInAReadOnlyFolderIsRead)
{
    setMode("house.hbxdb", 0444);
    setMode(".", 0555);
    EXPECT_EQ(run({"project", "info", "house.hbxdb"}, dropRights).exitCode, 0);
}
