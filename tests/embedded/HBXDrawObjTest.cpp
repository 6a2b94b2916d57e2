#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXDrawObjTest : public EmbeddedBuilding
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

TEST_F(HBXDrawObjTest, nothingIsMadeWithoutFloorOrElementOrOnAnotherFloor)
{
    IHBXElement *slabElement = element(19);
    EXPECT_EQ(drawObjs().createDrawObj(nullptr, slabElement, true), nullptr);
    EXPECT_EQ(drawObjs().createDrawObj(floor(), nullptr, true), nullptr);
    EXPECT_EQ(drawObjs().createDrawObj(floor("F2"), slabElement, true), nullptr);
}

TEST_F(HBXDrawObjTest, aDrawObjectTellsWhatItWasMadeOf)
{
    IHBXElement *beam = element(15, "KL1", "F2", 11);
    IHBXElementDrawObj *object = made(beam);
    EXPECT_EQ(object->objectKind(), IHBXEObject::kDrawObj);
    EXPECT_EQ(object->type(), 15);
    EXPECT_EQ(object->subType(), 11);
    EXPECT_EQ(object->element(), beam);
    EXPECT_EQ(object->floor(), floor("F2"));
    EXPECT_EQ(object->region(), model().regions()->at(0));
    EXPECT_EQ(object->parent(), nullptr);
    EXPECT_EQ(object->sectionHolder(), nullptr);
}

TEST_F(HBXDrawObjTest, aNewObjectHasAnIdAtOnceAndJoinsCountsAndQueriesWhenEntered)
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

TEST_F(HBXDrawObjTest, queriesAnswerInIdOrderHoweverObjectsWereEntered)
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

TEST_F(HBXDrawObjTest, queriesGoByFloorsTypesAndSubTypes)
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

TEST_F(HBXDrawObjTest, removeUnlinksDetachesAndDestroys)
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

TEST_F(HBXDrawObjTest, removedObjectsStandInTheJournalAndOnesNeverEnteredDoNot)
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

TEST_F(HBXDrawObjTest, statusKeepsLayerAndState)
{
    IHBXElementDrawObj *object = placed(element(19));
    object->status()->setLayer(3);
    object->status()->setState(1);
    EXPECT_EQ(object->status()->layer(), 3);
    EXPECT_EQ(object->status()->state(), 1);
    EXPECT_EQ(store.drawObjRecord(object->id())->layer, 3);
    EXPECT_EQ(store.drawObjRecord(object->id())->state, 1);
}

TEST_F(HBXDrawObjTest, aSectionComesWithTheRecord)
{
    placed(element(25));
    ProjectRecord record = store.snapshot();
    record.drawObjs[0].section = SectionRecord{124, 8};
    store.load(record);
    IHBXSectionHolder *holder = drawObjs().at(0)->sectionHolder();
    ASSERT_NE(holder, nullptr);
    EXPECT_EQ(holder->section()->number(), 124);
    EXPECT_EQ(holder->section()->kind(), 8);
    EXPECT_EQ(store.snapshot().drawObjs[0].section->number, 124);
}

// --- clones

TEST_F(HBXDrawObjTest, aCloneIsACopyThatIsNotYetEntered)
{
    IHBXElementDrawObj *original = slab("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    original->properties()->setInt(L"Thickness", 120, false);
    original->status()->setLayer(7);
    IHBXElementDrawObj *copy = original->cloneDrawObj(0, 0, 1);
    ASSERT_NE(copy, nullptr);
    EXPECT_GT(copy->id(), original->id());
    EXPECT_EQ(copy->element(), original->element());
    EXPECT_EQ(drawObjs().count(), 1);
    EXPECT_EQ(numberIn(copy->properties(), L"Thickness"), 120.0);
    EXPECT_EQ(copy->status()->layer(), 7);
    EXPECT_EQ(worldPoly(copy)->ToText(), "POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    as<IHBXFaceSolidShape>(copy)->setPolygon(nullptr);
    EXPECT_NE(worldPoly(original).get(), nullptr);
    drawObjs().addDrawObj(copy);
    EXPECT_EQ(drawObjs().count(), 2);
}

TEST_F(HBXDrawObjTest, aCloneHasNeitherChainNorParent)
{
    IHBXElement *beam = element(15);
    IHBXElementDrawObj *first = placed(beam);
    IHBXElementDrawObj *second = placed(beam);
    first->linkNext(second);
    first->attachTo(placed(element(1003)));
    IHBXElementDrawObj *copy = first->cloneDrawObj(0, 0, 1);
    EXPECT_EQ(copy->nextInChain(), nullptr);
    EXPECT_EQ(copy->parent(), nullptr);
}

TEST_F(HBXDrawObjTest, theCloneOfAFoundationHasChildrenOfItsOwn)
{
    IHBXElement *foundation = element(52);
    unit(foundation);
    IHBXElementDrawObj *original = placed(foundation);
    IHBXElementDrawObj *copy = original->cloneDrawObj(0, 0, 1);
    ASSERT_EQ(copy->childCount(), 1);
    EXPECT_NE(copy->child(0), original->child(0));
    EXPECT_EQ(copy->child(0)->parent(), copy);
    EXPECT_EQ(original->child(0)->cloneDrawObj(0, 0, 1), nullptr);
}

// --- attachment

TEST_F(HBXDrawObjTest, attachToSetsTheParentAndNullTakesItAway)
{
    IHBXElementDrawObj *door = placed(element(4));
    IHBXElementDrawObj *of = wall("LINESTRING(0 0, 3000 0)", 200.0);
    door->attachTo(of);
    EXPECT_EQ(door->parent(), of);
    door->attachTo(nullptr);
    EXPECT_EQ(door->parent(), nullptr);
}

TEST_F(HBXDrawObjTest, nothingIsAttachedToItselfOrToWhatStandsOnIt)
{
    IHBXElementDrawObj *hole = placed(element(24));
    IHBXElementDrawObj *plate = placed(element(19));
    hole->attachTo(hole);
    EXPECT_EQ(hole->parent(), nullptr);
    hole->attachTo(plate);
    plate->attachTo(hole);
    EXPECT_EQ(plate->parent(), nullptr);
}

TEST_F(HBXDrawObjTest, objectsOfAnotherBuildingTieNothing)
{
    HBXModelStore other;
    other.load(store.snapshot());
    IHBXModel *foreignModel = other.service()->model();
    IHBXFloor *foreignFloor = foreignModel->regions()->at(0)->floors()->at(0);
    IHBXElement *foreignElement = foreignModel->elements()->createElement(15, 0, foreignFloor, QString());
    IHBXElementDrawObj *foreign = foreignModel->drawObjects()->createDrawObj(foreignFloor, foreignElement, true);
    IHBXElementDrawObj *beam = placed(element(15));
    beam->attachTo(foreign);
    beam->linkNext(foreign);
    EXPECT_EQ(beam->parent(), nullptr);
    EXPECT_EQ(beam->nextInChain(), nullptr);
    EXPECT_FALSE(isAcceptable(foreign));
}

// --- units and children

TEST_F(HBXDrawObjTest, eachObjectHasOneChildPerUnitMadeWithItOrWhenAUnitIsAdded)
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

TEST_F(HBXDrawObjTest, childrenAreEnteredWithTheirOwnerAndGoWithIt)
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

TEST_F(HBXDrawObjTest, aChildFollowsTheUnitsOutlineAndTheOwnersPlace)
{
    IHBXElement *foundation = element(52);
    IHBXElement *of = unit(foundation);
    IHBXElementDrawObj *object = placed(foundation);
    of->properties()->setInt(L"SectionWidth", 1000, false);
    of->properties()->setInt(L"SectionHeight", 600, false);
    const Point place(5000, 7000);
    as<IHBXCustomPointSolidShape>(object)->setInsertPoint(&place);
    expectBox(box(object->child(0)), 4500, 6700, 5500, 7300);
    as<IHBXCustomPointSolidShape>(object)->setAngle(1.5707963267948966);
    expectBox(box(object->child(0)), 4700, 6500, 5300, 7500);
    EXPECT_EQ(store.drawObjRecord(object->child(0)->id())->shape.insertPoint, place);
}

TEST_F(HBXDrawObjTest, theOwnersOutlineIsTheUnionOfItsChildrensElseItsOwn)
{
    IHBXElement *foundation = element(52);
    foundation->properties()->setInt(L"SectionWidth", 100, false);
    foundation->properties()->setInt(L"SectionHeight", 100, false);
    IHBXElementDrawObj *object = placed(foundation);
    expectBox(box(object), -50, -50, 50, 50);
    IHBXElement *wide = unit(foundation);
    expectBox(box(object), -50, -50, 50, 50); // the unit has no outline yet
    wide->properties()->setInt(L"SectionWidth", 1000, false);
    wide->properties()->setInt(L"SectionHeight", 200, false);
    expectBox(box(object), -500, -100, 500, 100);
    IHBXElement *tall = unit(foundation);
    tall->properties()->setInt(L"SectionWidth", 200, false);
    tall->properties()->setInt(L"SectionHeight", 1000, false);
    expectBox(box(object), -500, -500, 500, 500);
    EXPECT_NEAR(worldPoly(object)->Area(), 360000.0, 1.0);
    wide->remove();
    expectBox(box(object), -100, -500, 100, 500);
}

} // namespace
} // namespace hbx::embedded
