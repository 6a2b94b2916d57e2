#include "cli/SlabExport.h"

#include "CommandFailures.h"
#include "HouseFixture.h"
#include "cli/DrawingFiles.h"
#include "platform/embedded/HBXFloorDrawing.h"

#include <QDir>
#include <QTemporaryDir>

using namespace orvcad;

namespace {

class SlabExportTest : public HouseFixture
{
protected:
    void SetUp() override { openHouse(slab("B-h120", "POLYGON((0 0, 9000 0, 9000 9000, 0 9000, 0 0))")); }

    QJsonValue document(int parts) const { return slabDocument(*project, floor(), SlabParts(parts)); }
    std::string keys(int parts) const { return document(parts).toObject().keys().join(',').toStdString(); }
};

TEST_F(SlabExportTest, everythingHasAllArraysAndTheIdsOfTheHost)
{
    const QJsonObject all = slabDocument(*project, floor(), SlabParts());
    EXPECT_EQ(all.size(), 13);
    EXPECT_GT(all["boards"][0]["id"].toInt(), 0);
    EXPECT_EQ(all["boards"][0]["name"], "B-h120");
    EXPECT_EQ(all["boards"][0]["thinkness"], 120);
}

TEST_F(SlabExportTest, partsArePickedOneByOneAndHaveNoIds)
{
    EXPECT_EQ(keys(4), "board_holes,boards");
    EXPECT_EQ(document(4)["boards"][0]["id"], -1);
    EXPECT_EQ(keys(32 | 8), "forced_bars,negative_forced_bars,rafts,straddle_forced_bars");
    EXPECT_EQ(keys(2), "axisGrids,beams,columns,walls");
    EXPECT_EQ(keys(128), keys(2)); // they come together
    EXPECT_EQ(keys(4 | 1 | 16), keys(4));
}

TEST_F(SlabExportTest, allPartsButTheAxesAreEverythingToo)
{
    for (const int number : {126, 127, 254, 255, 110})
        EXPECT_TRUE(SlabParts(number).isEverything()) << number;
    for (const int number : {2, 4, 124, 62, 128})
        EXPECT_FALSE(SlabParts(number).isEverything()) << number;
    EXPECT_TRUE(SlabParts(4).has(4));
    EXPECT_FALSE(SlabParts(4).has(8));
}

TEST_F(SlabExportTest, numberThatNamesNoPartIsWrongUsage)
{
    for (const int number : {0, 1, 16, 17, 256, -4})
        EXPECT_EQ(clitest::failureOf([number] { SlabParts{number}; }, kWrongUsage)
                      .find("--parts " + std::to_string(number) + " names no part"),
                  0U)
            << number;
}

TEST_F(SlabExportTest, ioDocumentHasTheDrawingTheModelTheOptionsAndTheFloor)
{
    const QTemporaryDir directory;
    const QString path = QDir(directory.path()).filePath("plan.cadi2");
    writeDrawing(path, *hbx::embedded::makeFloorDrawing(&model(), &floor()));
    const QJsonObject document = slabIoDocument(*project, floor(), path);
    EXPECT_EQ(document.keys(), (QStringList{"drawing", "model", "options", "state"}));
    EXPECT_EQ(document["drawing"]["drawing_name"], "plan");
    EXPECT_EQ(document["state"]["floor_name"], "F");
    EXPECT_EQ(document["model"]["boards"].toArray().size(), 1);
}

TEST_F(SlabExportTest, drawingThatIsMissingOrNoneIsRefusedByName)
{
    const QTemporaryDir directory;
    const QString missing = QDir(directory.path()).filePath("none.cadi2");
    EXPECT_EQ(clitest::failureOf([&] { slabIoDocument(*project, floor(), missing); }),
              missing.toStdString() + ": No such file or directory");
    const QString bad = QDir(directory.path()).filePath("bad.cadi2");
    QFile file(bad);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no drawing");
    file.close();
    EXPECT_EQ(clitest::failureOf([&] { slabIoDocument(*project, floor(), bad); }),
              bad.toStdString() + ": is no drawing that can be read");
}

} // namespace
