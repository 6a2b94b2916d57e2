#pragma once

#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "platform/services/ORVCADSampleDataContextInfo.h"

#include <gtest/gtest.h>

#include <memory>

/** A host with two floors in the region "House" and options, nothing selected. */
class SampleFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        hbx::embedded::ProjectError error;
        project = hbx::embedded::HBXProject::fromJson(
            R"({"format": "hbx-project", "version": 1, "name": "test",
                "options": [{"group": "SlabBars", "name": "spacing", "value": "200"},
                            {"group": "Another", "name": "cover", "value": "15"},
                            {"group": "SlabBars", "name": "grade", "value": ""},
                            {"group": "SlabBars", "name": "spacing", "value": "150"}],
                "regions": [{"name": "Annex", "floors": []},
                            {"name": "House", "floors": [
                    {"name": "Level 1", "code": "1", "bottomElev": 0, "height": 3.25, "elements": []},
                    {"name": "Level 2", "code": "2", "bottomElev": 3.25, "height": 3, "standardFloorCount": 4,
                     "elements": []}]}]})",
            "test.json", error);
        ASSERT_TRUE(project) << error.text().toStdString();
    }

    IHBXService *service() const { return project->service(); }
    void select(const QString &floor) { ASSERT_TRUE(project->setCurrent("House", floor)); }

    /** That a record says "House" and "Level 2". */
    void expectSecondFloor(const ORVCADSampleDataContextInfo &info) const
    {
        EXPECT_EQ(info.standardFloorCount(), 4);
        EXPECT_EQ(info.topElev(), 6.25);
        EXPECT_EQ(info.floorName(), "Level 2");
        EXPECT_EQ(info.floorID(), secondFloorId());
        EXPECT_EQ(info.regionName(), "House");
        EXPECT_EQ(info.regionID(), houseId());
    }
    static void expectNoFloor(const ORVCADSampleDataContextInfo &info)
    {
        EXPECT_EQ(info.standardFloorCount(), 0);
        EXPECT_EQ(info.topElev(), 0.0);
        EXPECT_EQ(info.floorName(), QString());
        EXPECT_EQ(info.floorID(), -1);
        EXPECT_EQ(info.regionName(), QString());
        EXPECT_EQ(info.regionID(), -1);
    }

    std::unique_ptr<hbx::embedded::HBXProject> project;

private:
    int secondFloorId() const { return house()->floors()->find("Level 2")->id(); }
    qint64 houseId() const { return house()->id(); }
    IHBXRegion *house() const { return service()->model()->regions()->find("House"); }
};
