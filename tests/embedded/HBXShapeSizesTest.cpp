#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXShapeSizesTest : public EmbeddedBuilding
{};

TEST_F(HBXShapeSizesTest, rectanglesLieWithWidthAlongXAndHeightAlongY)
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

TEST_F(HBXShapeSizesTest, aRadiusIsACircle)
{
    IHBXElement *pile = element(54);
    pile->properties()->setInt(L"Radius", 250, false);
    IHBXElementDrawObj *object = placed(pile);
    EXPECT_TRUE(worldPoly(object)->IsCircle());
    expectBox(box(object), -250, -250, 250, 250);
}

TEST_F(HBXShapeSizesTest, aRoundSectionTypeTakesTheRadiusWhereBothAreTold)
{
    IHBXElement *hole = element(24, "", "F1", 154);
    hole->properties()->setInt(L"Width", 100, false);
    hole->properties()->setInt(L"Length", 100, false);
    hole->properties()->setInt(L"Radius", 400, false);
    EXPECT_TRUE(worldPoly(placed(hole))->IsCircle());
    hole->properties()->setInt(L"SectionTypeID", 0, false);
    EXPECT_FALSE(worldPoly(placed(hole))->IsCircle());
}

TEST_F(HBXShapeSizesTest, aDrawnSectionIsTheOutlineWhateverTheSectionTypeSays)
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

TEST_F(HBXShapeSizesTest, sizesThatAreNotAboveZeroMakeNoOutline)
{
    for (const double none : {0.0, -400.0}) {
        IHBXElement *column = element(25);
        column->properties()->setDouble(L"SectionWidth", none, false);
        column->properties()->setDouble(L"SectionHeight", 600.0, false);
        column->properties()->setDouble(L"Radius", none, false);
        EXPECT_EQ(worldPoly(placed(column)).get(), nullptr) << none;
    }
}

TEST_F(HBXShapeSizesTest, aWholeNumberIsASizeToo)
{
    IHBXElementDrawObj *door = placed(element(4));
    door->properties()->setInt(L"OpeningWidth", 900, false); // an integer property
    EXPECT_EQ(box(door).Width(), 900.0);
}

} // namespace
} // namespace hbx::embedded
