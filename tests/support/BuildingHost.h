#pragma once

#include "embedded/ExchangeDocuments.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "platform/host/IHBXShape.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

/** One of the sample buildings in a host, with what tests of whole roads ask of it. */
class BuildingHost
{
public:
    explicit BuildingHost(const char *name)
    {
        hbx::embedded::ProjectError error;
        m_project = hbx::embedded::HBXProject::fromJson(exchangetest::building(name), name, error);
        EXPECT_TRUE(m_project) << error.text().toStdString();
    }

    IHBXService *service() const { return m_project->service(); }
    IHBXModel &model() const { return *service()->model(); }
    void makeCurrent() const { m_project->makeCurrent(); }
    void setCurrent(const QString &region, const QString &floor) const
    {
        EXPECT_TRUE(m_project->setCurrent(region, floor));
    }

    template <typename Visit> void forEachFloor(Visit visit) const
    {
        for (int region = 0; region < model().regions()->count(); ++region) {
            IHBXFloors &floors = *model().regions()->at(region)->floors();
            for (int floor = 0; floor < floors.count(); ++floor)
                visit(*floors.at(floor));
        }
    }
    QSet<qint64> floorIds() const
    {
        QSet<qint64> ids;
        forEachFloor([&](const IHBXFloor &floor) { ids.insert(floor.id()); });
        return ids;
    }
    /** All draw objects of a floor, whatever their type. */
    QList<IHBXElementDrawObj *> drawObjsOf(const IHBXFloor &floor) const
    {
        QList<IHBXElementDrawObj *> objects;
        model().drawObjects()->queryDrawObjsOfFloor(objects, floor.id(), -1, -1, true);
        return objects;
    }
    QList<IHBXElement *> elements(const QSet<qint64> &types) const
    {
        QList<IHBXElement *> out;
        model().elements()->queryElements(out, floorIds(), types, true);
        return out;
    }
    void remove(const QSet<qint64> &types) const
    {
        for (IHBXElement *element : elements(types))
            element->remove();
    }

    using Place = std::array<double, 4>; ///< box: least x, least y, greatest x, greatest y
    /** Boxes of all objects of elements of those types, sorted. */
    std::vector<Place> places(const QSet<qint64> &types) const
    {
        std::vector<Place> all;
        for (IHBXElement *element : elements(types)) {
            QList<IHBXElementDrawObj *> objects;
            element->drawObjs(objects, 0);
            for (IHBXElementDrawObj *object : qAsConst(objects)) {
                vks::CBox2<double> box;
                object->shape()->box(box, IHBXModel::g_bDefaultAutoCalc);
                all.push_back({box.minPt.x, box.minPt.y, box.maxPt.x, box.maxPt.y});
            }
        }
        std::sort(all.begin(), all.end(), [](const Place &a, const Place &b) { return rounded(a) < rounded(b); });
        return all;
    }
    static void expectSamePlaces(const std::vector<Place> &actual, const std::vector<Place> &expected, double tolerance)
    {
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t i = 0; i < actual.size(); ++i)
            for (std::size_t side = 0; side < 4; ++side)
                EXPECT_NEAR(actual[i][side], expected[i][side], tolerance) << i;
    }

private:
    /** To whole millimetres, so that noise does not change the order. */
    static Place rounded(const Place &place)
    {
        return {std::round(place[0]), std::round(place[1]), std::round(place[2]), std::round(place[3])};
    }

    std::unique_ptr<hbx::embedded::HBXProject> m_project;
};
