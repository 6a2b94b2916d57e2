#include "platform/services/HBXDBRecord.h"

#include <gtest/gtest.h>

#include <QMap>

namespace {

using vks::CFileAddressList;

/** A table whose one row stands at an address of its own. */
class OneRowTable : public vks::CDBTable
{
public:
    static constexpr CFileAddressList::Address kRow = 1234567890123;

    bool Query(const QString & /*condition*/, CFileAddressList & /*addresses*/, bool /*append*/) const override
    {
        ADD_FAILURE() << "a record asks for fields alone";
        return false;
    }
    bool FieldText(CFileAddressList::Address address, const QString &column, QString &out) const override
    {
        if (address != kRow || !fields.contains(column))
            return false;
        out = fields.value(column);
        return true;
    }

    QMap<QString, QString> fields{{"Name", "width"}, {"Value", ""}};
};

TEST(HBXDBRecordTest, fieldOfTheRowIsRead)
{
    const OneRowTable table;
    const HBXDBRecord record(&table, OneRowTable::kRow);
    EXPECT_EQ(record.getString("Name", "none"), "width");
}

TEST(HBXDBRecordTest, emptyFieldIsAFieldAndNotTheDefault)
{
    const OneRowTable table;
    EXPECT_EQ(HBXDBRecord(&table, OneRowTable::kRow).getString("Value", "none"), "");
}

TEST(HBXDBRecordTest, missingFieldAndMissingRowGiveTheDefault)
{
    const OneRowTable table;
    EXPECT_EQ(HBXDBRecord(&table, OneRowTable::kRow).getString("name", "none"), "none");
    EXPECT_EQ(HBXDBRecord(&table, OneRowTable::kRow + 1).getString("Name", "none"), "none");
}

TEST(HBXDBRecordTest, recordOfNoTableHasNoFields)
{
    EXPECT_EQ(HBXDBRecord(nullptr, OneRowTable::kRow).getString("Name", "none"), "none");
    EXPECT_EQ(HBXDBRecord(nullptr, OneRowTable::kRow).getString("Name", QString()), QString());
}

TEST(HBXDBRecordTest, laterChangeOfTheTableShows)
{
    OneRowTable table;
    const HBXDBRecord record(&table, OneRowTable::kRow);
    table.fields["Name"] = "height";
    EXPECT_EQ(record.getString("Name", "none"), "height");
}

TEST(HBXDBRecordTest, recordIsReadThroughItsBase)
{
    const OneRowTable table;
    const HBXDBRecord record(&table, OneRowTable::kRow);
    const HBXDBRecordBase &base = record;
    EXPECT_EQ(base.getString("Name", "none"), "width");
}

} // namespace
