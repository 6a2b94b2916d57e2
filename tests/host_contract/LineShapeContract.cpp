#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXLineShape2D.h"

using namespace host_contract;
using vks::CCurve2d;
using vks::CRefPtr;

namespace {

using CurveGetter = CRefPtr<CCurve2d> &(IHBXCustomLineSolidShape::*)(CRefPtr<CCurve2d> &, bool) const;

CRefPtr<CCurve2d> axisOf(const IHBXCustomLineSolidShape &shape, CurveGetter getter)
{
    CRefPtr<CCurve2d> axis = line(1, 2, 3, 4);
    EXPECT_EQ(&(shape.*getter)(axis, IHBXModel::g_bDefaultAutoCalc), &axis);
    return axis;
}

CRefPtr<CCurve2d> curveOf(const IHBXLineShape2D &shape)
{
    CRefPtr<CCurve2d> curve = line(1, 2, 3, 4);
    EXPECT_EQ(&shape.curve(curve), &curve);
    return curve;
}

double widthOf(const IHBXCustomLineSolidShape &shape) { return shape.width(IHBXModel::g_bDefaultAutoCalc); }

constexpr CurveGetter kCurve = &IHBXCustomLineSolidShape::curve;
constexpr CurveGetter kLocal = &IHBXCustomLineSolidShape::localLine;
constexpr CurveGetter kWorld = &IHBXCustomLineSolidShape::worldLine;

} // namespace

TEST_P(HostLineShapeContract, axisIsCopiedAndReadBackInEveryForm)
{
    auto &beam = shapeOf<IHBXCustomLineSolidShape>(placed(15));
    const CRefPtr<CCurve2d> axis = line(0, 0, 4000, 0);
    beam.setLine(axis);
    axis->Translate({700, 700});
    for (const CurveGetter getter : {kCurve, kLocal, kWorld})
        EXPECT_TRUE(isLine(axisOf(beam, getter), 0, 0, 4000, 0));
}

TEST_P(HostLineShapeContract, solidWithoutAnAxisGivesNullInEveryForm)
{
    const auto &beam = shapeOf<IHBXCustomLineSolidShape>(placed(15));
    for (const CurveGetter getter : {kCurve, kLocal, kWorld})
        EXPECT_EQ(axisOf(beam, getter), nullptr);
}

TEST_P(HostLineShapeContract, nullClearsTheAxis)
{
    IHBXElement &element = makeElement(15);
    propertiesOf(element).setDouble(L"SectionWidth", 300, true);
    auto &beam = shapeOf<IHBXCustomLineSolidShape>(placed(element));
    beam.setLine(line(0, 0, 4000, 0));
    beam.setLine(nullptr);
    EXPECT_EQ(axisOf(beam, kWorld), nullptr);
    EXPECT_EQ(worldPolyOf(beam), nullptr);
    EXPECT_FALSE(boxOf(beam).IsValid());
}

TEST_P(HostLineShapeContract, worldLineGoesThroughTheFrameAndTheOthersDoNot)
{
    auto &wall = shapeOf<IHBXCustomLineSolidShape>(placed(1003));
    wall.setLine(line(0, 0, 4000, 0));
    wall.setCoordinates(quarterTurn());
    EXPECT_TRUE(isLine(axisOf(wall, kCurve), 0, 0, 4000, 0));
    EXPECT_TRUE(isLine(axisOf(wall, kLocal), 0, 0, 4000, 0));
    EXPECT_TRUE(isLine(axisOf(wall, kWorld), 10000, 20000, 10000, 24000));
}

TEST_P(HostLineShapeContract, widthOfABeamIsItsSectionWidth)
{
    for (const qint64 type : {15, 17, 18, 47}) {
        IHBXElement &element = makeElement(type);
        propertiesOf(element).setDouble(L"SectionWidth", 300, true);
        const auto &beam = shapeOf<IHBXCustomLineSolidShape>(placed(element));
        EXPECT_DOUBLE_EQ(widthOf(beam), 300) << type;
        EXPECT_DOUBLE_EQ(beam.distanceToLeft(), 150) << type;
    }
}

TEST_P(HostLineShapeContract, widthOfAWallIsItsThickness)
{
    for (const qint64 type : {0, 1, 202, 1001, 1003}) {
        IHBXElement &element = makeElement(type);
        propertiesOf(element).setDouble(L"Thickness", 240, true);
        const auto &wall = shapeOf<IHBXCustomLineSolidShape>(placed(element));
        EXPECT_DOUBLE_EQ(widthOf(wall), 240) << type;
        EXPECT_DOUBLE_EQ(wall.distanceToLeft(), 120) << type;
    }
}

TEST_P(HostLineShapeContract, widthFollowsWritesToTheElementAndToTheDrawObject)
{
    IHBXElement &element = makeElement(1003);
    IHBXElementDrawObj &drawObj = placed(element);
    const auto &wall = shapeOf<IHBXCustomLineSolidShape>(drawObj);
    propertiesOf(element).setDouble(L"Thickness", 200, true);
    EXPECT_DOUBLE_EQ(widthOf(wall), 200);
    propertiesOf(drawObj).setDouble(L"Thickness", 100, true);
    EXPECT_DOUBLE_EQ(widthOf(wall), 100);
    EXPECT_DOUBLE_EQ(wall.distanceToLeft(), 50);
}

TEST_P(HostLineShapeContract, stripLiesHalfToEachSideOfTheAxis)
{
    IHBXElement &element = makeElement(15);
    propertiesOf(element).setDouble(L"SectionWidth", 300, true);
    auto &beam = shapeOf<IHBXCustomLineSolidShape>(placed(element));
    beam.setLine(line(0, 0, 4000, 0));
    EXPECT_TRUE(isRectangle(worldPolyOf(beam), 0, -150, 4000, 150));
    EXPECT_TRUE(isBox(beam, 0, -150, 4000, 150));
}

TEST_P(HostLineShapeContract, axisOffsetMovesTheStripToTheLeft)
{
    IHBXElement &element = makeElement(15);
    propertiesOf(element).setDouble(L"SectionWidth", 300, true);
    IHBXElementDrawObj &drawObj = placed(element);
    propertiesOf(drawObj).setDouble(L"AxisOffset", 50, true);
    auto &beam = shapeOf<IHBXCustomLineSolidShape>(drawObj);
    beam.setLine(line(0, 0, 4000, 0));
    EXPECT_DOUBLE_EQ(beam.distanceToLeft(), 200);
    EXPECT_TRUE(isRectangle(worldPolyOf(beam), 0, -100, 4000, 200));
    beam.setLine(line(4000, 0, 0, 0)); // left of the way back is below
    EXPECT_TRUE(isRectangle(worldPolyOf(beam), 0, -200, 4000, 100));
}

TEST_P(HostLineShapeContract, axisOffsetHasTwoNamesForOneValue)
{
    IHBXElementDrawObj &drawObj = placed(1003);
    IHBXProperties &properties = propertiesOf(drawObj);
    properties.setDouble(L"Thickness", 200, true);
    properties.setDouble(L"AxisOffset_JZBZ", -30, true);
    EXPECT_EQ(properties.asDouble(L"AxisOffset"), -30);
    EXPECT_DOUBLE_EQ(shapeOf<IHBXCustomLineSolidShape>(drawObj).distanceToLeft(), 70);
    properties.setDouble(L"AxisOffset", 20, true);
    EXPECT_EQ(properties.asDouble(L"AxisOffset_JZBZ"), 20);
}

TEST_P(HostLineShapeContract, stripGoesThroughTheFrame)
{
    IHBXElement &element = makeElement(15);
    propertiesOf(element).setDouble(L"SectionWidth", 300, true);
    propertiesOf(element).setDouble(L"AxisOffset", 50, true);
    auto &beam = shapeOf<IHBXCustomLineSolidShape>(placed(element));
    beam.setLine(line(0, 0, 4000, 0));
    beam.setCoordinates(quarterTurn());
    EXPECT_TRUE(isRectangle(worldPolyOf(beam), 9800, 20000, 10100, 24000));
    EXPECT_TRUE(isBox(beam, 9800, 20000, 10100, 24000));
}

TEST_P(HostLineShapeContract, planLineIsCopiedReadBackAndClearedByNull)
{
    for (const qint64 type : {23, 50, 75}) {
        auto &bar = shapeOf<IHBXLineShape2D>(placed(type));
        EXPECT_EQ(curveOf(bar), nullptr) << type;
        const CRefPtr<CCurve2d> curve = line(100, 200, 3100, 200);
        bar.setLine(curve);
        curve->Translate({700, 700});
        EXPECT_TRUE(isLine(curveOf(bar), 100, 200, 3100, 200)) << type;
        bar.setLine(nullptr);
        EXPECT_EQ(curveOf(bar), nullptr) << type;
    }
}

TEST_P(HostLineShapeContract, boxOfAPlanLineIsInTheWorldAndItsCurveIsNot)
{
    auto &bar = shapeOf<IHBXLineShape2D>(placed(23));
    bar.setLine(line(100, 200, 3100, 1200));
    EXPECT_TRUE(isBox(bar, 100, 200, 3100, 1200));
    bar.setCoordinates(quarterTurn());
    EXPECT_TRUE(isBox(bar, 8800, 20100, 9800, 23100));
    EXPECT_TRUE(isLine(curveOf(bar), 100, 200, 3100, 1200));
}
