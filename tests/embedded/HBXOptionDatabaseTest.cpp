#include "platform/embedded/HBXOptionDatabase.h"

#include "platform/services/HBXDBRecord.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/ORVCADCommonUtils.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using hbx::embedded::HBXOptionDatabase;
using hbx::embedded::OptionRecord;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HBXOptionDatabaseTest : public ::testing::Test
{
protected:
    vks::CDBTable *table() { return m_database.GetTable(ORVCADCommonUtils::getCADIdentifyOptionTableName()); }
    /** Addresses of the rows that a condition selects. */
    std::vector<vks::CFileAddressList::Address> select(const QString &condition)
    {
        vks::CFileAddressList addresses;
        addresses.Add(4711); // must be gone afterwards
        const bool found = table()->Query(condition, addresses, false);
        EXPECT_EQ(found, addresses.Count() > 0);
        return {addresses.begin(), addresses.end()};
    }

    std::vector<OptionRecord> m_rows{{"Wall", "width", "900"}, {"Beam", "width", "300"}, {"Wall", "height", "900"}};
    HBXOptionDatabase m_database{m_rows};
};

TEST_F(HBXOptionDatabaseTest, onlyTheOptionTableExists)
{
    EXPECT_NE(table(), nullptr);
    EXPECT_EQ(table(), table());
    EXPECT_EQ(m_database.GetTable("Materials"), nullptr);
    EXPECT_EQ(m_database.GetTable(QString()), nullptr);
    EXPECT_EQ(m_database.GetTable(g_strCADIdentifyOptionTable.toUpper()), nullptr);
}

TEST_F(HBXOptionDatabaseTest, conditionSelectsRowsOfThatValueInTableOrder)
{
    EXPECT_THAT(select(R"(SameString(OptionGroup,"Wall"))"), ElementsAre(0, 2));
    EXPECT_THAT(select(R"(SameString(OptionName,"width"))"), ElementsAre(0, 1));
    EXPECT_THAT(select(R"(SameString(OptionValue,"900"))"), ElementsAre(0, 2));
}

TEST_F(HBXOptionDatabaseTest, comparisonIsExact)
{
    EXPECT_THAT(select(R"(SameString(OptionGroup,"wall"))"), IsEmpty());
    EXPECT_THAT(select(R"(SameString(OptionGroup," Wall"))"), IsEmpty());
    EXPECT_THAT(select(R"(SameString(OptionGroup,"Wal"))"), IsEmpty());
    EXPECT_THAT(select(R"(SameString(OptionGroup,""))"), IsEmpty());
}

TEST_F(HBXOptionDatabaseTest, emptyValueSelectsRowsWithoutOne)
{
    m_rows.push_back({"Wall", "note", ""});
    EXPECT_THAT(select(R"(SameString(OptionValue,""))"), ElementsAre(3));
}

TEST_F(HBXOptionDatabaseTest, unknownColumnSelectsNothing)
{
    EXPECT_THAT(select(R"(SameString(Group,"Wall"))"), IsEmpty());
    EXPECT_THAT(select(R"(SameString(,"Wall"))"), IsEmpty());
    EXPECT_THAT(select(R"(SameString(optiongroup,"Wall"))"), IsEmpty());
}

TEST_F(HBXOptionDatabaseTest, conditionOfAnotherFormSelectsNothing)
{
    for (const char *condition :
         {"", "SameString", "SameString(", "SameString()", "SameString(OptionGroup)", "SameString(OptionGroup,Wall)",
          R"(SameString(OptionGroup,"Wall")", R"(SameString(OptionGroup,"Wall")x)", R"(SameString(OptionGroup,"))",
          R"(sameString(OptionGroup,"Wall"))", R"(not SameString(OptionGroup,"Wall"))", R"(OptionGroup="Wall")",
          R"(,")"})
        EXPECT_THAT(select(QString::fromLatin1(condition)), IsEmpty()) << condition;
}

TEST_F(HBXOptionDatabaseTest, blanksAroundAConditionDoNotMatter)
{
    EXPECT_THAT(select(" SameString(OptionGroup,\"Wall\")\n"), ElementsAre(0, 2));
}

TEST_F(HBXOptionDatabaseTest, conditionEndsAtItsLastQuoteAndBracketSoAValueMayHoldThem)
{
    m_rows.push_back({"a\"b", "x", "1"});
    m_rows.push_back({"a\")", "x", "1"});
    m_rows.push_back({"a,\"b\") or (c", "x", "1"});
    m_rows.push_back({"\"", "x", "1"});
    EXPECT_THAT(select("SameString(OptionGroup,\"a\"b\")"), ElementsAre(3));
    EXPECT_THAT(select("SameString(OptionGroup,\"a\")\")"), ElementsAre(4));
    EXPECT_THAT(select("SameString(OptionGroup,\"a,\"b\") or (c\")"), ElementsAre(5));
    EXPECT_THAT(select("SameString(OptionGroup,\"\"\")"), ElementsAre(6));
}

TEST_F(HBXOptionDatabaseTest, appendKeepsWhatTheListHolds)
{
    vks::CFileAddressList addresses;
    EXPECT_TRUE(table()->Query(R"(SameString(OptionGroup,"Beam"))", addresses, true));
    EXPECT_TRUE(table()->Query(R"(SameString(OptionGroup,"Wall"))", addresses, true));
    EXPECT_FALSE(table()->Query("nonsense", addresses, true));
    EXPECT_THAT(std::vector<qint64>(addresses.begin(), addresses.end()), ElementsAre(1, 0, 2));
    EXPECT_EQ(addresses.At(1), 0);
}

TEST_F(HBXOptionDatabaseTest, rowsAddedLaterAreSeen)
{
    m_rows.push_back({"Wall", "sill", "0"});
    EXPECT_THAT(select(R"(SameString(OptionGroup,"Wall"))"), ElementsAre(0, 2, 3));
}

TEST_F(HBXOptionDatabaseTest, recordReadsFieldsByColumn)
{
    const HBXDBRecord record(table(), 1);
    EXPECT_EQ(record.getString(pfnCADIdentifyOptionGroup, "none"), "Beam");
    EXPECT_EQ(record.getString(pfnCADIdentifyOptionName, "none"), "width");
    EXPECT_EQ(record.getString(pfnCADIdentifyOptionValue, "none"), "300");
}

TEST_F(HBXOptionDatabaseTest, emptyFieldIsNotAMissingOne)
{
    m_rows[0].value.clear();
    EXPECT_EQ(HBXDBRecord(table(), 0).getString(pfnCADIdentifyOptionValue, "none"), QString());
}

TEST_F(HBXOptionDatabaseTest, missingFieldRowOrTableGivesTheDefault)
{
    EXPECT_EQ(HBXDBRecord(table(), 0).getString("Colour", "none"), "none");
    EXPECT_EQ(HBXDBRecord(table(), 3).getString(pfnCADIdentifyOptionName, "none"), "none");
    EXPECT_EQ(HBXDBRecord(table(), -1).getString(pfnCADIdentifyOptionName, "none"), "none");
    EXPECT_EQ(HBXDBRecord(table(), std::numeric_limits<qint64>::min()).getString(pfnCADIdentifyOptionName, "none"),
              "none");
    EXPECT_EQ(HBXDBRecord(nullptr, 0).getString(pfnCADIdentifyOptionName, "none"), "none");
}

} // namespace
