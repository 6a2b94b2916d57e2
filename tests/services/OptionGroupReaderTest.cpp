#include "platform/services/OptionGroupReader.h"

#include "host/PlainModel.h"
#include "platform/services/CDatabase.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/ORVCADCommonUtils.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Options = QMap<QString, QString>;
using Address = vks::CFileAddressList::Address;

/** A table whose every query gives the rows that it was told, and which writes down what it is asked. */
class RecordingTable : public vks::CDBTable
{
public:
    bool Query(const QString &condition, vks::CFileAddressList &addresses, bool append) const override
    {
        calls.append(QStringLiteral("Query %1 %2").arg(condition, append ? "append" : "replace"));
        for (const auto &row : rows)
            addresses.Add(row.first);
        return !rows.empty();
    }
    bool FieldText(Address address, const QString &column, QString &out) const override
    {
        calls.append(QStringLiteral("FieldText %1 ").arg(address) + column);
        for (const auto &row : rows)
            if (row.first == address)
                out = column == pfnCADIdentifyOptionName ? row.second.first : row.second.second;
        return !missingFields.contains(column);
    }

    std::vector<std::pair<Address, std::pair<QString, QString>>> rows; // address, name and value
    QStringList missingFields;
    mutable QStringList calls;
};

class OneTableDatabase : public vks::CDatabase
{
public:
    vks::CDBTable *GetTable(const QString &name) override { return name == tableName ? &table : nullptr; }

    QString tableName = ORVCADCommonUtils::getCADIdentifyOptionTableName();
    RecordingTable table;
};

class ModelWithDatabase : public PlainModel
{
public:
    explicit ModelWithDatabase(vks::CDatabase *database) : m_database(database) {}

    vks::CDatabase *database() override { return m_database; }

private:
    vks::CDatabase *m_database;
};

class OptionGroupReaderTest : public ::testing::Test
{
protected:
    OneTableDatabase m_database;
    RecordingTable &m_table = m_database.table;
    ModelWithDatabase m_model{&m_database};
};

TEST_F(OptionGroupReaderTest, rowsOfTheGroupBecomeNameAndValue)
{
    m_table.rows = {{7, {"width", "900"}}, {9, {"sill", ""}}};
    EXPECT_EQ(readOptionGroup(&m_model, "Wall"), (Options{{"width", "900"}, {"sill", ""}}));
}

TEST_F(OptionGroupReaderTest, oneQueryIsMadeAndEachRowGivesItsValueThenItsName)
{
    m_table.rows = {{7, {"width", "900"}}, {9, {"sill", "0"}}};
    readOptionGroup(&m_model, ptnWallHolesSetting);
    EXPECT_EQ(m_table.calls.join("\n").toStdString(), "Query SameString(OptionGroup,\"WallHolesSetting\") replace\n"
                                                      "FieldText 7 OptionValue\n"
                                                      "FieldText 7 OptionName\n"
                                                      "FieldText 9 OptionValue\n"
                                                      "FieldText 9 OptionName");
}

TEST_F(OptionGroupReaderTest, groupEntersTheConditionAsItStands)
{
    readOptionGroup(&m_model, "a\"b %1 %2");
    EXPECT_EQ(m_table.calls.value(0), "Query SameString(OptionGroup,\"a\"b %1 %2\") replace");
}

TEST_F(OptionGroupReaderTest, firstRowOfANameCounts)
{
    m_table.rows = {{1, {"width", "900"}}, {2, {"width", "700"}}, {3, {"width", ""}}};
    EXPECT_EQ(readOptionGroup(&m_model, "Wall"), (Options{{"width", "900"}}));
}

TEST_F(OptionGroupReaderTest, firstRowCountsEvenWithoutAValue)
{
    m_table.rows = {{1, {"width", ""}}, {2, {"width", "700"}}};
    EXPECT_EQ(readOptionGroup(&m_model, "Wall"), (Options{{"width", ""}}));
}

TEST_F(OptionGroupReaderTest, optionsThatAreThereAlreadyStay)
{
    m_table.rows = {{1, {"width", "900"}}, {2, {"sill", "0"}}};
    Options options{{"width", "mine"}, {"other", "kept"}};
    insertOptionGroup(&m_model, "Wall", options);
    EXPECT_EQ(options, (Options{{"width", "mine"}, {"other", "kept"}, {"sill", "0"}}));
}

TEST_F(OptionGroupReaderTest, missingFieldsReadAsEmptyTexts)
{
    m_table.rows = {{1, {"width", "900"}}};
    m_table.missingFields = QStringList{pfnCADIdentifyOptionValue};
    EXPECT_EQ(readOptionGroup(&m_model, "Wall"), (Options{{"width", ""}}));
}

TEST_F(OptionGroupReaderTest, missingTableDatabaseOrModelGivesNoOptions)
{
    m_table.rows = {{1, {"width", "900"}}};
    m_database.tableName = "AnotherTable";
    EXPECT_TRUE(readOptionGroup(&m_model, "Wall").isEmpty());
    ModelWithDatabase withoutDatabase(nullptr);
    EXPECT_TRUE(readOptionGroup(&withoutDatabase, "Wall").isEmpty());
    EXPECT_TRUE(readOptionGroup(nullptr, "Wall").isEmpty());
}

TEST_F(OptionGroupReaderTest, missingTableLeavesAMapAsItIs)
{
    Options options{{"width", "mine"}};
    insertOptionGroup(nullptr, "Wall", options);
    EXPECT_EQ(options, (Options{{"width", "mine"}}));
}

} // namespace
