#include "HostContract.h"

using namespace host_contract;

namespace {

QString freeName(IHBXElements &elements, const IHBXFloor &floor, qint64 type, const char *wished)
{
    QString name = QStringLiteral("what stood there before");
    EXPECT_EQ(&elements.uniqueName(name, floor.id(), type, QString::fromLatin1(wished)), &name);
    return name;
}

} // namespace

TEST_P(HostElementQueryContract, findElementAsksForNameFloorAndType)
{
    IHBXElement &beam = makeElement(15, QStringLiteral("KL1"));
    IHBXElement &linkBeam = makeElement(17, QStringLiteral("KL1"));
    IHBXElement &upper = makeElement(15, floor("2"), QStringLiteral("KL1"));
    EXPECT_EQ(elements().findElement(QStringLiteral("KL1"), level1().id(), 15, true, 0), &beam);
    EXPECT_EQ(elements().findElement(QStringLiteral("KL1"), level1().id(), 17, true, 0), &linkBeam);
    EXPECT_EQ(elements().findElement(QStringLiteral("KL1"), floor("2").id(), 15, true, 0), &upper);
}

TEST_P(HostElementQueryContract, findElementGivesNullForAnotherNameFloorOrType)
{
    makeElement(15, QStringLiteral("KL1"));
    EXPECT_EQ(elements().findElement(QStringLiteral("kl1"), level1().id(), 15, true, 0), nullptr);
    EXPECT_EQ(elements().findElement(QString(), level1().id(), 15, true, 0), nullptr);
    EXPECT_EQ(elements().findElement(QStringLiteral("KL1"), floor("2").id(), 15, true, 0), nullptr);
    EXPECT_EQ(elements().findElement(QStringLiteral("KL1"), 987654, 15, true, 0), nullptr);
    EXPECT_EQ(elements().findElement(QStringLiteral("KL1"), level1().id(), 17, true, 0), nullptr);
}

TEST_P(HostElementQueryContract, findElementOfAnyTypeGivesTheFirstByIdOfThatName)
{
    makeElement(19, QStringLiteral("Other"));
    IHBXElement &first = makeElement(25, QStringLiteral("Same"));
    makeElement(15, QStringLiteral("Same"));
    EXPECT_EQ(elements().findElement(QStringLiteral("Same"), level1().id(), -1, true, 0), &first);
}

TEST_P(HostElementQueryContract, queryElementsAnswersInIdOrderForAllFloorsAndTypesOfTheSets)
{
    IHBXElement &upperWall = makeElement(1003, floor("2"));
    IHBXElement &slab = makeElement(19);
    IHBXElement &wall = makeElement(1003);
    makeElement(25);
    makeElement(19, floor("0"));

    QList<IHBXElement *> found{nullptr};
    elements().queryElements(found, {level1().id(), floor("2").id()}, {19, 1003}, true);
    EXPECT_EQ(idsOf(found), (QList<qint64>{upperWall.id(), slab.id(), wall.id()}));
}

TEST_P(HostElementQueryContract, queryElementsWithoutAHitGivesAnEmptyList)
{
    IHBXElement &slab = makeElement(19);
    QList<IHBXElement *> found{&slab};
    elements().queryElements(found, {level1().id()}, {15}, true);
    EXPECT_TRUE(found.isEmpty());
    found.append(&slab);
    elements().queryElements(found, {floor("2").id()}, {19}, true);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostElementQueryContract, queryElementsOnFloorAsksForOneTypeOfOneFloor)
{
    IHBXElement &first = makeElement(19);
    makeElement(25);
    IHBXElement &second = makeElement(19);
    makeElement(19, floor("2"));

    QList<IHBXElement *> found{nullptr};
    elements().queryElementsOnFloor(found, level1().id(), 19, true);
    EXPECT_EQ(idsOf(found), (QList<qint64>{first.id(), second.id()}));
    elements().queryElementsOnFloor(found, level1().id(), 15, true);
    EXPECT_TRUE(found.isEmpty());
    elements().queryElementsOnFloor(found, 987654, 19, true);
    EXPECT_TRUE(found.isEmpty());
}

TEST_P(HostElementQueryContract, typeMinusOneAsksForAnyTypeOfAFloor)
{
    IHBXElement &slab = makeElement(19);
    IHBXElement &column = makeElement(25);
    makeElement(19, floor("2"));
    QList<IHBXElement *> found;
    elements().queryElementsOnFloor(found, level1().id(), -1, true);
    EXPECT_EQ(idsOf(found), (QList<qint64>{slab.id(), column.id()}));
}

TEST_P(HostElementQueryContract, removedElementIsInNoQuery)
{
    IHBXElement &slab = makeElement(19, QStringLiteral("B1"));
    slab.remove();
    QList<IHBXElement *> found;
    elements().queryElementsOnFloor(found, level1().id(), 19, true);
    EXPECT_TRUE(found.isEmpty());
    EXPECT_EQ(elements().findElement(QStringLiteral("B1"), level1().id(), 19, true, 0), nullptr);
}

TEST_P(HostElementQueryContract, uniqueNameGivesAFreeNameAsItIs)
{
    EXPECT_EQ(freeName(elements(), level1(), 1003, "Q1"), QStringLiteral("Q1"));
}

TEST_P(HostElementQueryContract, uniqueNameCountsUpBehindATakenName)
{
    makeElement(1003, QStringLiteral("Q1"));
    EXPECT_EQ(freeName(elements(), level1(), 1003, "Q1"), QStringLiteral("Q1-1"));
    makeElement(1003, QStringLiteral("Q1-1"));
    EXPECT_EQ(freeName(elements(), level1(), 1003, "Q1"), QStringLiteral("Q1-2"));
}

TEST_P(HostElementQueryContract, uniqueNameFillsAGapInTheSuffixes)
{
    makeElement(1003, QStringLiteral("Q1"));
    makeElement(1003, QStringLiteral("Q1-2"));
    EXPECT_EQ(freeName(elements(), level1(), 1003, "Q1"), QStringLiteral("Q1-1"));
}

TEST_P(HostElementQueryContract, uniqueNameLooksAtOneTypeOfOneFloor)
{
    makeElement(1003, QStringLiteral("Q1"));
    EXPECT_EQ(freeName(elements(), level1(), 0, "Q1"), QStringLiteral("Q1"));
    EXPECT_EQ(freeName(elements(), floor("2"), 1003, "Q1"), QStringLiteral("Q1"));
}

TEST_P(HostElementQueryContract, uniqueNameTakesNothingByItself)
{
    freeName(elements(), level1(), 1003, "Q1");
    EXPECT_EQ(freeName(elements(), level1(), 1003, "Q1"), QStringLiteral("Q1"));
}

TEST_P(HostElementQueryContract, allElementsStandInIdOrderAndEndAtTheirCount)
{
    const int before = elements().count();
    makeElement(25);
    makeElement(19, floor("2"));
    ASSERT_EQ(elements().count(), before + 2);
    for (int i = 0; i < elements().count(); ++i) {
        ASSERT_NE(elements().at(i), nullptr) << i;
        EXPECT_TRUE(i == 0 || elements().at(i - 1)->id() < elements().at(i)->id()) << i;
    }
    EXPECT_EQ(elements().at(-1), nullptr);
    EXPECT_EQ(elements().at(elements().count()), nullptr);
}
