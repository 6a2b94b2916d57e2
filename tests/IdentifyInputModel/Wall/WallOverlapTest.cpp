#include "IdentifyInputModel/Wall/WallGeneratorFixture.h"

namespace {

using namespace wallbatch;
using WallOverlapTest = WallGeneratorFixture;

/** The outline of the wall from the origin to (5000, 0), 200 wide. */
vks::CRefPtr<vks::CPolygon> outline() { return shapes::rectangle(0, -100, 5000, 200); }

struct OverlapCase
{
    const char *name;
    double outline[4]; ///< box of the piece; all 0: none
    double axis[4];    ///< all 0: none
    bool isOverlap;
};

class CollectOverlapsTest : public WallOverlapTest, public ::testing::WithParamInterface<OverlapCase>
{};

TEST_P(CollectOverlapsTest, comparesAPieceWithAWallFromOriginTo5000Of200Width)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    const OverlapCase &given = GetParam();
    IdentifyResultData data;
    if (given.outline[2] > given.outline[0])
        data.sPolys = shapes::rectangle(given.outline[0], given.outline[1], given.outline[2] - given.outline[0],
                                        given.outline[3] - given.outline[1]);
    if (given.axis[2] != given.axis[0] || given.axis[3] != given.axis[1])
        data.sWorldLine = line(given.axis[0], given.axis[1], given.axis[2], given.axis[3]);
    add(brickWall(), {IdentifyResultData(), data});
    EXPECT_EQ(generator(service()).collectOverlaps(*floor(), bricks), given.isOverlap) << given.name;
}

INSTANTIATE_TEST_SUITE_P(
    Pieces, CollectOverlapsTest,
    ::testing::Values(OverlapCase{"the same", {0, -100, 5000, 100}, {0, 0, 5000, 0}, true},
                      OverlapCase{"inside", {1000, -50, 2000, 50}, {1000, 0, 2000, 0}, true},
                      OverlapCase{"around", {-500, -300, 6000, 300}, {-500, 0, 6000, 0}, true},
                      OverlapCase{"overlapping", {4000, -100, 9000, 100}, {4000, 0, 9000, 0}, true},
                      OverlapCase{"the other way round", {4000, -100, 9000, 100}, {9000, 0, 4000, 0}, true},
                      OverlapCase{"overlapping by less than 1 mm", {0, 99.5, 5000, 300}, {0, 200, 5000, 200}, false},
                      OverlapCase{"touching", {5000, -100, 9000, 100}, {5000, 0, 9000, 0}, false},
                      OverlapCase{"apart", {0, 1000, 5000, 1200}, {0, 1100, 5000, 1100}, false},
                      OverlapCase{"crossing", {2000, -1000, 2200, 1000}, {2100, -1000, 2100, 1000}, false},
                      OverlapCase{"without outline", {0, 0, 0, 0}, {0, 0, 5000, 0}, false},
                      OverlapCase{"without line", {0, -100, 5000, 100}, {0, 0, 0, 0}, false}));

TEST_F(WallOverlapTest, overlapsAreLookedForAmongBrickWallsOfTheFloorAlone)
{
    load(wall("W1", 0, "0 0, 5000 0"));
    IdentifyResultData data = piece();
    data.sPolys = outline();
    add(brickWall(), {data});
    const RecordingHost host(*service());
    IHBXFloor *floor = host.service()->model()->regions()->find("House")->floors()->findByCode("1");
    EXPECT_FALSE(generator(host.service()).collectOverlaps(*floor, bricks));
    EXPECT_EQ(host.calls().last(), "queryDrawObjsOfFloor(2, 1003, -1, true)");
}

TEST_F(WallOverlapTest, brickObjectThatHasNoGeometryIsNoOverlap)
{
    load(R"({"name": "Q1", "type": 1003, "drawObjects": [{"shape": {"kind": "line", "axis": null, "width": 200}}]})");
    IdentifyResultData data = piece();
    data.sPolys = outline();
    add(brickWall(), {data});
    EXPECT_FALSE(generator(service()).collectOverlaps(*floor(), bricks));
}

TEST_F(WallOverlapTest, overlapsAreRemovedBetweenTheBracketsOfABatch)
{
    load(wall("Q1", 1003, "0 0, 5000 0") + "," + wall("Q2", 1003, "0 3000, 5000 3000") + "," +
         wall("Q3", 1003, "1000 0, 9000 0"));
    IdentifyResultData data = piece();
    data.sPolys = outline();
    add(brickWall(), {data});
    const RecordingHost host(*service());
    IHBXFloor *floor = host.service()->model()->regions()->find("House")->floors()->findByCode("1");
    ORVCADWallEdoGenerator overlaps = generator(host.service());
    EXPECT_TRUE(overlaps.collectOverlaps(*floor, bricks));
    EXPECT_TRUE(overlaps.collectOverlaps(*floor, bricks)); // no object twice
    overlaps.removeOverlaps();
    EXPECT_EQ(host.calls().mid(4),
              (QStringList{begin(79), "removeDrawObj(object of Q1)", "removeDrawObj(object of Q3)", end(79)}));
    EXPECT_EQ(placedNames(1003), (QStringList{"Q2"}));
}

TEST_F(WallOverlapTest, nothingToRemoveOpensNoBatch)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    const RecordingHost host(*service());
    ORVCADWallEdoGenerator overlaps = generator(host.service());
    overlaps.removeOverlaps();
    EXPECT_EQ(host.calls(), QStringList());
    EXPECT_EQ(placed(1003).size(), 1);
}

} // namespace
