#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXPlanShapesTest : public EmbeddedBuilding
{
protected:
    /** A grid (4) with its draw object (5): an axis in group 0 and one in group 2. */
    IHBXElementDrawObj *loadGrid()
    {
        ProjectRecord record = emptyHouse();
        ElementRecord grid;
        grid.id = 4;
        grid.floorId = 2;
        grid.type = 74;
        grid.name = QStringLiteral("Grid");
        DrawObjRecord object;
        object.id = 5;
        object.elementId = 4;
        object.type = 74;
        object.shape.kind = IHBXShape::kGrid;
        object.shape.outline = polygonOf("POLYGON((0 0, 8000 0, 8000 6000, 0 6000, 0 0))");
        object.shape.axes[0] = {{QStringLiteral("1"), {curveOf("LINESTRING(0 0, 0 6000)")}}};
        object.shape.axes[2] = {{QStringLiteral("A"), {curveOf("LINESTRING(0 0, 8000 0)")}}};
        record.elements = {grid};
        record.drawObjs = {object};
        store.load(record);
        return drawObjs().drawObjById(5);
    }
};

TEST_F(HBXPlanShapesTest, anAreaBarKeepsACopyOfItsArea)
{
    IHBXElementDrawObj *bar = placed(element(22));
    vks::CRefPtr<vks::CPolygon> area = polygonOf("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    vks::CRefPtr<vks::CPolygon> read;
    as<IHBXFaceShape2D>(bar)->setPolygon(area);
    area->Translate(Point(9, 9));
    EXPECT_EQ(as<IHBXFaceShape2D>(bar)->polygon(read, true)->ToText(), "POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
    expectBox(box(bar), 0, 0, 4, 3);
    EXPECT_EQ(bar->shape()->kind(), IHBXShape::kPlanArea);
    as<IHBXFaceShape2D>(bar)->setPolygon(nullptr);
    EXPECT_EQ(worldPoly(bar).get(), nullptr);
}

TEST_F(HBXPlanShapesTest, aLineBarKeepsACopyOfItsCurve)
{
    IHBXElementDrawObj *bar = placed(element(23));
    vks::CRefPtr<vks::CCurve2d> curve = curveOf("LINESTRING(0 0, 4 3)");
    vks::CRefPtr<vks::CCurve2d> read;
    as<IHBXLineShape2D>(bar)->setLine(curve);
    curve->Reverse();
    EXPECT_EQ(as<IHBXLineShape2D>(bar)->curve(read)->ToText(), "LINESTRING(0 0, 4 3)");
    EXPECT_EQ(bar->shape()->kind(), IHBXShape::kPlanLine);
    as<IHBXLineShape2D>(bar)->setLine(nullptr);
    EXPECT_EQ(as<IHBXLineShape2D>(bar)->curve(read).get(), nullptr);
    EXPECT_EQ(worldPoly(bar).get(), nullptr);
}

TEST_F(HBXPlanShapesTest, theWorldOutlineOfAPlanCurveRunsThereAndBack)
{
    IHBXElementDrawObj *axis = placed(element(75));
    as<IHBXLineShape2D>(axis)->setLine(curveOf("LINESTRING(0 0, 4 3)"));
    const auto outline = worldPoly(axis);
    ASSERT_NE(outline.get(), nullptr);
    EXPECT_EQ(outline->Area(), 0.0);
    expectBox(box(axis), 0, 0, 4, 3);
}

TEST_F(HBXPlanShapesTest, aGridGivesACopyOfItsAxesByGroup)
{
    std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(loadGrid()));
    ASSERT_NE(grid, nullptr);
    grid->prepare();
    std::vector<HBXAxis> axes(3);
    grid->axes(axes, 0);
    ASSERT_EQ(axes.size(), 1u);
    EXPECT_EQ(axes[0].label, QStringLiteral("1"));
    EXPECT_EQ(axes[0].curves.at(0)->ToText(), "LINESTRING(0 0, 0 6000)");
    grid->axes(axes, 2);
    EXPECT_EQ(axes.at(0).label, QStringLiteral("A"));
    for (const int empty : {1, 3, 4, -1}) {
        grid->axes(axes, empty);
        EXPECT_TRUE(axes.empty()) << empty;
    }
}

TEST_F(HBXPlanShapesTest, aGridHasAnOutline)
{
    IHBXElementDrawObj *grid = loadGrid();
    vks::CRefPtr<vks::CPolygon> outline;
    EXPECT_EQ(as<IHBXGridShape>(grid)->polygon(outline, true)->ToText(),
              "POLYGON((0 0, 8000 0, 8000 6000, 0 6000, 0 0))");
    expectBox(box(grid), 0, 0, 8000, 6000);
}

TEST_F(HBXPlanShapesTest, otherObjectsAndNullHaveNoGrid)
{
    EXPECT_EQ(IHBXAxisGrid::createFromObj(nullptr), nullptr);
    EXPECT_EQ(IHBXAxisGrid::createFromObj(placed(element(75))), nullptr);
}

} // namespace
} // namespace hbx::embedded
