#include "platform/embedded/SqliteInsert.h"

#include <gtest/gtest.h>

using namespace hbx::embedded;

namespace {

class SqliteInsertTest : public ::testing::Test
{
protected:
    SqliteInsertTest() { connection.run("CREATE TABLE t(id INTEGER PRIMARY KEY, name TEXT, value)"); }
    void insert(std::size_t count)
    {
        rows.run(count, [this](const SqliteInsert::Row &row, std::size_t i) {
            indices.push_back(i);
            row(static_cast<qint64>(i), QString::number(i), std::to_string(2 * i));
        });
    }
    /** Whether the table holds the rows 0 to count - 1, as insert() makes them, and no other. */
    bool holds(std::size_t count)
    {
        SqliteStatement all(connection, "SELECT id, name, value FROM t ORDER BY id");
        for (std::size_t i = 0; i < count; ++i)
            if (!all.next() || all.integer(0) != static_cast<qint64>(i) || all.text(1) != QString::number(i) ||
                all.bytes(2) != std::to_string(2 * i))
                return false;
        return !all.next();
    }

    SqliteConnection connection{":memory:", SqliteConnection::kCreate};
    SqliteInsert rows{connection, "t", 3};
    std::vector<std::size_t> indices;
};

} // namespace

TEST_F(SqliteInsertTest, anyNumberOfRowsArrivesWhole)
{
    for (const std::size_t count : {0U, 1U, 2U, 3U, 4U, 7U, 15U, 16U, 17U, 39U, 64U, 1000U}) {
        connection.run("DELETE FROM t");
        insert(count);
        EXPECT_TRUE(holds(count)) << count;
    }
}

TEST_F(SqliteInsertTest, rowsAreFilledInTheirOrder)
{
    insert(23);
    std::vector<std::size_t> expected;
    for (std::size_t i = 0; i < 23; ++i)
        expected.push_back(i);
    EXPECT_EQ(indices, expected);
}

TEST_F(SqliteInsertTest, textsAreCopiedAndAbsentValuesAreNull)
{
    rows.run(2, [](const SqliteInsert::Row &row, std::size_t i) {
        std::string text(100, i == 0 ? 'a' : 'b');
        row(static_cast<qint64>(i), i == 0 ? std::optional<QString>() : std::optional(QStringLiteral("板")), text);
        text.assign(100, 'x');
    });
    SqliteStatement all(connection, "SELECT name, value FROM t ORDER BY id");
    ASSERT_TRUE(all.next());
    EXPECT_TRUE(all.isNull(0));
    EXPECT_EQ(all.bytes(1), std::string(100, 'a'));
    ASSERT_TRUE(all.next());
    EXPECT_EQ(all.text(0), QStringLiteral("板"));
    EXPECT_EQ(all.bytes(1), std::string(100, 'b'));
}

TEST_F(SqliteInsertTest, aRowThatIsRefusedThrowsAndTheNextRunWorks)
{
    insert(1);
    EXPECT_THROW(insert(20), SqliteError);
    EXPECT_TRUE(holds(1));
    connection.run("DELETE FROM t");
    insert(20);
    EXPECT_TRUE(holds(20));
}

TEST_F(SqliteInsertTest, aTableThatIsNotThereThrowsOnceRowsCome)
{
    SqliteInsert lost(connection, "nothing", 1);
    EXPECT_NO_THROW(lost.run(0, [](const SqliteInsert::Row &, std::size_t) {}));
    EXPECT_THROW(lost.run(1, [](const SqliteInsert::Row &row, std::size_t) { row(1); }), SqliteError);
}
