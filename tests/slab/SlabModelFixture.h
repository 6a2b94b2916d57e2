#pragma once

#include "geometry/KernelShapes.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <gtest/gtest.h>

#include <QUuid>

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
    if constexpr (std::is_same_v<Element, Model::Beam>)
        return model.addBeam(id);
    else if constexpr (std::is_same_v<Element, Model::Wall>)
        return model.addWall(id);
    else if constexpr (std::is_same_v<Element, Model::Column>)
        return model.addColumn(id);
    else if constexpr (std::is_same_v<Element, Model::Board>)
        return model.addBoard(id);
    else if constexpr (std::is_same_v<Element, Model::BoardHole>)
        return model.addBoardHole(id);
    else if constexpr (std::is_same_v<Element, Model::Raft>)
        return model.addRaft(id);
    else if constexpr (std::is_same_v<Element, Model::ForcedBar>)
        return model.addForcedBar(id);
    else if constexpr (std::is_same_v<Element, Model::StraddleForcedBar>)
        return model.addStraddleForcedBar(id);
    else if constexpr (std::is_same_v<Element, Model::NegativeForcedBar>)
        return model.addNegativeForcedBar(id);
    else if constexpr (std::is_same_v<Element, Model::RaftMainForcedBar>)
        return model.addRaftMainForcedBar(id);
    else if constexpr (std::is_same_v<Element, Model::RaftMainStraddleForcedBar>)
        return model.addRaftMainStraddleForcedBar(id);
    else if constexpr (std::is_same_v<Element, Model::RaftNegativeForcedBar>)
        return model.addRaftNegativeForcedBar(id);
    else
        return model.addAixsNet();
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
