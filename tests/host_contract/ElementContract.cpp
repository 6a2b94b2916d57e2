#include "HostContract.h"

#include "platform/host/HBXModelException.h"

using namespace host_contract;

TEST_P(HostElementContract, newElementTellsWhatItWasMadeAs)
{
    IHBXElement *element = elements().createElement(19, 13, nullptr, &floor("2"), 0, QStringLiteral("B-h120"), 0);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->type(), 19);
    EXPECT_EQ(element->subType(), 13);
    EXPECT_EQ(nameOf(*element), QStringLiteral("B-h120"));
    EXPECT_EQ(element->floor(), &floor("2"));
    EXPECT_EQ(element->region(), &region("House"));
    EXPECT_EQ(element->parent(), nullptr);
    EXPECT_EQ(element->drawObjCount(), 0);
}

TEST_P(HostElementContract, objectKindOfAnElementIsZero) { EXPECT_EQ(makeElement(15).objectKind(), 0); }

TEST_P(HostElementContract, elementsOfAllTypesAreMade)
{
    for (const qint64 type : terms().types) {
        if (type == 82 || type == 83)
            continue; // units need a parent
        IHBXElement *element = elements().createElement(type, 0, nullptr, &level1(), 0, QString(), 0);
        ASSERT_NE(element, nullptr) << type;
        EXPECT_EQ(element->type(), type);
    }
}

TEST_P(HostElementContract, everyModeOfTheCallersMakesAnElement)
{
    for (const int mode : {0, 1, 4})
        EXPECT_NE(elements().createElement(25, 0, nullptr, &level1(), mode, QString(), 0), nullptr) << mode;
}

TEST_P(HostElementContract, noFloorMakesNoElement)
{
    const int before = elements().count();
    EXPECT_EQ(elements().createElement(19, 0, nullptr, nullptr, 0, QStringLiteral("B"), 0), nullptr);
    EXPECT_EQ(elements().createElement(19, 0, nullptr, QStringLiteral("B")), nullptr);
    EXPECT_EQ(elements().count(), before);
}

TEST_P(HostElementContract, unknownTypeMakesNoElement)
{
    const int before = elements().count();
    for (const qint64 type : {terms().unknownType, qint64(-1)}) {
        EXPECT_EQ(elements().createElement(type, 0, nullptr, &level1(), 0, QStringLiteral("X"), 0), nullptr);
        EXPECT_EQ(elements().createElement(type, 0, &level1(), QStringLiteral("X")), nullptr);
    }
    EXPECT_EQ(elements().count(), before);
}

TEST_P(HostElementContract, emptyNameIsReplacedByAUniqueOne)
{
    const QString first = nameOf(makeElement(15));
    const QString second = nameOf(makeElement(15));
    EXPECT_FALSE(first.isEmpty());
    EXPECT_FALSE(second.isEmpty());
    EXPECT_NE(first, second);
}

TEST_P(HostElementContract, takenNameIsReplacedByAUniqueOneWithASuffix)
{
    makeElement(15, QStringLiteral("KL1"));
    EXPECT_EQ(nameOf(makeElement(15, QStringLiteral("KL1"))), QStringLiteral("KL1-1"));
    EXPECT_EQ(nameOf(makeElement(15, QStringLiteral("KL1"))), QStringLiteral("KL1-2"));
}

TEST_P(HostElementContract, nameMayStandAgainUnderAnotherTypeAndOnAnotherFloor)
{
    makeElement(15, QStringLiteral("KL1"));
    EXPECT_EQ(nameOf(makeElement(17, QStringLiteral("KL1"))), QStringLiteral("KL1"));
    EXPECT_EQ(nameOf(makeElement(15, floor("2"), QStringLiteral("KL1"))), QStringLiteral("KL1"));
}

TEST_P(HostElementContract, shortFormOfCreationIsTheSameWithoutAParent)
{
    IHBXElement *element = elements().createElement(1003, 5, &level1(), QStringLiteral("Q1"));
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->type(), 1003);
    EXPECT_EQ(element->subType(), 5);
    EXPECT_EQ(nameOf(*element), QStringLiteral("Q1"));
    EXPECT_EQ(element->parent(), nullptr);
    IHBXElement *unnamed = elements().createElement(1003, 5, &level1(), QString());
    ASSERT_NE(unnamed, nullptr);
    EXPECT_FALSE(nameOf(*unnamed).isEmpty());
}

TEST_P(HostElementContract, idsAreUniqueAndElementsAreFoundByThem)
{
    IHBXElement &first = makeElement(19);
    IHBXElement &second = makeElement(25);
    EXPECT_NE(first.id(), second.id());
    EXPECT_EQ(elements().elementById(first.id()), &first);
    EXPECT_EQ(elements().elementById(second.id()), &second);
}

TEST_P(HostElementContract, elementOfAnUnknownIdIsNull)
{
    const qint64 drawObjId = placed(19).id();
    for (const qint64 id : {qint64(0), qint64(-1), qint64(1) << 40, drawObjId})
        EXPECT_EQ(elements().elementById(id), nullptr) << id;
}

TEST_P(HostElementContract, setNameRenames)
{
    IHBXElement &beam = makeElement(15, QStringLiteral("KL1"));
    beam.setName(QStringLiteral("KL7"));
    EXPECT_EQ(nameOf(beam), QStringLiteral("KL7"));
    EXPECT_EQ(elements().findElement(QStringLiteral("KL7"), level1().id(), 15, true, 0), &beam);
    EXPECT_EQ(elements().findElement(QStringLiteral("KL1"), level1().id(), 15, true, 0), nullptr);
}

TEST_P(HostElementContract, setNameTakesTheNameThatTheElementHas)
{
    IHBXElement &beam = makeElement(15, QStringLiteral("KL1"));
    EXPECT_NO_THROW(beam.setName(QStringLiteral("KL1")));
    EXPECT_EQ(nameOf(beam), QStringLiteral("KL1"));
}

TEST_P(HostElementContract, setNameThrowsForAnEmptyNameAndKeepsTheOld)
{
    IHBXElement &beam = makeElement(15, QStringLiteral("KL1"));
    EXPECT_THROW(beam.setName(QString()), HBXModelException);
    EXPECT_EQ(nameOf(beam), QStringLiteral("KL1"));
}

TEST_P(HostElementContract, setNameThrowsForATakenNameAndKeepsTheOld)
{
    makeElement(15, QStringLiteral("KL1"));
    IHBXElement &beam = makeElement(15, QStringLiteral("KL2"));
    EXPECT_THROW(beam.setName(QStringLiteral("KL1")), HBXModelException);
    EXPECT_EQ(nameOf(beam), QStringLiteral("KL2"));
}

TEST_P(HostElementContract, setNameTakesANameOfAnotherTypeOrFloor)
{
    makeElement(17, QStringLiteral("KL1"));
    makeElement(15, floor("2"), QStringLiteral("KL1"));
    IHBXElement &beam = makeElement(15, QStringLiteral("KL2"));
    EXPECT_NO_THROW(beam.setName(QStringLiteral("KL1")));
    EXPECT_EQ(nameOf(beam), QStringLiteral("KL1"));
}

TEST_P(HostElementContract, nameOfARemovedElementIsFreeAgain)
{
    makeElement(15, QStringLiteral("KL1")).remove();
    EXPECT_EQ(nameOf(makeElement(15, QStringLiteral("KL1"))), QStringLiteral("KL1"));
}

TEST_P(HostElementContract, removedElementTakesItsDrawObjectsWithIt)
{
    IHBXElement &slab = makeElement(19);
    IHBXElement &kept = makeElement(19);
    const qint64 elementId = slab.id();
    const qint64 enteredId = placed(slab).id();
    const qint64 newId = makeDrawObj(slab).id();
    const qint64 keptId = placed(kept).id();

    slab.remove();
    EXPECT_EQ(elements().elementById(elementId), nullptr);
    EXPECT_EQ(drawObjs().drawObjById(enteredId), nullptr);
    EXPECT_EQ(drawObjs().drawObjById(newId), nullptr);
    EXPECT_NE(drawObjs().drawObjById(keptId), nullptr);
    EXPECT_EQ(kept.drawObjCount(), 1);
}

TEST_P(HostElementContract, idOfARemovedElementIsNotUsedAgain)
{
    IHBXElement &slab = makeElement(19);
    const qint64 id = slab.id();
    slab.remove();
    EXPECT_NE(makeElement(19).id(), id);
}

TEST_P(HostElementContract, drawObjCountCountsEnteredDrawObjects)
{
    IHBXElement &slab = makeElement(19);
    IHBXElementDrawObj &drawObj = makeDrawObj(slab);
    EXPECT_EQ(slab.drawObjCount(), 0);
    drawObjs().addDrawObj(&drawObj);
    EXPECT_EQ(slab.drawObjCount(), 1);
    placed(slab);
    EXPECT_EQ(slab.drawObjCount(), 2);
    drawObj.remove();
    EXPECT_EQ(slab.drawObjCount(), 1);
}

TEST_P(HostElementContract, drawObjsListsEnteredOnesInPlaceOfWhatStoodThere)
{
    IHBXElement &slab = makeElement(19);
    const qint64 first = placed(slab).id();
    const qint64 second = placed(slab).id();
    makeDrawObj(slab);
    QList<IHBXElementDrawObj *> found{nullptr, nullptr, nullptr};
    slab.drawObjs(found, 0);
    EXPECT_EQ(idsOf(found), (QList<qint64>{first, second}));
}

TEST_P(HostElementContract, elementWithoutDrawObjectsGivesAnEmptyList)
{
    QList<IHBXElementDrawObj *> found{nullptr};
    makeElement(19).drawObjs(found, 0);
    EXPECT_TRUE(found.isEmpty());
}
