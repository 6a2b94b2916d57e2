#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXGridShapeTest : public EmbeddedBuilding
{};

TEST_F(HBXGridShapeTest, aGridHasAnOutline)
{
    IHBXElementDrawObj *grid = loaded(74, gridShape());
    vks::CRefPtr<vks::CPolygon> outline;
    EXPECT_EQ(as<IHBXGridShape>(grid)->polygon(outline, true)->ToText(),
              "POLYGON((0 0, 8000 0, 8000 6000, 0 6000, 0 0))");
    expectBox(box(grid), 0, 0, 8000, 6000);
}

TEST_F(HBXGridShapeTest, aGridOfAxesAloneHasGeometryAndNoOutline)
{
    ShapeRecord axesAlone = gridShape();
    axesAlone.outline = nullptr;
    IHBXElementDrawObj *grid = loaded(74, axesAlone);
    EXPECT_TRUE(isAcceptable(grid));
    EXPECT_EQ(worldPoly(grid).get(), nullptr);
    EXPECT_FALSE(box(grid).IsValid());
    EXPECT_FALSE(isAcceptable(placed(element(74)))); // neither axes nor outline
}

TEST_F(HBXGridShapeTest, axesReadBackFromTheRecord)
{
    loaded(74, gridShape());
    store.load(store.snapshot());
    const ShapeRecord shape = store.drawObjRecord(5)->shape;
    ASSERT_EQ(shape.axes[2].size(), 1u);
    EXPECT_EQ(shape.axes[2][0].label, QStringLiteral("A"));
    EXPECT_EQ(shape.axes[2][0].curves.at(0)->ToText(), "LINESTRING(0 0, 8000 0)");
    EXPECT_TRUE(shape.axes[1].empty());
}

} // namespace
} // namespace hbx::embedded
