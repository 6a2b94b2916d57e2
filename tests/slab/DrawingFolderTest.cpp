#include "slab/DrawingFolder.h"

#include "slab/SlabIOModelFixture.h"

namespace {

class DrawingFolderTest : public SlabIOModelFixture
{
protected:
    static void putInto(const slab::DrawingFolder &folder)
    {
        QFile file(folder.filePath(QStringLiteral("plan.cadi2")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("x");
        EXPECT_TRUE(folder.folder().mkpath(QStringLiteral("below/deeper")));
    }
};

TEST_F(DrawingFolderTest, folderStandsInTheTemporaryOneAndGoesWithAllInIt)
{
    {
        const slab::DrawingFolder folder;
        ASSERT_TRUE(folder.isMade());
        EXPECT_EQ(leftovers(), QStringList{folder.folder().dirName()});
        putInto(folder);
    }
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(DrawingFolderTest, twoFoldersAreApart)
{
    const slab::DrawingFolder one;
    const slab::DrawingFolder other;
    EXPECT_NE(one.folder().path(), other.folder().path());
    EXPECT_EQ(leftovers().size(), 2);
}

TEST_F(DrawingFolderTest, folderThatIsLeftBehindStaysUnlessThatIsTakenBack)
{
    QString left;
    {
        slab::DrawingFolder stays;
        slab::DrawingFolder goes;
        left = stays.folder().dirName();
        stays.leaveBehind();
        goes.leaveBehind();
        goes.leaveBehind(false);
    }
    EXPECT_EQ(leftovers(), QStringList{left});
}

TEST_F(DrawingFolderTest, folderIsNotMadeWhereTheTemporaryOneCannotHoldIt)
{
    useTemporary(put(QStringLiteral("file"), "no folder"));
    const slab::DrawingFolder folder;
    EXPECT_FALSE(folder.isMade());
}

TEST_F(DrawingFolderTest, drawingIsWrittenUnlessItsFolderIsMissing)
{
    const slab::DrawingFolder folder;
    EXPECT_TRUE(slab::writeDrawing(*drawing(), folder.filePath(QStringLiteral("plan.cadi2"))));
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("plan.cadi2"))));
    EXPECT_FALSE(slab::writeDrawing(*drawing(), folder.filePath(QStringLiteral("missing/plan.cadi2"))));
}

} // namespace
