#pragma once

#include "geometry/KernelShapes.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <gtest/gtest.h>

#include <QUuid>

#include <tuple>
#include <type_traits>

/** What the model lets the services do alone: the tests fill models with it.
 *
 *      auto *slab = ORVCADBoardLocalModelTestAccess::add<Model::Board>(model); */
class ORVCADBoardLocalModelTestAccess
{
public:
    using Model = ORVCADBoardLocalModel_Sample;

    /** Calls the creator of the class. The identity told is not used for an axis net, which gets none. */
    template <typename Element> static Element *add(Model &model, const QUuid &id = QUuid::createUuid());

    /** Overwrites what type() gives, as text does. */
    static void setType(Model::Object &object, int type) { object.m_type = static_cast<Model::Object::Types>(type); }
};

template <typename Element> Element *ORVCADBoardLocalModelTestAccess::add(Model &model, const QUuid &id)
{
    constexpr auto creators = std::make_tuple(
        &Model::addBeam, &Model::addWall, &Model::addColumn, &Model::addBoard, &Model::addBoardHole, &Model::addRaft,
        &Model::addForcedBar, &Model::addStraddleForcedBar, &Model::addNegativeForcedBar, &Model::addRaftMainForcedBar,
        &Model::addRaftMainStraddleForcedBar, &Model::addRaftNegativeForcedBar);
    if constexpr (std::is_same_v<Element, Model::AxisNet>)
        return model.addAixsNet();
    else
        return (model.*std::get<Element *(Model::*)(const QUuid &)>(creators))(id);
}

/** An empty model, ways to fill it, and geometry to fill it with; mm. */
class SlabModelFixture : public ::testing::Test
{
protected:
    using Model = ORVCADBoardLocalModel_Sample;
    using Object = Model::Object;
    using Access = ORVCADBoardLocalModelTestAccess;
    using CurvePtr = vks::CRefPtr<vks::CCurve2d>;
    using PolygonPtr = vks::CRefPtr<vks::CPolygon>;
    using Point = vks::CVec2<double>;
    using Box = vks::CBox2<double>;

    template <typename Element> Element *add(const QUuid &id = QUuid::createUuid())
    {
        return Access::add<Element>(model, id);
    }
    /** An element with that outline. */
    template <typename Element> Element *addWith(const PolygonPtr &surface)
    {
        auto *element = add<Element>();
        element->surface = surface;
        return element;
    }
    /** An element with that centre curve. */
    template <typename Element> Element *addWith(const CurvePtr &line)
    {
        auto *element = add<Element>();
        element->line = line;
        return element;
    }
    static CurvePtr line(const Point &start, const Point &end) { return CurvePtr(new vks::CLine2d(start, end)); }
    static PolygonPtr rectangle(double x, double y, double width, double height)
    {
        return shapes::rectangle(x, y, width, height);
    }
    static void expectBox(const Box &box, const Point &least, const Point &greatest)
    {
        EXPECT_EQ(box.minPt, least);
        EXPECT_EQ(box.maxPt, greatest);
    }
    static void expectNoBox(const Box &box) { EXPECT_FALSE(box.IsValid()); }

    Model model;
};
