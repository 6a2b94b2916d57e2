#include "CliFixture.h"

#include <sqlite3.h>

#include <memory>

namespace {

struct CloseDatabase
{
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

/** Every verb that opens a project file, told what to do if the file were sound. */
const QStringList kVerbs[] = {
    {"project", "info", "house.hbxdb"},
    {"project", "export", "house.hbxdb", "-o", "out"},
    {"floors", "export", "house.hbxdb", "-o", "out"},
    {"opening", "export", "house.hbxdb", "-o", "out"},
    {"opening", "options", "house.hbxdb", "-o", "out"},
    {"opening", "apply", "house.hbxdb", "reply.json"},
    {"drawing", "make", "house.hbxdb", "--floor", "1", "-o", "out"},
    {"draw", "house.hbxdb", "--floor", "1", "-o", "out"},
};

class ProjectFileRefusalTest : public CliFixture
{
protected:
    void SetUp() override
    {
        importSmallHouse();
        writeReply({elementMember("M1"), placedMember("M1", 1000, 0)});
    }
    Database openDatabase() const
    {
        sqlite3 *database = nullptr;
        EXPECT_EQ(sqlite3_open(path("house.hbxdb").toUtf8().constData(), &database), SQLITE_OK);
        return Database(database);
    }
    static void execute(const Database &database, const char *sql)
    {
        char *message = nullptr;
        EXPECT_EQ(sqlite3_exec(database.get(), sql, nullptr, nullptr, &message), SQLITE_OK) << sql << ": " << message;
        sqlite3_free(message);
    }
    QByteArray bytesOfProject() const
    {
        return QFileInfo(path("house.hbxdb")).isFile() ? read("house.hbxdb") : QByteArray();
    }
    /** Every verb must refuse the file and write no result. */
    void expectRefusals() const
    {
        for (const QStringList &verb : kVerbs) {
            refusal(verb, "house.hbxdb");
            EXPECT_FALSE(exists("out")) << verb.join(' ').toStdString();
        }
    }
    /** Every verb must refuse the file, leave it as it is and write no result. */
    void everyVerbRefuses() const
    {
        const bool there = exists("house.hbxdb");
        const QByteArray before = bytesOfProject();
        expectRefusals();
        EXPECT_EQ(exists("house.hbxdb"), there);
        EXPECT_EQ(bytesOfProject(), before);
    }
};

TEST_F(ProjectFileRefusalTest, missingFileIsRefusedAndNotMade)
{
    ASSERT_TRUE(QFile::remove(path("house.hbxdb")));
    everyVerbRefuses();
}

TEST_F(ProjectFileRefusalTest, emptyFileIsRefused)
{
    write("house.hbxdb", QByteArray());
    everyVerbRefuses();
    EXPECT_EQ(QFileInfo(path("house.hbxdb")).size(), 0);
}

TEST_F(ProjectFileRefusalTest, fileThatIsNoDatabaseIsRefused)
{
    write("house.hbxdb", QByteArray("this is a letter, not a building\n").repeated(200));
    everyVerbRefuses();
}

TEST_F(ProjectFileRefusalTest, buildingFileInPlaceOfAProjectIsRefused)
{
    write("house.hbxdb", read("house.json"));
    everyVerbRefuses();
}

TEST_F(ProjectFileRefusalTest, databaseOfSomethingElseIsRefused)
{
    ASSERT_TRUE(QFile::remove(path("house.hbxdb")));
    execute(openDatabase(), "CREATE TABLE songs(title TEXT); INSERT INTO songs VALUES('Greensleeves')");
    everyVerbRefuses();
}

TEST_F(ProjectFileRefusalTest, truncatedFileIsRefused)
{
    const QByteArray whole = read("house.hbxdb");
    for (const int part : {2, 3, 10}) {
        write("house.hbxdb", whole.left(whole.size() / part));
        everyVerbRefuses();
    }
}

TEST_F(ProjectFileRefusalTest, fileOverwrittenInTheMiddleIsRefused)
{
    QByteArray damaged = read("house.hbxdb");
    damaged.replace(4096, damaged.size() - 4096, QByteArray(damaged.size() - 4096, '\xA5'));
    write("house.hbxdb", damaged);
    everyVerbRefuses();
}

TEST_F(ProjectFileRefusalTest, fileOfANewerVersionIsRefused)
{
    execute(openDatabase(), "PRAGMA user_version = 999");
    everyVerbRefuses();
    EXPECT_TRUE(refusal({"project", "info", "house.hbxdb"}, "house.hbxdb")["reason"].toString().contains("newer"));
}

TEST_F(ProjectFileRefusalTest, directoryIsRefused)
{
    ASSERT_TRUE(QFile::remove(path("house.hbxdb")));
    ASSERT_TRUE(QDir().mkdir(path("house.hbxdb")));
    everyVerbRefuses();
}

// While a test holds a lock it must not open the file itself: a process loses its locks when it closes any handle of a
// file.
TEST_F(ProjectFileRefusalTest, fileThatAnotherProcessIsWritingIsRefusedInPlainWords)
{
    const QByteArray before = bytesOfProject();
    const Database other = openDatabase();
    execute(other, "BEGIN EXCLUSIVE");
    expectRefusals();
    const Result result = run({"project", "info", "house.hbxdb"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.err.trimmed(), "orvcad: house.hbxdb: is being written by another program");
    execute(other, "ROLLBACK");
    EXPECT_EQ(bytesOfProject(), before);
    EXPECT_EQ(run({"project", "info", "house.hbxdb"}).exitCode, 0);
}

TEST_F(ProjectFileRefusalTest, saveIntoAFileThatAnotherProcessIsAboutToWriteIsRefused)
{
    const QByteArray before = bytesOfProject();
    const Database other = openDatabase();
    execute(other, "BEGIN IMMEDIATE");
    EXPECT_EQ(refusal({"opening", "apply", "house.hbxdb", "reply.json"}, "house.hbxdb")["reason"],
              "is being written by another program");
    execute(other, "ROLLBACK");
    EXPECT_EQ(bytesOfProject(), before);
    EXPECT_EQ(run({"opening", "apply", "house.hbxdb", "reply.json"}).exitCode, 0);
}

TEST_F(ProjectFileRefusalTest, importOverAFileThatAnotherProcessIsWritingIsRefused)
{
    const QByteArray before = bytesOfProject();
    const Database other = openDatabase();
    execute(other, "BEGIN EXCLUSIVE");
    refusal({"project", "import", "house.json", "-o", "house.hbxdb"}, "house.hbxdb");
    execute(other, "ROLLBACK");
    EXPECT_EQ(bytesOfProject(), before);
}

} // namespace
