#include "encoding/ORVCADFileSerialization.h"

#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

#include "encoding/ArchiveFixture.h"
#include "encoding/LocaleCodec.h"

#include <type_traits>

namespace {

/** Tells what was called, in the words of the operations. */
class NotingArchive : public ORVCADFileSerialization
{
public:
    using ORVCADFileSerialization::ORVCADFileSerialization;
    ~NotingArchive() override { ++destroyed; }
    void writeRecordMap(const QString &key, QMap<QString, QStringList> & /*records*/) override { calls += key; }
    void writeRecordList(const QString &key, const QStringList & /*records*/) override { calls += key; }
    void writeRecord(const QString &key, const QString & /*record*/) override { calls += key; }
    void readRecordMap(const QString &key, QMap<QString, QStringList> & /*records*/) override { calls += key; }
    void readRecordList(const QString &key, QStringList & /*records*/) override { calls += key; }
    void readRecord(const QString &key, QString & /*record*/) override { calls += key; }

    QStringList calls;
    static inline int destroyed = 0;
};

TEST(ORVCADFileSerializationTest, keepsTheTextItWasMadeWith) { EXPECT_EQ(NotingArchive("text").content(), "text"); }

TEST(ORVCADFileSerializationTest, saveOfTheBaseStoresItsTextAsTheContent)
{
    NotingArchive archive("old");
    archive.save("new");
    EXPECT_EQ(archive.content(), "new");
}

TEST(ORVCADFileSerializationTest, contentIsACopy)
{
    NotingArchive archive("text");
    archive.content().append("more");
    EXPECT_EQ(archive.content(), "text");
}

TEST(ORVCADFileSerializationTest, isDestroyedThroughTheBase)
{
    NotingArchive::destroyed = 0;
    std::unique_ptr<QObject> archive = std::make_unique<NotingArchive>("");
    archive.reset();
    EXPECT_EQ(NotingArchive::destroyed, 1);
}

TEST(ORVCADFileSerializationTest, hasNoMetaObjectOfItsOwnAndNoParent)
{
    ORVCADJsonFileSerialization json{QString()};
    ORVCADXmlFileSerialization xml{QString()};
    for (const QObject *archive : {static_cast<QObject *>(&json), static_cast<QObject *>(&xml)}) {
        EXPECT_STREQ(archive->metaObject()->className(), "QObject");
        EXPECT_EQ(archive->parent(), nullptr);
    }
}

using Json = ORVCADJsonFileSerialization;
using Xml = ORVCADXmlFileSerialization;

/** What holds for both forms of a document. */
template <typename Archive> class ArchiveTest : public ArchiveFixture<Archive>
{
protected:
    static QString emptyDocument() { return std::is_same_v<Archive, Json> ? "{}" : "<r/>"; }
};

struct FormNames
{
    template <typename Archive> static std::string GetName(int /*number*/)
    {
        return std::is_same_v<Archive, Json> ? "Json" : "Xml";
    }
};

using Forms = testing::Types<Json, Xml>;
TYPED_TEST_SUITE(ArchiveTest, Forms, FormNames);

TYPED_TEST(ArchiveTest, contentIsEmptyBeforeSave)
{
    this->written.writeRecord("k", "a:1");
    EXPECT_EQ(this->written.content(), "");
}

TYPED_TEST(ArchiveTest, missingKeyLeavesTheOutputAsItIs)
{
    const QString text = this->emptyDocument();
    EXPECT_TRUE(this->record(text).isNull());
    EXPECT_EQ(this->record(text, "x:1"), "x:1");
    EXPECT_EQ(this->list(text, {"x"}), QStringList{"x"});
    EXPECT_EQ(this->map(text, {{"x", {}}}).size(), 1);
}

TYPED_TEST(ArchiveTest, mapReadsBackWhole)
{
    const RecordMap records{{"WALL", {"a:1", "a:2"}}, {"AXIS|3", {"b"}}, {"E", {}}, {"", {"c:3"}}, {"x:1", {""}},
                            {"墙", {"d:轴 线"}}};
    const LocaleCodec local("GB18030");
    EXPECT_EQ(this->readBack(records), records);
}

TYPED_TEST(ArchiveTest, mapKeepsItsEntriesWhenItIsWritten)
{
    RecordMap records{{"WALL", {"a:1"}}};
    this->written.writeRecordMap("k", records);
    EXPECT_EQ(records, (RecordMap{{"WALL", {"a:1"}}}));
}

TYPED_TEST(ArchiveTest, valueWithoutTextReadsBackAsAKeyWithoutValue)
{
    this->written.writeRecord("k", "a:/b");
    this->written.save({});
    EXPECT_EQ(this->record(this->written.content()), "a/b");
}

TYPED_TEST(ArchiveTest, valueIsCutAtItsSecondColon)
{
    this->written.writeRecord("k", "text:KZ:1");
    this->written.save({});
    EXPECT_EQ(this->record(this->written.content()), "text:KZ");
}

TYPED_TEST(ArchiveTest, textThatEndsEarlyIsRefusedWhereverItEnds)
{
    RecordMap records{{"PLAN|WALL", {"a:1"}}};
    this->written.writeRecordMap("k", records);
    this->written.writeRecordList("l", {"a:1", "b:2"});
    this->written.save({});
    const QString text = this->written.content().trimmed();
    for (int size = 0; size < text.size(); ++size)
        EXPECT_FALSE(this->parsed(text.left(size))) << size;
}

} // namespace
