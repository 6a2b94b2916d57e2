#include "embedded/EmbeddedBuilding.h"

#include <limits>

namespace hbx::embedded {
namespace {

constexpr double kQuarterTurn = 1.5707963267948966; // rad

class HBXPointSolidShapeTest : public EmbeddedBuilding
{
protected:
    static ShapeRecord pointAt(double x, double y)
    {
        ShapeRecord record;
        record.outline = polygonOf("POLYGON((-100 -200, 100 -200, 100 200, -100 200, -100 -200))");
        record.insertPoint = Point(x, y);
        return record;
    }
    IHBXCustomPointSolidShape *loadColumn(const ShapeRecord &shape)
    {
        column = loaded(25, shape);
        return as<IHBXCustomPointSolidShape>(column);
    }

    IHBXElementDrawObj *column = nullptr;
};

TEST_F(HBXPointSolidShapeTest, aPointSolidIsMirroredTurnedMovedAndTakenThroughItsFrame)
{
    ShapeRecord shape = pointAt(1000, 0);
    shape.outline = polygonOf("POLYGON((0 0, 300 0, 300 100, 0 100, 0 0))");
    shape.mirror = true;        // x -300 to 0, y 0 to 100
    shape.angle = kQuarterTurn; // x -100 to 0, y -300 to 0
    IHBXCustomPointSolidShape *shapeOfColumn = loadColumn(shape);
    EXPECT_TRUE(shapeOfColumn->mirror());
    EXPECT_EQ(shapeOfColumn->angle(), kQuarterTurn);
    expectBox(box(column), 900, -300, 1000, 0);
    shapeOfColumn->setCoordinates({{0, 0, 0}, {0, 1, 0}, {-1, 0, 0}}); // a quarter turn more
    expectBox(box(column), 0, 900, 300, 1000);
}

TEST_F(HBXPointSolidShapeTest, settersOfAPointSolidMoveIt)
{
    IHBXCustomPointSolidShape *shapeOfColumn = loadColumn(pointAt(0, 0));
    const Point point(5000, 7000);
    Point read;
    shapeOfColumn->setInsertPoint(&point);
    EXPECT_EQ(shapeOfColumn->insertPoint(read), point);
    expectBox(box(column), 4900, 6800, 5100, 7200);
    shapeOfColumn->setAngle(kQuarterTurn);
    expectBox(box(column), 4800, 6900, 5200, 7100);
    shapeOfColumn->setMirror(true);
    EXPECT_TRUE(shapeOfColumn->mirror());
    shapeOfColumn->setInsertPoint(nullptr);
    shapeOfColumn->setAngle(std::numeric_limits<double>::quiet_NaN());
    expectBox(box(column), -100, -200, 100, 200);
}

TEST_F(HBXPointSolidShapeTest, theSizeThatAFileStatesStaysUntilASizeIsWritten)
{
    loadColumn(pointAt(0, 0));
    IHBXProperties *properties = column->element()->properties();
    properties->setString(L"TopElev", QStringLiteral("3"), false);
    properties->setInt(L"SectionWidth", 600, false); // one side makes no rectangle
    expectBox(box(column), -100, -200, 100, 200);
    properties->setInt(L"SectionHeight", 800, false);
    expectBox(box(column), -300, -400, 300, 400);
}

TEST_F(HBXPointSolidShapeTest, sizesThatCannotBeDrawnLeaveTheOutline)
{
    loadColumn(pointAt(0, 0));
    for (const double size : {1e-9, 1e300}) {
        column->properties()->setDouble(L"SectionWidth", size, false);
        column->properties()->setDouble(L"SectionHeight", size, false);
        expectBox(box(column), -100, -200, 100, 200);
    }
}

TEST_F(HBXPointSolidShapeTest, takingADrawnSectionAwayGivesTheSizesBackOrNothing)
{
    IHBXElement *hole = element(24);
    IHBXElementDrawObj *object = placed(hole);
    hole->properties()->setPolygon(L"SectionPoly", polygonOf("POLYGON((0 0, 400 0, 400 400, 0 0))"), false);
    hole->properties()->setPolygon(L"SectionPoly", nullptr, false);
    EXPECT_EQ(worldPoly(object).get(), nullptr);
    hole->properties()->setInt(L"Radius", 100, false);
    EXPECT_TRUE(worldPoly(object)->IsCircle());
}

TEST_F(HBXPointSolidShapeTest, aSectionSolidIsACustomPointShape)
{
    IHBXElementDrawObj *hole = placed(element(24));
    EXPECT_EQ(hole->shape()->kind(), IHBXShape::kSection);
    EXPECT_NE(as<IHBXSectionPointSolidShape>(hole), nullptr);
    EXPECT_NE(as<IHBXCustomPointSolidShape>(hole), nullptr);
}

} // namespace
} // namespace hbx::embedded
