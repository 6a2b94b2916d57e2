#include "platform/embedded/SqliteConnection.h"

#include "embedded/ProjectFiles.h"

using namespace projecttest;
using hbx::embedded::SqliteConnection;
using hbx::embedded::SqliteError;
using hbx::embedded::SqliteTransaction;

namespace {

class SqliteConnectionTest : public ProjectFileTest
{
protected:
    SqliteConnectionTest()
    {
        changeFile("CREATE TABLE t(x); INSERT INTO t VALUES(5); CREATE VIEW v AS SELECT x FROM t");
    }
    static SqliteError errorOf(SqliteConnection &connection, const char *sql)
    {
        try {
            connection.run(sql);
            return {};
        } catch (const SqliteError &error) {
            return error;
        }
    }
    std::string value(const char *sql) { return OtherProgram(path()).value(sql); }
};

} // namespace

TEST_F(SqliteConnectionTest, aFileIsMadeOnlyWhereThatIsAsked)
{
    EXPECT_THROW(SqliteConnection(path("none.hbxdb"), SqliteConnection::kRead), SqliteError);
    EXPECT_THROW(SqliteConnection(path("none.hbxdb"), SqliteConnection::kWrite), SqliteError);
    SqliteConnection(path("new.hbxdb"), SqliteConnection::kCreate).run("CREATE TABLE t(x)");
    EXPECT_TRUE(QFile::exists(path("new.hbxdb")));
}

TEST_F(SqliteConnectionTest, whoReadsCannotWrite)
{
    SqliteConnection reader(path(), SqliteConnection::kRead);
    const SqliteError error = errorOf(reader, "DELETE FROM t");
    EXPECT_EQ(error.code, SQLITE_READONLY);
    EXPECT_EQ(error.message, QString("attempt to write a readonly database"));
    EXPECT_FALSE(error.isBusy());
    EXPECT_FALSE(error.needsRollback());
}

TEST_F(SqliteConnectionTest, whatAFileBringsAlongIsNotRun)
{
    SqliteConnection connection(path(), SqliteConnection::kWrite);
    EXPECT_NE(errorOf(connection, "SELECT * FROM v").code, 0) << "a view";
    EXPECT_NE(errorOf(connection, "SELECT load_extension('x')").code, 0);
    EXPECT_NE(errorOf(connection, "PRAGMA writable_schema=ON; UPDATE sqlite_schema SET sql=''").code, 0);
    EXPECT_EQ(errorOf(connection, "SELECT * FROM t").code, 0);
}

TEST_F(SqliteConnectionTest, somebodyElsesWritingIsSeen)
{
    SqliteConnection mine(path(), SqliteConnection::kWrite);
    OtherProgram other(path());
    EXPECT_FALSE(mine.isWrittenByOthers());
    other.run("BEGIN IMMEDIATE");
    EXPECT_TRUE(mine.isWrittenByOthers());
    EXPECT_TRUE(errorOf(mine, "BEGIN IMMEDIATE").isBusy());
    other.run("ROLLBACK");
    EXPECT_FALSE(mine.isWrittenByOthers());
}

TEST_F(SqliteConnectionTest, aTransactionIsRolledBackUnlessItIsCommitted)
{
    SqliteConnection connection(path(), SqliteConnection::kWrite);
    {
        SqliteTransaction given(connection, "BEGIN");
        connection.run("UPDATE t SET x = 6");
    }
    EXPECT_EQ(value("SELECT x FROM t"), "5");
    {
        SqliteTransaction kept(connection, "BEGIN");
        connection.run("UPDATE t SET x = 7");
        kept.commit();
    }
    EXPECT_EQ(value("SELECT x FROM t"), "7");
}

TEST_F(SqliteConnectionTest, aTransactionThatCannotBeginIsNone)
{
    SqliteConnection connection(path(), SqliteConnection::kWrite);
    const SqliteTransaction outer(connection, "BEGIN");
    EXPECT_THROW(SqliteTransaction(connection, "BEGIN"), SqliteError);
    connection.run("UPDATE t SET x = 6"); // still inside the outer one
    EXPECT_EQ(value("SELECT x FROM t"), "5");
}

TEST_F(SqliteConnectionTest, failureOfTheSystemCarriesItsReason)
{
    SqliteConnection connection(path(), SqliteConnection::kWrite);
    // In place of the journal stands a folder, which cannot be read.
    ASSERT_TRUE(QDir().mkpath(path() + "-journal"));
    const QString told = errorOf(connection, "UPDATE t SET x = 6").message;
    EXPECT_TRUE(told.startsWith("disk I/O error (")) << told.toStdString();
}

TEST_F(SqliteConnectionTest, databaseInMemoryIsWrittenAsAFile)
{
    SqliteConnection memory(QStringLiteral(":memory:"), SqliteConnection::kCreate);
    memory.run("CREATE TABLE t(x); INSERT INTO t VALUES(8)");
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(memory.writeTo(file));
    file.close();
    EXPECT_EQ(value("SELECT x FROM t"), "8");
}

TEST_F(SqliteConnectionTest, fileThatTakesLessThanTheDatabaseIsTold)
{
    SqliteConnection memory(QStringLiteral(":memory:"), SqliteConnection::kCreate);
    memory.run("CREATE TABLE t(x)");
    QFile full(QStringLiteral("/dev/full"));
    if (!full.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        GTEST_SKIP() << "there is no /dev/full";
    EXPECT_FALSE(memory.writeTo(full));
}
