#include "platform/embedded/DatabaseRows.h"

#include "embedded/ToldRefusal.h"

#include <gtest/gtest.h>

using namespace hbx::embedded;
using refusaltest::toldBy;

namespace {

class DatabaseRowsTest : public ::testing::Test
{
protected:
    DatabaseRowsTest()
    {
        connection.run("CREATE TABLE owner(id INTEGER PRIMARY KEY, amount, size);"
                       "CREATE TABLE part(owner_id INTEGER, position INTEGER, name TEXT)");
    }
    /** The names of the parts of owners, each behind its owner's id. */
    std::string partsOf(std::initializer_list<qint64> owners)
    {
        std::string parts;
        OwnedRows rows(connection, "part", "owner_id, position", "name");
        for (const qint64 id : owners)
            rows.forOwner(id, [&](const DatabaseRows &row) {
                parts += std::to_string(id) + row.row().text(2).toStdString() + ' ';
            });
        rows.finish();
        return parts;
    }

    SqliteConnection connection{":memory:", SqliteConnection::kCreate};
};

} // namespace

TEST_F(DatabaseRowsTest, rowsComeInTheOrderOfTheirKey)
{
    connection.run("INSERT INTO owner VALUES(3,1,0.5), (1,-7,2.5)");
    DatabaseRows rows(connection, "owner", "id", "amount, size");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.id(), 1);
    EXPECT_EQ(rows.integer32(1), -7);
    EXPECT_EQ(rows.number(2), 2.5);
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.id(), 3);
    EXPECT_FALSE(rows.next());
}

TEST_F(DatabaseRowsTest, aLinkToNothingIsZero)
{
    connection.run("INSERT INTO owner VALUES(1,NULL,0.0)");
    DatabaseRows rows(connection, "owner", "id", "amount, size");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.link(1), 0);
}

TEST_F(DatabaseRowsTest, whatDoesNotFitIsRefusedWithItsPlace)
{
    connection.run("INSERT INTO owner VALUES(4,2147483648,9e999)");
    DatabaseRows rows(connection, "owner", "id", "amount, size");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(toldBy([&] { rows.integer32(1); }), "owner[id=4].amount: is out of range");
    EXPECT_EQ(toldBy([&] { rows.number(2); }), "owner[id=4].size: is not finite");
    EXPECT_EQ(toldBy([&] { rows.refuse(0, "is odd"); }), "owner[id=4].id: is odd");
    EXPECT_EQ(toldBy([&] { rows.refuseRow("is odd"); }), "owner[id=4]: is odd");
    connection.run("INSERT INTO owner VALUES(5,-2147483649,0)");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(toldBy([&] { rows.integer32(1); }), "owner[id=5].amount: is out of range");
}

TEST_F(DatabaseRowsTest, aKeyOfSeveralColumnsIsToldWhole)
{
    connection.run("INSERT INTO part VALUES(2,7,'a')");
    DatabaseRows rows(connection, "part", "owner_id, position", "name");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(toldBy([&] { rows.refuse(2, "is odd"); }), "part[owner_id=2, position=7].name: is odd");
}

TEST_F(DatabaseRowsTest, ownersGetTheirRowsAndSomeHaveNone)
{
    connection.run("INSERT INTO part VALUES(2,1,'b'), (2,0,'a'), (5,0,'c')");
    EXPECT_EQ(partsOf({1, 2, 4, 5, 9}), "2a 2b 5c ");
}

TEST_F(DatabaseRowsTest, rowsOfNoOwnerAreRefused)
{
    connection.run("INSERT INTO part VALUES(2,0,'a')");
    const std::string told = "part[owner_id=2, position=0]: belongs to nothing that is in the file";
    EXPECT_EQ(toldBy([&] { partsOf({1, 3}); }), told);
    EXPECT_EQ(toldBy([&] { partsOf({1}); }), told) << "behind the last owner";
    EXPECT_EQ(toldBy([&] { partsOf({}); }), told);
}
