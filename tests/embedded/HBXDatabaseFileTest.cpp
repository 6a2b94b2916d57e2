#include "platform/embedded/HBXDatabaseFile.h"

#include "embedded/ProjectFiles.h"

#include <random>

#include <sys/wait.h>
#include <unistd.h>

using namespace projecttest;
using exchangetest::building;
using hbx::embedded::HBXDatabaseFile;
using hbx::embedded::ProjectError;
using hbx::embedded::ProjectRecord;
using hbx::embedded::ProjectUpdate;

namespace {

class HBXDatabaseFileTest : public ProjectFileTest
{};

class HBXDatabaseFileSaveTest : public SavedFileTest
{};

/** Ends the process in the middle of a transaction, when so many rows are written and part of them stand in the file. */
int s_rowsBeforeTheEnd = 0;

void countRow(void *, int, const char *, const char *, sqlite3_int64)
{
    if (--s_rowsBeforeTheEnd == 0)
        _exit(0);
}

int endInTheMiddle(sqlite3 *handle, const char **, const sqlite3_api_routines *)
{
    sqlite3_update_hook(handle, countRow, nullptr);
    return sqlite3_exec(handle, "PRAGMA cache_size=5", nullptr, nullptr, nullptr); // pages, so that many go out early
}

} // namespace

TEST_F(HBXDatabaseFileTest, whatWasWrittenIsReadAgain)
{
    for (const char *name : {"duplex-apartment", "masonry-block", "precast-hall", "made-building"}) {
        const std::string written = contentOf(makeFile(building(name)));
        EXPECT_TRUE(content() == written) << name;
    }
}

TEST_F(HBXDatabaseFileTest, whatIsNoProjectFileIsRefused)
{
    EXPECT_EQ(refusal(), "does not exist");
    writeFile("");
    EXPECT_EQ(refusal(), "is empty");
    writeFile("{\"format\": \"hbx-project\"}");
    EXPECT_EQ(refusal(), "is no project file");
    writeFile(QByteArray("SQLite format 3\0", 16));
    EXPECT_EQ(refusal(), "is damaged: it ends in its header");
    QFile::remove(path());
    changeFile("CREATE TABLE t(x)");
    EXPECT_EQ(refusal(), "is an SQLite file, but no project file");
    ProjectError error;
    EXPECT_FALSE(HBXDatabaseFile(m_folder.path()).read(error));
    EXPECT_EQ(error.reason, QString("is no file"));
}

TEST_F(HBXDatabaseFileTest, aTruncatedFileIsRefused)
{
    makeFile(building("made-building"));
    const QByteArray whole = bytes();
    for (int size = 1; size < whole.size(); size += whole.size() / 97) {
        writeFile(whole.left(size));
        ASSERT_NE(refusal(), "read") << size;
    }
}

TEST_F(HBXDatabaseFileTest, aFileWithFlippedBitsIsReadOrRefusedAndNeverTouched)
{
    makeFile();
    const QByteArray whole = bytes();
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> place(0, whole.size() - 1);
    std::uniform_int_distribution<int> bit(0, 7);
    for (int i = 0; i < 400; ++i) {
        QByteArray damaged = whole;
        for (int flips = 0; flips <= i % 4; ++flips) {
            const int at = place(random);
            damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit(random)));
        }
        writeFile(damaged);
        refusal();
    }
}

TEST_F(HBXDatabaseFileSaveTest, aFileThatAnotherProgramWritesIsNeitherReadNorSavedNorReplaced)
{
    for (const char *begin : {"BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
        OtherProgram other(path());
        other.run(begin);
        EXPECT_EQ(refusal(), "is being written by another program") << begin;
        EXPECT_FALSE(file.save(update, error)) << begin;
        EXPECT_EQ(error.reason, QString("is being written by another program"));
        EXPECT_FALSE(HBXDatabaseFile(path()).create(project, error)) << begin;
        EXPECT_EQ(error.reason, QString("is being written by another program"));
        other.run("ROLLBACK");
    }
    EXPECT_TRUE(file.save(update, error)) << error.text().toStdString();
}

TEST_F(HBXDatabaseFileTest, aSecondReaderDoesNotHinder)
{
    makeFile();
    OtherProgram other(path());
    other.run("BEGIN; SELECT * FROM project");
    EXPECT_EQ(refusal(), "read");
}

TEST_F(HBXDatabaseFileSaveTest, aSaveThatWouldLeaveAReferenceToNothingIsRefused)
{
    const QByteArray before = bytes();
    update.removedDrawObjs = {14}; // the wall of door 15
    EXPECT_FALSE(file.save(update, error));
    EXPECT_EQ(error.place, QString("draw_object[id=15]"));
    EXPECT_EQ(error.reason, QString("would name an object that is gone"));
    EXPECT_TRUE(bytes() == before);
}

TEST_F(HBXDatabaseFileSaveTest, aFileThatSomebodyElseSavedIsNotSavedOver)
{
    HBXDatabaseFile other(path());
    ASSERT_TRUE(other.read(error));
    ASSERT_TRUE(other.save(update, error));
    const QByteArray before = bytes();
    EXPECT_FALSE(file.save(update, error));
    EXPECT_EQ(error.reason, QString("was changed by another program since it was opened"));
    EXPECT_TRUE(bytes() == before);
    EXPECT_TRUE(other.save(update, error)) << "knows its own save";
}

TEST_F(HBXDatabaseFileTest, aProcessThatEndsInTheMiddleOfASaveLeavesTheOldState)
{
    const ProjectRecord project = makeFile(building("duplex-apartment"));
    const std::string before = contentOf(project);
    for (const int rows : {100, 200, 300}) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ProjectError error;
            HBXDatabaseFile file(path());
            auto content = file.read(error);
            ProjectUpdate update = updateOf(*content);
            update.content.elements = content->elements;
            update.content.drawObjs = content->drawObjs;
            for (auto &drawObj : update.content.drawObjs)
                drawObj.layer = 99;
            s_rowsBeforeTheEnd = rows;
            sqlite3_auto_extension(reinterpret_cast<void (*)()>(endInTheMiddle));
            file.save(update, error);
            _exit(1); // the save came to its end
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_EQ(WEXITSTATUS(status), 0) << rows;
        EXPECT_TRUE(QFile::exists(path() + "-journal")) << "nothing was interrupted after " << rows;
        EXPECT_TRUE(content() == before) << rows;
        EXPECT_EQ(filesInFolder(), QStringList("house.hbxdb")) << rows;
    }
}

TEST_F(HBXDatabaseFileTest, aFileIsReplacedWholeAndItsLeftoversGo)
{
    makeFile();
    QFile journal(path() + "-journal");
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    journal.write("left by somebody");
    journal.close();
    const ProjectRecord other = makeFile(building("precast-hall"));
    EXPECT_TRUE(content() == contentOf(other));
    EXPECT_EQ(filesInFolder(), QStringList("house.hbxdb"));
}

TEST_F(HBXDatabaseFileTest, aFailedCreationLeavesNothingBehind)
{
    ProjectError error;
    EXPECT_FALSE(HBXDatabaseFile(path("nowhere/house.hbxdb")).create(ProjectRecord(), error));
    EXPECT_EQ(error.reason, QString("cannot be written: No such file or directory"));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder"));
    EXPECT_FALSE(HBXDatabaseFile(path("folder")).create(ProjectRecord(), error));
    EXPECT_EQ(error.reason, QString("is a directory"));
    EXPECT_EQ(filesInFolder(), QStringList());
}

TEST_F(HBXDatabaseFileTest, aLinkStaysALinkWhenTheFileBehindItIsReplaced)
{
    makeFile();
    ASSERT_TRUE(QFile::link(path(), path("link.hbxdb")));
    const ProjectRecord other = exchangetest::recordOf(building("precast-hall"));
    ProjectError error;
    ASSERT_TRUE(HBXDatabaseFile(path("link.hbxdb")).create(other, error));
    EXPECT_TRUE(QFileInfo(path("link.hbxdb")).isSymLink());
    EXPECT_TRUE(content() == contentOf(other));
}
