#include "encoding/FlatRecord.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace encoding;

namespace {

QStringList pairsOf(const QString &record)
{
    QStringList pairs;
    forEachItem(record, [&pairs](QStringView key, QStringView value) {
        pairs.append(key.toString() + QLatin1Char('=') + value.toString());
    });
    return pairs;
}

QString item(const QString &key, const QString &value)
{
    FlatRecordText record;
    record.add(key, value);
    return record.text();
}

TEST(FlatRecordTest, itemIsKeyColonValue) { EXPECT_EQ(item("width", "200"), "width:200"); }

TEST(FlatRecordTest, itemWithoutValueIsTheKeyAlone) { EXPECT_EQ(item("width", ""), "width"); }

TEST(FlatRecordTest, onlyTheVeryLastSlashIsCut)
{
    QString record = "a:1/b//";
    cutLastSeparator(record);
    EXPECT_EQ(record, "a:1/b/");
}

TEST(FlatRecordTest, cuttingARecordWithoutItemsDoesNothing)
{
    QString record;
    cutLastSeparator(record);
    EXPECT_EQ(record, "");
    record = "a";
    cutLastSeparator(record);
    EXPECT_EQ(record, "a");
}

TEST(FlatRecordTest, itemsAreSplitAtSlashAndColon)
{
    EXPECT_EQ(pairsOf("edoId:12/entName/width:200"), (QStringList{"edoId=12", "entName=", "width=200"}));
}

TEST(FlatRecordTest, emptyRecordHasOneEmptyItem) { EXPECT_EQ(pairsOf(""), QStringList{"="}); }

TEST(FlatRecordTest, slashAtTheEndGivesOneMoreEmptyItem) { EXPECT_EQ(pairsOf("a:1/"), (QStringList{"a=1", "="})); }

TEST(FlatRecordTest, valueWithASlashIsCutAndTheRestIsAKeyWithoutValue)
{
    EXPECT_EQ(pairsOf("text:200/3"), (QStringList{"text=200", "3="}));
}

TEST(FlatRecordTest, valueWithAColonIsCutAndTheRestIsLost) { EXPECT_EQ(pairsOf("text:KZ:1"), QStringList{"text=KZ"}); }

TEST(FlatRecordTest, itemOfColonsHasEmptyKeyAndValue)
{
    EXPECT_EQ(pairsOf(":"), QStringList{"="});
    EXPECT_EQ(pairsOf("::x"), QStringList{"="});
    EXPECT_EQ(pairsOf(":x"), QStringList{"=x"});
}

TEST(FlatRecordTest, ofItemsWithOneKeyTheLastCounts)
{
    const QString record = "a:1/b:2/a:3/b";
    const FlatItems items(record);
    EXPECT_EQ(items.value(QLatin1String("a")).toString(), "3");
    EXPECT_EQ(items.value(QLatin1String("b")).toString(), "");
}

TEST(FlatRecordTest, missingKeyHasTheEmptyValueAndCaseMatters)
{
    const QString record = "Width:1";
    EXPECT_TRUE(FlatItems(record).value(QLatin1String("width")).isEmpty());
}

TEST(FlatRecordTest, hugeRecordIsSplitInOneWalk)
{
    const QString record = QString("a:1/").repeated(1000000);
    const FlatItems items(record);
    EXPECT_TRUE(items.value(QLatin1String("b")).isEmpty());
}

TEST(FlatRecordTest, recordIsPutTogetherWithoutASlashAtItsEnd)
{
    FlatRecordText record;
    record.add(u"a", u"1");
    record.add(u"b", {});
    EXPECT_EQ(record.text(), "a:1/b");
}

TEST(FlatRecordTest, recordPutTogetherOfNoItemsIsEmptyAndNotNull)
{
    const QString record = FlatRecordText().text();
    EXPECT_TRUE(record.isEmpty());
    EXPECT_FALSE(record.isNull());
}

} // namespace
