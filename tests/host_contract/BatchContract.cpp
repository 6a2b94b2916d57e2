#include "HostContract.h"

#include "platform/host/HBXBatch.h"

using namespace host_contract;

TEST_P(HostBatchContract, changesInsideABracketStayWhenItIsClosed)
{
    model().beginBatch("contract", true);
    const qint64 elementId = makeElement(19, QStringLiteral("B1")).id();
    const qint64 drawObjId = placed(need(elements().elementById(elementId), "element inside a bracket")).id();
    model().endBatch("contract");
    EXPECT_NE(elements().elementById(elementId), nullptr);
    EXPECT_NE(drawObjs().drawObjById(drawObjId), nullptr);
}

TEST_P(HostBatchContract, bracketsOfDifferentKeysNest)
{
    model().beginBatch("outer", true);
    IHBXElement &outer = makeElement(19);
    model().beginBatch("inner", true);
    IHBXElement &inner = makeElement(19);
    model().endBatch("inner");
    IHBXElement &after = makeElement(19);
    model().endBatch("outer");
    for (const IHBXElement *element : {&outer, &inner, &after})
        EXPECT_EQ(elements().elementById(element->id()), element);
}

TEST_P(HostBatchContract, bracketsOfOneKeyNest)
{
    model().beginBatch("same", true);
    model().beginBatch("same", true);
    model().endBatch("same");
    IHBXElement &element = makeElement(19);
    model().endBatch("same");
    EXPECT_EQ(elements().elementById(element.id()), &element);
}

TEST_P(HostBatchContract, closingAKeyThatIsNotOpenDoesNothing)
{
    IHBXElement &before = makeElement(19);
    model().endBatch("never opened");
    model().beginBatch("open", true);
    model().endBatch("another");
    IHBXElement &inside = makeElement(19);
    model().endBatch("open");
    model().endBatch("open");
    EXPECT_EQ(elements().elementById(before.id()), &before);
    EXPECT_EQ(elements().elementById(inside.id()), &inside);
}

TEST_P(HostBatchContract, emptyKeyIsAKeyLikeAnyOther)
{
    model().beginBatch(std::string(), true);
    IHBXElement &element = makeElement(19);
    model().endBatch(std::string());
    EXPECT_EQ(elements().elementById(element.id()), &element);
}

TEST_P(HostBatchContract, guardClosesItsBracketWhenAnExceptionPasses)
{
    const int before = elements().count();
    EXPECT_THROW(
        {
            const HBXBatch batch(model(), "guarded");
            makeElement(19);
            throw std::runtime_error("on the way");
        },
        std::runtime_error);
    EXPECT_EQ(elements().count(), before + 1); // nothing is rolled back
    makeElement(19);
    EXPECT_EQ(elements().count(), before + 2);
}

TEST_P(HostBatchContract, changesAreTakenOutsideABracketToo)
{
    IHBXElement &element = makeElement(19);
    EXPECT_EQ(elements().elementById(element.id()), &element);
}

TEST_P(HostBatchContract, refreshLeavesEveryValueAsItIs)
{
    const HostContractProperty &integer = terms().integer;
    IHBXElementDrawObj &door = placed(integer.type);
    propertiesOf(door).setInt(integer.name, 2100, true);
    const int count = drawObjs().count();
    model().refresh(0);
    model().beginBatch("refreshed", true);
    model().refresh(0);
    model().endBatch("refreshed");
    EXPECT_EQ(drawObjs().count(), count);
    EXPECT_EQ(drawObjs().drawObjById(door.id()), &door);
    EXPECT_EQ(propertiesOf(door).asInt(integer.name), 2100);
}
