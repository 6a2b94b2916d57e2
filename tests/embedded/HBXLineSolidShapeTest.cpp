#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXLineSolidShapeTest : public EmbeddedBuilding
{};

TEST_F(HBXLineSolidShapeTest, aWallIsAsWideAsItsThicknessAndLiesEvenlyBesideItsAxis)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    EXPECT_EQ(as<IHBXCustomLineSolidShape>(object)->width(true), 200.0);
    EXPECT_EQ(as<IHBXCustomLineSolidShape>(object)->distanceToLeft(), 100.0);
    expectBox(box(object), 0, -100, 3000, 100);
    EXPECT_NEAR(worldPoly(object)->Area(), 600000.0, 1e-6);
}

TEST_F(HBXLineSolidShapeTest, axisOffsetMovesASolidToTheLeftOfItsAxis)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    object->element()->properties()->setDouble(L"AxisOffset", 30.0, true);
    EXPECT_EQ(as<IHBXCustomLineSolidShape>(object)->distanceToLeft(), 130.0);
    expectBox(box(object), 0, -70, 3000, 130);
    object->properties()->setDouble(L"AxisOffset_JZBZ", -30.0, true);
    expectBox(box(object), 0, -130, 3000, 70);
}

TEST_F(HBXLineSolidShapeTest, beamsAndTieBeamsAreAsWideAsTheirSection)
{
    for (const qint64 type : {15, 17, 18, 47}) {
        IHBXElement *beam = element(type);
        beam->properties()->setInt(L"SectionWidth", 300, true);
        EXPECT_EQ(as<IHBXCustomLineSolidShape>(placed(beam))->width(true), 300.0) << type;
    }
}

TEST_F(HBXLineSolidShapeTest, aWriteToASizePropertyOfEitherChangesTheShape)
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

TEST_F(HBXLineSolidShapeTest, aLineSolidKeepsACopyOfItsAxisAndNullTakesItAway)
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

TEST_F(HBXLineSolidShapeTest, aWallWithoutWidthHasTheBoxOfItsAxis)
{
    IHBXElementDrawObj *object = placed(element(1003));
    as<IHBXCustomLineSolidShape>(object)->setLine(curveOf("LINESTRING(0 0, 3000 0)"));
    EXPECT_EQ(worldPoly(object).get(), nullptr);
    expectBox(box(object), 0, 0, 3000, 0);
}

TEST_F(HBXLineSolidShapeTest, theWidthThatAFileStatesStaysUntilASizeIsWritten)
{
    ShapeRecord line;
    line.kind = IHBXShape::kLine;
    line.curve = curveOf("LINESTRING(0 0, 1000 0)");
    line.width = 250.0;
    line.distanceToLeft = 50.0;
    IHBXElementDrawObj *object = loaded(1003, line);
    expectBox(box(object), 0, -200, 1000, 50);
    EXPECT_EQ(store.drawObjRecord(object->id())->shape.distanceToLeft, 50.0);
    object->properties()->setString(L"TieBar", QStringLiteral("A6"), true);
    expectBox(box(object), 0, -200, 1000, 50);
    object->properties()->setInt(L"Thickness", 300, true);
    expectBox(box(object), 0, -150, 1000, 150);
}

} // namespace
} // namespace hbx::embedded
