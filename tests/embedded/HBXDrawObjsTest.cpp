#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXDrawObjsTest : public EmbeddedBuilding
{
protected:
    IHBXElementDrawObj *made(IHBXElement *of) { return drawObjs().createDrawObj(of->floor(), of, true); }
    QList<IHBXElementDrawObj *> onFloor(int type, int subType = -1)
    {
        QList<IHBXElementDrawObj *> out{nullptr};
        drawObjs().queryDrawObjsOfFloor(out, floor()->id(), type, subType, true);
        return out;
    }
};

TEST_F(HBXDrawObjsTest, nothingIsMadeWithoutFloorOrElementOrOnAnotherFloor)
{
    IHBXElement *slabElement = element(19);
    EXPECT_EQ(drawObjs().createDrawObj(nullptr, slabElement, true), nullptr);
    EXPECT_EQ(drawObjs().createDrawObj(floor(), nullptr, true), nullptr);
    EXPECT_EQ(drawObjs().createDrawObj(floor("F2"), slabElement, true), nullptr);
}

TEST_F(HBXDrawObjsTest, aNewObjectHasAnIdAtOnceAndJoinsCountsAndQueriesWhenEntered)
{
    IHBXElement *slabElement = element(19);
    IHBXElementDrawObj *object = made(slabElement);
    EXPECT_EQ(object->id(), slabElement->id() + 1);
    EXPECT_EQ(drawObjs().drawObjById(object->id()), object);
    EXPECT_EQ(slabElement->drawObjCount(), 0);
    EXPECT_EQ(drawObjs().count(), 0);
    EXPECT_TRUE(onFloor(19).isEmpty());
    drawObjs().addDrawObj(object);
    drawObjs().addDrawObj(object);
    drawObjs().addDrawObj(nullptr);
    EXPECT_EQ(slabElement->drawObjCount(), 1);
    EXPECT_EQ(drawObjs().count(), 1);
    EXPECT_EQ(onFloor(19), QList<IHBXElementDrawObj *>{object});
}

TEST_F(HBXDrawObjsTest, queriesAnswerInIdOrderHoweverObjectsWereEntered)
{
    IHBXElement *slabElement = element(19);
    IHBXElementDrawObj *first = made(slabElement);
    IHBXElementDrawObj *second = made(slabElement);
    drawObjs().addDrawObj(second);
    drawObjs().addDrawObj(first);
    QList<IHBXElementDrawObj *> out{nullptr};
    slabElement->drawObjs(out, 0);
    EXPECT_EQ(out, (QList<IHBXElementDrawObj *>{first, second}));
    EXPECT_EQ(onFloor(19), (QList<IHBXElementDrawObj *>{first, second}));
    EXPECT_EQ(drawObjs().at(0), first);
    EXPECT_EQ(drawObjs().at(2), nullptr);
}

TEST_F(HBXDrawObjsTest, queriesGoByFloorsTypesAndSubTypes)
{
    IHBXElementDrawObj *raft = placed(element(48, "", "F1", 67));
    IHBXElementDrawObj *slabObject = placed(element(19, "", "F1", 13));
    IHBXElementDrawObj *other = placed(element(19, "", "F1", 14));
    IHBXElementDrawObj *above = placed(element(19, "", "F2", 13));
    QList<IHBXElementDrawObj *> out{nullptr};
    drawObjs().queryDrawObjs(out, {floor()->id(), floor("F2")->id()}, {19}, true);
    EXPECT_EQ(out, (QList<IHBXElementDrawObj *>{slabObject, other, above}));
    drawObjs().queryDrawObjs(out, {floor()->id()}, {-1}, true);
    EXPECT_EQ(out, (QList<IHBXElementDrawObj *>{raft, slabObject, other}));
    drawObjs().queryDrawObjs(out, {}, {19}, true);
    EXPECT_TRUE(out.isEmpty());
    EXPECT_EQ(onFloor(19, 13), QList<IHBXElementDrawObj *>{slabObject});
    EXPECT_EQ(onFloor(19, 65535).size(), 2);
    EXPECT_EQ(onFloor(-1).size(), 3);
    floor()->drawObjsOfTypes(out, {19, 48}, true);
    EXPECT_EQ(out, (QList<IHBXElementDrawObj *>{raft, slabObject, other}));
}

TEST_F(HBXDrawObjsTest, removeUnlinksDetachesAndDestroys)
{
    IHBXElement *beam = element(15);
    IHBXElementDrawObj *first = placed(beam);
    IHBXElementDrawObj *middle = placed(beam);
    IHBXElementDrawObj *last = placed(beam);
    IHBXElementDrawObj *door = placed(element(4));
    first->linkNext(middle);
    middle->linkNext(last);
    door->attachTo(middle);
    const qint64 id = middle->id();
    middle->remove();
    EXPECT_EQ(drawObjs().drawObjById(id), nullptr);
    EXPECT_EQ(first->nextInChain(), nullptr);
    EXPECT_EQ(last->chainHead(), last);
    EXPECT_EQ(door->parent(), nullptr);
    EXPECT_EQ(beam->drawObjCount(), 2);
    EXPECT_EQ(onFloor(15).size(), 2);
}

TEST_F(HBXDrawObjsTest, removedObjectsStandInTheJournalAndOnesNeverEnteredDoNot)
{
    IHBXElement *slabElement = element(19, "B1");
    IHBXElementDrawObj *object = placed(slabElement);
    const qint64 id = object->id();
    made(slabElement)->remove();
    object->remove();
    slabElement->remove();
    const auto &entries = store.journal().entries();
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].kind, JournalEntry::kObjectRemoved);
    EXPECT_EQ(entries[0].objectId, id);
    EXPECT_EQ(entries[0].name, QStringLiteral("B1"));
    EXPECT_EQ(entries[1].kind, JournalEntry::kElementRemoved);
}

TEST_F(HBXDrawObjsTest, eachObjectHasOneChildPerUnitMadeWithItOrWhenAUnitIsAdded)
{
    IHBXElement *foundation = element(52);
    IHBXElement *first = unit(foundation);
    IHBXElementDrawObj *object = placed(foundation);
    ASSERT_EQ(object->childCount(), 1);
    EXPECT_EQ(object->child(0)->element(), first);
    EXPECT_EQ(object->child(0)->type(), 82);
    EXPECT_EQ(object->child(0)->parent(), object);
    IHBXElement *second = unit(foundation);
    ASSERT_EQ(object->childCount(), 2);
    EXPECT_EQ(object->child(1)->element(), second);
    EXPECT_EQ(object->child(2), nullptr);
    EXPECT_EQ(object->child(-1), nullptr);
    EXPECT_EQ(second->drawObjCount(), 1);
    second->remove();
    EXPECT_EQ(object->childCount(), 1);
}

TEST_F(HBXDrawObjsTest, childrenAreEnteredWithTheirOwnerAndGoWithIt)
{
    IHBXElement *foundation = element(53);
    IHBXElement *of = unit(foundation, 83);
    IHBXElementDrawObj *object = made(foundation);
    drawObjs().addDrawObj(object->child(0));
    EXPECT_EQ(of->drawObjCount(), 0);
    drawObjs().addDrawObj(object);
    EXPECT_EQ(onFloor(83), QList<IHBXElementDrawObj *>{object->child(0)});
    object->remove();
    EXPECT_EQ(of->drawObjCount(), 0);
    EXPECT_EQ(drawObjs().count(), 0);
}

} // namespace
} // namespace hbx::embedded
