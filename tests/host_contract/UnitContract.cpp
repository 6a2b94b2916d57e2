#include "HostContract.h"

#include "platform/host/HBXModelException.h"

using namespace host_contract;

namespace {

constexpr qint64 kFoundation = 52;
constexpr qint64 kUnit = 82;

} // namespace

HostUnitContract::Foundation HostUnitContract::placedFoundation() const
{
    IHBXElement &foundation = makeElement(kFoundation);
    IHBXElement &lower = makeUnit(kUnit, foundation);
    IHBXElement &upper = makeUnit(kUnit, foundation);
    return {lower, upper, placed(foundation)};
}

TEST_P(HostUnitContract, unitWithoutAParentIsNotMade)
{
    for (const qint64 type : {82, 83}) {
        EXPECT_EQ(elements().createElement(type, 0, nullptr, &level1(), 2, QStringLiteral("U"), 0), nullptr);
        EXPECT_EQ(elements().createElement(type, 0, &level1(), QStringLiteral("U")), nullptr);
    }
}

TEST_P(HostUnitContract, unitTellsItsParent)
{
    IHBXElement &foundation = makeElement(kFoundation, floor("0"));
    IHBXElement &unit = makeUnit(kUnit, foundation);
    EXPECT_EQ(unit.type(), kUnit);
    EXPECT_EQ(unit.parent(), &foundation);
    EXPECT_EQ(unit.floor(), &floor("0"));
    EXPECT_EQ(foundation.parent(), nullptr);
}

TEST_P(HostUnitContract, pileCapUnitStandsUnderAPileCap)
{
    IHBXElement &cap = makeElement(53, floor("0"));
    EXPECT_EQ(makeUnit(83, cap).parent(), &cap);
}

TEST_P(HostUnitContract, orderNumberCountsUnitsFromOne)
{
    IHBXElement &foundation = makeElement(kFoundation);
    IHBXElement &other = makeElement(kFoundation);
    EXPECT_EQ(makeUnit(kUnit, foundation).orderNumber(), 1);
    EXPECT_EQ(makeUnit(kUnit, foundation).orderNumber(), 2);
    EXPECT_EQ(makeUnit(kUnit, other).orderNumber(), 1);
    EXPECT_EQ(makeUnit(kUnit, foundation).orderNumber(), 3);
}

TEST_P(HostUnitContract, unitsMayShareAName)
{
    IHBXElement &foundation = makeElement(kFoundation);
    IHBXElement &first = makeUnit(kUnit, foundation, QStringLiteral("Step"));
    IHBXElement &second = makeUnit(kUnit, foundation, QStringLiteral("Step"));
    EXPECT_EQ(nameOf(first), QStringLiteral("Step"));
    EXPECT_EQ(nameOf(second), QStringLiteral("Step"));
    IHBXElement &third = makeUnit(kUnit, foundation, QStringLiteral("Top"));
    EXPECT_NO_THROW(third.setName(QStringLiteral("Step")));
    EXPECT_EQ(nameOf(third), QStringLiteral("Step"));
    EXPECT_THROW(third.setName(QString()), HBXModelException);
}

TEST_P(HostUnitContract, removedFoundationTakesItsUnitsWithIt)
{
    IHBXElement &foundation = makeElement(kFoundation);
    const qint64 unitId = makeUnit(kUnit, foundation).id();
    foundation.remove();
    EXPECT_EQ(elements().elementById(unitId), nullptr);
}

TEST_P(HostUnitContract, drawObjectOfAFoundationHasOneChildForEachUnit)
{
    const auto &[lower, upper, drawObj] = placedFoundation();
    ASSERT_EQ(drawObj.childCount(), 2);
    ASSERT_TRUE(drawObj.child(0) && drawObj.child(1));
    EXPECT_EQ(drawObj.child(0)->element(), &lower);
    EXPECT_EQ(drawObj.child(1)->element(), &upper);
    EXPECT_EQ(drawObj.child(0)->parent(), &drawObj);
    EXPECT_EQ(drawObj.child(1)->type(), kUnit);
}

TEST_P(HostUnitContract, unitThatIsAddedLaterGivesItsChildToPlacedDrawObjects)
{
    IHBXElement &foundation = makeElement(kFoundation);
    IHBXElementDrawObj &drawObj = placed(foundation);
    EXPECT_EQ(drawObj.childCount(), 0);
    IHBXElement &unit = makeUnit(kUnit, foundation);
    ASSERT_EQ(drawObj.childCount(), 1);
    EXPECT_EQ(drawObj.child(0)->element(), &unit);
}

TEST_P(HostUnitContract, childOutOfRangeIsNull)
{
    IHBXElement &foundation = makeElement(kFoundation);
    makeUnit(kUnit, foundation);
    IHBXElementDrawObj &drawObj = placed(foundation);
    EXPECT_EQ(drawObj.child(-1), nullptr);
    EXPECT_EQ(drawObj.child(1), nullptr);
    EXPECT_EQ(placed(19).child(0), nullptr);
    EXPECT_EQ(placed(19).childCount(), 0);
}

TEST_P(HostUnitContract, removedUnitTakesItsChildrenWithIt)
{
    const auto &[lower, upper, drawObj] = placedFoundation();
    lower.remove();
    ASSERT_EQ(drawObj.childCount(), 1);
    EXPECT_EQ(drawObj.child(0)->element(), &upper);
}

TEST_P(HostUnitContract, removedDrawObjectTakesItsChildrenWithIt)
{
    IHBXElement &foundation = makeElement(kFoundation);
    makeUnit(kUnit, foundation);
    IHBXElementDrawObj &drawObj = placed(foundation);
    ASSERT_EQ(drawObj.childCount(), 1);
    const qint64 childId = drawObj.child(0)->id();
    drawObj.remove();
    EXPECT_EQ(drawObjs().drawObjById(childId), nullptr);
}
