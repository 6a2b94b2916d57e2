#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

constexpr double kQuarterTurn = 1.5707963267948966; // rad
constexpr double kNear = 1e-9;

/** A door of 900 at (1500, 20) beside a wall of 240 along x. */
class HBXOpeningSeatTest : public EmbeddedBuilding
{
protected:
    HBXOpeningSeatTest()
    {
        door->element()->properties()->setInt(L"OpeningWidth", 900, false);
        const Point point(1500, 20);
        shape->setInsertPoint(&point);
    }

    IHBXElementDrawObj *xWall = wall("LINESTRING(0 0, 3000 0)", 240.0);
    IHBXElementDrawObj *door = placed(element(4));
    IHBXCustomPointSolidShape *shape = as<IHBXCustomPointSolidShape>(door);
};

TEST_F(HBXOpeningSeatTest, aLooseOpeningHasItsOwnAngleAndAnAssumedDepth)
{
    EXPECT_EQ(shape->angle(), 0.0);
    expectBox(box(door), 1050, -80, 1950, 120);
}

TEST_F(HBXOpeningSeatTest, anAttachedOpeningTakesTheWallsDepthAndDoesNotSnap)
{
    door->attachTo(xWall);
    EXPECT_EQ(shape->angle(), 0.0);
    expectBox(box(door), 1050, -100, 1950, 140);
    Point point;
    EXPECT_EQ(shape->insertPoint(point), Point(1500, 20));
}

TEST_F(HBXOpeningSeatTest, theAngleIsTheWallsAtThePointNearestToTheOpening)
{
    // An arc about (0, 0) from (1000, 0) to (0, 1000): its end runs in the direction (-1, 0).
    IHBXElementDrawObj *bow = wall("CIRCULARSTRING(1000 0, 707.1067811865476 707.1067811865476, 0 1000)", 100.0);
    const Point nearEnd(0, 1100);
    shape->setInsertPoint(&nearEnd);
    door->attachTo(bow);
    EXPECT_NEAR(shape->angle(), 2 * kQuarterTurn, 1e-6);
    const Point nearStart(1100, 0);
    shape->setInsertPoint(&nearStart);
    EXPECT_NEAR(shape->angle(), kQuarterTurn, 1e-6);
}

TEST_F(HBXOpeningSeatTest, angleAndDepthAreWorkedOutWhenAsked)
{
    door->attachTo(xWall);
    box(door);
    as<IHBXCustomLineSolidShape>(xWall)->setLine(curveOf("LINESTRING(1500 0, 1500 3000)"));
    xWall->properties()->setInt(L"Thickness", 100, false);
    EXPECT_NEAR(shape->angle(), kQuarterTurn, kNear);
    expectBox(box(door), 1450, -430, 1550, 470);
}

TEST_F(HBXOpeningSeatTest, theAngleIsToldInTheShapesOwnFrame)
{
    door->attachTo(xWall);
    shape->setCoordinates({{0, 0, 0}, {0, 1, 0}, {-1, 0, 0}});
    const Point point(20, -1500); // (1500, 20) in the world
    shape->setInsertPoint(&point);
    EXPECT_NEAR(shape->angle(), -kQuarterTurn, kNear);
    expectBox(box(door), 1050, -100, 1950, 140);
}

TEST_F(HBXOpeningSeatTest, itsOwnAngleAndDepthComeBackWithoutTheWall)
{
    shape->setAngle(kQuarterTurn);
    door->attachTo(xWall);
    EXPECT_EQ(shape->angle(), 0.0);
    door->attachTo(nullptr);
    EXPECT_EQ(shape->angle(), kQuarterTurn);
    expectBox(box(door), 1400, -430, 1600, 470);
    door->attachTo(xWall);
    xWall->remove();
    EXPECT_EQ(door->parent(), nullptr);
    expectBox(box(door), 1400, -430, 1600, 470);
}

TEST_F(HBXOpeningSeatTest, aWallWithoutAxisGivesNothing)
{
    door->attachTo(xWall);
    as<IHBXCustomLineSolidShape>(xWall)->setLine(nullptr);
    EXPECT_EQ(shape->angle(), 0.0);
    expectBox(box(door), 1050, -80, 1950, 120);
}

TEST_F(HBXOpeningSeatTest, theWidthFollowsItsPropertyInAWallToo)
{
    door->attachTo(xWall);
    door->element()->properties()->setInt(L"OpeningWidth", 1200, false);
    expectBox(box(door), 900, -100, 2100, 140);
}

TEST_F(HBXOpeningSeatTest, aHoleKeepsItsAngleInASlab)
{
    IHBXElementDrawObj *hole = placed(element(24));
    as<IHBXCustomPointSolidShape>(hole)->setAngle(1.0);
    hole->attachTo(placed(element(19)));
    ASSERT_NE(hole->parent(), nullptr);
    EXPECT_EQ(as<IHBXCustomPointSolidShape>(hole)->angle(), 1.0);
}

TEST_F(HBXOpeningSeatTest, recordsKeepTheOpeningsOwnShape)
{
    door->attachTo(xWall);
    const auto record = store.drawObjRecord(door->id());
    EXPECT_EQ(record->attachedTo, xWall->id());
    EXPECT_EQ(record->shape.outline->ToText(), "POLYGON((-450 -100, 450 -100, 450 100, -450 100, -450 -100))");
    const vks::CBox2<double> before = box(door);
    store.load(store.snapshot());
    IHBXElementDrawObj *again = drawObjs().drawObjById(record->id);
    expectBox(box(again), before.minPt.x, before.minPt.y, before.maxPt.x, before.maxPt.y);
}

} // namespace
} // namespace hbx::embedded
