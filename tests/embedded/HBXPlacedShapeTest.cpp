#include "embedded/EmbeddedBuilding.h"
#include "platform/embedded/HBXShapeKinds.h"

#include <limits>

namespace hbx::embedded {
namespace {

class HBXPlacedShapeTest : public EmbeddedBuilding
{
protected:
    static vks::CCoord3<double> frameAt(double x, double y)
    {
        return {{x, y, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}}; // a quarter turn
    }
};

TEST_F(HBXPlacedShapeTest, newShapesHaveNoGeometryTheWorldsFrameAndTheKindOfTheirType)
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

TEST_F(HBXPlacedShapeTest, worldGeometryGoesThroughTheFrame)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    auto *shape = as<IHBXCustomLineSolidShape>(object);
    vks::CRefPtr<vks::CCurve2d> read;
    shape->setCoordinates(frameAt(5000, 1000));
    EXPECT_EQ(shape->worldLine(read, true)->ToText(), "LINESTRING(5000 1000, 5000 4000)");
    EXPECT_EQ(shape->localLine(read, true)->ToText(), "LINESTRING(0 0, 3000 0)");
    expectBox(box(object), 4900, 1000, 5100, 4000);
}

TEST_F(HBXPlacedShapeTest, anAbsentFrameIsTheWorlds)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    object->shape()->setCoordinates(frameAt(5000, 1000));
    object->shape()->setCoordinates(vks::CCoord3<double>::Absent());
    expectBox(box(object), 0, -100, 3000, 100);
    EXPECT_FALSE(store.drawObjRecord(object->id())->shape.coordinates);
}

TEST_F(HBXPlacedShapeTest, aFrameThatIsNotFiniteIsTheWorlds)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    object->shape()->setCoordinates(frameAt(std::numeric_limits<double>::infinity(), 0));
    expectBox(box(object), 0, -100, 3000, 100);
}

TEST_F(HBXPlacedShapeTest, aFrameReadsBackFromTheRecord)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    object->shape()->setCoordinates(frameAt(5000, 1000));
    store.load(store.snapshot());
    vks::CCoord3<double> frame;
    EXPECT_EQ(drawObjs().at(0)->shape()->coordinates(frame, true), frameAt(5000, 1000));
    expectBox(box(drawObjs().at(0)), 4900, 1000, 5100, 4000);
}

TEST_F(HBXPlacedShapeTest, worldGeometryIsWorkedOutOncePerChange)
{
    IHBXElementDrawObj *object = wall("LINESTRING(0 0, 3000 0)", 200.0);
    const auto first = worldPoly(object);
    EXPECT_EQ(worldPoly(object), first);
    object->properties()->setInt(L"Thickness", 240, false);
    EXPECT_NE(worldPoly(object), first);
    EXPECT_NEAR(first->Area(), 600000.0, 1e-6); // what was given before stays as it was
}

TEST_F(HBXPlacedShapeTest, theOutlineOfASingleUnitIsTakenOverExactly)
{
    IHBXElement *foundation = element(52);
    unit(foundation)->properties()->setInt(L"Radius", 500, false);
    IHBXElementDrawObj *object = placed(foundation);
    EXPECT_TRUE(worldPoly(object)->IsCircle());
    EXPECT_TRUE(isAcceptable(object));
}

} // namespace
} // namespace hbx::embedded
