#include "ModelSerialization/HostFloor.h"

#include "embedded/EmbeddedBuilding.h"
#include "support/RecordingHost.h"

namespace {

using HostFloorTest = hbx::embedded::EmbeddedBuilding;

TEST_F(HostFloorTest, floorIsFoundByTheNamesOfItsRegionAndItsOwn)
{
    EXPECT_EQ(findFloor(&model(), "House", "F1"), floor("F1"));
    EXPECT_EQ(findFloor(&model(), "House", "F2"), floor("F2"));
}

TEST_F(HostFloorTest, floorIsNotFoundByItsCode) { EXPECT_FALSE(findFloor(&model(), "House", "1")); }

TEST_F(HostFloorTest, unknownNamesAndNoModelGiveNoFloor)
{
    EXPECT_FALSE(findFloor(&model(), "Garage", "F1"));
    EXPECT_FALSE(findFloor(&model(), "House", "F99"));
    EXPECT_FALSE(findFloor(&model(), QString(), QString()));
    EXPECT_FALSE(findFloor(nullptr, "House", "F1"));
}

TEST_F(HostFloorTest, floorOfAnUnknownRegionIsNotAskedFor)
{
    RecordingHost host(*store.service());
    findFloor(host.service()->model(), "Garage", "F1");
    EXPECT_EQ(host.calls(), QStringList{R"(findRegion("Garage"))"});
}

} // namespace
