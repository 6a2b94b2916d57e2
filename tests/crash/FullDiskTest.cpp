#include "FileHarmFixture.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

using namespace crashtest;

namespace {

class FullDiskTest : public FileHarmFixture
{
protected:
    void SetUp() override { makeHouse(); }
};

/** Disks of few bytes, seen by the test and its children alone, and gone with them. */
class SmallDiskTest : public FullDiskTest
{
protected:
    static constexpr qint64 kBytes = 4 << 20;

    void SetUp() override
    {
        FullDiskTest::SetUp();
        if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            GTEST_SKIP() << "no mounts of our own: " << std::strerror(errno);
        const Files files = filesIn(folder());
        const QByteArray options = "mode=0755,size=" + QByteArray::number(kBytes);
        if (mount("none", qPrintable(folder()), "tmpfs", MS_NOSUID | MS_NODEV, options.constData()) != 0)
            GTEST_SKIP() << "no tmpfs: " << std::strerror(errno);
        m_isMounted = true;
        for (auto file = files.begin(); file != files.end(); ++file)
            write(file.key(), file.value());
    }
    void TearDown() override
    {
        if (m_isMounted)
            umount2(qPrintable(folder()), MNT_DETACH);
    }
    qint64 freeBytes() const
    {
        struct statvfs disk;
        EXPECT_EQ(statvfs(qPrintable(folder()), &disk), 0);
        return static_cast<qint64>(disk.f_bavail * disk.f_bsize);
    }
    /** Leaves so many bytes. */
    void fillUpTo(qint64 left)
    {
        QFile::remove(path("ballast"));
        write("ballast", QByteArray(static_cast<int>(std::max<qint64>(freeBytes() - left, 0)), 'x'));
        EXPECT_LE(freeBytes(), left);
    }

private:
    bool m_isMounted = false;
};

} // namespace

TEST_F(FullDiskTest, fileThatMayNotGrowStaysAsItIs)
{
    leaveCountsOut();
    for (const rlim_t limit : {0, 1000})
        forEachWriter([&](const Writer &writer) { expectUnharmed(writer, [&] { limitFiles(limit); }); });
}

/** With every limit the command is done, or has done nothing. A limit below the size that a file has keeps SQLite from
 *  taking back what it wrote before; the next opening does so. */
TEST_F(FullDiskTest, commandWithLittleRoomIsDoneWholeOrNotAtAll)
{
    leaveCountsOut();
    const Files before = filesIn(folder());
    forEachWriter([&](const Writer &writer) {
        const auto size = static_cast<rlim_t>(sizeOfResult(writer));
        for (const rlim_t part : {1, 2, 3, 4, 5}) {
            const Result result = run(writer.arguments, [&] { limitFiles(size / 4 * part); });
            EXPECT_EQ(run({"project", "info", "house.hbxdb"}).exitCode, 0) << part;
            if (result.exitCode == 2) {
                EXPECT_LT(part, 5U);
                expectPlainMessage(result, writer.file);
                EXPECT_EQ(changesOf(before, filesIn(folder())), "") << part;
            } else {
                EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 3) << result.err.toStdString();
                EXPECT_GT(part, 2U);
                EXPECT_EQ(changesOf(before, filesIn(folder())), std::string(writer.file) + " is changed") << part;
                restore(before);
            }
        }
    });
}

TEST_F(SmallDiskTest, fullDiskIsToldAndNothingIsHarmed)
{
    fillUpTo(0);
    forEachWriter([&](const Writer &writer) { expectUnharmed(writer, {}); });
}

TEST_F(SmallDiskTest, diskThatFillsOnTheWayIsToldAndNothingIsHarmed)
{
    for (const qint64 left : {4096, 16384, 65536}) {
        fillUpTo(left);
        const Files before = filesIn(folder());
        forEachWriter([&](const Writer &writer) {
            const Result result = run(writer.arguments);
            if (result.exitCode == 2)
                expectPlainMessage(result, writer.file);
            EXPECT_EQ(changesOf(before, filesIn(folder())),
                      result.exitCode == 2 ? "" : std::string(writer.file) + " is changed")
                << left;
            QFile::remove(path("ballast")); // room for looking at it and putting it back
            EXPECT_EQ(run({"project", "info", "house.hbxdb"}).exitCode, 0);
        });
    }
}
