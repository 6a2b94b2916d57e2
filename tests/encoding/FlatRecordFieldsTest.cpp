#include "encoding/FlatRecordFields.h"

#include "encoding/RecordKey.h"

#include <gtest/gtest.h>

using namespace encoding;

namespace {

struct Bar
{
    int count = 7;
    double spacing = 150.0;
    std::wstring name = L"N1";
};

constexpr auto kBar = std::make_tuple(field("count"_key, &Bar::count), field("spacing"_key, &Bar::spacing),
                                      field("name"_key, &Bar::name));

TEST(FlatRecordFieldsTest, itemsStandInTheOrderOfTheTableWithoutASlashAtTheEnd)
{
    EXPECT_EQ(flatRecord(Bar(), kBar), "count:7/spacing:150/name:N1");
}

TEST(FlatRecordFieldsTest, fieldWithoutTextIsItsKeyAlone)
{
    Bar bar;
    bar.name.clear();
    EXPECT_EQ(flatRecord(bar, kBar), "count:7/spacing:150/name");
}

TEST(FlatRecordFieldsTest, oneWriterGivesOneTextAfterAnotherWithoutSpareRoom)
{
    Bar other;
    other.name = L"N20";
    FlatRecordWriter writer;
    const QString first = writer.text(Bar(), kBar);
    const QString second = writer.text(other, kBar);
    EXPECT_EQ(first, "count:7/spacing:150/name:N1");
    EXPECT_EQ(second, "count:7/spacing:150/name:N20");
    EXPECT_LT(second.capacity(), 2 * second.size());
}

TEST(FlatRecordFieldsTest, recordReadsBackInAnyOrder)
{
    Bar bar;
    readFlatRecord("name:N2/count:3/spacing:12.5", kBar, bar);
    EXPECT_EQ(bar.count, 3);
    EXPECT_EQ(bar.spacing, 12.5);
    EXPECT_EQ(bar.name, L"N2");
}

TEST(FlatRecordFieldsTest, missingItemReadsAsTheEmptyValueAndNotAsTheDefault)
{
    Bar bar;
    readFlatRecord("other:1", kBar, bar);
    EXPECT_EQ(bar.count, 0);
    EXPECT_EQ(bar.spacing, 0.0);
    EXPECT_EQ(bar.name, L"");
}

TEST(FlatRecordFieldsTest, laterItemOfAKeyOverwritesAnEarlierOne)
{
    Bar bar;
    readFlatRecord("count:1/count:2", kBar, bar);
    EXPECT_EQ(bar.count, 2);
}

TEST(FlatRecordFieldsTest, valueCanOverwriteAnItemByWhatStandsBehindItsSlash)
{
    Bar bar;
    bar.name = L"A/count:9";
    EXPECT_EQ(flatRecord(bar, kBar), "count:7/spacing:150/name:A/count:9");
    readFlatRecord(flatRecord(bar, kBar), kBar, bar);
    EXPECT_EQ(bar.name, L"A");
    EXPECT_EQ(bar.count, 9);
}

} // namespace
