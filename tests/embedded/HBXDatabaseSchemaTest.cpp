#include "platform/embedded/HBXDatabaseSchema.h"

#include "embedded/ProjectFiles.h"
#include "embedded/ToldRefusal.h"
#include "platform/embedded/SqliteConnection.h"

using namespace projecttest;
using hbx::embedded::DatabaseRefusal;
using hbx::embedded::SqliteConnection;
namespace schema = hbx::embedded::schema;

namespace {

const Damage kDamages[] = {
    {"CREATE TABLE notes(text)", "has the foreign table \"notes\""},
    {"CREATE VIEW walls AS SELECT * FROM element", "has the foreign view \"walls\""},
    {"CREATE INDEX names ON element(name)", "has the foreign index \"names\""},
    {"CREATE TRIGGER wipe AFTER UPDATE ON project BEGIN DELETE FROM element; END", "has the foreign trigger \"wipe\""},
    {"ALTER TABLE element ADD COLUMN colour TEXT", "has the table \"element\" in another form"},
    {"DROP TABLE material", "lacks tables of a project file"},
    {"PRAGMA user_version=2", "is of form 2, newer than the form 1 that this program reads"},
    {"PRAGMA user_version=0", "is of form 0, older than the form 1 that this program reads"},
    {"PRAGMA application_id=0", "is an SQLite file, but no project file"},
    {"PRAGMA journal_mode=WAL", "is in a journal mode that project files do not use"},
};

class HBXDatabaseSchemaDamageTest : public DamagedFileTest
{};

TEST_P(HBXDatabaseSchemaDamageTest, isToldAndTheFileStaysAsItIs) { expectTold(); }

INSTANTIATE_TEST_SUITE_P(Damages, HBXDatabaseSchemaDamageTest, ::testing::ValuesIn(kDamages));

class HBXDatabaseSchemaTest : public ProjectFileTest
{};

std::string reasonOf(const QByteArray &header)
{
    return refusaltest::toldBy([&] { schema::checkHeader(header); });
}

} // namespace

TEST_F(HBXDatabaseSchemaTest, aProjectFileSaysSoInItsHeader)
{
    makeFile();
    EXPECT_EQ(reasonOf(bytes().left(100)), "good");
    EXPECT_EQ(reasonOf(bytes().left(99)), "is damaged: it ends in its header");
    EXPECT_EQ(bytes().mid(68, 4), QByteArray("HBXP"));
}

TEST_F(HBXDatabaseSchemaTest, otherBytesAreNoHeader)
{
    EXPECT_EQ(reasonOf({}), "is empty");
    EXPECT_EQ(reasonOf(QByteArray(100, '\0')), "is no project file");
    EXPECT_EQ(reasonOf(QByteArray("SQLite format 3", 16).leftJustified(100, '\0')),
              "is an SQLite file, but no project file");
}

TEST_F(HBXDatabaseSchemaTest, whatIsMadeIsSoundAndCannotBeMadeTwice)
{
    SqliteConnection connection(":memory:", SqliteConnection::kCreate);
    EXPECT_THROW(schema::check(connection), DatabaseRefusal) << "nothing is in it yet";
    schema::create(connection);
    EXPECT_NO_THROW(schema::check(connection));
    EXPECT_THROW(schema::create(connection), hbx::embedded::SqliteError);
}
