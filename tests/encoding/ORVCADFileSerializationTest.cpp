#include "encoding/ORVCADFileSerialization.h"

#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

#include <gtest/gtest.h>

#include <memory>

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

} // namespace
