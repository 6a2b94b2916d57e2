#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXPlanAreaShapeTest : public EmbeddedBuilding
{};

TEST_F(HBXPlanAreaShapeTest, anAreaBarKeepsACopyOfItsArea)
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

TEST_F(HBXPlanAreaShapeTest, anAreaReadsBackFromTheRecord)
{
    as<IHBXFaceShape2D>(placed(element(49)))->setPolygon(polygonOf("POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))"));
    store.load(store.snapshot());
    EXPECT_EQ(drawObjs().at(0)->shape()->kind(), 5);
    EXPECT_EQ(worldPoly(drawObjs().at(0))->ToText(), "POLYGON((0 0, 4 0, 4 3, 0 3, 0 0))");
}

} // namespace
} // namespace hbx::embedded
