#include "cli/WallTour.h"

#include "HouseFixture.h"
#include "JsonTexts.h"
#include "cli/ProjectFiles.h"

#include <QDir>
#include <QTemporaryDir>

using namespace orvcad;

namespace {

class WallTourTest : public HouseFixture
{
protected:
    void SetUp() override
    {
        openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + wall("Q2", "LINESTRING(0 900, 5000 900)"));
        saveProjectAs(*project, path("house.hbxdb"));
    }
    QString path(const char *name) const { return QDir(m_directory.path()).filePath(QLatin1String(name)); }

    QTemporaryDir m_directory;
    WallTour tour{m_directory.path(), {"brick", "F", "house.hbxdb", "copy.hbxdb", "walls.json"}};
};

TEST_F(WallTourTest, wallsGoOutAndComeBackIntoTheCopyThatLostThem)
{
    const TourStep written = tour.write(*project);
    EXPECT_EQ(written.typed, "wall reply house.hbxdb --kind brick --floor \"F\" -o walls.json");
    EXPECT_EQ(written.outcome, "2 brick walls in 2 pieces of 1 floor");
    EXPECT_TRUE(clitest::fileObject(path("walls.json")).contains("eBrickWall"));

    EXPECT_EQ(tour.strip(*project), "copy.hbxdb loses the brick walls of F (2 elements), with all that is placed.");
    saveProjectAs(*project, path("copy.hbxdb"));

    const TourStep applied = tour.apply(*project);
    EXPECT_EQ(applied.typed, "wall apply copy.hbxdb --kind brick walls.json");
    EXPECT_EQ(applied.outcome,
              "2 brick walls read: 2 elements made (0 under another name), 2 pieces placed, 0 left out");
    EXPECT_EQ(tour.compare(), "Compared with the original: 2 pieces of brick walls, the reply written again is the "
                              "same but for ids");
    EXPECT_TRUE(tour.isSame());
    const QJsonObject json = tour.toJson();
    EXPECT_EQ(json["apply"]["placed"], 2);
    EXPECT_EQ(json["comparison"]["compared"], 2);
}

TEST_F(WallTourTest, copyThatDidNotGetItsWallsBackIsNotTheSame)
{
    tour.strip(*project);
    saveProjectAs(*project, path("copy.hbxdb"));
    EXPECT_TRUE(tour.compare().contains("DIFFERS"));
    EXPECT_FALSE(tour.isSame());
}

TEST_F(WallTourTest, wallsThatComeTwiceAreNotTheSame)
{
    tour.write(*project);
    saveProjectAs(*project, path("copy.hbxdb"));
    tour.apply(*project); // under other names
    tour.compare();
    EXPECT_FALSE(tour.isSame());
}

} // namespace
