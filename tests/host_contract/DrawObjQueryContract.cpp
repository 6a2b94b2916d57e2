#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXFaceSolidShape.h"

using namespace host_contract;

namespace {

using Found = QList<IHBXElementDrawObj *>;

} // namespace

TEST_P(HostDrawObjQueryContract, queryDrawObjsAnswersInIdOrderForAllFloorsAndTypesOfTheSets)
{
    IHBXElementDrawObj &upperWall = placed(makeElement(1003, floor("2")));
    IHBXElementDrawObj &slab = placed(19);
    IHBXElementDrawObj &wall = placed(1003);
    placed(25);
    placed(makeElement(19, floor("0")));

    Found found{nullptr};
    drawObjs().queryDrawObjs(found, {level1().id(), floor("2").id()}, {19, 1003}, true);
    EXPECT_EQ(idsOf(found), (QList<qint64>{upperWall.id(), slab.id(), wall.id()}));
}

TEST_P(HostDrawObjQueryContract, queryDrawObjsWithoutAHitGivesAnEmptyList)
{
    IHBXElementDrawObj &slab = placed(19);
    Found found{&slab};
    drawObjs().queryDrawObjs(found, {level1().id()}, {15}, true);
    EXPECT_TRUE(found.isEmpty());
    found.append(&slab);
    drawObjs().queryDrawObjs(found, {floor("2").id()}, {19}, true);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostDrawObjQueryContract, orderOfIdsIsKeptWhateverTheOrderOfEntering)
{
    IHBXElement &slab = makeElement(19);
    IHBXElementDrawObj &first = makeDrawObj(slab);
    IHBXElementDrawObj &second = makeDrawObj(slab);
    drawObjs().addDrawObj(&second);
    drawObjs().addDrawObj(&first);
    Found found;
    drawObjs().queryDrawObjsOfFloor(found, level1().id(), 19, -1, true);
    EXPECT_EQ(idsOf(found), (QList<qint64>{first.id(), second.id()}));
    slab.drawObjs(found, 0);
    EXPECT_EQ(idsOf(found), (QList<qint64>{first.id(), second.id()}));
}

TEST_P(HostDrawObjQueryContract, subTypeMinusOneAnd65535AskForAll)
{
    IHBXElement *one = elements().createElement(0, 1, &level1(), QString());
    IHBXElement *two = elements().createElement(0, 2, &level1(), QString());
    ASSERT_TRUE(one && two);
    const QList<qint64> both{placed(*one).id(), placed(*two).id()};
    for (const int all : {-1, 65535}) {
        Found found{nullptr};
        drawObjs().queryDrawObjsOfFloor(found, level1().id(), 0, all, true);
        EXPECT_EQ(idsOf(found), both) << all;
    }
}

TEST_P(HostDrawObjQueryContract, anySingleSubTypeAsksForItAlone)
{
    IHBXElement *one = elements().createElement(0, 1, &level1(), QString());
    IHBXElement *two = elements().createElement(0, 2, &level1(), QString());
    ASSERT_TRUE(one && two);
    placed(*one);
    const qint64 second = placed(*two).id();
    Found found;
    drawObjs().queryDrawObjsOfFloor(found, level1().id(), 0, 2, true);
    EXPECT_EQ(idsOf(found), QList<qint64>{second});
    drawObjs().queryDrawObjsOfFloor(found, level1().id(), 0, 0, true);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostDrawObjQueryContract, queryOfFloorAsksForOneTypeOfOneFloor)
{
    IHBXElementDrawObj &slab = placed(19);
    placed(25);
    placed(makeElement(19, floor("2")));
    Found found{nullptr};
    drawObjs().queryDrawObjsOfFloor(found, level1().id(), 19, -1, true);
    EXPECT_EQ(idsOf(found), QList<qint64>{slab.id()});
    drawObjs().queryDrawObjsOfFloor(found, 987654, 19, -1, true);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostDrawObjQueryContract, queryInABoxAsksForObjectsOfATypeThatComeNearIt)
{
    const auto slabAt = [this](double x) -> IHBXElementDrawObj & {
        IHBXElementDrawObj &slab = placed(19);
        shapeOf<IHBXFaceSolidShape>(slab).setPolygon(rectangle(x, 0, x + 1000, 1000));
        return slab;
    };
    IHBXElementDrawObj &first = slabAt(0);
    IHBXElementDrawObj &second = slabAt(2000);
    placed(19); // without geometry
    placed(25);
    const vks::CBox2<double> box({1500, 500}, {1800, 600});
    Found found{nullptr};
    drawObjs().queryDrawObjsInBox(found, level1().id(), 19, box, 0.0);
    EXPECT_TRUE(found.isEmpty());
    drawObjs().queryDrawObjsInBox(found, level1().id(), 19, box, 200.0);
    EXPECT_EQ(idsOf(found), QList<qint64>{second.id()});
    drawObjs().queryDrawObjsInBox(found, level1().id(), 19, box, 500.0);
    EXPECT_EQ(idsOf(found), (QList<qint64>{first.id(), second.id()}));
    drawObjs().queryDrawObjsInBox(found, floor("2").id(), 19, box, 500.0);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostDrawObjQueryContract, queryInABoxKnowsWhereObjectsAreByNow)
{
    IHBXElementDrawObj &slab = placed(19);
    auto &shape = shapeOf<IHBXFaceSolidShape>(slab);
    const vks::CBox2<double> box({0, 0}, {100, 100});
    const auto count = [&] {
        Found found;
        drawObjs().queryDrawObjsInBox(found, level1().id(), 19, box, 1.0);
        return found.size();
    };
    EXPECT_EQ(count(), 0);
    shape.setPolygon(rectangle(0, 0, 1000, 1000));
    EXPECT_EQ(count(), 1);
    shape.setPolygon(rectangle(5000, 0, 6000, 1000));
    EXPECT_EQ(count(), 0);
    shape.setPolygon(rectangle(50, 50, 1000, 1000));
    EXPECT_EQ(count(), 1);
    slab.remove();
    EXPECT_EQ(count(), 0);
}

TEST_P(HostDrawObjQueryContract, emptyBoxMeetsNothing)
{
    IHBXElementDrawObj &slab = placed(19);
    shapeOf<IHBXFaceSolidShape>(slab).setPolygon(rectangle(0, 0, 1000, 1000));
    Found found{&slab};
    drawObjs().queryDrawObjsInBox(found, level1().id(), 19, vks::CBox2<double>(), 1e9);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostDrawObjQueryContract, removedDrawObjectIsInNoQuery)
{
    IHBXElementDrawObj &gone = placed(19);
    IHBXElementDrawObj &kept = placed(*gone.element());
    gone.remove();
    const QList<qint64> rest{kept.id()};
    Found found;
    drawObjs().queryDrawObjs(found, {level1().id()}, {19}, true);
    EXPECT_EQ(idsOf(found), rest);
    drawObjs().queryDrawObjsOfFloor(found, level1().id(), 19, -1, true);
    EXPECT_EQ(idsOf(found), rest);
    level1().drawObjsOfTypes(found, {19}, true);
    EXPECT_EQ(idsOf(found), rest);
}

TEST_P(HostDrawObjQueryContract, allDrawObjectsStandInIdOrderAndEndAtTheirCount)
{
    const int before = drawObjs().count();
    placed(25);
    placed(makeElement(19, floor("2")));
    ASSERT_EQ(drawObjs().count(), before + 2);
    for (int i = 0; i < drawObjs().count(); ++i) {
        ASSERT_NE(drawObjs().at(i), nullptr) << i;
        EXPECT_TRUE(i == 0 || drawObjs().at(i - 1)->id() < drawObjs().at(i)->id()) << i;
    }
    EXPECT_EQ(drawObjs().at(-1), nullptr);
    EXPECT_EQ(drawObjs().at(drawObjs().count()), nullptr);
}
