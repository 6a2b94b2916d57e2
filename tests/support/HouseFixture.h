#pragma once

#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "support/QStringPrinter.h"

#include <gtest/gtest.h>

#include <memory>

/** A host with the region "House", the floor "Level 1" of code "1" (0 m to 3 m) and what a test puts onto it. */
class HouseFixture : public ::testing::Test
{
protected:
    /** Starts anew with elements, options and regions ahead of the house, as the exchange file has them. */
    void load(const QByteArray &elements = QByteArray(), const QByteArray &options = "[]",
              const QByteArray &regions = QByteArray())
    {
        hbx::embedded::ProjectError error;
        project = hbx::embedded::HBXProject::fromJson(
            R"({"format": "hbx-project", "version": 1, "name": "test", "options": )" + options + R"(, "regions": [)" +
                regions +
                R"({"name": "House", "floors": [{"name": "Level 1", "code": "1", "bottomElev": 0, "height": 3,
                "elements": [)" +
                elements + "]}]}]}",
            "test.json", error);
        ASSERT_TRUE(project) << error.text().toStdString();
    }
    /** A wall element of one straight piece, its axis as "0 0, 5000 0". */
    static QByteArray wall(const QByteArray &name, int type, const QByteArray &axis, int width = 200)
    {
        return R"({"name": ")" + name + R"(", "type": )" + QByteArray::number(type) +
               R"(, "properties": {"Thickness": )" + QByteArray::number(width) +
               R"(}, "drawObjects": [{"shape": {"kind": "line", "axis": "LINESTRING()" + axis +
               ")\", \"width\": " + QByteArray::number(width) + "}}]}";
    }

    IHBXService *service() const { return project->service(); }
    IHBXModel &model() const { return *service()->model(); }
    IHBXRegion *region() const { return model().regions()->find("House"); }
    IHBXFloor *floor() const { return region()->floors()->findByCode("1"); }
    /** The element of that name on the floor, of whatever type. */
    IHBXElement *find(const QString &name) const
    {
        return model().elements()->findElement(name, floor()->id(), -1, true, 0);
    }
    QList<IHBXElementDrawObj *> placed(qint64 type) const
    {
        QList<IHBXElementDrawObj *> out;
        floor()->drawObjsOfTypes(out, {type}, true);
        return out;
    }

    std::unique_ptr<hbx::embedded::HBXProject> project;
};
