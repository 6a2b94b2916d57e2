#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXFaceShape2D.h"
#include "platform/host/IHBXFaceSolidShape.h"

using namespace host_contract;

namespace {

/** What slabs, rafts and area bars have in common. */
template <typename Shape> void expectOutlineIsCopiedReadBackAndCleared(Shape &shape)
{
    const bool autoCalc = IHBXModel::g_bDefaultAutoCalc;
    EXPECT_EQ(polygonIn(shape, autoCalc), nullptr);
    const vks::CRefPtr<vks::CPolygon> outline = rectangle(100, 200, 5100, 4200);
    shape.setPolygon(outline);
    outline->Translate({700, 700});
    EXPECT_TRUE(isRectangle(polygonIn(shape, autoCalc), 100, 200, 5100, 4200));
    EXPECT_TRUE(isRectangle(worldPolyOf(shape), 100, 200, 5100, 4200));
    shape.setPolygon(nullptr);
    EXPECT_EQ(polygonIn(shape, autoCalc), nullptr);
    EXPECT_EQ(worldPolyOf(shape), nullptr);
    EXPECT_FALSE(boxOf(shape).IsValid());
}

template <typename Shape> void expectOutlineGoesThroughTheFrame(Shape &shape)
{
    shape.setPolygon(rectangle(100, 200, 5100, 4200));
    shape.setCoordinates(quarterTurn());
    EXPECT_TRUE(isRectangle(polygonIn(shape, IHBXModel::g_bDefaultAutoCalc), 100, 200, 5100, 4200));
    EXPECT_TRUE(isRectangle(worldPolyOf(shape), 5800, 20100, 9800, 25100));
    EXPECT_TRUE(isBox(shape, 5800, 20100, 9800, 25100));
}

} // namespace

TEST_P(HostAreaShapeContract, outlineOfASlabOrRaftIsCopiedReadBackAndClearedByNull)
{
    for (const qint64 type : {19, 48})
        expectOutlineIsCopiedReadBackAndCleared(shapeOf<IHBXFaceSolidShape>(placed(type)));
}

TEST_P(HostAreaShapeContract, outlineOfAnAreaBarIsCopiedReadBackAndClearedByNull)
{
    for (const qint64 type : {22, 49})
        expectOutlineIsCopiedReadBackAndCleared(shapeOf<IHBXFaceShape2D>(placed(type)));
}

TEST_P(HostAreaShapeContract, worldOutlineGoesThroughTheFrameAndTheOwnOutlineDoesNot)
{
    expectOutlineGoesThroughTheFrame(shapeOf<IHBXFaceSolidShape>(placed(19)));
    expectOutlineGoesThroughTheFrame(shapeOf<IHBXFaceShape2D>(placed(22)));
}

TEST_P(HostAreaShapeContract, heightIsMinusTheThickness)
{
    for (const qint64 type : {19, 48}) {
        IHBXElement &element = makeElement(type);
        propertiesOf(element).setDouble(L"Thickness", 120, true);
        IHBXElementDrawObj &drawObj = placed(element);
        EXPECT_DOUBLE_EQ(shapeOf<IHBXFaceSolidShape>(drawObj).height(), -120) << type;
        propertiesOf(drawObj).setDouble(L"Thickness", 150, true);
        EXPECT_DOUBLE_EQ(shapeOf<IHBXFaceSolidShape>(drawObj).height(), -150) << type;
    }
}

TEST_P(HostAreaShapeContract, innerRingsStayInTheOutline)
{
    const vks::CRefPtr<vks::CPolygon> outline = rectangle(0, 0, 5000, 4000);
    const vks::CRefPtr<vks::CPolygon> hole = rectangle(1000, 1000, 2000, 2000);
    outline->AddLoop(hole->GetLoop(0), false);
    auto &slab = shapeOf<IHBXFaceSolidShape>(placed(19));
    slab.setPolygon(outline);
    const auto world = worldPolyOf(slab);
    ASSERT_NE(world, nullptr);
    EXPECT_EQ(world->LoopCount(), 2);
    EXPECT_NEAR(world->Area(), 19e6, 1);
}
