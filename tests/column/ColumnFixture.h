#pragma once

#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <gtest/gtest.h>

#include <memory>

/** A host with the region "House", the floor "Level 2" of code "2" and what a test puts onto it. */
class ColumnFixture : public ::testing::Test
{
protected:
    void load(const QByteArray &elements, const QByteArray &options = "[]")
    {
        hbx::embedded::ProjectError error;
        project = hbx::embedded::HBXProject::fromJson(
            R"({"format": "hbx-project", "version": 1, "name": "test", "options": )" + options +
                R"(, "regions": [{"name": "Annex", "floors": []}, {"name": "House", "floors": [
                {"name": "Level 2", "code": "2", "bottomElev": 3.25, "height": 3, "elements": [)" +
                elements + "]}]}]}",
            "test.json", error);
        ASSERT_TRUE(project) << error.text().toStdString();
    }

    IHBXService *service() const { return project->service(); }
    IHBXRegion *region() const { return service()->model()->regions()->find("House"); }
    IHBXFloor *floor() const { return region()->floors()->find("Level 2"); }
    IHBXElement *find(const QString &name) const
    {
        return service()->model()->elements()->findElement(name, floor()->id(), -1, true, 0);
    }

    std::unique_ptr<hbx::embedded::HBXProject> project;
};
