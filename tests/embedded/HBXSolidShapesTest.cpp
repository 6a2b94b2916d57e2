#include "embedded/EmbeddedBuilding.h"

#include "platform/embedded/HBXShapeKinds.h"

#include <cmath>
#include <limits>

namespace hbx::embedded {
namespace {

constexpr double kQuarterTurn = 1.5707963267948966; // rad

class HBXSolidShapesTest : public EmbeddedBuilding
{
protected:
    static ShapeRecord pointAt(double x, double y)
    {
        ShapeRecord record;
        record.outline = polygonOf("POLYGON((-100 -200, 100 -200, 100 200, -100 200, -100 -200))");
        record.insertPoint = Point(x, y);
        return record;
    }
    /** A column (4) with its draw object (5) of that shape. */
    IHBXCustomPointSolidShape *loadColumn(const ShapeRecord &shape)
    {
        ProjectRecord record = emptyHouse();
        ElementRecord column;
        column.id = 4;
        column.floorId = 2;
        column.type = 25;
        column.name = QStringLiteral("KZ1");
        DrawObjRecord object;
        object.id = 5;
        object.elementId = 4;
        object.type = 25;
        object.shape = shape;
        record.elements = {column};
        record.drawObjs = {object};
        store.load(record);
        return as<IHBXCustomPointSolidShape>(drawObjs().drawObjById(5));
    }
    vks::CBox2<double> columnBox() { return box(drawObjs().drawObjById(5)); }
    static vks::CCoord3<double> frameAt(double x, double y)
    {
        return {{x, y, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}}; // a quarter turn
    }
};

struct TypeKind
{
    qint64 type;
    int kind;
};

class ShapeKindTest : public ::testing::TestWithParam<TypeKind>
{};

TEST_P(ShapeKindTest, followsTheType)
{
    const auto kind = shapeKindOfType(GetParam().type);
    ASSERT_TRUE(kind);
    EXPECT_EQ(*kind, GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(Types, ShapeKindTest,
                         ::testing::Values(TypeKind{0, 1}, TypeKind{1, 1}, TypeKind{4, 0}, TypeKind{5, 0},
                                           TypeKind{6, 0}, TypeKind{7, 0}, TypeKind{15, 1}, TypeKind{17, 1},
                                           TypeKind{18, 1}, TypeKind{19, 2}, TypeKind{22, 5}, TypeKind{23, 4},
                                           TypeKind{24, 3}, TypeKind{25, 0}, TypeKind{26, 0}, TypeKind{47, 1},
                                           TypeKind{48, 2}, TypeKind{49, 5}, TypeKind{50, 4}, TypeKind{52, 0},
                                           TypeKind{53, 0}, TypeKind{54, 0}, TypeKind{74, 6}, TypeKind{75, 4},
                                           TypeKind{82, 0}, TypeKind{83, 0}, TypeKind{202, 1}, TypeKind{1001, 1},
                                           TypeKind{1002, 0}, TypeKind{1003, 1}));

TEST_F(HBXSolidShapesTest, newShapesHaveNoGeometryTheWorldsFrameAndTheKindOfTheirType)
{
    for (const qint64 type : {15, 19, 22, 23, 24, 25, 74}) {
        IHBXElementDrawObj *object = placed(element(type));
        ASSERT_NE(object->shape(), nullptr);
        EXPECT_EQ(object->shape()->kind(), *shapeKindOfType(type));
        EXPECT_EQ(worldPoly(object).get(), nullptr);
        EXPECT_FALSE(box(object).IsValid());
        vks::CCoord3<double> frame = vks::CCoord3<double>::Absent();
        EXPECT_EQ(object->shape()->coordinates(frame, true), vks::CCoord3<double>());
    }
}

TEST_F(HBXSolidShapesTest, aWallIsAsWideAsItsThicknessAndLiesEvenlyBesideItsAxis)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    EXPECT_EQ(as<IHBXCustomLineSolidShape>(object)->width(true), 200.0);
    EXPECT_EQ(as<IHBXCustomLineSolidShape>(object)->distanceToLeft(), 100.0);
    expectBox(box(object), 0, -100, 3000, 100);
    EXPECT_NEAR(worldPoly(object)->Area(), 600000.0, 1e-6);
}

TEST_F(HBXSolidShapesTest, axisOffsetMovesASolidToTheLeftOfItsAxis)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    object->element()->properties()->setDouble(L"AxisOffset", 30.0, true);
    EXPECT_EQ(as<IHBXCustomLineSolidShape>(object)->distanceToLeft(), 130.0);
    expectBox(box(object), 0, -70, 3000, 130);
    object->properties()->setDouble(L"AxisOffset_JZBZ", -30.0, true);
    expectBox(box(object), 0, -130, 3000, 70);
}

TEST_F(HBXSolidShapesTest, beamsAndTieBeamsAreAsWideAsTheirSection)
{
    for (const qint64 type : {15, 17, 18, 47}) {
        IHBXElement *beam = element(type);
        beam->properties()->setInt(L"SectionWidth", 300, true);
        EXPECT_EQ(as<IHBXCustomLineSolidShape>(placed(beam))->width(true), 300.0) << type;
    }
}

TEST_F(HBXSolidShapesTest, aWriteToASizePropertyOfEitherChangesTheShape)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    IHBXElementDrawObj *second = placed(object->element());
    auto *shape = as<IHBXCustomLineSolidShape>(object);
    object->element()->properties()->setInt(L"Thickness", 240, false);
    EXPECT_EQ(shape->width(true), 240.0);
    object->properties()->setInt(L"Thickness", 300, false);
    EXPECT_EQ(shape->width(true), 300.0);
    expectBox(box(object), 0, -150, 3000, 150);
    object->element()->properties()->setInt(L"Thickness", 100, false); // hidden by the object's own
    EXPECT_EQ(shape->width(true), 300.0);
    EXPECT_EQ(as<IHBXCustomLineSolidShape>(second)->width(true), 100.0);
}

TEST_F(HBXSolidShapesTest, aLineSolidKeepsACopyOfItsAxisAndNullTakesItAway)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    auto *shape = as<IHBXCustomLineSolidShape>(object);
    vks::CRefPtr<vks::CCurve2d> axis = curveOf("LINESTRING(0 0, 0 500)");
    vks::CRefPtr<vks::CCurve2d> read;
    shape->setLine(axis);
    axis->Translate(Point(1, 1));
    EXPECT_EQ(shape->curve(read, true)->ToText(), "LINESTRING(0 0, 0 500)");
    EXPECT_EQ(shape->localLine(read, true)->ToText(), "LINESTRING(0 0, 0 500)");
    shape->setLine(nullptr);
    EXPECT_EQ(shape->worldLine(read, true).get(), nullptr);
    EXPECT_EQ(worldPoly(object).get(), nullptr);
    EXPECT_FALSE(box(object).IsValid());
}

TEST_F(HBXSolidShapesTest, worldGeometryGoesThroughTheFrame)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    auto *shape = as<IHBXCustomLineSolidShape>(object);
    vks::CRefPtr<vks::CCurve2d> read;
    shape->setCoordinates(frameAt(5000, 1000));
    EXPECT_EQ(shape->worldLine(read, true)->ToText(), "LINESTRING(5000 1000, 5000 4000)");
    EXPECT_EQ(shape->localLine(read, true)->ToText(), "LINESTRING(0 0, 3000 0)");
    expectBox(box(object), 4900, 1000, 5100, 4000);
}

TEST_F(HBXSolidShapesTest, anAbsentFrameIsTheWorlds)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    object->shape()->setCoordinates(frameAt(5000, 1000));
    object->shape()->setCoordinates(vks::CCoord3<double>::Absent());
    expectBox(box(object), 0, -100, 3000, 100);
    EXPECT_FALSE(store.drawObjRecord(object->id())->shape.coordinates);
}

TEST_F(HBXSolidShapesTest, aWallWithoutWidthHasTheBoxOfItsAxis)
{
    IHBXElementDrawObj *object = placed(element(1003));
    as<IHBXCustomLineSolidShape>(object)->setLine(curveOf("LINESTRING(0 0, 3000 0)"));
    EXPECT_EQ(worldPoly(object).get(), nullptr);
    expectBox(box(object), 0, 0, 3000, 0);
}

TEST_F(HBXSolidShapesTest, slabsAndRaftsHangDownByTheirThickness)
{
    for (const qint64 type : {19, 48}) {
        IHBXElement *plate = element(type);
        plate->properties()->setDouble(L"Thickness", 120.0, false);
        IHBXElementDrawObj *object = placed(plate);
        EXPECT_EQ(as<IHBXFaceSolidShape>(object)->height(), -120.0);
        object->properties()->setInt(L"Thickness", 150, false);
        EXPECT_EQ(as<IHBXFaceSolidShape>(object)->height(), -150.0);
    }
}

TEST_F(HBXSolidShapesTest, aFaceSolidKeepsACopyOfItsOutline)
{
    IHBXElementDrawObj *object = placed(element(19));
    vks::CRefPtr<vks::CPolygon> outline = polygonOf("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    vks::CRefPtr<vks::CPolygon> read;
    as<IHBXFaceSolidShape>(object)->setPolygon(outline);
    outline->Translate(Point(9, 9));
    EXPECT_EQ(as<IHBXFaceSolidShape>(object)->polygon(read, true)->ToText(), "POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    expectBox(box(object), 0, 0, 4, 3);
    as<IHBXFaceSolidShape>(object)->setPolygon(nullptr);
    EXPECT_EQ(worldPoly(object).get(), nullptr);
}

TEST_F(HBXSolidShapesTest, aPointSolidIsMirroredTurnedMovedAndTakenThroughItsFrame)
{
    ShapeRecord shape = pointAt(1000, 0);
    shape.outline = polygonOf("POLYGON((0 0, 300 0, 300 100, 0 100, 0 0))");
    shape.mirror = true;        // x -300 to 0, y 0 to 100
    shape.angle = kQuarterTurn; // x -100 to 0, y -300 to 0
    IHBXCustomPointSolidShape *column = loadColumn(shape);
    EXPECT_TRUE(column->mirror());
    EXPECT_EQ(column->angle(), kQuarterTurn);
    expectBox(columnBox(), 900, -300, 1000, 0);
    column->setCoordinates(frameAt(0, 0)); // a quarter turn more about the origin
    expectBox(columnBox(), 0, 900, 300, 1000);
}

TEST_F(HBXSolidShapesTest, settersOfAPointSolidMoveIt)
{
    IHBXCustomPointSolidShape *column = loadColumn(pointAt(0, 0));
    const Point point(5000, 7000);
    Point read;
    column->setInsertPoint(&point);
    EXPECT_EQ(column->insertPoint(read), point);
    expectBox(columnBox(), 4900, 6800, 5100, 7200);
    column->setAngle(kQuarterTurn);
    expectBox(columnBox(), 4800, 6900, 5200, 7100);
    column->setMirror(true);
    EXPECT_TRUE(column->mirror());
    column->setInsertPoint(nullptr);
    column->setAngle(std::numeric_limits<double>::quiet_NaN());
    expectBox(columnBox(), -100, -200, 100, 200);
}

TEST_F(HBXSolidShapesTest, theSizeThatAFileStatesStaysUntilASizeIsWritten)
{
    loadColumn(pointAt(0, 0));
    IHBXElement *column = elements().elementById(4);
    column->properties()->setString(L"TopElev", QStringLiteral("3"), false);
    column->properties()->setInt(L"SectionWidth", 600, false); // one side makes no rectangle
    expectBox(columnBox(), -100, -200, 100, 200);
    column->properties()->setInt(L"SectionHeight", 800, false);
    expectBox(columnBox(), -300, -400, 300, 400);
}

TEST_F(HBXSolidShapesTest, theWidthThatAFileStatesStaysUntilASizeIsWritten)
{
    ShapeRecord line;
    line.kind = IHBXShape::kLine;
    line.curve = curveOf("LINESTRING(0 0, 1000 0)");
    line.width = 250.0;
    line.distanceToLeft = 50.0;
    loadColumn(line);
    expectBox(columnBox(), 0, -200, 1000, 50);
    EXPECT_EQ(store.drawObjRecord(5)->shape.distanceToLeft, 50.0);
}

TEST_F(HBXSolidShapesTest, rectanglesLieWithWidthAlongXAndHeightAlongY)
{
    IHBXElement *column = element(25);
    column->properties()->setInt(L"SectionWidth", 400, false);
    column->properties()->setInt(L"SectionHeight", 600, false);
    expectBox(box(placed(column)), -200, -300, 200, 300);
    IHBXElement *hole = element(24);
    hole->properties()->setInt(L"Width", 1200, false);
    hole->properties()->setInt(L"Length", 900, false);
    expectBox(box(placed(hole)), -600, -450, 600, 450);
}

TEST_F(HBXSolidShapesTest, aRadiusIsACircle)
{
    IHBXElement *pile = element(54);
    pile->properties()->setInt(L"Radius", 250, false);
    IHBXElementDrawObj *object = placed(pile);
    EXPECT_TRUE(worldPoly(object)->IsCircle());
    expectBox(box(object), -250, -250, 250, 250);
}

TEST_F(HBXSolidShapesTest, aRoundSectionTypeTakesTheRadiusWhereBothAreTold)
{
    IHBXElement *hole = element(24, "", "F1", 154);
    hole->properties()->setInt(L"Width", 100, false);
    hole->properties()->setInt(L"Length", 100, false);
    hole->properties()->setInt(L"Radius", 400, false);
    EXPECT_TRUE(worldPoly(placed(hole))->IsCircle());
    hole->properties()->setInt(L"SectionTypeID", 0, false);
    EXPECT_FALSE(worldPoly(placed(hole))->IsCircle());
}

TEST_F(HBXSolidShapesTest, aDrawnSectionIsTheOutlineWhateverTheSectionTypeSays)
{
    for (const qint64 type : {24, 25, 54, 82}) {
        IHBXElement *part = type == 82 ? unit(element(52)) : element(type);
        const Point insertPoint(200, 200);
        part->properties()->setInt(L"SectionTypeID", 0, false);
        part->properties()->setInt(type == 24 ? L"Width" : L"SectionWidth", 50, false);
        part->properties()->setPolygon(L"SectionPoly", polygonOf("POLYGON((0 0, 400 0, 400 400, 0 0))"), false);
        IHBXElementDrawObj *object = placed(part);
        expectBox(box(object), 0, 0, 400, 400);
        part->properties()->setPoint(L"InsertPt", &insertPoint, false);
        expectBox(box(object), -200, -200, 200, 200);
    }
}

TEST_F(HBXSolidShapesTest, takingADrawnSectionAwayGivesTheSizesBackOrNothing)
{
    IHBXElement *hole = element(24);
    IHBXElementDrawObj *object = placed(hole);
    hole->properties()->setPolygon(L"SectionPoly", polygonOf("POLYGON((0 0, 400 0, 400 400, 0 0))"), false);
    hole->properties()->setPolygon(L"SectionPoly", nullptr, false);
    EXPECT_EQ(worldPoly(object).get(), nullptr);
    hole->properties()->setInt(L"Radius", 100, false);
    EXPECT_TRUE(worldPoly(object)->IsCircle());
}

TEST_F(HBXSolidShapesTest, aSectionSolidIsACustomPointShape)
{
    IHBXElementDrawObj *hole = placed(element(24));
    EXPECT_EQ(hole->shape()->kind(), IHBXShape::kSection);
    EXPECT_NE(as<IHBXSectionPointSolidShape>(hole), nullptr);
    EXPECT_NE(as<IHBXCustomPointSolidShape>(hole), nullptr);
}

} // namespace
} // namespace hbx::embedded
