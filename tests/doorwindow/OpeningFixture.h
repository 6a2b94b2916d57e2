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

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <memory>

/** A host with the region "House", the floor of code "1" and what a test puts onto it. */
class OpeningFixture : public ::testing::Test
{
protected:
    static QByteArray building(const QByteArray &elements, const QByteArray &options = "[]")
    {
        return R"({"format": "hbx-project", "version": 1, "name": "test", "options": )" + options +
               R"(, "regions": [{"name": "House", "floors": [{"name": "Level 1", "code": "1", "bottomElev": 0,
                  "height": 3, "elements": [)" +
               elements + "]}]}]}";
    }

    /** A wall element of one straight piece. */
    static QByteArray wall(const QByteArray &name, int type, const QByteArray &axis, int width = 200)
    {
        return R"({"name": ")" + name + R"(", "type": )" + QByteArray::number(type) +
               R"(, "properties": {"Thickness": )" + QByteArray::number(width) +
               R"(}, "drawObjects": [{"shape": {"kind": "line", "axis": "LINESTRING()" + axis +
               ")\", \"width\": " + QByteArray::number(width) + "}}]}";
    }

    void load(const QByteArray &elements = QByteArray(), const QByteArray &options = "[]")
    {
        hbx::embedded::ProjectError error;
        project = hbx::embedded::HBXProject::fromJson(building(elements, options), "test.json", error);
        ASSERT_TRUE(project) << error.text().toStdString();
    }

    IHBXService *service() const { return project->service(); }
    IHBXFloor *floor() const { return service()->model()->regions()->find("House")->floors()->findByCode("1"); }
    IHBXElement *find(const QString &name) const
    {
        return service()->model()->elements()->findElement(name, floor()->id(), -1, true, 0);
    }
    QList<IHBXElementDrawObj *> placed(qint64 type) const
    {
        QList<IHBXElementDrawObj *> out;
        floor()->drawObjsOfTypes(out, {type}, true);
        return out;
    }

    static QJsonObject elementMember(int type, const QString &name, int width = 900, int height = 2100, int above = 0)
    {
        return {{"elementID", 7},       {"name", name},    {"nElementType", type},      {"nSubElementType", 9},
                {"nHeight", height},    {"nWidth", width}, {"nHeightFromFloor", above}, {"floorName", "1"},
                {"regionName", "House"}};
    }
    static QJsonObject placedMember(const QString &elementName, double x, double y, int above = 0)
    {
        return {{"elementName", elementName}, {"X", x},           {"Y", y},
                {"nHeightFromFloor", above},  {"floorName", "1"}, {"regionName", "House"}};
    }
    static QJsonObject reply(const QJsonArray &members)
    {
        return {{"eDoorWin", QJsonObject{{"ElementsAndEdos", members}}}};
    }

    std::unique_ptr<hbx::embedded::HBXProject> project;
};
