#pragma once

#include "embedded/ExchangeDocuments.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <gtest/gtest.h>

#include <memory>

/** A building in memory, and texts of elements for one. */
class HouseFixture : public ::testing::Test
{
protected:
    using Project = std::unique_ptr<hbx::embedded::HBXProject>;

    /** Region "House", floor "F" of code "1" from 0 m to 3 m, with these elements; "House & garden" by name. */
    static Project houseOf(const QByteArray &elements)
    {
        return exchangetest::projectOf(R"~({"format": "hbx-project", "version": 1, "name": "House & garden",
            "regions": [{"name": "House", "floors": [{"name": "F", "code": "1", "bottomElev": 0, "height": 3,
            "elements": [)~" + elements +
                                       "]}]}]}");
    }
    static Project sampleOf(const char *building) { return exchangetest::projectOf(exchangetest::building(building)); }

    void openHouse(const QByteArray &elements = QByteArray()) { project = houseOf(elements); }
    void openSample(const char *building) { project = sampleOf(building); }

    static IHBXModel &modelOf(const Project &building) { return *building->service()->model(); }
    IHBXModel &model() const { return modelOf(project); }
    /** A floor by name, in the first region or in the one of that name. */
    static IHBXFloor &floorOf(const Project &building, const QString &name, const QString &region = QString())
    {
        IHBXRegions &regions = *modelOf(building).regions();
        IHBXRegion *owner = region.isEmpty() ? regions.at(0) : regions.find(region);
        return *owner->floors()->find(name);
    }
    IHBXFloor &floor(const QString &name = QStringLiteral("F"), const QString &region = QString()) const
    {
        return floorOf(project, name, region);
    }

    /** A wall 200 mm wide, brick or of another type, placed along an axis. */
    static QByteArray wall(const char *name, const char *axis, int type = 1003)
    {
        return QString(R"~({"name": "%1", "type": %3, "properties": {"Thickness": 200}, "drawObjects": [
            {"shape": {"kind": "line", "axis": "%2", "width": 200}}]})~")
            .arg(name, axis)
            .arg(type)
            .toUtf8();
    }
    /** A slab 120 mm thick. */
    static QByteArray slab(const char *name, const char *outline, const char *topElev = "3")
    {
        return QString(R"~({"name": "%1", "type": 19, "properties": {"Thickness": 120}, "drawObjects": [
            {"properties": {"TopElev": "%3"}, "shape": {"kind": "face", "outline": "%2", "height": -120}}]})~")
            .arg(name, outline, topElev)
            .toUtf8();
    }
    /** A column of 200 by 200 mm, or something else of a type with an outline about a point. */
    static QByteArray column(const char *name, int x, int y, int type = 25)
    {
        return QString(R"~({"name": "%1", "type": %4, "drawObjects": [{"shape": {"kind": "point",
            "outline": "POLYGON((-100 -100, 100 -100, 100 100, -100 100, -100 -100))", "insertPoint": [%2, %3]}}]})~")
            .arg(name)
            .arg(x)
            .arg(y)
            .arg(type)
            .toUtf8();
    }
    /** A door, placed in the first piece of a brick wall. */
    static QByteArray doorIn(const char *name, const char *wallName, int x, int y)
    {
        return QString(R"~({"name": "%1", "type": 4, "properties": {"OpeningWidth": 900, "OpeningHeight": 2100},
            "drawObjects": [{"shape": {"kind": "point", "outline": null, "insertPoint": [%3, %4]},
            "attachedTo": [1003, "%2", 0]}]})~")
            .arg(name, wallName)
            .arg(x)
            .arg(y)
            .toUtf8();
    }

    Project project;
};
