#include "platform/host/IHBXDrawObjs.h"

#include "host/PlainDrawObj.h"

#include <gtest/gtest.h>

namespace {

using Box = vks::CBox2<double>;
using Found = QList<IHBXElementDrawObj *>;

/** A store that leaves the query in a box to its base, and writes down what the base asks for. */
class PlainDrawObjs : public IHBXDrawObjs
{
public:
    IHBXElementDrawObj *createDrawObj(IHBXFloor * /*floor*/, IHBXElement * /*element*/, bool /*on*/) override
    {
        return nullptr;
    }
    void addDrawObj(IHBXElementDrawObj * /*drawObj*/) override {}
    IHBXElementDrawObj *drawObjById(qint64 /*id*/) override { return nullptr; }
    void queryDrawObjs(Found & /*out*/, const QSet<qint64> & /*floorIds*/, const QSet<qint64> & /*elementTypes*/,
                       bool /*on*/) override
    {}
    void queryDrawObjsOfFloor(Found &out, int floorId, int elementType, int subType, bool on) override
    {
        asked = QStringLiteral("floor %1 type %2 sub-type %3 %4").arg(floorId).arg(elementType).arg(subType).arg(on);
        out = drawObjs;
    }
    int count() const override { return drawObjs.size(); }
    IHBXElementDrawObj *at(int /*position*/) override { return nullptr; }

    Found drawObjs;
    QString asked;
};

class IHBXDrawObjsTest : public ::testing::Test
{
protected:
    Found query(const Box &box, double tolerance)
    {
        Found found{nullptr}; // must be gone afterwards
        m_store.queryDrawObjsInBox(found, 12, 19, box, tolerance);
        return found;
    }

    BoxShape m_leftShape{Box({0, 0}, {1000, 1000})};
    BoxShape m_rightShape{Box({2000, 0}, {3000, 1000})};
    BoxShape m_emptyShape{Box()};
    PlainDrawObj m_left{1, &m_leftShape};
    PlainDrawObj m_right{2, &m_rightShape};
    PlainDrawObj m_withoutGeometry{3, &m_emptyShape};
    PlainDrawObj m_withoutShape{4};
    PlainDrawObjs m_store;
};

TEST_F(IHBXDrawObjsTest, queryInABoxAsksForAllSubTypesOfTheFloorAndType)
{
    query(Box({0, 0}, {1, 1}), 0.0);
    EXPECT_EQ(m_store.asked, "floor 12 type 19 sub-type -1 1");
}

TEST_F(IHBXDrawObjsTest, objectsWhoseBoxesComeWithinTheToleranceAreFoundInOrder)
{
    m_store.drawObjs = {&m_right, &m_left};
    const Box between({1500, 500}, {1800, 600});
    EXPECT_EQ(query(between, 199.0), Found());
    EXPECT_EQ(query(between, 200.0), Found{&m_right});
    EXPECT_EQ(query(between, 500.0), (Found{&m_right, &m_left}));
    EXPECT_EQ(query(Box({1000, 1000}, {1100, 1100}), 0.0), Found{&m_left}) << "touching";
}

TEST_F(IHBXDrawObjsTest, objectsWithoutShapeOrGeometryLieNowhere)
{
    m_store.drawObjs = {&m_withoutGeometry, &m_withoutShape, &m_left};
    EXPECT_EQ(query(Box({-1e9, -1e9}, {1e9, 1e9}), 1e9), Found{&m_left});
}

TEST_F(IHBXDrawObjsTest, emptyBoxMeetsNothingAndAsksForNothing)
{
    m_store.drawObjs = {&m_left};
    EXPECT_EQ(query(Box(), 1e9), Found());
    EXPECT_EQ(m_store.asked, QString());
}

} // namespace
