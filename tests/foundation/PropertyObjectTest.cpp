#include "foundation/PropertyObject.h"

#include "foundation/Object_AI.h"

#include <QString>

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Base = gp::Object_AI<cv::Object_AI *, QString, Any>;

/** Reads a value bound to a field, and writes it. */
Base::Getter getterOf(double &field)
{
    return [&field] { return Any(field); };
}
Base::Setter setterOf(double &field)
{
    return [&field](const Any &value) { field = value.to<double>(); };
}

std::vector<QString> namesOf(const std::vector<cv::Object_AI *> &objects)
{
    std::vector<QString> names;
    names.reserve(objects.size());
    for (const cv::Object_AI *object : objects)
        names.push_back(object->objectName());
    return names;
}

/** "floor" with the children "slab" (with "hole" and "beam") and "beam". */
class PropertyObjectTest : public testing::Test
{
protected:
    cv::Object_AI floor{QString("floor")};
    cv::Object_AI *slab = new cv::Object_AI("slab", &floor);
    cv::Object_AI *hole = new cv::Object_AI("hole", slab);
    cv::Object_AI *deepBeam = new cv::Object_AI("beam", slab);
    cv::Object_AI *beam = new cv::Object_AI("beam", &floor);
    double field = 1.0;
};

// ---- Construction

TEST_F(PropertyObjectTest, objectWithAParentIsItsLastChild)
{
    EXPECT_THAT(floor.children(), ElementsAre(slab, beam));
    EXPECT_EQ(beam->parent(), &floor);
    EXPECT_EQ(deepBeam->root(), &floor);
    EXPECT_EQ(floor.parent(), nullptr);
    EXPECT_EQ(slab->data(), slab);
}

TEST_F(PropertyObjectTest, nameIsEmptyUnlessGiven)
{
    cv::Object_AI object;
    EXPECT_EQ(object.objectName(), QString());
    object.setObjectName("raft");
    EXPECT_EQ(object.objectName(), "raft");
    EXPECT_EQ(slab->objectName(), "slab");
}

TEST_F(PropertyObjectTest, setParentToNullDetachesWithoutDeleting)
{
    slab->setParent(nullptr);
    EXPECT_THAT(floor.children(), ElementsAre(beam));
    EXPECT_EQ(slab->root(), slab);
    EXPECT_EQ(slab->childCount(), 2U);
    delete slab;
}

// ---- Stored properties

TEST_F(PropertyObjectTest, unknownPropertyGivesTheDefaultAndStaysUnknown)
{
    EXPECT_EQ(slab->property("thickness", 120).cast<int>(), 120);
    EXPECT_TRUE(slab->property("thickness").isEmpty());
    EXPECT_FALSE(slab->hasProperty("thickness"));
}

TEST_F(PropertyObjectTest, storedPropertyIsRead)
{
    slab->setProperty("thickness", 120.0);
    EXPECT_TRUE(slab->hasProperty("thickness"));
    EXPECT_EQ(slab->property("thickness", 5.0).cast<double>(), 120.0);
    slab->setProperty("thickness", QString("thick"));
    EXPECT_EQ(slab->property("thickness").to<QString>(), "thick");
}

TEST_F(PropertyObjectTest, emptyValueIsStoredAsAnyOther)
{
    slab->setProperty("thickness", Any());
    EXPECT_TRUE(slab->hasProperty("thickness"));
    EXPECT_TRUE(slab->property("thickness", 5).isEmpty());
}

TEST_F(PropertyObjectTest, deletedPropertyIsGone)
{
    slab->setProperty("thickness", 120.0);
    slab->deleteProperty("thickness");
    EXPECT_FALSE(slab->hasProperty("thickness"));
}

TEST_F(PropertyObjectTest, deletionOfAnUnknownPropertyDoesNothing)
{
    slab->setProperty("thickness", 120.0);
    slab->deleteProperty("width");
    EXPECT_THAT(slab->propertyNames(), ElementsAre("thickness"));
}

TEST_F(PropertyObjectTest, propertiesComeInTheOrderOfTheirNames)
{
    slab->setProperty("c", 1);
    slab->setProperty("a", 2);
    slab->setProperty("b", getterOf(field), setterOf(field));
    EXPECT_THAT(slab->propertyNames(), ElementsAre("a", "b", "c"));
    const std::vector<Base::property_t> list = slab->properties();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[0].name, "a");
    EXPECT_EQ(list[0].value.cast<int>(), 2);
    EXPECT_EQ(list[1].value.cast<double>(), 1.0) << "the getter is called";
    EXPECT_EQ(list[2].value.cast<int>(), 1);
}

// ---- Bound properties

TEST_F(PropertyObjectTest, boundPropertyReachesTheSetterAndLeavesTheStoredValue)
{
    slab->setProperty("elevation", 7.0);
    slab->setProperty("elevation", getterOf(field), setterOf(field));
    slab->setProperty("elevation", 3.5);
    EXPECT_EQ(field, 3.5);
    EXPECT_EQ(slab->property("elevation").cast<double>(), 3.5);
    slab->setProperty("elevation", Base::Getter(), Base::Setter());
    EXPECT_EQ(slab->property("elevation").cast<double>(), 7.0);
}

TEST_F(PropertyObjectTest, setterAloneKeepsTheValueToo)
{
    slab->setProperty("elevation", Base::Getter(), setterOf(field));
    EXPECT_TRUE(slab->property("elevation", 5).isEmpty());
    slab->setProperty("elevation", 3.5);
    EXPECT_EQ(field, 3.5);
    field = 9.0;
    EXPECT_EQ(slab->property("elevation").cast<double>(), 3.5);
}

TEST_F(PropertyObjectTest, getterAloneHidesWhatIsStored)
{
    slab->setProperty("elevation", getterOf(field), Base::Setter());
    slab->setProperty("elevation", 3.5);
    EXPECT_EQ(slab->property("elevation").cast<double>(), 1.0);
    slab->setProperty("elevation", Base::Getter(), Base::Setter());
    EXPECT_EQ(slab->property("elevation").cast<double>(), 3.5);
}

TEST_F(PropertyObjectTest, laterBindingTakesThePlaceOfTheEarlier)
{
    double other = 2.0;
    slab->setProperty("width", getterOf(field), setterOf(field));
    slab->setProperty("width", getterOf(other), setterOf(other));
    slab->setProperty("width", 3.5);
    EXPECT_EQ(field, 1.0);
    EXPECT_EQ(other, 3.5);
}

TEST_F(PropertyObjectTest, exceptionsOfGettersAndSettersPassThrough)
{
    slab->setProperty(
        "elevation", []() -> Any { throw std::runtime_error("get"); },
        [](const Any &) { throw std::runtime_error("set"); });
    EXPECT_THAT([&] { slab->property("elevation"); }, testing::ThrowsMessage<std::runtime_error>("get"));
    EXPECT_THAT([&] { slab->setProperty("elevation", 1); }, testing::ThrowsMessage<std::runtime_error>("set"));
}

// ---- Inherited properties

TEST_F(PropertyObjectTest, inheritedPropertyIsFoundInAGrandparent)
{
    floor.setProperty("concrete", QString("C30"));
    EXPECT_EQ(hole->inherited_property("concrete").to<QString>(), "C30");
    EXPECT_FALSE(hole->hasProperty("concrete"));
    EXPECT_TRUE(hole->property("concrete").isEmpty());
}

TEST_F(PropertyObjectTest, valueInTheNearerObjectWins)
{
    floor.setProperty("concrete", QString("C30"));
    slab->setProperty("concrete", QString("C40"));
    EXPECT_EQ(hole->inherited_property("concrete").to<QString>(), "C40");
    hole->setProperty("concrete", QString("C50"));
    EXPECT_EQ(hole->inherited_property("concrete").to<QString>(), "C50");
}

TEST_F(PropertyObjectTest, inheritedPropertyThatNobodyHasGivesTheDefault)
{
    EXPECT_EQ(hole->inherited_property("concrete", 5).cast<int>(), 5);
    EXPECT_TRUE(floor.inherited_property("concrete").isEmpty());
}

TEST_F(PropertyObjectTest, parentWithoutDataInheritsNothing)
{
    floor.setProperty("concrete", QString("C30"));
    slab->setData(nullptr);
    EXPECT_EQ(hole->inherited_property("concrete", 5).cast<int>(), 5);
    slab->setData(slab);
}

// ---- The proxy

TEST_F(PropertyObjectTest, proxyWritesAndReadsTheProperty)
{
    (*slab)["thickness"] = 120.0;
    EXPECT_EQ(slab->property("thickness").cast<double>(), 120.0);
    const Any value = (*slab)["thickness"];
    EXPECT_EQ(value.cast<double>(), 120.0);
    EXPECT_EQ((*slab)["thickness"].to<double>(), 120.0);
    EXPECT_EQ((*slab)["thickness"].cast<double>(), 120.0);
}

TEST_F(PropertyObjectTest, proxyReachesABoundProperty)
{
    slab->setProperty("elevation", getterOf(field), setterOf(field));
    (*slab)["elevation"] = 3.5;
    EXPECT_EQ(field, 3.5);
}

TEST_F(PropertyObjectTest, proxyAssignedToAProxyCopiesTheValue)
{
    (*slab)["thickness"] = 120.0;
    (*beam)["height"] = (*slab)["thickness"];
    EXPECT_EQ(beam->property("height").cast<double>(), 120.0);
    (*slab)["thickness"] = 100.0;
    EXPECT_EQ(beam->property("height").cast<double>(), 120.0);
}

TEST_F(PropertyObjectTest, proxyOfAnUnknownPropertyReadsEmptyAndMakesNothing)
{
    EXPECT_TRUE(Any((*slab)["thickness"]).isEmpty());
    EXPECT_FALSE(slab->hasProperty("thickness"));
}

TEST_F(PropertyObjectTest, proxyOfAConstObjectReads)
{
    (*slab)["thickness"] = 120.0;
    const cv::Object_AI &constSlab = *slab;
    EXPECT_EQ(constSlab["thickness"].to<double>(), 120.0);
    EXPECT_FALSE((std::is_assignable_v<decltype(constSlab[QString()]), Any>));
}

TEST_F(PropertyObjectTest, positionAndNameAreToldApart)
{
    EXPECT_EQ(floor[0], slab);
    EXPECT_EQ(floor[1], beam);
}

// ---- Methods

TEST_F(PropertyObjectTest, methodGetsItsArgumentsInOrder)
{
    std::vector<int> seen;
    const auto note = [&seen](const Any &value) { seen.push_back(value.isEmpty() ? -1 : value.cast<int>()); };
    slab->setMethod("note", [&](const Any &a1, const Any &a2, const Any &a3, const Any &a4, const Any &a5,
                                const Any &a6, const Any &a7, const Any &a8, const Any &a9) {
        for (const Any *value : {&a1, &a2, &a3, &a4, &a5, &a6, &a7, &a8, &a9})
            note(*value);
        return Any(QString("done"));
    });
    EXPECT_EQ(slab->invokeMethod("note", 1, 2, 3, 4, 5, 6, 7, 8, 9).to<QString>(), "done");
    EXPECT_THAT(seen, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    seen.clear();
    slab->invokeMethod("note", 1, 2);
    EXPECT_THAT(seen, ElementsAre(1, 2, -1, -1, -1, -1, -1, -1, -1)) << "those left out are empty";
}

template <typename Result> Base::Method methodGiving(Result result)
{
    return [result](auto &&...) { return Any(result); };
}

TEST_F(PropertyObjectTest, unknownMethodGivesAnEmptyValue)
{
    EXPECT_TRUE(slab->invokeMethod("note", 1).isEmpty());
    slab->setMethod("note", Base::Method());
    EXPECT_TRUE(slab->invokeMethod("note", 1).isEmpty());
}

TEST_F(PropertyObjectTest, laterMethodReplacesTheEarlier)
{
    slab->setMethod("note", methodGiving(1));
    slab->setMethod("note", methodGiving(2));
    EXPECT_EQ(slab->invokeMethod("note").cast<int>(), 2);
}

TEST_F(PropertyObjectTest, methodMayReplaceItself)
{
    const auto kept = std::make_shared<int>(1);
    slab->setMethod("note", [this, kept](auto &&...) {
        slab->setMethod("note", methodGiving(2));
        return Any(*kept);
    });
    EXPECT_EQ(slab->invokeMethod("note").cast<int>(), 1);
    EXPECT_EQ(slab->invokeMethod("note").cast<int>(), 2);
}

TEST_F(PropertyObjectTest, exceptionsOfMethodsPassThrough)
{
    slab->setMethod("note", [](auto &&...) -> Any { throw std::runtime_error("no"); });
    EXPECT_THROW(slab->invokeMethod("note"), std::runtime_error);
}

// ---- Searches

TEST_F(PropertyObjectTest, childIsFoundByNameDirectOnesFirst)
{
    EXPECT_EQ(floor.findChild("beam", FindWholeSubtree), beam);
    EXPECT_EQ(floor.findChild("hole", FindWholeSubtree), hole);
    EXPECT_EQ(floor.findChild("hole"), nullptr);
    EXPECT_EQ(floor.findChild("raft", FindWholeSubtree), nullptr);
    EXPECT_THAT(floor.findChildren("beam", FindWholeSubtree), ElementsAre(beam, deepBeam));
    EXPECT_THAT(floor.findChildren("beam"), ElementsAre(beam));
}

TEST_F(PropertyObjectTest, predicateGetsObjects)
{
    hole->setProperty("round", true);
    const auto isRound = [](const Base *object) { return object->hasProperty("round"); };
    EXPECT_EQ(floor.findChild_if(isRound, FindWholeSubtree), hole);
    EXPECT_EQ(floor.findChild_if(isRound), nullptr);
    EXPECT_THAT(floor.findChildren_if(isRound, FindWholeSubtree), ElementsAre(hole));
}

TEST_F(PropertyObjectTest, childIsMadeOnlyIfThereIsNone)
{
    EXPECT_EQ(floor.createIfNotExists("slab"), slab);
    EXPECT_EQ(floor.createIfNotExists("hole", FindWholeSubtree), hole);
    cv::Object_AI *fresh = floor.createIfNotExists("hole");
    EXPECT_NE(fresh, hole);
    EXPECT_EQ(fresh->objectName(), "hole");
    EXPECT_THAT(floor.children(), ElementsAre(slab, beam, fresh));
}

TEST_F(PropertyObjectTest, objectWithoutDataMakesNoChild)
{
    slab->setData(nullptr);
    EXPECT_EQ(slab->createIfNotExists("raft"), nullptr);
    slab->setData(slab);
}

// ---- Copies and moves

TEST_F(PropertyObjectTest, copyHasNameAndPropertiesOnly)
{
    bool called = false;
    slab->setProperty("thickness", 120.0);
    slab->setMethod("note", methodGiving(1));
    slab->setCallbackBeforeDestroyed([&called] { called = true; });
    {
        const cv::Object_AI copy(*slab);
        EXPECT_EQ(copy.objectName(), "slab");
        EXPECT_EQ(copy.property("thickness").cast<double>(), 120.0);
        EXPECT_TRUE(copy.invokeMethod("note").isEmpty());
        EXPECT_EQ(copy.parent(), nullptr);
        EXPECT_EQ(copy.childCount(), 0U);
        EXPECT_EQ(copy.data(), &copy);
    }
    EXPECT_FALSE(called);
    EXPECT_EQ(slab->childCount(), 2U);
}

TEST_F(PropertyObjectTest, boundPropertyOfACopyStaysBoundToTheSame)
{
    slab->setProperty("elevation", getterOf(field), setterOf(field));
    cv::Object_AI copy(*slab);
    copy.setProperty("elevation", 3.5);
    EXPECT_EQ(field, 3.5);
}

TEST_F(PropertyObjectTest, movedObjectTakesThePlaceOfTheOther)
{
    slab->setProperty("thickness", 120.0);
    slab->setMethod("note", methodGiving(1));
    auto *moved = new cv::Object_AI(std::move(*slab));
    EXPECT_THAT(floor.children(), ElementsAre(beam, moved));
    EXPECT_THAT(moved->children(), ElementsAre(hole, deepBeam));
    EXPECT_EQ(moved->objectName(), "slab");
    EXPECT_EQ(moved->property("thickness").cast<double>(), 120.0);
    EXPECT_TRUE(moved->invokeMethod("note").isEmpty());
    EXPECT_EQ(moved->data(), moved);
    EXPECT_EQ(slab->parent(), nullptr);
    EXPECT_EQ(slab->childCount(), 0U);
    EXPECT_THAT(slab->propertyNames(), IsEmpty());
    delete slab;
}

TEST_F(PropertyObjectTest, copyAssignmentTakesNameAndPropertiesOnly)
{
    slab->setProperty("thickness", 120.0);
    beam->setProperty("width", 200.0);
    *beam = *slab;
    EXPECT_EQ(beam->objectName(), "slab");
    EXPECT_THAT(beam->propertyNames(), ElementsAre("thickness"));
    EXPECT_EQ(beam->childCount(), 0U);
    EXPECT_THAT(floor.children(), ElementsAre(slab, beam));
    const cv::Object_AI &itself = *slab;
    *slab = itself;
    EXPECT_EQ(slab->property("thickness").cast<double>(), 120.0);
}

TEST_F(PropertyObjectTest, moveAssignmentTakesChildrenAndPlaceAndExchangesTheProperties)
{
    slab->setProperty("thickness", 120.0);
    cv::Object_AI target(QString("target"));
    target.setProperty("width", 200.0);
    bool deleted = false;
    (new cv::Object_AI("old", &target))->setCallbackBeforeDestroyed([&deleted] { deleted = true; });
    target = std::move(*slab);
    EXPECT_TRUE(deleted);
    EXPECT_EQ(target.objectName(), "slab");
    EXPECT_THAT(target.propertyNames(), ElementsAre("thickness"));
    EXPECT_THAT(slab->propertyNames(), ElementsAre("width"));
    EXPECT_THAT(target.children(), ElementsAre(hole, deepBeam));
    EXPECT_THAT(floor.children(), ElementsAre(beam, &target));
    target.setParent(nullptr);
    delete slab;
}

TEST_F(PropertyObjectTest, moveFromWithinOrOntoItselfChangesNothing)
{
    floor = std::move(*hole);
    cv::Object_AI &itself = floor;
    floor = std::move(itself);
    EXPECT_EQ(floor.objectName(), "floor");
    EXPECT_THAT(namesOf(floor.children(FindWholeSubtree)), ElementsAre("slab", "hole", "beam", "beam"));
}

// ---- End

TEST_F(PropertyObjectTest, callbackComesFirstOfAll)
{
    std::vector<QString> order;
    slab->setProperty("thickness", 120.0);
    slab->setMethod("note", methodGiving(1));
    slab->setCallbackBeforeDestroyed([&] {
        order.emplace_back("slab");
        // Everything is still in its place.
        EXPECT_TRUE(slab->hasProperty("thickness"));
        EXPECT_EQ(slab->invokeMethod("note").cast<int>(), 1);
        EXPECT_EQ(slab->childCount(), 2U);
        EXPECT_EQ(slab->parent(), &floor);
    });
    hole->setCallbackBeforeDestroyed([&] { order.emplace_back("hole"); });
    delete slab;
    EXPECT_THAT(order, ElementsAre("slab", "hole"));
    EXPECT_THAT(floor.children(), ElementsAre(beam));
}

TEST_F(PropertyObjectTest, laterCallbackReplacesTheEarlier)
{
    int called = 0;
    beam->setCallbackBeforeDestroyed([&] { called += 1; });
    beam->setCallbackBeforeDestroyed([&] { called += 10; });
    delete beam;
    EXPECT_EQ(called, 10);
}

TEST_F(PropertyObjectTest, propertiesDieBeforeTheChildren)
{
    const auto shared = std::make_shared<int>(1);
    slab->setProperty("kept", shared);
    long left = 0;
    hole->setCallbackBeforeDestroyed([&] { left = shared.use_count(); });
    delete slab;
    EXPECT_EQ(left, 1);
}

} // namespace
