#include "HostContract.h"

#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXRegions.h"

#include <set>

using namespace host_contract;

TEST_P(HostFloorContract, regionIsFoundByItsExactName)
{
    IHBXRegions &regions = *model().regions();
    ASSERT_NE(regions.find(QStringLiteral("House")), nullptr);
    EXPECT_EQ(regions.find(QStringLiteral("House"))->name(), QStringLiteral("House"));
    EXPECT_NE(regions.find(QStringLiteral("Annex")), regions.find(QStringLiteral("House")));
}

TEST_P(HostFloorContract, regionOfAnotherNameIsNull)
{
    for (const char *name : {"house", "House ", "Hous", "", "Level 1"})
        EXPECT_EQ(model().regions()->find(QString::fromLatin1(name)), nullptr) << name;
}

TEST_P(HostFloorContract, regionsStandInIdOrderAndEndAtTheirCount)
{
    IHBXRegions &regions = *model().regions();
    ASSERT_EQ(regions.count(), 2);
    ASSERT_TRUE(regions.at(0) && regions.at(1));
    EXPECT_LT(regions.at(0)->id(), regions.at(1)->id());
    EXPECT_EQ(regions.at(-1), nullptr);
    EXPECT_EQ(regions.at(2), nullptr);
}

TEST_P(HostFloorContract, floorIsFoundByItsExactName)
{
    IHBXFloors &floors = *region("House").floors();
    ASSERT_NE(floors.find(QStringLiteral("Level 2")), nullptr);
    EXPECT_EQ(floors.find(QStringLiteral("Level 2"))->name(), QStringLiteral("Level 2"));
    for (const char *name : {"level 2", "Level 2 ", "Level", "", "2", "Yard"})
        EXPECT_EQ(floors.find(QString::fromLatin1(name)), nullptr) << name;
}

TEST_P(HostFloorContract, floorIsFoundByItsExactCode)
{
    IHBXFloors &floors = *region("House").floors();
    for (const char *code : {"0", "1", "2"})
        EXPECT_EQ(codeOf(floor(code)), QString::fromLatin1(code));
    for (const char *code : {"3", "-1", "", " 1", "01", "Level 1"})
        EXPECT_EQ(floors.findByCode(QString::fromLatin1(code)), nullptr) << code;
}

TEST_P(HostFloorContract, oneCodeMeansAnotherFloorInAnotherRegion)
{
    IHBXFloor *yard = region("Annex").floors()->findByCode(QStringLiteral("1"));
    ASSERT_NE(yard, nullptr);
    EXPECT_EQ(yard->name(), QStringLiteral("Yard"));
    EXPECT_NE(yard->id(), level1().id());
    EXPECT_EQ(yard->region(), &region("Annex"));
    EXPECT_EQ(region("Annex").floors()->findByCode(QStringLiteral("2")), nullptr);
}

TEST_P(HostFloorContract, floorsStandInIdOrderAndEndAtTheirCount)
{
    IHBXFloors &floors = *region("House").floors();
    ASSERT_EQ(floors.count(), 3);
    std::set<QString> codes;
    for (int i = 0; i < 3; ++i) {
        ASSERT_NE(floors.at(i), nullptr);
        codes.insert(codeOf(*floors.at(i)));
        EXPECT_TRUE(i == 0 || floors.at(i - 1)->id() < floors.at(i)->id());
    }
    EXPECT_EQ(codes, (std::set<QString>{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")}));
    EXPECT_EQ(floors.at(-1), nullptr);
    EXPECT_EQ(floors.at(3), nullptr);
}

TEST_P(HostFloorContract, elevationsAndHeightAreMetres)
{
    EXPECT_DOUBLE_EQ(floor("0").bottomElev(), -1.5);
    EXPECT_DOUBLE_EQ(floor("0").height(), 1.5);
    EXPECT_DOUBLE_EQ(floor("1").bottomElev(), 0.0);
    EXPECT_DOUBLE_EQ(floor("1").height(), 3.0);
    EXPECT_DOUBLE_EQ(floor("2").bottomElev(), 3.0);
    EXPECT_DOUBLE_EQ(floor("2").height(), 2.8);
}

TEST_P(HostFloorContract, topIsBottomPlusHeight)
{
    EXPECT_DOUBLE_EQ(floor("0").topElev(), 0.0);
    EXPECT_DOUBLE_EQ(floor("1").topElev(), 3.0);
    EXPECT_DOUBLE_EQ(floor("2").topElev(), 5.8);
}

TEST_P(HostFloorContract, floorTellsItsRegionNameAndRemark)
{
    EXPECT_EQ(level1().region(), &region("House"));
    EXPECT_EQ(level1().name(), QStringLiteral("Level 1"));
    EXPECT_EQ(level1().remark(), QStringLiteral("ground"));
    EXPECT_EQ(floor("2").remark(), QString());
}

TEST_P(HostFloorContract, standardFloorCountTellsHowManyFloorsItStandsFor)
{
    EXPECT_EQ(floor("1").standardFloorCount(), 1);
    EXPECT_EQ(floor("2").standardFloorCount(), 4);
}

TEST_P(HostFloorContract, flagMarksTheFoundationFloor)
{
    EXPECT_TRUE(floor("0").flag());
    EXPECT_FALSE(floor("1").flag());
    EXPECT_FALSE(floor("2").flag());
}

TEST_P(HostFloorContract, drawObjsOfTypesAnswersInIdOrderForAllTypesOfTheSet)
{
    IHBXElementDrawObj &wall = placed(1003);
    IHBXElementDrawObj &slab = placed(19);
    IHBXElementDrawObj &secondWall = placed(*wall.element());
    placed(25);
    placed(makeElement(19, floor("2")));
    makeDrawObj(*slab.element());

    QList<IHBXElementDrawObj *> found{nullptr};
    level1().drawObjsOfTypes(found, {19, 1003}, true);
    EXPECT_EQ(idsOf(found), (QList<qint64>{wall.id(), slab.id(), secondWall.id()}));
}

TEST_P(HostFloorContract, drawObjsOfTypesThatNothingHasAreNone)
{
    IHBXElementDrawObj &slab = placed(19);
    QList<IHBXElementDrawObj *> found{&slab};
    level1().drawObjsOfTypes(found, {15, terms().unknownType}, true);
    EXPECT_TRUE(found.isEmpty());
    found.append(&slab);
    level1().drawObjsOfTypes(found, {}, true);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostFloorContract, drawObjOfAnIdIsFoundAmongThoseOfTheTypes)
{
    IHBXElementDrawObj &slab = placed(19);
    IHBXElementDrawObj &above = placed(makeElement(19, floor("2")));
    IHBXElementDrawObj &waiting = makeDrawObj(*slab.element());
    EXPECT_EQ(level1().findDrawObj(slab.id(), {48, 19}), &slab);
    EXPECT_EQ(level1().findDrawObj(slab.id(), {48}), nullptr);
    EXPECT_EQ(level1().findDrawObj(slab.id(), {}), nullptr);
    EXPECT_EQ(level1().findDrawObj(above.id(), {19}), nullptr);
    EXPECT_EQ(level1().findDrawObj(waiting.id(), {19}), nullptr);
    EXPECT_EQ(level1().findDrawObj(987654, {19}), nullptr);
    const qint64 gone = slab.id();
    slab.remove();
    EXPECT_EQ(level1().findDrawObj(gone, {19}), nullptr);
}
