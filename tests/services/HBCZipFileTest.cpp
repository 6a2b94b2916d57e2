#include "platform/services/HBCZipFile.h"

#include "services/ZipBytes.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

using Members = QList<ZipBytes::Member>;

class HBCZipFileTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir(m_folder.path()).mkdir("out")); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString put(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }
    QString archiveOf(const Members &members) const { return put("made.wzd", ZipBytes::of(members)); }
    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QStringList unpacked() const
    {
        return QDir(path("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    bool extract(const QString &archive) const { return HBCZipFile::extractFiles(archive, path("out")); }
    /** That nothing of it is written, neither into the folder nor beside it. */
    void expectRefused(const Members &members)
    {
        const QString archive = archiveOf(members);
        const QStringList before = QDir(m_folder.path()).entryList(QDir::AllEntries);
        EXPECT_FALSE(extract(archive));
        EXPECT_EQ(unpacked(), QStringList());
        EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries), before);
    }

    QTemporaryDir m_folder;
};

TEST_F(HBCZipFileTest, packedFilesUnpackToTheSameBytes)
{
    const QByteArray drawing = QByteArray("{\"format\": \"cadi2\"}").repeated(20000);
    const QStringList files{put("plan.cadi2", drawing), put(QStringLiteral("墙.txt"), QByteArray("\0\xFF", 2))};
    ASSERT_TRUE(HBCZipFile::compressFiles(files, path("plan.wzd")));
    EXPECT_LT(QFileInfo(path("plan.wzd")).size(), 5000);
    ASSERT_TRUE(extract(path("plan.wzd")));
    EXPECT_EQ(unpacked(), (QStringList{"plan.cadi2", QStringLiteral("墙.txt")}));
    EXPECT_EQ(content("out/plan.cadi2"), drawing);
    EXPECT_EQ(content(QStringLiteral("out/墙.txt")), QByteArray("\0\xFF", 2));
}

TEST_F(HBCZipFileTest, oneMemberIsUnpackedToTheFileTold)
{
    ASSERT_TRUE(HBCZipFile::compressFiles({put("a", "one"), put("b", "two")}, path("ab.wzd")));
    ASSERT_TRUE(HBCZipFile::uncompressFile(path("ab.wzd"), "b", path("out/c")));
    EXPECT_EQ(unpacked(), QStringList{"c"});
    EXPECT_EQ(content("out/c"), "two");
}

TEST_F(HBCZipFileTest, emptyFilesArePacked)
{
    ASSERT_TRUE(HBCZipFile::compressFiles({put("a", "")}, path("a.wzd")));
    ASSERT_TRUE(extract(path("a.wzd")));
    EXPECT_EQ(content("out/a"), "");
}

TEST_F(HBCZipFileTest, packingTakesThePlaceOfAFileThatIsThere)
{
    put("a.wzd", "no archive");
    ASSERT_TRUE(HBCZipFile::compressFiles({put("a", "new")}, path("a.wzd")));
    ASSERT_TRUE(extract(path("a.wzd")));
    EXPECT_EQ(content("out/a"), "new");
}

TEST_F(HBCZipFileTest, whatCannotBePackedLeavesNoArchive)
{
    const QString file = put("a", "one");
    EXPECT_FALSE(HBCZipFile::compressFiles({}, path("a.wzd")));
    EXPECT_FALSE(HBCZipFile::compressFiles({file, path("missing")}, path("a.wzd")));
    EXPECT_FALSE(HBCZipFile::compressFiles({path("out")}, path("a.wzd")));
    EXPECT_FALSE(HBCZipFile::compressFiles({file, put("out/a", "two")}, path("a.wzd"))) << "two of one name";
    EXPECT_FALSE(QFileInfo::exists(path("a.wzd")));
    EXPECT_FALSE(HBCZipFile::compressFiles({file}, path("no/folder/a.wzd")));
}

TEST_F(HBCZipFileTest, membersInFoldersAreUnpackedBelow)
{
    ASSERT_TRUE(extract(archiveOf({{"a/", "", 040755}, {"a/b/c.txt", "deep"}, {"d.txt", "flat"}})));
    EXPECT_EQ(unpacked(), (QStringList{"a", "d.txt"}));
    EXPECT_EQ(content("out/a/b/c.txt"), "deep");
}

TEST_F(HBCZipFileTest, archiveWithoutMembersIsUnpackedWithSuccess)
{
    EXPECT_TRUE(extract(archiveOf({})));
    EXPECT_EQ(unpacked(), QStringList());
}

TEST_F(HBCZipFileTest, membersThatWouldLandOutsideAreRefused)
{
    for (const char *name :
         {"../evil", "a/../../evil", "/tmp/evil", "..", "a/..", "..\\evil", "C:evil", "a//b", "./a", ""}) {
        SCOPED_TRACE(name);
        expectRefused({{"good", "x"}, {name, "evil"}});
    }
}

TEST_F(HBCZipFileTest, linksAndDevicesAreRefused)
{
    for (const quint32 mode : {0120777U, 0060644U, 0020644U, 0010644U, 0140644U})
        expectRefused({{"good", "x"}, {"link", "/etc/passwd", mode}});
    EXPECT_FALSE(HBCZipFile::uncompressFile(archiveOf({{"link", "/etc/passwd", 0120777}}), "link", path("out/link")));
    EXPECT_EQ(unpacked(), QStringList());
}

TEST_F(HBCZipFileTest, moreThanOneGibibyteIsRefused)
{
    constexpr qint64 kLimit = 1 << 30;
    expectRefused({{"good", "x"}, {"large", "x", 0100644, kLimit}});
    expectRefused({{"half", "x", 0100644, kLimit / 2}, {"other half", "x", 0100644, kLimit / 2 + 1}});
    expectRefused({{"huge", "x", 0100644, 0xFFFFFFFE}});
    EXPECT_FALSE(HBCZipFile::uncompressFile(archiveOf({{"a", "x", 0100644, kLimit + 1}}), "a", path("out/a")));
    EXPECT_EQ(unpacked(), QStringList());
}

TEST_F(HBCZipFileTest, contentLongerThanTheArchiveSaysIsRefused)
{
    expectRefused({{"good", "x"}, {"bomb", QByteArray(1 << 20, '0'), 0100644, 10}});
    expectRefused({{"short", "x", 0100644, 10}});
}

TEST_F(HBCZipFileTest, damagedAndEncryptedMembersTakeTheOthersWithThem)
{
    expectRefused({{"a/good", "x"}, {"damaged", "content", 0100644, -1, false}});
    expectRefused({{"a/good", "x"}, {"locked", "content of a locked file", 0100644, -1, true, true}});
}

TEST_F(HBCZipFileTest, fileThatIsThereIsNotReplacedByExtraction)
{
    put("out/b", "mine");
    EXPECT_FALSE(extract(archiveOf({{"a", "x"}, {"b", "theirs"}})));
    EXPECT_EQ(unpacked(), QStringList{"b"});
    EXPECT_EQ(content("out/b"), "mine");
}

TEST_F(HBCZipFileTest, twoMembersOfOneNameAreRefused) { expectRefused({{"a", "one"}, {"a", "two"}}); }

TEST_F(HBCZipFileTest, linkThatIsThereIsNotFollowed)
{
    const QString outside = put("outside", "mine");
    ASSERT_TRUE(QFile::link(outside, path("out/a")));
    EXPECT_FALSE(extract(archiveOf({{"a", "theirs"}})));
    EXPECT_EQ(content("outside"), "mine");
}

TEST_F(HBCZipFileTest, everyTruncationIsRefused)
{
    const QByteArray whole = ZipBytes::of({{"a", "content"}});
    for (int size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(extract(put("cut.wzd", whole.left(size)))) << size;
    EXPECT_EQ(unpacked(), QStringList());
}

TEST_F(HBCZipFileTest, whatIsNoArchiveIsRefused)
{
    EXPECT_FALSE(extract(path("missing.wzd")));
    EXPECT_FALSE(extract(path("out")));
    EXPECT_FALSE(extract(put("text.wzd", "no archive at all")));
    EXPECT_FALSE(HBCZipFile::uncompressFile(path("missing.wzd"), "a", path("out/a")));
}

TEST_F(HBCZipFileTest, folderToUnpackIntoHasToBeThere)
{
    EXPECT_FALSE(HBCZipFile::extractFiles(archiveOf({{"a", "x"}}), path("missing")));
    EXPECT_FALSE(QFileInfo::exists(path("missing")));
}

TEST_F(HBCZipFileTest, memberThatIsMissingOrAFolderIsNotUnpacked)
{
    const QString archive = archiveOf({{"a/", "", 040755}, {"b", "x"}});
    for (const char *name : {"", "c", "a", "a/", "B"})
        EXPECT_FALSE(HBCZipFile::uncompressFile(archive, name, path("out/x"))) << name;
    EXPECT_EQ(unpacked(), QStringList());
}

TEST_F(HBCZipFileTest, memberIsUnpackedWhateverTheOthersAre)
{
    const QString archive = archiveOf({{"../evil", "x"}, {"b", "good"}});
    EXPECT_TRUE(HBCZipFile::uncompressFile(archive, "b", path("out/b")));
    EXPECT_EQ(content("out/b"), "good");
}

TEST_F(HBCZipFileTest, failedUnpackingOfOneMemberLeavesTheFileAsItWas)
{
    put("out/a", "mine");
    EXPECT_FALSE(HBCZipFile::uncompressFile(archiveOf({{"a", "theirs", 0100644, -1, false}}), "a", path("out/a")));
    EXPECT_EQ(content("out/a"), "mine");
    EXPECT_TRUE(HBCZipFile::uncompressFile(archiveOf({{"a", "theirs"}}), "a", path("out/a")));
    EXPECT_EQ(content("out/a"), "theirs");
}

} // namespace
