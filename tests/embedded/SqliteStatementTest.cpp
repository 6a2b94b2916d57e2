#include "platform/embedded/SqliteStatement.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <limits>

using namespace hbx::embedded;

namespace {

class SqliteStatementTest : public ::testing::Test
{
protected:
    SqliteStatementTest() { connection.run("CREATE TABLE t(id INTEGER PRIMARY KEY, value)"); }
    void insertRows(const char *rows) { connection.run(("INSERT INTO t VALUES" + std::string(rows)).c_str()); }

    SqliteConnection connection{":memory:", SqliteConnection::kCreate};
};

} // namespace

TEST_F(SqliteStatementTest, eachKindOfValueComesBack)
{
    const qint64 greatest = std::numeric_limits<qint64>::max();
    const QString text = QStringLiteral("层顶标高");
    SqliteStatement(connection, "CREATE TABLE all_kinds(a, b, c, d, e, f, g)").run();
    SqliteStatement(connection, "INSERT INTO all_kinds VALUES(?,?,?,?,?,?,?)")
        .run(greatest, 0.1, text, std::string_view("ab"), nullptr, true, -5);
    SqliteStatement row(connection, "SELECT * FROM all_kinds");
    ASSERT_TRUE(row.next());
    EXPECT_EQ(row.integer(0), greatest);
    EXPECT_EQ(row.number(1), 0.1);
    EXPECT_EQ(row.text(2), text);
    EXPECT_EQ(row.bytes(3), "ab");
    EXPECT_TRUE(row.isNull(4));
    EXPECT_EQ(row.integer(5), 1);
    EXPECT_EQ(row.integer(6), -5);
    EXPECT_EQ(row.type(0), SQLITE_INTEGER);
    EXPECT_EQ(row.type(1), SQLITE_FLOAT);
    EXPECT_EQ(row.type(2), SQLITE_TEXT);
}

TEST_F(SqliteStatementTest, anAbsentValueIsNull)
{
    SqliteStatement(connection, "INSERT INTO t VALUES(?,?)").run(1, std::optional<double>());
    SqliteStatement(connection, "INSERT INTO t VALUES(?,?)").run(2, std::optional(2.5));
    SqliteStatement rows(connection, "SELECT value FROM t ORDER BY id");
    ASSERT_TRUE(rows.next());
    EXPECT_TRUE(rows.isNull(0));
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.number(0), 2.5);
}

TEST_F(SqliteStatementTest, aStatementRunsManyTimesWithTextsOfAnyLength)
{
    SqliteStatement insert(connection, "INSERT INTO t VALUES(?,?)");
    const QString texts[] = {QString(1000, 'x'), QString(), QStringLiteral("板"), QStringLiteral("b")};
    for (int i = 0; i < 4; ++i)
        insert.run(i, texts[i]);
    SqliteStatement rows(connection, "SELECT value FROM t ORDER BY id");
    for (const QString &text : texts) {
        ASSERT_TRUE(rows.next());
        EXPECT_EQ(rows.text(0), text);
    }
}

TEST_F(SqliteStatementTest, aZeroDoesNotEndAText)
{
    SqliteStatement(connection, "INSERT INTO t VALUES(1,?)").run(QString("a") + QChar(0) + "b");
    SqliteStatement row(connection, "SELECT value FROM t");
    ASSERT_TRUE(row.next());
    EXPECT_EQ(row.bytes(0), std::string_view("a\0b", 3));
    EXPECT_EQ(row.text(0).size(), 3);
}

TEST_F(SqliteStatementTest, behindTheLastRowItStartsAnew)
{
    insertRows("(1,5)");
    SqliteStatement rows(connection, "SELECT value FROM t");
    EXPECT_TRUE(rows.next());
    EXPECT_FALSE(rows.next());
    EXPECT_TRUE(rows.next());
    EXPECT_EQ(rows.integer(0), 5);
}

TEST_F(SqliteStatementTest, aFailedRunThrowsAndTheNextOneWorks)
{
    insertRows("(1,5)");
    SqliteStatement insert(connection, "INSERT INTO t VALUES(?,?)");
    EXPECT_THROW(insert.run(1, 6), SqliteError);
    EXPECT_NO_THROW(insert.run(2, 6));
}

TEST_F(SqliteStatementTest, textThatIsNoSqlThrows)
{
    EXPECT_THROW(SqliteStatement(connection, "SELEC 1"), SqliteError);
    EXPECT_THROW(SqliteStatement(connection, "SELECT nothing FROM t"), SqliteError);
}
