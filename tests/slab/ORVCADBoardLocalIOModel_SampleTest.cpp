#include "slab/ORVCADBoardLocalIOModel_Sample.h"

#include "platform/services/HBCZipFile.h"
#include "services/ZipBytes.h"
#include "slab/SlabIOModelFixture.h"

#include <QFileInfo>

#include <cmath>
#include <utility>

namespace {

class ORVCADBoardLocalIOModelTest : public SlabIOModelFixture
{
protected:
    QString archiveOf(const QStringList &files) const
    {
        EXPECT_TRUE(HBCZipFile::compressFiles(files, path("drawing.wzd")));
        return path("drawing.wzd");
    }

    IOModel model;
};

TEST_F(ORVCADBoardLocalIOModelTest, newModelHasNoDrawingAndOfItsElevationsOnlyTheTopIsNoNumber)
{
    EXPECT_TRUE(std::isnan(model.currentFloorTopElev()));
    EXPECT_EQ(model.currentFloorBtmElev(), 0.0);
    EXPECT_EQ(model.drawing(), nullptr);
    EXPECT_EQ(model.orvFileName(), QString());
    EXPECT_EQ(model.currentRegionName(), QString());
    EXPECT_EQ(model.currentFloorName(), QString());
    EXPECT_EQ(model.options().value("any"), QString());
    EXPECT_TRUE(model.objects().empty());
}

TEST_F(ORVCADBoardLocalIOModelTest, floorAndFileNameAreKept)
{
    IOAccess::setFloor(model, "Block", "F2", 5.95, 2.95);
    IOAccess::setORVFileName(model, "house.orv");
    EXPECT_EQ(model.currentRegionName(), "Block");
    EXPECT_EQ(model.currentFloorName(), "F2");
    EXPECT_EQ(model.currentFloorTopElev(), 5.95);
    EXPECT_EQ(model.currentFloorBtmElev(), 2.95);
    EXPECT_EQ(model.orvFileName(), "house.orv");
}

TEST_F(ORVCADBoardLocalIOModelTest, borrowedDrawingsAreNeverDestroyed)
{
    const DrawingPtr first = drawing("first");
    const DrawingPtr second = drawing("second");
    {
        IOModel borrower;
        EXPECT_TRUE(borrower.setDrawing(first.get()));
        EXPECT_TRUE(borrower.setDrawing(second.get()));
        EXPECT_EQ(borrower.drawing(), second.get());
        EXPECT_TRUE(borrower.setDrawing(drawingFile("third.cadi2")));
    }
    EXPECT_EQ(first->getTitle(), "first");
    EXPECT_EQ(second->getTitle(), "second");
}

TEST_F(ORVCADBoardLocalIOModelTest, ownedDrawingIsDestroyedWhenAnotherOneIsBorrowed)
{
    const DrawingPtr other = drawing("other");
    ASSERT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
    const auto line = lineOf(*model.drawing());
    EXPECT_TRUE(lives(line));
    EXPECT_TRUE(model.setDrawing(other.get()));
    EXPECT_FALSE(lives(line));
    EXPECT_EQ(model.drawing(), other.get());
}

TEST_F(ORVCADBoardLocalIOModelTest, ownedDrawingIsDestroyedWhenAnotherOneIsRead)
{
    ASSERT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
    const auto line = lineOf(*model.drawing());
    ASSERT_TRUE(model.setDrawing(drawingFile("other.cadi2", "other")));
    EXPECT_FALSE(lives(line));
    EXPECT_EQ(model.drawing()->getTitle(), "other");
}

TEST_F(ORVCADBoardLocalIOModelTest, ownedDrawingIsDestroyedWithTheModel)
{
    auto owner = std::make_unique<IOModel>();
    ASSERT_TRUE(owner->setDrawing(drawingFile("plan.cadi2")));
    const auto line = lineOf(*owner->drawing());
    owner.reset();
    EXPECT_FALSE(lives(line));
}

TEST_F(ORVCADBoardLocalIOModelTest, ownDrawingHandedInAgainStaysOwned)
{
    ASSERT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
    const auto line = lineOf(*model.drawing());
    EXPECT_TRUE(model.setDrawing(model.drawing()));
    EXPECT_TRUE(lives(line));
    const DrawingPtr other = drawing();
    EXPECT_TRUE(model.setDrawing(other.get()));
    EXPECT_FALSE(lives(line));
}

TEST_F(ORVCADBoardLocalIOModelTest, nullDrawingIsRefusedAndChangesNothing)
{
    EXPECT_FALSE(model.setDrawing(static_cast<dwgx::DWGXModel *>(nullptr)));
    EXPECT_EQ(model.drawing(), nullptr);
    ASSERT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
    EXPECT_FALSE(model.setDrawing(static_cast<dwgx::DWGXModel *>(nullptr)));
    EXPECT_EQ(model.drawing()->getTitle(), "plan");
}

TEST_F(ORVCADBoardLocalIOModelTest, drawingThatCannotBeReadLeavesThePresentOne)
{
    const QStringList bad{path("missing.cadi2"),
                          put("broken.cadi2", "{"),
                          put("broken.wzd", "PK"),
                          archiveOf({put("a.cadi2", "{")}),
                          QString(),
                          QDir::currentPath()};
    const DrawingPtr borrowed = drawing();
    ASSERT_TRUE(model.setDrawing(borrowed.get()));
    for (const QString &file : bad)
        EXPECT_FALSE(model.setDrawing(file)) << qPrintable(file);
    EXPECT_EQ(model.drawing(), borrowed.get());

    ASSERT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
    for (const QString &file : bad)
        EXPECT_FALSE(model.setDrawing(file)) << qPrintable(file);
    EXPECT_EQ(model.drawing()->getTitle(), "plan");
}

TEST_F(ORVCADBoardLocalIOModelTest, viewerDataOfAFileIsReset)
{
    const DrawingPtr turned = drawing();
    turned->setViewerInfoData({{1.0F, 0.0F, 0.0F, 0.5F}, 4.0F, 0.25F, 7});
    ASSERT_TRUE(model.setDrawing(written("plan.cadi2", *turned)));
    const dwgx::DWGXViewerInfoData viewer = model.drawing()->getViewerInfoData();
    EXPECT_EQ(viewer.orientation, (std::array<float, 4>{0.0F, 0.0F, -1.0F, 0.0F}));
    EXPECT_EQ(viewer.zoom, 1.0F);
    EXPECT_EQ(viewer.turn, 0.0F);
    EXPECT_EQ(viewer.flags, 0U);
}

TEST_F(ORVCADBoardLocalIOModelTest, drawingThatWasReadHasExtensionData)
{
    ASSERT_TRUE(model.setDrawing(drawingFile("plain.cadi2")));
    ASSERT_NE(model.drawing()->getCADExtData(), nullptr);
    EXPECT_TRUE(model.drawing()->getCADExtData()->values().isEmpty());

    const DrawingPtr noted = drawing();
    noted->setCADExtData(new HBXCADExtData);
    noted->getCADExtData()->setValue("scale", "1:100");
    ASSERT_TRUE(model.setDrawing(written("noted.cadi2", *noted)));
    EXPECT_EQ(model.drawing()->getCADExtData()->value("scale"), "1:100");
}

TEST_F(ORVCADBoardLocalIOModelTest, archiveGivesItsFirstFileAndLeavesNothingBehind)
{
    const QString archive = archiveOf({drawingFile("b.cadi2", "second"), drawingFile("a.cadi2", "first")});
    ASSERT_TRUE(model.setDrawing(archive));
    EXPECT_EQ(model.drawing()->getTitle(), "first");
    EXPECT_EQ(QFileInfo(model.drawing()->getFilePath()).fileName(), "a.cadi2");
    EXPECT_EQ(leftovers(), QStringList());
    EXPECT_TRUE(QFileInfo::exists(archive));
}

TEST_F(ORVCADBoardLocalIOModelTest, archiveWithoutADrawingLeavesNothingBehind)
{
    EXPECT_FALSE(model.setDrawing(put("empty.wzd", ZipBytes::of({}))));
    EXPECT_FALSE(model.setDrawing(put("folder.wzd", ZipBytes::of({{"a/b.cadi2", "{}"}}))));
    EXPECT_FALSE(model.setDrawing(archiveOf({put("a.cadi2", "{")})));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(ORVCADBoardLocalIOModelTest, archiveThatCannotBeUnpackedLeavesItsEmptyFolderBehind)
{
    EXPECT_FALSE(model.setDrawing(put("broken.wzd", "PK")));
    ASSERT_EQ(leftovers().size(), 1);
    EXPECT_TRUE(QDir(QDir::temp().filePath(leftovers().first())).isEmpty());
}

TEST_F(ORVCADBoardLocalIOModelTest, hostileArchivesAreRefused)
{
    using Members = QList<ZipBytes::Member>;
    const Members climbs{{"../evil.cadi2", "{}"}};
    const Members links{{"a.cadi2", "/etc/passwd", 0120777}};
    const Members isBomb{{"a.cadi2", QByteArray(1000000, ' '), 0100644, 10}};
    const Members isTooLarge{{"a.cadi2", "{}", 0100644, (qint64(1) << 30) + 1}};
    const Members isDamaged{{"a.cadi2", "{}", 0100644, -1, false}};
    for (const Members &members : {climbs, links, isBomb, isTooLarge, isDamaged})
        EXPECT_FALSE(model.setDrawing(put("hostile.wzd", ZipBytes::of(members))));
    EXPECT_EQ(model.drawing(), nullptr);
    EXPECT_FALSE(leftovers().contains("evil.cadi2"));
}

TEST_F(ORVCADBoardLocalIOModelTest, endingInUpperCaseIsNoArchive)
{
    ASSERT_TRUE(QFile::rename(drawingFile("plan.cadi2"), path("plan.WZD")));
    EXPECT_TRUE(model.setDrawing(path("plan.WZD"))) << "it goes straight to the reader of drawings";
    ASSERT_TRUE(QFile::rename(archiveOf({drawingFile("plan.cadi2")}), path("packed.WZD")));
    EXPECT_FALSE(model.setDrawing(path("packed.WZD")));
}

TEST_F(ORVCADBoardLocalIOModelTest, archiveNeedsATemporaryFolder)
{
    const QString archive = archiveOf({drawingFile("plan.cadi2")});
    useTemporary(put("file", ""));
    EXPECT_FALSE(model.setDrawing(archive));
    EXPECT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
}

TEST_F(ORVCADBoardLocalIOModelTest, movedModelTakesEverythingAndLeavesANewOne)
{
    IOAccess::values(model.options())["grade"] = "C30";
    IOAccess::setFloor(model, "Block", "F2", 5.95, 2.95);
    ASSERT_TRUE(model.setDrawing(drawingFile("plan.cadi2")));
    const auto line = lineOf(*model.drawing());
    {
        const IOModel taker(std::move(model));
        EXPECT_EQ(taker.options().value("grade"), "C30");
        EXPECT_EQ(taker.currentFloorName(), "F2");
        EXPECT_EQ(taker.drawing()->getTitle(), "plan");
    }
    EXPECT_FALSE(lives(line));
    // NOLINTNEXTLINE(bugprone-use-after-move): a moved model is as new
    EXPECT_EQ(model.drawing(), nullptr);
    EXPECT_TRUE(std::isnan(model.currentFloorTopElev()));
    EXPECT_EQ(model.currentFloorBtmElev(), 0.0);
    EXPECT_EQ(model.options().value("grade"), QString());
}

} // namespace
