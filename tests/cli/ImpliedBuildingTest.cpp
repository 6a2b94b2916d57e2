#include "cli/ImpliedBuilding.h"

#include "cli/FloorLookup.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

TEST(ImpliedBuildingTest, floorIsFoundByItsCodeAndByItsName)
{
    ImpliedBuilding building;
    building.addFloor("House", "1");
    building.addFloor("House", "1");
    building.addFloor("Tower", "2");
    const auto project = building.project();
    ASSERT_TRUE(project);
    IHBXModel &model = *project->service()->model();
    QString reason;
    EXPECT_NE(floorOfCode(model, "House", "1", reason), nullptr);
    EXPECT_NE(floorOfNames(model, "Tower", "2", reason), nullptr);
    EXPECT_EQ(floorOfCode(model, "Tower", "1", reason), nullptr);
}

TEST(ImpliedBuildingTest, doorStandsOnItsFloorOnce)
{
    ImpliedBuilding building;
    building.addDoor("House", "1", "M1");
    building.addDoor("House", "1", "M1");
    building.addDoor("House", "2", "M2");
    const auto project = building.project();
    ASSERT_TRUE(project);
    IHBXModel &model = *project->service()->model();
    QString reason;
    const int floor = floorOfCode(model, "House", "1", reason)->id();
    EXPECT_EQ(model.elements()->count(), 2);
    ASSERT_NE(model.elements()->findElement("M1", floor, -1, true, 0), nullptr);
    EXPECT_EQ(model.elements()->findElement("M1", floor, -1, true, 0)->type(), 4);
    EXPECT_EQ(model.elements()->findElement("M2", floor, -1, true, 0), nullptr);
}

TEST(ImpliedBuildingTest, emptyNameStandsForNothing)
{
    ImpliedBuilding building;
    building.addFloor("", "1");
    building.addFloor("House", "");
    building.addDoor("House", "1", "");
    building.addDoor("", "1", "M1");
    const auto project = building.project();
    ASSERT_TRUE(project);
    EXPECT_EQ(regionNames(*project), QStringList{"House"});
    EXPECT_EQ(project->service()->model()->elements()->count(), 0);
}

} // namespace
