#include "embedded/EmbeddedBuilding.h"

#include <limits>

namespace hbx::embedded {
namespace {

class HBXElementTest : public EmbeddedBuilding
{};

TEST_F(HBXElementTest, anElementTellsWhatItWasMadeOf)
{
    IHBXElement *beam = element(15, "KL1", "F2", 11);
    EXPECT_EQ(beam->objectKind(), IHBXEObject::kElement);
    EXPECT_EQ(beam->type(), 15);
    EXPECT_EQ(beam->subType(), 11);
    EXPECT_EQ(nameOf(beam), QStringLiteral("KL1"));
    EXPECT_EQ(beam->floor(), floor("F2"));
    EXPECT_EQ(beam->region(), model().regions()->at(0));
    EXPECT_EQ(beam->parent(), nullptr);
}

TEST_F(HBXElementTest, orderNumbersOfUnitsCountUpFromOne)
{
    IHBXElement *foundation = element(53);
    EXPECT_EQ(unit(foundation, 83)->orderNumber(), 1);
    IHBXElement *second = unit(foundation, 83);
    EXPECT_EQ(second->orderNumber(), 2);
    EXPECT_EQ(second->parent(), foundation);
    second->remove();
    EXPECT_EQ(unit(foundation, 83)->orderNumber(), 3);
    EXPECT_EQ(unit(element(53), 83)->orderNumber(), 1);
}

TEST_F(HBXElementTest, orderNumbersEndWithTheRangeOfAnInt)
{
    unit(element(52));
    ProjectRecord record = store.snapshot();
    record.elements[1].orderNumber = std::numeric_limits<int>::max();
    store.load(record);
    EXPECT_EQ(unit(elements().at(0))->orderNumber(), std::numeric_limits<int>::max());
}

TEST_F(HBXElementTest, onlyEnteredDrawObjectsCount)
{
    IHBXElement *slabElement = element(19);
    IHBXElementDrawObj *pending = drawObjs().createDrawObj(floor(), slabElement, true);
    IHBXElementDrawObj *entered = placed(slabElement);
    QList<IHBXElementDrawObj *> out{nullptr};
    slabElement->drawObjs(out, 0);
    EXPECT_EQ(out, QList<IHBXElementDrawObj *>{entered});
    EXPECT_EQ(slabElement->drawObjCount(), 1);
    drawObjs().addDrawObj(pending);
    EXPECT_EQ(slabElement->drawObjCount(), 2);
    entered->remove();
    EXPECT_EQ(slabElement->drawObjCount(), 1);
}

TEST_F(HBXElementTest, aRemovedUnitLeavesItsParent)
{
    IHBXElement *foundation = element(53, "CT1");
    unit(foundation, 83)->remove();
    EXPECT_EQ(placed(foundation)->childCount(), 0);
    foundation->remove();
    EXPECT_EQ(elements().count(), 0);
}

TEST_F(HBXElementTest, aRecordTellsTheElementAndReadsBack)
{
    IHBXElement *foundation = element(52, "J1", "F2", 9);
    IHBXElement *second = unit(foundation);
    second->properties()->setInt(L"Height", 300, false);
    const auto record = store.elementRecord(second->id());
    ASSERT_TRUE(record);
    EXPECT_EQ(record->floorId, 3);
    EXPECT_EQ(record->parentId, foundation->id());
    EXPECT_EQ(record->type, 82);
    EXPECT_EQ(record->orderNumber, 1);
    EXPECT_EQ(store.elementRecord(foundation->id())->subType, 9);
    store.load(store.snapshot());
    EXPECT_EQ(elements().at(1)->parent(), elements().at(0));
    EXPECT_EQ(numberIn(elements().at(1)->properties(), L"Height"), 300.0);
}

TEST_F(HBXElementTest, aRefusedWriteStandsInTheJournalUnderItsName)
{
    IHBXElement *beam = element(15, "KL1");
    EXPECT_THROW(beam->properties()->setString(L"StartPtTopElev", QStringLiteral("high"), true), HBXModelException);
    ASSERT_EQ(store.journal().entries().size(), 1u);
    EXPECT_EQ(store.journal().entries()[0].objectId, beam->id());
    EXPECT_EQ(store.journal().entries()[0].name, QStringLiteral("KL1"));
}

} // namespace
} // namespace hbx::embedded
