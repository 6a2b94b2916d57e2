#include "platform/services/CDBTable.h"

#include "host/Lifetime.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <memory>

namespace {

/** A table of one column whose rows stand at the addresses 5, 6, and so on. */
class ColumnTable : public vks::CDBTable
{
public:
    ColumnTable(QStringList column, bool &isGone) : m_column(std::move(column)), m_lifetime(isGone) {}

    bool Query(const QString & /*condition*/, vks::CFileAddressList &addresses, bool append) const override
    {
        if (!append)
            addresses.Clear();
        for (int row = 0; row < m_column.size(); ++row)
            addresses.Add(row + 5);
        return !m_column.isEmpty();
    }
    bool FieldText(vks::CFileAddressList::Address address, const QString & /*column*/, QString &out) const override
    {
        out = m_column.value(static_cast<int>(address) - 5);
        return true;
    }

private:
    QStringList m_column;
    Lifetime m_lifetime;
};

class CDBTableTest : public ::testing::Test
{
protected:
    bool m_isGone = false;
    std::unique_ptr<vks::CDBTable> m_table = std::make_unique<ColumnTable>(QStringList{"a", "b"}, m_isGone);
};

TEST_F(CDBTableTest, addressesOfAQueryLeadToTheirRows)
{
    vks::CFileAddressList addresses;
    ASSERT_TRUE(m_table->Query(QString(), addresses, false));
    ASSERT_TRUE(m_table->Query(QString(), addresses, true));
    ASSERT_EQ(addresses.Count(), 4);
    QString texts;
    for (const auto address : addresses) {
        QString text;
        ASSERT_TRUE(m_table->FieldText(address, "Name", text));
        texts += text;
    }
    EXPECT_EQ(texts, "abab");
    EXPECT_EQ(addresses.At(3), 6);
}

TEST_F(CDBTableTest, databaseThatDropsItsTableDestroysItWhole)
{
    m_table.reset();
    EXPECT_TRUE(m_isGone);
}

} // namespace
