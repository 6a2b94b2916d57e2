#include "HostContract.h"

#include "platform/services/CDatabase.h"

using namespace host_contract;
using vks::CFileAddressList;

namespace {

vks::CDBTable &optionTable(IHBXModel &model)
{
    vks::CDatabase &database = need(model.database(), "kernel database");
    return need(database.GetTable(QStringLiteral("CADIdentifyOption")), "option table");
}

/** A field of a row; a text of its own where there is none. */
QString fieldText(const vks::CDBTable &table, CFileAddressList::Address address, const char *column)
{
    QString text;
    return table.FieldText(address, QString::fromLatin1(column), text) ? text : QStringLiteral("no field");
}

const QString kContractGroup = QStringLiteral("SameString(OptionGroup,\"ContractGroup\")");

} // namespace

#define SKIP_WITHOUT_DATABASE()                                                                                        \
    if (!terms().hasDatabase)                                                                                          \
    GTEST_SKIP() << "the host has no kernel database"

TEST_P(HostDatabaseContract, hostWithoutADatabaseGivesNull)
{
    EXPECT_EQ(model().database() != nullptr, terms().hasDatabase);
}

TEST_P(HostDatabaseContract, tableOfAnotherNameIsNull)
{
    SKIP_WITHOUT_DATABASE();
    vks::CDatabase &database = need(model().database(), "kernel database");
    for (const char *name : {"NoSuchTable", "cadidentifyoption", ""})
        EXPECT_EQ(database.GetTable(QString::fromLatin1(name)), nullptr) << name;
}

TEST_P(HostDatabaseContract, rowsOfAGroupAreFoundInTableOrder)
{
    SKIP_WITHOUT_DATABASE();
    const vks::CDBTable &table = optionTable(model());
    CFileAddressList rows;
    ASSERT_TRUE(table.Query(kContractGroup, rows, false));
    ASSERT_EQ(rows.Count(), 2);
    EXPECT_EQ(fieldText(table, rows.At(0), "OptionName"), QStringLiteral("Colour"));
    EXPECT_EQ(fieldText(table, rows.At(0), "OptionValue"), QStringLiteral("red"));
    EXPECT_EQ(fieldText(table, rows.At(1), "OptionValue"), QStringLiteral("blue"));
    EXPECT_EQ(fieldText(table, rows.At(1), "OptionGroup"), QStringLiteral("ContractGroup"));
}

TEST_P(HostDatabaseContract, queryReplacesTheListOrAddsToIt)
{
    SKIP_WITHOUT_DATABASE();
    const vks::CDBTable &table = optionTable(model());
    const QString other = QStringLiteral("SameString(OptionGroup,\"OtherGroup\")");
    CFileAddressList rows;
    ASSERT_TRUE(table.Query(kContractGroup, rows, false));
    ASSERT_TRUE(table.Query(other, rows, true));
    EXPECT_EQ(rows.Count(), 3);
    ASSERT_TRUE(table.Query(other, rows, false));
    EXPECT_EQ(rows.Count(), 1);
}

TEST_P(HostDatabaseContract, conditionEndsAtItsLastQuoteAndBracket)
{
    SKIP_WITHOUT_DATABASE();
    const vks::CDBTable &table = optionTable(model());
    CFileAddressList rows;
    EXPECT_TRUE(table.Query(QStringLiteral("SameString(OptionValue,\"a \"quoted\") value\")"), rows, false));
    ASSERT_EQ(rows.Count(), 1);
    EXPECT_EQ(fieldText(table, rows.At(0), "OptionName"), QStringLiteral("Text"));
}

TEST_P(HostDatabaseContract, conditionThatSelectsNothingEmptiesTheList)
{
    SKIP_WITHOUT_DATABASE();
    const vks::CDBTable &table = optionTable(model());
    for (const char *condition : {"SameString(OptionGroup,\"contractgroup\")", "SameString(NoColumn,\"red\")",
                                  "OptionGroup = 'ContractGroup'", "SameString(OptionGroup,\"ContractGroup\"", ""}) {
        CFileAddressList rows;
        rows.Add(0);
        EXPECT_FALSE(table.Query(QString::fromLatin1(condition), rows, false)) << condition;
        EXPECT_EQ(rows.Count(), 0) << condition;
    }
}

TEST_P(HostDatabaseContract, fieldThatIsNotThereLeavesTheTextAsItWas)
{
    SKIP_WITHOUT_DATABASE();
    const vks::CDBTable &table = optionTable(model());
    CFileAddressList rows;
    ASSERT_TRUE(table.Query(kContractGroup, rows, false));
    QString text = QStringLiteral("before");
    EXPECT_FALSE(table.FieldText(rows.At(0), QStringLiteral("NoColumn"), text));
    EXPECT_FALSE(table.FieldText(-1, QStringLiteral("OptionName"), text));
    EXPECT_EQ(text, QStringLiteral("before"));
}
