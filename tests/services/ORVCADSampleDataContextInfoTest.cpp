#include "platform/services/ORVCADSampleDataContextInfo.h"

#include "host/PlainFloor.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace {

class PlainRegion : public IHBXRegion
{
public:
    qint64 id() const override { return regionId; }
    QString name() const override { return "House"; }
    IHBXFloors *floors() override { return nullptr; }

    qint64 regionId = 5;
};

/** A host of which nothing is asked but what is selected. */
class Selection : public IHBXService, public IHBXCurState
{
public:
    IHBXModel *model() override { return nullptr; }
    IHBXCurState *curState() override { return stateless ? nullptr : this; }
    qint64 unnamedSetting() override { return 0; }
    IHBXRegion *region() override { return selectedRegion; }
    IHBXFloor *floor() override { return selectedFloor; }
    int currentLayer(int /*kind*/) override { return 0; }
    int layer() override { return 0; }

    IHBXRegion *selectedRegion = nullptr;
    IHBXFloor *selectedFloor = nullptr;
    bool stateless = false;
};

class ORVCADSampleDataContextInfoTest : public ::testing::Test
{
protected:
    void selectBoth()
    {
        host.selectedFloor = &floor;
        host.selectedRegion = &region;
    }
    ORVCADSampleDataContextInfo info() { return ORVCADSampleDataContextInfo(&host); }

    static void expectFloor(const ORVCADSampleDataContextInfo &info)
    {
        EXPECT_EQ(info.standardFloorCount(), 4);
        EXPECT_EQ(info.topElev(), 6.25);
        EXPECT_EQ(info.floorName(), "Level 2");
        EXPECT_EQ(info.floorID(), 12);
    }
    static void expectNoFloor(const ORVCADSampleDataContextInfo &info)
    {
        EXPECT_EQ(info.standardFloorCount(), 0);
        EXPECT_EQ(info.topElev(), 0.0);
        EXPECT_EQ(info.floorName(), QString());
        EXPECT_EQ(info.floorID(), -1);
    }
    static void expectRegion(const ORVCADSampleDataContextInfo &info)
    {
        EXPECT_EQ(info.regionName(), "House");
        EXPECT_EQ(info.regionID(), 5);
    }
    static void expectNoRegion(const ORVCADSampleDataContextInfo &info)
    {
        EXPECT_EQ(info.regionName(), QString());
        EXPECT_EQ(info.regionID(), -1);
    }

    Selection host;
    PlainFloor floor;
    PlainRegion region;
};

TEST_F(ORVCADSampleDataContextInfoTest, floorAndRegionAreThoseThatAreSelected)
{
    selectBoth();
    expectFloor(info());
    expectRegion(info());
}

TEST_F(ORVCADSampleDataContextInfoTest, nullServiceLeavesTheDefaults)
{
    const ORVCADSampleDataContextInfo info(nullptr);
    expectNoFloor(info);
    expectNoRegion(info);
}

TEST_F(ORVCADSampleDataContextInfoTest, withoutASelectionTheDefaultsStay)
{
    expectNoFloor(info());
    expectNoRegion(info());
}

TEST_F(ORVCADSampleDataContextInfoTest, hostWithoutAStateLeavesTheDefaults)
{
    selectBoth();
    host.stateless = true;
    expectNoFloor(info());
    expectNoRegion(info());
}

TEST_F(ORVCADSampleDataContextInfoTest, regionWithoutAFloorIsReadAlone)
{
    host.selectedRegion = &region;
    expectNoFloor(info());
    expectRegion(info());
}

TEST_F(ORVCADSampleDataContextInfoTest, floorWithoutARegionIsReadAlone)
{
    host.selectedFloor = &floor;
    expectFloor(info());
    expectNoRegion(info());
}

TEST_F(ORVCADSampleDataContextInfoTest, regionIdsOf32BitsAreTakenAsTheyAre)
{
    selectBoth();
    for (const int id : {0, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        region.regionId = id;
        EXPECT_EQ(info().regionID(), id);
    }
}

TEST_F(ORVCADSampleDataContextInfoTest, regionIdBeyond32BitsReadsAsNone)
{
    selectBoth();
    for (const qint64 id : {Q_INT64_C(2147483648), Q_INT64_C(-2147483649), Q_INT64_C(4294967301)}) {
        region.regionId = id;
        EXPECT_EQ(info().regionID(), -1) << id;
        EXPECT_EQ(info().regionName(), "House");
    }
}

TEST_F(ORVCADSampleDataContextInfoTest, recordStaysAsItWasWhenAnotherFloorIsSelected)
{
    selectBoth();
    const ORVCADSampleDataContextInfo before = info();
    floor.floorName = "Renamed";
    host.selectedFloor = nullptr;
    host.selectedRegion = nullptr;
    expectFloor(before);
    expectRegion(before);
}

TEST_F(ORVCADSampleDataContextInfoTest, recordIsCopiedAndMovedMemberByMember)
{
    static_assert(std::is_nothrow_move_constructible_v<ORVCADSampleDataContextInfo>);
    static_assert(std::is_nothrow_move_assignable_v<ORVCADSampleDataContextInfo>);
    selectBoth();
    ORVCADSampleDataContextInfo source = info();
    ORVCADSampleDataContextInfo copy(nullptr);
    copy = source;
    expectFloor(copy);
    expectRegion(source);
    const ORVCADSampleDataContextInfo target = std::move(source);
    expectFloor(target);
    expectRegion(target);
}

} // namespace
