#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXElementDrawObjTest : public EmbeddedBuilding
{};

TEST_F(HBXElementDrawObjTest, aDrawObjectTellsWhatItWasMadeOf)
{
    IHBXElement *beam = element(15, "KL1", "F2", 11);
    IHBXElementDrawObj *object = drawObjs().createDrawObj(beam->floor(), beam, true);
    EXPECT_EQ(object->objectKind(), IHBXEObject::kDrawObj);
    EXPECT_EQ(object->type(), 15);
    EXPECT_EQ(object->subType(), 11);
    EXPECT_EQ(object->element(), beam);
    EXPECT_EQ(object->floor(), floor("F2"));
    EXPECT_EQ(object->region(), model().regions()->at(0));
    EXPECT_EQ(object->parent(), nullptr);
    EXPECT_EQ(object->sectionHolder(), nullptr);
}

TEST_F(HBXElementDrawObjTest, aSectionComesWithTheRecord)
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

TEST_F(HBXElementDrawObjTest, aCloneIsACopyThatIsNotYetEntered)
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

TEST_F(HBXElementDrawObjTest, aCloneHasNeitherChainNorParent)
{
    IHBXElement *beam = element(15);
    IHBXElementDrawObj *first = placed(beam);
    first->linkNext(placed(beam));
    EXPECT_EQ(first->cloneDrawObj(0, 0, 1)->nextInChain(), nullptr);
    IHBXElementDrawObj *door = placed(element(4));
    door->attachTo(placed(element(1003)));
    EXPECT_EQ(door->cloneDrawObj(0, 0, 1)->parent(), nullptr);
}

TEST_F(HBXElementDrawObjTest, theCloneOfAFoundationHasChildrenOfItsOwn)
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

TEST_F(HBXElementDrawObjTest, attachToSetsTheParentAndNullTakesItAway)
{
    IHBXElementDrawObj *door = placed(element(4));
    IHBXElementDrawObj *of = wall("LINESTRING(0 0, 3000 0)", 200.0);
    door->attachTo(of);
    EXPECT_EQ(door->parent(), of);
    door->attachTo(nullptr);
    EXPECT_EQ(door->parent(), nullptr);
}

TEST_F(HBXElementDrawObjTest, nothingIsAttachedToItselfOrToWhatStandsOnIt)
{
    IHBXElementDrawObj *hole = placed(element(24));
    IHBXElementDrawObj *plate = placed(element(19));
    hole->attachTo(hole);
    EXPECT_EQ(hole->parent(), nullptr);
    hole->attachTo(plate);
    plate->attachTo(hole);
    EXPECT_EQ(plate->parent(), nullptr);
}

TEST_F(HBXElementDrawObjTest, openingsStandInWallsAndHolesInSlabsAndRafts)
{
    constexpr int kWalls[] = {0, 1, 202, 1001, 1003};
    const auto takes = [this](int type, int host) {
        IHBXElementDrawObj *object = placed(element(type));
        IHBXElementDrawObj *parent = placed(element(host));
        object->attachTo(parent);
        return object->parent() == parent;
    };
    for (const int opening : {4, 5, 6, 7}) {
        for (const int host : kWalls)
            EXPECT_TRUE(takes(opening, host)) << opening << " in " << host;
        EXPECT_FALSE(takes(opening, 19)) << opening;
        EXPECT_FALSE(takes(opening, 25)) << opening;
    }
    for (const int plate : {19, 48})
        EXPECT_TRUE(takes(24, plate)) << plate;
    EXPECT_FALSE(takes(24, 1003));
    EXPECT_FALSE(takes(25, 1003)); // a column is attached to nothing
}

TEST_F(HBXElementDrawObjTest, aWallOfAnotherFloorTakesNoOpening)
{
    IHBXElementDrawObj *door = placed(element(4));
    IHBXElement *above = model().elements()->createElement(1003, 0, floor("F2"), QString());
    IHBXElementDrawObj *of = drawObjs().createDrawObj(floor("F2"), above, true);
    drawObjs().addDrawObj(of);
    door->attachTo(of);
    EXPECT_EQ(door->parent(), nullptr);
}

TEST_F(HBXElementDrawObjTest, objectsOfAnotherBuildingTieNothing)
{
    HBXModelStore other;
    other.load(store.snapshot());
    IHBXModel *foreignModel = other.service()->model();
    IHBXFloor *foreignFloor = foreignModel->regions()->at(0)->floors()->at(0);
    const auto foreign = [&](int type) {
        IHBXElement *of = foreignModel->elements()->createElement(type, 0, foreignFloor, QString());
        return foreignModel->drawObjects()->createDrawObj(foreignFloor, of, true);
    };
    IHBXElementDrawObj *beam = placed(element(15));
    beam->linkNext(foreign(15));
    EXPECT_EQ(beam->nextInChain(), nullptr);
    IHBXElementDrawObj *door = placed(element(4));
    door->attachTo(foreign(1003));
    EXPECT_EQ(door->parent(), nullptr);
    EXPECT_FALSE(isAcceptable(foreign(15)));
}

TEST_F(HBXElementDrawObjTest, aChildFollowsTheUnitsOutlineAndTheOwnersPlace)
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

TEST_F(HBXElementDrawObjTest, theOwnersOutlineIsTheUnionOfItsChildrensElseItsOwn)
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
