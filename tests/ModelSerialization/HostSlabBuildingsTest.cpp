#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "support/BuildingHost.h"

namespace {

using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Json = ORVCADBoardLocalModelPersistenceService_Sample;
using Model = ORVCADBoardLocalModel_Sample;

/** A floor of a sample building, read whole. */
struct ReadFloor
{
    ReadFloor(const char *building, const char *region, const char *floor) : host(building)
    {
        EXPECT_TRUE(Service::hbx2local(&host.model(), QString::fromUtf8(region), QString::fromUtf8(floor), topElev,
                                       btmElev, &local, Service::Everything));
    }

    BuildingHost host;
    Model local;
    double topElev = 0.0;
    double btmElev = 0.0;
};

struct Counts
{
    const char *building;
    const char *region;
    const char *floor;
    std::size_t rafts, boards, holes, columns, beams, walls, nets;
};

const Counts kFloors[] = {
    {"made-building", "主楼", "第2层", 0, 1, 0, 1, 6, 1, 0},
    {"made-building", "主楼", "第1层", 0, 3, 5, 6, 0, 3, 1},
    {"made-building", "主楼", "基础层", 1, 0, 1, 0, 2, 1, 0},
    {"made-building", "附楼 Annex", "Ground", 0, 2, 0, 1, 0, 0, 1},
    {"duplex-apartment", "Duplex", "T/FDN", 11, 0, 0, 0, 0, 7, 0},
    {"duplex-apartment", "Duplex", "Roof", 0, 1, 2, 0, 0, 0, 0},
    {"masonry-block", "Block", "Level 1", 0, 21, 0, 19, 129, 0, 0},
    {"precast-hall", "Hall", "Ground floor", 0, 29, 0, 24, 20, 50, 2},
};

TEST(HostSlabBuildingsTest, everyObjectOfAFloorComesIn)
{
    for (const Counts &floor : kFloors) {
        const ReadFloor read(floor.building, floor.region, floor.floor);
        EXPECT_EQ(read.local.rafts().size(), floor.rafts) << floor.building << ' ' << floor.floor;
        EXPECT_EQ(read.local.boards().size(), floor.boards) << floor.building << ' ' << floor.floor;
        EXPECT_EQ(read.local.boardHoles().size(), floor.holes) << floor.building << ' ' << floor.floor;
        EXPECT_EQ(read.local.columns().size(), floor.columns) << floor.building << ' ' << floor.floor;
        EXPECT_EQ(read.local.beams().size(), floor.beams) << floor.building << ' ' << floor.floor;
        EXPECT_EQ(read.local.walls().size(), floor.walls) << floor.building << ' ' << floor.floor;
        EXPECT_EQ(read.local.axisNet().size(), floor.nets) << floor.building << ' ' << floor.floor;
    }
}

TEST(HostSlabBuildingsTest, slabsOfTheMadeBuilding)
{
    const ReadFloor read("made-building", "主楼", "第1层");
    EXPECT_DOUBLE_EQ(read.topElev, 3.6);
    EXPECT_DOUBLE_EQ(read.btmElev, 0.0);
    const auto boards = read.local.boards();
    ASSERT_EQ(boards.size(), 3U);
    EXPECT_EQ(boards[0]->name, "B-h120");
    EXPECT_DOUBLE_EQ(boards[0]->surface->Area(), 40e6 - 960e3); // a ring is cut out
    EXPECT_DOUBLE_EQ(boards[0]->elev, 3.6);
    EXPECT_DOUBLE_EQ(boards[1]->elev, 3.55);
    EXPECT_EQ(boards[1]->stateDescript, "卫生间降板");
    EXPECT_DOUBLE_EQ(boards[2]->thickness, 100.0);
    EXPECT_DOUBLE_EQ(boards[2]->elev, 3.55);
}

TEST(HostSlabBuildingsTest, barsOfTheMadeBuilding)
{
    const ReadFloor read("made-building", "主楼", "第1层");
    ASSERT_EQ(read.local.forcedBars().size(), 1U);
    const Model::ForcedBar &bar = *read.local.forcedBars()[0];
    EXPECT_EQ(bar.barInfo, "C10@200");
    EXPECT_EQ(bar.forcedType, 1);
    EXPECT_EQ(bar.refPoint, vks::CVec2<double>(5000, 5000));
    ASSERT_TRUE(bar.supportPoly);
    EXPECT_DOUBLE_EQ(bar.supportPoly->Area(), 40e6 - 960e3);
    ASSERT_EQ(read.local.straddleForcedBars().size(), 1U);
    const Model::StraddleForcedBar &straddling = *read.local.straddleForcedBars()[0];
    EXPECT_EQ(straddling.supportPolys.size(), 2U);
    EXPECT_EQ(straddling.labelPosition, 0);
    EXPECT_EQ(straddling.distributeBarInfo, "A6@250");
}

TEST(HostSlabBuildingsTest, topBarsOfTheMadeBuilding)
{
    const ReadFloor read("made-building", "主楼", "第1层");
    const auto bars = read.local.negativeForcedBars();
    ASSERT_EQ(bars.size(), 2U);
    EXPECT_EQ(bars[0]->labelPosition, 2);
    EXPECT_EQ(bars[0]->refPoint, vks::CVec2<double>(5000, 4500));
    EXPECT_EQ(bars[1]->labelPosition, 1);
    EXPECT_EQ(bars[1]->rowNumber, 0);
    EXPECT_EQ(bars[1]->line->StartPoint(), vks::CVec2<double>(10000, 0)); // drawn from inside the arc: not turned
    EXPECT_TRUE(bars[1]->refPointValid);
    EXPECT_NEAR(bars[1]->refPoint.x, 14000.0, 1e-6);
}

TEST(HostSlabBuildingsTest, raftOfTheMadeBuilding)
{
    const ReadFloor read("made-building", "主楼", "基础层");
    ASSERT_EQ(read.local.rafts().size(), 1U);
    EXPECT_DOUBLE_EQ(read.local.rafts()[0]->topElev, -1.3);
    EXPECT_DOUBLE_EQ(read.local.rafts()[0]->bottomElev, -1.8);
    EXPECT_DOUBLE_EQ(read.local.rafts()[0]->thickness, 500.0);
    EXPECT_EQ(read.local.raftMainForcedBars().size(), 1U);
    EXPECT_EQ(read.local.raftMainStraddleForcedBars().size(), 1U);
    EXPECT_EQ(read.local.raftNegativeForcedBars().size(), 1U);
}

/** Everything but identities, which are fresh at each reading. */
QJsonObject withoutIdentities(QJsonObject document)
{
    for (auto elements = document.begin(); elements != document.end(); ++elements) {
        QJsonArray plain;
        for (QJsonValue element : elements.value().toArray()) {
            QJsonObject object = element.toObject();
            object.remove("recongnizedID");
            plain.append(object);
        }
        elements.value() = plain;
    }
    return document;
}

TEST(HostSlabBuildingsTest, twoReadingsOfAFloorTellTheSame)
{
    for (const Counts &floor : kFloors) {
        const ReadFloor once(floor.building, floor.region, floor.floor);
        const ReadFloor twice(floor.building, floor.region, floor.floor);
        EXPECT_EQ(withoutIdentities(Json::model2json(&once.local, Json::Everything)),
                  withoutIdentities(Json::model2json(&twice.local, Json::Everything)))
            << floor.building << ' ' << floor.floor;
    }
}

} // namespace
