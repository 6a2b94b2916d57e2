#include "embedded/EmbeddedBuilding.h"

#include <functional>
#include <iterator>

namespace hbx::embedded {
namespace {

using Ids = std::vector<qint64>;

class HBXModelStoreTest : public EmbeddedBuilding
{};

TEST_F(HBXModelStoreTest, aNewStoreIsAnEmptyBuilding)
{
    HBXModelStore empty;
    EXPECT_EQ(empty.service()->model()->regions()->count(), 0);
    EXPECT_EQ(empty.service()->curState()->floor(), nullptr);
    EXPECT_EQ(empty.service()->unnamedSetting(), 0);
    EXPECT_TRUE(empty.takeChanges().isEmpty());
    EXPECT_EQ(empty.snapshot().nextId, 1);
}

TEST_F(HBXModelStoreTest, theCurrentStateIsWhatWasSelected)
{
    IHBXCurState *state = store.service()->curState();
    EXPECT_EQ(state->region(), nullptr);
    EXPECT_TRUE(store.setCurrent(QStringLiteral("House"), QStringLiteral("F2")));
    EXPECT_EQ(state->region(), model().regions()->at(0));
    EXPECT_EQ(state->floor(), floor("F2"));
    EXPECT_FALSE(store.setCurrent(QStringLiteral("House"), QStringLiteral("F9")));
    EXPECT_FALSE(store.setCurrent(QStringLiteral("Shed"), QStringLiteral("F1")));
    EXPECT_EQ(state->floor(), floor("F2"));
    EXPECT_EQ(state->layer(), 0);
    store.setCurrentLayer(2);
    EXPECT_EQ(state->layer(), 2);
    EXPECT_EQ(state->currentLayer(-1), 2);
}

TEST_F(HBXModelStoreTest, newObjectsAreChangesOnceTheyAreEntered)
{
    EXPECT_TRUE(store.takeChanges().isEmpty());
    IHBXElement *of = element(19);
    IHBXElementDrawObj *object = drawObjs().createDrawObj(floor(), of, true);
    ProjectChanges changes = store.takeChanges();
    EXPECT_EQ(changes.changedElements, Ids{of->id()});
    EXPECT_TRUE(changes.changedDrawObjs.empty());
    EXPECT_EQ(changes.nextId, 6);
    drawObjs().addDrawObj(object);
    changes = store.takeChanges();
    EXPECT_TRUE(changes.changedElements.empty());
    EXPECT_EQ(changes.changedDrawObjs, Ids{object->id()});
    EXPECT_TRUE(store.takeChanges().isEmpty());
}

TEST_F(HBXModelStoreTest, everyMutationIsAChangeOfItsObject)
{
    IHBXElementDrawObj *object = placed(element(15));
    IHBXElementDrawObj *next = placed(object->element());
    const std::function<void()> mutations[] = {
        [&] { object->properties()->setString(L"SpanCount", QStringLiteral("3"), true); },
        [&] { as<IHBXCustomLineSolidShape>(object)->setLine(curveOf("LINESTRING(0 0, 1 0)")); },
        [&] {
            object->shape()->setCoordinates({{1, 1, 0}, {1, 0, 0}, {0, 1, 0}});
        },
        [&] { object->status()->setLayer(1); },
        [&] { object->status()->setState(1); },
        [&] { object->linkNext(next); },
        [&] { object->linkNext(nullptr); },
        [&] { store.setSpans(object, {QJsonObject()}); },
    };
    for (std::size_t i = 0; i < std::size(mutations); ++i) {
        store.takeChanges();
        mutations[i]();
        EXPECT_EQ(store.takeChanges().changedDrawObjs, Ids{object->id()}) << "mutation " << i;
    }
    object->element()->setName(QStringLiteral("KL9"));
    EXPECT_EQ(store.takeChanges().changedElements, Ids{object->element()->id()});
}

TEST_F(HBXModelStoreTest, openingIsChangedWhenItIsAttachedAndWhenItLosesItsWall)
{
    IHBXElementDrawObj *window = placed(element(5));
    IHBXElementDrawObj *wall = placed(element(1003));
    store.takeChanges();
    window->attachTo(wall);
    EXPECT_EQ(store.takeChanges().changedDrawObjs, Ids{window->id()});
    wall->remove();
    EXPECT_EQ(store.takeChanges().changedDrawObjs, Ids{window->id()});
}

TEST_F(HBXModelStoreTest, derivedChangesAreChangesToo)
{
    IHBXElement *foundation = element(52);
    IHBXElement *of = unit(foundation);
    IHBXElementDrawObj *object = placed(foundation);
    IHBXElementDrawObj *beam = placed(element(15));
    store.takeChanges();
    of->properties()->setInt(L"Radius", 300, false);
    ProjectChanges changes = store.takeChanges();
    EXPECT_EQ(changes.changedElements, Ids{of->id()});
    EXPECT_EQ(changes.changedDrawObjs, Ids{object->child(0)->id()});
    const Point point(1, 2);
    as<IHBXCustomPointSolidShape>(object)->setInsertPoint(&point);
    EXPECT_EQ(store.takeChanges().changedDrawObjs, (Ids{object->id(), object->child(0)->id()}));
    beam->element()->properties()->setInt(L"SectionWidth", 300, true);
    EXPECT_EQ(store.takeChanges().changedDrawObjs, Ids{beam->id()});
    beam->element()->properties()->setString(L"TieBar", QStringLiteral("A6"), true);
    EXPECT_TRUE(store.takeChanges().changedDrawObjs.empty());
}

TEST_F(HBXModelStoreTest, aRefusedWriteIsNoChange)
{
    IHBXElement *of = element(19);
    store.takeChanges();
    EXPECT_THROW(of->properties()->setString(L"TopElev", QStringLiteral("high"), false), HBXModelException);
    EXPECT_THROW(of->setName(QString()), HBXModelException);
    EXPECT_TRUE(store.takeChanges().isEmpty());
}

TEST_F(HBXModelStoreTest, removedObjectsAreToldOnceAndOnlyWhenTheyWereTakenBefore)
{
    IHBXElementDrawObj *known = placed(element(19));
    const qint64 objectId = known->id();
    const qint64 elementId = known->element()->id();
    store.takeChanges();
    IHBXElementDrawObj *unknown = placed(element(19));
    unknown->element()->remove();
    known->element()->remove();
    const ProjectChanges changes = store.takeChanges();
    EXPECT_EQ(changes.removedElements, Ids{elementId});
    EXPECT_EQ(changes.removedDrawObjs, Ids{objectId});
    EXPECT_TRUE(changes.changedElements.empty());
    EXPECT_TRUE(store.takeChanges().isEmpty());
}

TEST_F(HBXModelStoreTest, loadedObjectsAreKnown)
{
    placed(element(19));
    store.load(store.snapshot());
    EXPECT_TRUE(store.takeChanges().isEmpty());
    drawObjs().at(0)->remove();
    EXPECT_EQ(store.takeChanges().removedDrawObjs, Ids{5});
}

TEST_F(HBXModelStoreTest, changesThatCouldNotBeSavedComeAgain)
{
    IHBXElementDrawObj *object = placed(element(19));
    IHBXElement *second = element(19);
    store.setName(QStringLiteral("New"));
    const ProjectChanges first = store.takeChanges();
    const qint64 secondId = second->id();
    second->remove();
    store.giveBackChanges(first);
    const ProjectChanges again = store.takeChanges();
    EXPECT_EQ(again.changedElements, Ids{object->element()->id()});
    EXPECT_EQ(again.changedDrawObjs, Ids{object->id()});
    EXPECT_EQ(again.removedElements, Ids{secondId});
    EXPECT_TRUE(again.header);
}

TEST_F(HBXModelStoreTest, headerOptionsAndMaterialsAreMarkedOnTheirOwn)
{
    store.setPlaneRule(QStringLiteral("16G"));
    ProjectChanges changes = store.takeChanges();
    EXPECT_TRUE(changes.header);
    EXPECT_FALSE(changes.options);
    store.setPlaneRule(QStringLiteral("16G"));
    EXPECT_TRUE(store.takeChanges().isEmpty());
    store.setOptions({{QStringLiteral("g"), QStringLiteral("n"), QStringLiteral("v")}});
    store.setMaterials({{1, QStringLiteral("C30")}});
    changes = store.takeChanges();
    EXPECT_TRUE(changes.options);
    EXPECT_TRUE(changes.materials);
    EXPECT_FALSE(changes.header);
    EXPECT_EQ(store.options().at(0).value, QStringLiteral("v"));
    EXPECT_EQ(store.materials().at(0).name, QStringLiteral("C30"));
    EXPECT_EQ(store.planeRule(), QStringLiteral("16G"));
    EXPECT_NE(model().database(), nullptr);
}

TEST_F(HBXModelStoreTest, aSnapshotReadsBackToTheSameModel)
{
    IHBXElement *foundation = element(53, "CT1");
    unit(foundation, 83);
    placed(foundation);
    slab("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))", "B1")->properties()->setInt(L"Thickness", 120, false);
    const ProjectRecord before = store.snapshot();
    store.load(before);
    const ProjectRecord after = store.snapshot();
    ASSERT_EQ(after.elements.size(), before.elements.size());
    ASSERT_EQ(after.drawObjs.size(), before.drawObjs.size());
    EXPECT_EQ(after.nextId, before.nextId);
    EXPECT_EQ(after.elements[1].parentId, foundation == nullptr ? 0 : before.elements[0].id);
    EXPECT_EQ(after.drawObjs[1].owner, before.drawObjs[0].id);
    EXPECT_EQ(after.drawObjs[2].shape.outline->ToText(), "POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    EXPECT_EQ(after.drawObjs[2].shape.height, -120.0);
    EXPECT_EQ(after.drawObjs[2].properties.at(0).first, QStringLiteral("Thickness"));
    EXPECT_EQ(after.floors.size(), 2u);
    EXPECT_EQ(after.name, QStringLiteral("Test"));
}

TEST_F(HBXModelStoreTest, loadReplacesEverythingAndNewIdsStandAboveAllLoadedOnes)
{
    element(19, "Old");
    store.setCurrent(QStringLiteral("House"), QStringLiteral("F1"));
    model().beginBatch("open", true);
    ProjectRecord record = emptyHouse();
    record.nextId = 40;
    store.load(record);
    EXPECT_EQ(elements().count(), 0);
    EXPECT_EQ(store.service()->curState()->floor(), nullptr);
    EXPECT_TRUE(store.openBatches().empty());
    EXPECT_TRUE(store.journal().entries().empty());
    EXPECT_EQ(element(19)->id(), 40);
}

TEST_F(HBXModelStoreTest, unitsWithoutAChildGetOneOnLoading)
{
    IHBXElement *foundation = element(52);
    unit(foundation);
    placed(foundation);
    ProjectRecord record = store.snapshot();
    ASSERT_EQ(record.drawObjs.size(), 2u);
    record.drawObjs.pop_back();
    store.load(record);
    ASSERT_EQ(drawObjs().count(), 2);
    EXPECT_EQ(drawObjs().at(0)->childCount(), 1);
    EXPECT_EQ(store.takeChanges().changedDrawObjs, Ids{drawObjs().at(1)->id()});
}

TEST_F(HBXModelStoreTest, brokenReferencesAreDroppedAndNothingFails)
{
    ProjectRecord record = emptyHouse();
    ElementRecord lost;
    lost.id = 10;
    lost.floorId = 99;
    lost.type = 19;
    ElementRecord orphan;
    orphan.id = 11;
    orphan.floorId = 2;
    orphan.parentId = 77;
    orphan.type = 82;
    orphan.name = QStringLiteral("U");
    ElementRecord strange = orphan;
    strange.id = 12;
    strange.type = 4711;
    strange.properties = {{QStringLiteral("NoSuchName"), 1}};
    DrawObjRecord object;
    object.id = 13;
    object.elementId = 11;
    object.type = 82;
    object.next = object.owner = object.attachedTo = 13;
    DrawObjRecord ofLost = object;
    ofLost.id = 14;
    ofLost.elementId = 10;
    DrawObjRecord ofStrange = object;
    ofStrange.id = 15;
    ofStrange.elementId = 12;
    ofStrange.type = 4711;
    record.elements = {lost, orphan, strange};
    record.drawObjs = {object, ofLost, ofStrange, object};
    record.floors.push_back(record.floors[0]);
    record.floors.back().regionId = 5;
    record.floors.back().id = 50;
    store.load(record);
    EXPECT_EQ(elements().count(), 2);
    EXPECT_EQ(elements().elementById(11)->parent(), nullptr);
    EXPECT_EQ(drawObjs().count(), 2);
    EXPECT_EQ(drawObjs().drawObjById(13)->nextInChain(), nullptr);
    EXPECT_EQ(drawObjs().drawObjById(13)->parent(), nullptr);
    ASSERT_NE(elements().elementById(12)->properties(), nullptr);
    EXPECT_FALSE(elements().elementById(12)->properties()->hasProperty(L"Thickness"));
    EXPECT_FALSE(isAcceptable(drawObjs().drawObjById(15)));
    EXPECT_EQ(element(19)->id(), 51);
}

TEST_F(HBXModelStoreTest, recordsOfUnknownIdsAreNothing)
{
    IHBXElementDrawObj *pending = drawObjs().createDrawObj(floor(), element(19), true);
    EXPECT_FALSE(store.elementRecord(4711));
    EXPECT_FALSE(store.drawObjRecord(4711));
    EXPECT_FALSE(store.drawObjRecord(pending->id()));
    EXPECT_TRUE(store.snapshot().drawObjs.empty());
}

TEST_F(HBXModelStoreTest, recordsNameOnlyEnteredObjects)
{
    IHBXElement *beam = element(15);
    IHBXElementDrawObj *first = placed(beam);
    IHBXElementDrawObj *pending = drawObjs().createDrawObj(floor(), beam, true);
    first->linkNext(pending);
    EXPECT_EQ(store.drawObjRecord(first->id())->next, 0);
    store.takeChanges();
    drawObjs().addDrawObj(pending);
    EXPECT_EQ(store.drawObjRecord(first->id())->next, pending->id());
    EXPECT_EQ(store.takeChanges().changedDrawObjs, (Ids{first->id(), pending->id()}));
}

TEST_F(HBXModelStoreTest, aDrawObjectMayBeOfAnotherTypeThanItsElement)
{
    IHBXElementDrawObj *object = placed(element(25, "KZ1"));
    object->element()->properties()->setInt(L"SectionWidth", 500, false);
    ProjectRecord record = store.snapshot();
    record.drawObjs[0].type = 26;
    record.drawObjs[0].subType = 3;
    store.load(record);
    IHBXElementDrawObj *again = drawObjs().at(0);
    EXPECT_EQ(again->type(), 26);
    EXPECT_EQ(again->subType(), 3);
    EXPECT_EQ(numberIn(again->properties(), L"SectionWidth"), 500.0);
    QList<IHBXElementDrawObj *> out;
    drawObjs().queryDrawObjsOfFloor(out, floor()->id(), 26, 3, true);
    EXPECT_EQ(out.size(), 1);
}

} // namespace
} // namespace hbx::embedded
