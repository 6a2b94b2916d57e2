#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

constexpr char kSquare[] = "POLYGON((0 0, 4000 0, 4000 4000, 0 4000, 0 0))";

class HBXSameObjectTest : public EmbeddedBuilding
{
protected:
    IHBXElementDrawObj *column(double width, double x)
    {
        IHBXElement *of = element(25);
        of->properties()->setDouble(L"SectionWidth", width, false);
        of->properties()->setDouble(L"SectionHeight", width, false);
        IHBXElementDrawObj *object = placed(of);
        const Point point(x, 0);
        as<IHBXCustomPointSolidShape>(object)->setInsertPoint(&point);
        return object;
    }
    IHBXElementDrawObj *areaBar(qint64 type = 22)
    {
        IHBXElementDrawObj *bar = placed(element(type));
        as<IHBXFaceShape2D>(bar)->setPolygon(polygonOf(kSquare));
        bar->properties()->setCurve(L"CurveData", curveOf("LINESTRING(0 2000, 4000 2000)"), true);
        bar->properties()->setString(L"BarInfo", QStringLiteral("C10@150"), true);
        return bar;
    }
};

TEST_F(HBXSameObjectTest, moreThanAMillimetreApartIsAnother)
{
    slab(kSquare);
    EXPECT_TRUE(isAcceptable(slab("POLYGON((0 0, 4002 0, 4002 4000, 0 4000, 0 0))")));
}

TEST_F(HBXSameObjectTest, anotherTypeOrFloorIsAnother)
{
    slab(kSquare);
    IHBXElementDrawObj *raft = placed(element(48));
    as<IHBXFaceSolidShape>(raft)->setPolygon(polygonOf(kSquare));
    EXPECT_TRUE(isAcceptable(raft));
    IHBXElementDrawObj *above = placed(element(19, "", "F2"));
    as<IHBXFaceSolidShape>(above)->setPolygon(polygonOf(kSquare));
    EXPECT_TRUE(isAcceptable(above));
}

TEST_F(HBXSameObjectTest, elevationsAreComparedByValue)
{
    IHBXElementDrawObj *first = slab(kSquare);
    IHBXElementDrawObj *second = slab(kSquare);
    first->properties()->setString(L"TopElev", QStringLiteral("层顶标高"), false);
    EXPECT_TRUE(isAcceptable(second)); // it has none
    second->properties()->setString(L"TopElev", QStringLiteral("2.9"), false);
    EXPECT_TRUE(isAcceptable(second));
    second->properties()->setString(L"TopElev", QStringLiteral("3.0"), false);
    EXPECT_FALSE(isAcceptable(second));
}

TEST_F(HBXSameObjectTest, anElevationThatOnlyOneHasMakesAnother)
{
    IHBXElementDrawObj *first = slab(kSquare);
    IHBXElementDrawObj *second = slab(kSquare);
    EXPECT_FALSE(isAcceptable(second));
    second->properties()->setString(L"TopElev", QStringLiteral("2.9"), false);
    EXPECT_TRUE(isAcceptable(second));
    EXPECT_TRUE(isAcceptable(first));
}

TEST_F(HBXSameObjectTest, wallsCollideOnTheSameStrip)
{
    wall("LINESTRING(0 0, 3000 0)", 200.0);
    EXPECT_FALSE(isAcceptable(wall("LINESTRING(3000 0, 0 0)", 200.0)));
    EXPECT_TRUE(isAcceptable(wall("LINESTRING(0 0, 3000 0)", 240.0)));
}

TEST_F(HBXSameObjectTest, pointSolidsCollideWhereTheyStand)
{
    column(500, 0);
    EXPECT_FALSE(isAcceptable(column(500, 0.5)));
    EXPECT_TRUE(isAcceptable(column(500, 100)));
    EXPECT_TRUE(isAcceptable(column(600, 0)));
}

TEST_F(HBXSameObjectTest, areaBarsCollideOnlyWithTheSameBar)
{
    for (const qint64 type : {22, 49}) {
        areaBar(type);
        IHBXElementDrawObj *second = areaBar(type);
        EXPECT_FALSE(isAcceptable(second));
        second->properties()->setString(L"BarInfo", QStringLiteral("C12@150"), true);
        EXPECT_TRUE(isAcceptable(second));
        second->properties()->setString(L"BarInfo", QStringLiteral("C10@150"), true);
        second->properties()->setInt(L"Position", 1, true);
        EXPECT_TRUE(isAcceptable(second));
        second->properties()->setInt(L"Position", 0, true);
        EXPECT_FALSE(isAcceptable(second));
        second->properties()->setInt(L"Type", 1, true);
        EXPECT_TRUE(isAcceptable(second));
        second->properties()->setInt(L"Type", 0, true);
        second->properties()->setCurve(L"CurveData", curveOf("LINESTRING(2000 0, 2000 4000)"), true);
        EXPECT_TRUE(isAcceptable(second));
        second->properties()->setCurve(L"CurveData", nullptr, true);
        EXPECT_TRUE(isAcceptable(second));
    }
}

TEST_F(HBXSameObjectTest, lineBarsCollideWhenTheirCurvesShareTheirWholeLength)
{
    lineBar("LINESTRING(0 0, 3000 0)");
    EXPECT_FALSE(isAcceptable(lineBar("LINESTRING(3000 0.5, 0 0)")));
    EXPECT_TRUE(isAcceptable(lineBar("LINESTRING(0 0, 2000 0)")));
    EXPECT_TRUE(isAcceptable(lineBar("LINESTRING(0 0, 0 3000)")));
    EXPECT_TRUE(isAcceptable(lineBar("CIRCULARSTRING(0 0, 1500 1500, 3000 0)")));
    EXPECT_TRUE(isAcceptable(lineBar("LINESTRING(0 0, 3000 0)", 50)));
}

} // namespace
} // namespace hbx::embedded
