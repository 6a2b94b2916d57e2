#include "CliFixture.h"

#include <QDomDocument>

namespace {

using DemoCommandTest = CliFixture;

TEST_F(DemoCommandTest, tourBringsOpeningsBeamsAndSlabsBackWithoutDeviations)
{
    const Result result = run({"demo", "tour", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    const QJsonObject summary = result.json();
    EXPECT_EQ(keys(summary),
              "apply,applyBeams,applySlabs,beamComparison,brickWalls,comparison,directory,forceWalls,slabComparison");
    EXPECT_EQ(summary["directory"], "tour");
    // 21 doors and 17 windows, of which 64 and 23 are placed; the file puts each of them into a wall.
    EXPECT_EQ(summary["apply"], QJsonValue(QJsonObject{{"members", 125},
                                                       {"elementsMade", 38},
                                                       {"placed", 87},
                                                       {"attached", 87},
                                                       {"unattached", 0},
                                                       {"leftOut", QJsonArray()}}));
    EXPECT_EQ(summary["comparison"],
              QJsonValue(QJsonObject{{"compared", 87}, {"sameDocument", true}, {"deviations", QJsonArray()}}));
    // Level 1 of the building file has 2 beams in 129 places, none of them linked.
    EXPECT_EQ(summary["applyBeams"]["members"], 2);
    EXPECT_EQ(summary["applyBeams"]["made"]["elements"], 2);
    EXPECT_EQ(summary["applyBeams"]["made"]["chains"], 129);
    EXPECT_EQ(summary["applyBeams"]["made"]["segments"], 129);
    EXPECT_EQ(summary["applyBeams"]["leftOut"], QJsonArray());
    EXPECT_EQ(summary["beamComparison"], QJsonValue(QJsonObject{{"compared", 129}, {"deviations", QJsonArray()}}));
    // Its 21 slabs have neither holes nor bars; 148 supports stand in the payload with them.
    EXPECT_EQ(summary["applySlabs"]["members"], 21);
    EXPECT_EQ(summary["applySlabs"]["made"], 21);
    EXPECT_EQ(summary["applySlabs"]["passedOver"], 148);
    EXPECT_EQ(summary["applySlabs"]["leftOut"], QJsonArray());
    EXPECT_EQ(summary["slabComparison"], QJsonValue(QJsonObject{{"compared", 21}, {"deviations", QJsonArray()}}));
}

TEST_F(DemoCommandTest, tourBringsBrickAndForceWallsBackWithoutDeviations)
{
    const Result result = run({"demo", "tour", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    // Level 1 of the building file has 5 brick walls in 57 pieces, the ground floor of the hall 3 force walls in 50.
    const struct
    {
        const char *key;
        int elements;
        int pieces;
    } kinds[] = {{"brickWalls", 5, 57}, {"forceWalls", 3, 50}};
    for (const auto &kind : kinds) {
        const QJsonObject walls = result.json()[kind.key].toObject();
        EXPECT_EQ(walls["apply"].toObject()["elementsMade"], kind.elements);
        EXPECT_EQ(walls["apply"].toObject()["renamed"], 0);
        EXPECT_EQ(walls["apply"].toObject()["placed"], kind.pieces);
        EXPECT_EQ(walls["apply"].toObject()["leftOut"], QJsonArray());
        EXPECT_EQ(walls["comparison"].toObject()["compared"], kind.pieces);
        EXPECT_EQ(walls["comparison"].toObject()["deviations"], QJsonArray());
    }
}

TEST_F(DemoCommandTest, tourLeavesItsFiles)
{
    ASSERT_EQ(run({"demo", "tour"}).exitCode, 0);
    EXPECT_EQ(QDir(path("tour")).entryList(QDir::Files, QDir::Name).join(' ').toStdString(),
              "after.svg beams.json before.svg building.hbxdb building.html building.json changes.html floors.json "
              "hall-after.svg hall-before.svg hall-columns.json hall-drawings.json hall-restored.hbxdb hall-walls.json "
              "hall.hbxdb hall.json "
              "openings.json restored.hbxdb slab-ids.json slabs.json stripped.hbxdb walls.json");
    EXPECT_EQ(read("tour/building.json"), clitest::fileContent(sample("masonry-block")));
}

TEST_F(DemoCommandTest, picturesDifferByTheOpeningsBeamsSlabsAndWallsOfTheDrawnFloor)
{
    ASSERT_EQ(run({"demo", "tour"}).exitCode, 0);
    QDomDocument before;
    QDomDocument after;
    ASSERT_TRUE(before.setContent(read("tour/before.svg")));
    ASSERT_TRUE(after.setContent(read("tour/after.svg")));
    for (const char *group :
         {"class=\"type-4\"", "class=\"type-5\"", "class=\"type-15\"", "class=\"type-19\"", "class=\"type-1003\""}) {
        EXPECT_FALSE(read("tour/before.svg").contains(group)) << group;
        EXPECT_TRUE(read("tour/after.svg").contains(group)) << group;
    }
}

TEST_F(DemoCommandTest, tourTellsItsStepsAsOneWouldTypeThem)
{
    const Result result = run({"demo", "tour"});
    EXPECT_TRUE(result.out.startsWith("Building: Masonry block (")) << result.out.toStdString();
    int place = 0;
    for (const char *step :
         {"$ orvcad project import building.json -o building.hbxdb\n  1 region, 6 floors, 78 elements, 641 placed "
          "objects",
          "$ orvcad floors export building.hbxdb -o floors.json && orvcad floors show floors.json\n"
          "  6 floors of \"Block\": base none, first Level 1, highest Level 5",
          "$ orvcad opening export building.hbxdb -o openings.json\n  38 elements and 87 placed openings, 87 of them",
          "$ orvcad beam export building.hbxdb --floor \"Level 1\" -o beams.json\n  2 elements, 129 chains of 129 "
          "segments, ",
          "$ orvcad slab export building.hbxdb --floor \"Level 1\" -o slabs.json\n  21 slabs, 19 columns, 129 beams",
          "$ orvcad wall reply building.hbxdb --kind brick --floor \"Level 1\" -o walls.json\n"
          "  5 brick walls in 57 pieces of 1 floor",
          "A copy, restored.hbxdb, loses all doors and windows (38 elements) and the beams (2 elements) and slabs (",
          "restored.hbxdb loses the brick walls of Level 1 (5 elements), with all that is placed.",
          "$ orvcad draw restored.hbxdb --floor \"Level 1\" -o before.svg\n  19 placed objects at 1:",
          "$ orvcad wall apply restored.hbxdb --kind brick walls.json\n"
          "  5 brick walls read: 5 elements made (0 under another name), 57 pieces placed, 0 left out",
          "$ orvcad opening apply restored.hbxdb openings.json\n"
          "  125 members read: 38 elements made, 87 openings placed (87 in a wall, 0 in none), 0 left out",
          "$ orvcad beam apply restored.hbxdb beams.json\n  2 beams read: 2 elements, 129 chains of 129 segments, ",
          "$ orvcad slab apply restored.hbxdb --floor \"Level 1\" slabs.json --as-new --ids slab-ids.json\n"
          "  21 members read: 21 made in ",
          "$ orvcad draw restored.hbxdb --floor \"Level 1\" -o after.svg\n  266 placed objects at 1:",
          "Compared with the original: 87 openings, the payload written again is the same but for ids; each in the "
          "wall",
          "Compared with the original: 129 segments of beams, the payload written again is the same",
          "Compared with the original: 21 members of slabs, nothing lost, added or moved",
          "Compared with the original: 57 pieces of brick walls, the reply written again is the same but for ids",
          "Building: Precast hall on piles (",
          "$ orvcad project import hall.json -o hall.hbxdb\n",
          "$ orvcad wall reply hall.hbxdb --kind force --floor \"Ground floor\" -o hall-walls.json\n"
          "  3 force walls in 50 pieces of 1 floor",
          "A copy: hall-restored.hbxdb loses the force walls of Ground floor (3 elements), with all that is placed.",
          "$ orvcad draw hall-restored.hbxdb --floor \"Ground floor\" -o hall-before.svg\n",
          "$ orvcad wall apply hall-restored.hbxdb --kind force hall-walls.json\n  3 force walls read: 3 elements made",
          "$ orvcad draw hall-restored.hbxdb --floor \"Ground floor\" -o hall-after.svg\n",
          "Compared with the original: 50 pieces of force walls, the reply written again is the same but for ids",
          "$ orvcad drawings show hall-drawings.json\n  Drawing set of Hall: 8 of 8 stages, 9 drawings, 3 floors",
          "$ orvcad column check hall-columns.json\n  results of identification: cadLines 24, cadTexts 24, columns "
          "24, ",
          "written again, it is the same document",
          "Everything stands in tour; before.svg and after.svg, hall-before.svg and hall-after.svg are the "
          "pictures, building.html and changes.html the pages."}) {
        const int found = result.out.indexOf(step, place);
        EXPECT_GE(found, place) << step << "\nis missing in\n" << result.out.toStdString();
        place = std::max(place, found);
    }
}

TEST_F(DemoCommandTest, typedStepsDoWhatTheTourDid)
{
    ASSERT_EQ(run({"demo", "tour"}).exitCode, 0);
    EXPECT_EQ(run({"opening", "export", "tour/building.hbxdb"}).out, read("tour/openings.json"));
    EXPECT_EQ(run({"beam", "export", "tour/building.hbxdb", "--floor", "Level 1"}).out, read("tour/beams.json"));
    EXPECT_EQ(run({"wall", "reply", "tour/building.hbxdb", "--kind", "brick", "--floor", "Level 1"}).out,
              read("tour/walls.json"));
    EXPECT_EQ(run({"floors", "export", "tour/building.hbxdb"}).out, read("tour/floors.json"));
    EXPECT_EQ(run({"draw", "tour/restored.hbxdb", "--floor", "Level 1"}).out, read("tour/after.svg"));
}

TEST_F(DemoCommandTest, tourMayBeTakenTwiceInOneDirectory)
{
    ASSERT_EQ(run({"demo", "tour"}).exitCode, 0);
    const QByteArray after = read("tour/after.svg");
    ASSERT_EQ(run({"demo", "tour"}).exitCode, 0);
    EXPECT_EQ(read("tour/after.svg"), after);
}

TEST_F(DemoCommandTest, tourGoesIntoItsOwnDirectoryWhenNoneIsNamed)
{
    ASSERT_EQ(run({"demo"}).exitCode, 0);
    EXPECT_TRUE(exists("orvcad-demo/after.svg"));
}

TEST_F(DemoCommandTest, directoryThatCannotBeMadeIsNamed)
{
    write("tour", QByteArray("a file"));
    refusal({"demo", "tour"}, "tour");
    EXPECT_EQ(read("tour"), "a file");
}

} // namespace
