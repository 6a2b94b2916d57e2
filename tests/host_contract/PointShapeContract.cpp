#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXSectionPointSolidShape.h"

using namespace host_contract;
using vks::CVec2;

namespace {

constexpr double kQuarter = 1.5707963267948966; // rad
const Corners kTriangle = {{0, 0}, {400, 0}, {0, 200}};

CVec2<double> insertPointOf(const IHBXCustomPointSolidShape &shape)
{
    CVec2<double> point{17, 18};
    EXPECT_EQ(&shape.insertPoint(point), &point);
    return point;
}

void moveTo(IHBXCustomPointSolidShape &shape, double x, double y)
{
    const CVec2<double> point{x, y};
    shape.setInsertPoint(&point);
}

/** Whether the corner with the right angle, and no other, lies at this corner of the outline's box. */
void expectCornerAt(const IHBXShape &shape, const CVec2<double> &corner)
{
    const vks::CRefPtr<vks::CPolygon> outline = worldPolyOf(shape);
    ASSERT_NE(outline, nullptr);
    EXPECT_NEAR(outline->Area(), 40000, 1);
    const CVec2<double> middle = outline->Box().Center();
    const CVec2<double> inside = corner + (middle - corner) * 0.1;
    const CVec2<double> opposite = corner + (middle - corner) * 1.9;
    EXPECT_EQ(outline->Locate(inside, kNear), 1);
    EXPECT_EQ(outline->Locate(opposite, kNear), -1);
}

} // namespace

IHBXCustomPointSolidShape &HostPointShapeContract::triangularColumn() const
{
    IHBXElement &element = makeElement(25);
    propertiesOf(element).setPolygon(L"SectionPoly", polygonOf(kTriangle), false);
    auto &column = shapeOf<IHBXCustomPointSolidShape>(placed(element));
    moveTo(column, 1000, 500);
    return column;
}

TEST_P(HostPointShapeContract, placeAngleAndMirrorStartAtNothing)
{
    for (const qint64 type : {4, 24, 25, 52, 54}) {
        const auto &shape = shapeOf<IHBXCustomPointSolidShape>(placed(type));
        EXPECT_EQ(insertPointOf(shape), CVec2<double>()) << type;
        EXPECT_EQ(shape.angle(), 0.0) << type;
        EXPECT_FALSE(shape.mirror()) << type;
    }
}

TEST_P(HostPointShapeContract, placeAngleAndMirrorAreReadBack)
{
    auto &column = shapeOf<IHBXCustomPointSolidShape>(placed(25));
    moveTo(column, 1000, -500);
    column.setAngle(0.25);
    column.setMirror(true);
    EXPECT_EQ(insertPointOf(column), CVec2<double>(1000, -500));
    EXPECT_DOUBLE_EQ(column.angle(), 0.25);
    EXPECT_TRUE(column.mirror());
    column.setMirror(false);
    EXPECT_FALSE(column.mirror());
}

TEST_P(HostPointShapeContract, holeTakesItsPlaceAndAngle)
{
    auto &hole = shapeOf<IHBXSectionPointSolidShape>(placed(24));
    moveTo(hole, 700, 800);
    hole.setAngle(kQuarter);
    EXPECT_EQ(insertPointOf(hole), CVec2<double>(700, 800));
    EXPECT_DOUBLE_EQ(hole.angle(), kQuarter);
}

TEST_P(HostPointShapeContract, insertPointIsToldInTheShapesOwnCoordinates)
{
    auto &column = shapeOf<IHBXCustomPointSolidShape>(placed(25));
    moveTo(column, 1000, 500);
    column.setCoordinates(quarterTurn());
    EXPECT_EQ(insertPointOf(column), CVec2<double>(1000, 500));
}

TEST_P(HostPointShapeContract, outlineAboutTheInsertPointKnowsNothingOfThePlace)
{
    IHBXCustomPointSolidShape &column = triangularColumn();
    column.setAngle(kQuarter);
    column.setMirror(true);
    const auto outline = polygonIn(column, IHBXModel::g_bDefaultAutoCalc);
    ASSERT_NE(outline, nullptr);
    EXPECT_TRUE(isBox(outline->Box(), 0, 0, 400, 200));
}

TEST_P(HostPointShapeContract, worldOutlineIsMovedToTheInsertPoint)
{
    IHBXCustomPointSolidShape &column = triangularColumn();
    EXPECT_TRUE(isBox(column, 1000, 500, 1400, 700));
    expectCornerAt(column, {1000, 500});
}

TEST_P(HostPointShapeContract, mirrorTurnsXAround)
{
    IHBXCustomPointSolidShape &column = triangularColumn();
    column.setMirror(true);
    EXPECT_TRUE(isBox(column, 600, 500, 1000, 700));
    expectCornerAt(column, {1000, 500});
}

TEST_P(HostPointShapeContract, angleTurnsCounterClockwiseAboutTheInsertPoint)
{
    IHBXCustomPointSolidShape &column = triangularColumn();
    column.setAngle(kQuarter);
    EXPECT_TRUE(isBox(column, 800, 500, 1000, 900));
    expectCornerAt(column, {1000, 500});
}

TEST_P(HostPointShapeContract, outlineIsMirroredThenTurnedThenMovedThenTakenThroughTheFrame)
{
    IHBXCustomPointSolidShape &column = triangularColumn();
    column.setMirror(true);
    column.setAngle(kQuarter);
    EXPECT_TRUE(isBox(column, 800, 100, 1000, 500)); // mirrored first: the long leg points down, not up
    expectCornerAt(column, {1000, 500});
    column.setCoordinates(quarterTurn());
    EXPECT_TRUE(isBox(column, 9500, 20800, 9900, 21000));
    expectCornerAt(column, {9500, 21000});
}

TEST_P(HostPointShapeContract, sectionPolyIsMovedByMinusInsertPt)
{
    IHBXElement &element = makeElement(25);
    const CVec2<double> insertion{100, 50};
    propertiesOf(element).setPolygon(L"SectionPoly", rectangle(0, 0, 400, 200), false);
    propertiesOf(element).setPoint(L"InsertPt", &insertion, false);
    auto &column = shapeOf<IHBXCustomPointSolidShape>(placed(element));
    EXPECT_TRUE(isRectangle(worldPolyOf(column), -100, -50, 300, 150));
}

TEST_P(HostPointShapeContract, sectionSizesLieAboutTheInsertPoint)
{
    IHBXElement &element = makeElement(25);
    propertiesOf(element).setDouble(L"SectionWidth", 400, true);
    propertiesOf(element).setDouble(L"SectionHeight", 600, true);
    auto &column = shapeOf<IHBXCustomPointSolidShape>(placed(element));
    moveTo(column, 1000, 500);
    EXPECT_TRUE(isRectangle(worldPolyOf(column), 800, 200, 1200, 800));
}

TEST_P(HostPointShapeContract, radiusIsACircleAboutTheInsertPoint)
{
    IHBXElement &element = makeElement(54);
    propertiesOf(element).setDouble(L"Radius", 300, true);
    auto &pile = shapeOf<IHBXCustomPointSolidShape>(placed(element));
    moveTo(pile, 1000, 500);
    const auto outline = worldPolyOf(pile);
    ASSERT_NE(outline, nullptr);
    EXPECT_TRUE(outline->IsCircle());
    EXPECT_TRUE(isBox(pile, 700, 200, 1300, 800));
}

TEST_P(HostPointShapeContract, widthAndLengthAreTheSizeOfAHole)
{
    IHBXElement &element = makeElement(24);
    propertiesOf(element).setDouble(L"Width", 400, true);
    propertiesOf(element).setDouble(L"Length", 1000, true);
    EXPECT_TRUE(isRectangle(worldPolyOf(shapeOf<IHBXCustomPointSolidShape>(placed(element))), -200, -500, 200, 500));
}

TEST_P(HostPointShapeContract, outlineFollowsWritesToTheElement)
{
    IHBXElement &element = makeElement(25);
    propertiesOf(element).setPolygon(L"SectionPoly", rectangle(0, 0, 400, 200), false);
    auto &column = shapeOf<IHBXCustomPointSolidShape>(placed(element));
    propertiesOf(element).setPolygon(L"SectionPoly", rectangle(0, 0, 700, 700), false);
    EXPECT_TRUE(isRectangle(worldPolyOf(column), 0, 0, 700, 700));
}

TEST_P(HostPointShapeContract, foundationIsTheUnionOfItsUnitsAtItsPlace)
{
    IHBXElement &foundation = makeElement(52);
    IHBXElement &lower = makeUnit(82, foundation);
    IHBXElement &upper = makeUnit(82, foundation);
    propertiesOf(lower).setPolygon(L"SectionPoly", rectangle(-1000, -1000, 0, 1000), false);
    propertiesOf(upper).setPolygon(L"SectionPoly", rectangle(-500, -1000, 1000, 1000), false);
    IHBXElementDrawObj &drawObj = placed(foundation);
    auto &shape = shapeOf<IHBXCustomPointSolidShape>(drawObj);
    moveTo(shape, 5000, 7000);
    EXPECT_TRUE(isRectangle(worldPolyOf(shape), 4000, 6000, 6000, 8000));
    ASSERT_EQ(drawObj.childCount(), 2);
    EXPECT_TRUE(isRectangle(worldPolyOf(need(drawObj.child(1)->shape(), "shape of a child")), 4500, 6000, 6000, 8000));
}
