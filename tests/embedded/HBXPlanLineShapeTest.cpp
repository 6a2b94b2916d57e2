#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXPlanLineShapeTest : public EmbeddedBuilding
{};

TEST_F(HBXPlanLineShapeTest, aLineBarKeepsACopyOfItsCurve)
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

TEST_F(HBXPlanLineShapeTest, theWorldOutlineOfAPlanCurveRunsThereAndBack)
{
    IHBXElementDrawObj *axis = placed(element(75));
    as<IHBXLineShape2D>(axis)->setLine(curveOf("LINESTRING(0 0, 4 3)"));
    const auto outline = worldPoly(axis);
    ASSERT_NE(outline.get(), nullptr);
    EXPECT_EQ(outline->Area(), 0.0);
    expectBox(box(axis), 0, 0, 4, 3);
}

TEST_F(HBXPlanLineShapeTest, anEmptyCurveHasNoOutline)
{
    vks::CRefPtr<vks::CCurve2d> empty = curveOf("LINESTRING(0 0, 4 3)");
    empty->SetStartT(9.0); // beyond its end
    IHBXElementDrawObj *bar = placed(element(23));
    as<IHBXLineShape2D>(bar)->setLine(empty);
    EXPECT_EQ(worldPoly(bar).get(), nullptr);
    EXPECT_FALSE(isAcceptable(bar));
}

} // namespace
} // namespace hbx::embedded
