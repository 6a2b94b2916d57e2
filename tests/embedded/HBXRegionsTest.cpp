#include "platform/embedded/HBXRegions.h"

#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXRegionsTest : public EmbeddedBuilding
{};

TEST_F(HBXRegionsTest, regionsAreFoundByTheirExactName)
{
    IHBXRegions *regions = model().regions();
    ASSERT_EQ(regions->count(), 1);
    IHBXRegion *house = regions->find(QStringLiteral("House"));
    ASSERT_NE(house, nullptr);
    EXPECT_EQ(house, regions->at(0));
    EXPECT_EQ(house->id(), 1);
    EXPECT_EQ(house->name(), QStringLiteral("House"));
    EXPECT_EQ(regions->find(QStringLiteral("house")), nullptr);
    EXPECT_EQ(regions->at(1), nullptr);
    EXPECT_EQ(regions->at(-1), nullptr);
}

TEST_F(HBXRegionsTest, recordsMayComeInAnyOrder)
{
    ProjectRecord record = emptyHouse();
    record.regions = {{9, QStringLiteral("Shed")}, {1, QStringLiteral("House")}};
    std::swap(record.floors[0], record.floors[1]);
    store.load(record);
    EXPECT_EQ(model().regions()->at(0)->name(), QStringLiteral("House"));
    EXPECT_EQ(model().regions()->at(1)->name(), QStringLiteral("Shed"));
    EXPECT_EQ(model().regions()->at(1)->floors()->count(), 0);
    EXPECT_EQ(model().regions()->at(0)->floors()->at(0)->id(), 2);
}

TEST_F(HBXRegionsTest, aFloorWithoutItsRegionAndASecondOfOneIdAreLeftOut)
{
    ProjectRecord record = emptyHouse();
    record.floors.push_back(record.floors[0]); // the same id
    record.floors.push_back(record.floors[0]);
    record.floors.back().id = 50;
    record.floors.back().regionId = 5;
    store.load(record);
    EXPECT_EQ(model().regions()->at(0)->floors()->count(), 2);
}

} // namespace
} // namespace hbx::embedded
