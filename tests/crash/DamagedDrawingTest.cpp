#include "Damage.h"
#include "cli/TestFiles.h"
#include "embedded/ExchangeDocuments.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"
#include "platform/embedded/HBXFloorDrawing.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HBCZipFile.h"
#include "slab/ORVCADBoardLocalIOModel_Sample.h"

#include <iostream>

namespace {

constexpr unsigned kSeed = 20261121;
constexpr int kFiles = 400;
constexpr int kPiece = 512; ///< bytes

class DamagedDrawingTest : public TestFiles
{
protected:
    using Operator = std::unique_ptr<HBXCADIOperator>;
    static Operator newOperator() { return Operator(HBXCADFileHelper::getInstance()->createCADIOperator()); }

    /** The plan of a floor. */
    QByteArray drawing() const
    {
        const auto project = exchangetest::projectOf(exchangetest::building("made-building"));
        IHBXModel *model = project->service()->model();
        const auto plan = hbx::embedded::makeFloorDrawing(model, model->regions()->at(0)->floors()->at(0));
        const Operator drawings = newOperator();
        EXPECT_TRUE(drawings->write(path("plan.cadi2"), plan.get(), "plan", ""))
            << qPrintable(drawings->lastErrorReason());
        return clitest::fileContent(path("plan.cadi2"));
    }
    QByteArray archive() const
    {
        drawing();
        EXPECT_TRUE(HBCZipFile::compressFiles({path("plan.cadi2")}, path("plan.wzd")));
        return clitest::fileContent(path("plan.wzd"));
    }
    QStringList files() const { return QDir(path(".")).entryList(QDir::Files | QDir::Hidden); }
    static void tell(const char *kind, int read)
    {
        EXPECT_GT(read, 0);
        EXPECT_LT(read, kFiles);
        std::cout << read << " of " << kFiles << " damaged " << kind << " read, the others refused\n";
    }
};

} // namespace

TEST_F(DamagedDrawingTest, drawingIsReadSoundlyOrRefusedWithItsReason)
{
    const QByteArray whole = drawing();
    crashtest::Damage damage(kSeed, kPiece);
    int read = 0;
    for (int i = 0; i < kFiles; ++i) {
        const Operator drawings = newOperator();
        const std::unique_ptr<dwgx::DWGXModel> model(dwgx::DWGXModel::createObject());
        if (!drawings->read(fileOf("damaged.cadi2", damage.done(whole)), model.get())) {
            EXPECT_FALSE(drawings->lastErrorReason().isEmpty()) << i;
            continue;
        }
        ++read;
        EXPECT_TRUE(drawings->write(path("again.cadi2"), model.get(), model->getTitle(), model->getRemark()))
            << i << ": " << qPrintable(drawings->lastErrorReason());
        EXPECT_TRUE(drawings->read(path("again.cadi2"), model.get()))
            << i << ": " << qPrintable(drawings->lastErrorReason());
    }
    tell("drawings", read);
}

TEST_F(DamagedDrawingTest, archiveIsUnpackedWholeOrLeavesNothing)
{
    const QByteArray whole = archive();
    ASSERT_TRUE(QDir(path(".")).mkdir("out"));
    crashtest::Damage damage(kSeed, kPiece);
    int unpacked = 0;
    for (int i = 0; i < kFiles; ++i) {
        const QString damaged = fileOf("damaged.wzd", damage.done(whole));
        QDir out(path("out"));
        const bool isUnpacked = HBCZipFile::extractFiles(damaged, out.path());
        EXPECT_TRUE(isUnpacked || out.isEmpty()) << i;
        unpacked += isUnpacked ? 1 : 0;
        out.removeRecursively();
        out.mkpath(".");

        const QStringList before = files();
        if (!HBCZipFile::uncompressFile(damaged, "plan.cadi2", path("one.cadi2"))) {
            EXPECT_EQ(files(), before) << i;
        }
        QFile::remove(path("one.cadi2"));
    }
    tell("archives", unpacked);
}

TEST_F(DamagedDrawingTest, packedDrawingIsReadOrRefused)
{
    const QByteArray whole = archive();
    qputenv("TMPDIR", path(".").toUtf8()); // where archives are unpacked, and those that cannot be leave their folders
    crashtest::Damage damage(kSeed + 1, kPiece);
    int read = 0;
    for (int i = 0; i < kFiles; ++i) {
        ORVCADBoardLocalIOModel_Sample model;
        read += model.setDrawing(fileOf("damaged.wzd", damage.done(whole))) ? 1 : 0;
    }
    qunsetenv("TMPDIR");
    tell("packed drawings", read);
}
