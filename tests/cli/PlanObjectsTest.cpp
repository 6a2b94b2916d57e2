#include "cli/PlanObjects.h"

#include "HouseFixture.h"
#include "platform/host/IHBXDrawObjs.h"

using orvcad::PlanObject;

namespace {

class PlanObjectsTest : public HouseFixture
{
protected:
    PlanObject only(const QByteArray &element)
    {
        openHouse(element);
        EXPECT_EQ(model().drawObjects()->count(), 1);
        return orvcad::planObjectOf(*model().drawObjects()->at(0));
    }
    static std::string text(const vks::CBox2<double> &box)
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(box.minPt.x)
            .arg(box.minPt.y)
            .arg(box.maxPt.x)
            .arg(box.maxPt.y)
            .toStdString();
    }
};

TEST_F(PlanObjectsTest, wallIsTheStripOfItsWidth)
{
    const PlanObject wallObject = only(wall("Q1", "LINESTRING(0 0, 5000 0)"));
    EXPECT_TRUE(wallObject.hasGeometry());
    ASSERT_TRUE(wallObject.outline);
    EXPECT_EQ(text(wallObject.box()), "0 -100 5000 100");
    EXPECT_FALSE(wallObject.topElev);
    EXPECT_FALSE(wallObject.curve || wallObject.bar);
}

TEST_F(PlanObjectsTest, slabTellsItsTopInMillimetres)
{
    const PlanObject slabObject = only(slab("B1", "POLYGON((0 0, 900 0, 900 800, 0 800, 0 0))", "2.95"));
    ASSERT_TRUE(slabObject.topElev);
    EXPECT_DOUBLE_EQ(*slabObject.topElev, 2950);
    EXPECT_EQ(text(slabObject.box()), "0 0 900 800");
}

TEST_F(PlanObjectsTest, slabWithoutOutlineHasNeitherGeometryNorTop)
{
    const PlanObject bare = only(R"~({"name": "B1", "type": 19, "drawObjects": [
        {"properties": {"TopElev": "3"}, "shape": {"kind": "face", "outline": null}}]})~");
    EXPECT_FALSE(bare.hasGeometry());
    EXPECT_FALSE(bare.topElev);
    EXPECT_FALSE(bare.box().IsValid());
}

TEST_F(PlanObjectsTest, barIsAnAreaWithOneOfItsBarsAndItsText)
{
    const PlanObject bars = only(R"~({"name": "SLJ", "type": 22, "drawObjects": [
        {"properties": {"BarInfo": "C10@200", "CurveData": "LINESTRING(0 400, 9000 400)"},
         "shape": {"kind": "face2d", "outline": "POLYGON((0 0, 5000 0, 5000 800, 0 800, 0 0))"}}]})~");
    ASSERT_TRUE(bars.outline);
    ASSERT_TRUE(bars.bar);
    EXPECT_EQ(bars.barText, "C10@200");
    EXPECT_DOUBLE_EQ(bars.bar->Length(), 9000);
    EXPECT_EQ(text(bars.box()), "0 0 9000 800");
}

TEST_F(PlanObjectsTest, planLineIsACurveAndNoArea)
{
    const PlanObject line = only(R"~({"name": "FJ", "type": 23, "drawObjects": [
        {"shape": {"kind": "line2d", "curve": "LINESTRING(0 0, 0 700)"}}]})~");
    EXPECT_FALSE(line.outline);
    ASSERT_TRUE(line.curve);
    EXPECT_DOUBLE_EQ(line.curve->Length(), 700);
}

TEST_F(PlanObjectsTest, gridHasItsAxesWithTheirLabelsInThePlanOfTheBuilding)
{
    const PlanObject grid = only(R"~({"name": "ZW", "type": 74, "drawObjects": [
        {"shape": {"kind": "grid", "outline": null, "coordinates": {"origin": [1000, 0, 0], "u": [0, 1, 0], "v": [-1, 0, 0]},
         "axes": [[{"label": "A", "curve": "LINESTRING(0 0, 500 0)"}], [{"label": "1", "curve": "LINESTRING(0 0, 0 300)"}],
                  [], []]}}]})~");
    ASSERT_EQ(grid.axes.size(), 2U);
    EXPECT_EQ(grid.axes[0].label, "A");
    EXPECT_EQ(grid.axes[1].label, "1");
    EXPECT_FALSE(grid.outline);
    EXPECT_TRUE(grid.hasGeometry());
    // Turned by a quarter about (1000, 0): along x becomes along y, along y becomes against x.
    EXPECT_NEAR(grid.axes[0].line->EndPoint().x, 1000, 1e-9);
    EXPECT_NEAR(grid.axes[0].line->EndPoint().y, 500, 1e-9);
    EXPECT_NEAR(grid.axes[1].line->EndPoint().x, 700, 1e-9);
}

} // namespace
