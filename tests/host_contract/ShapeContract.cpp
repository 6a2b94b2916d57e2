#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXFaceShape2D.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXGridShape.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXSectionPointSolidShape.h"

using namespace host_contract;

namespace {

template <typename Shape> bool is(const IHBXShape *shape) { return dynamic_cast<const Shape *>(shape) != nullptr; }

struct KindOfShape
{
    int kind;
    bool (*hasClass)(const IHBXShape *);
    std::vector<qint64> types;
};

const KindOfShape kKinds[] = {
    {0, is<IHBXCustomPointSolidShape>, {4, 5, 6, 7, 25, 26, 52, 53, 54, 1002}},
    {1, is<IHBXCustomLineSolidShape>, {0, 1, 15, 17, 18, 47, 202, 1001, 1003}},
    {2, is<IHBXFaceSolidShape>, {19, 48}},
    {3, is<IHBXSectionPointSolidShape>, {24}},
    {4, is<IHBXLineShape2D>, {23, 50, 75}},
    {5, is<IHBXFaceShape2D>, {22, 49}},
    {6, is<IHBXGridShape>, {74}},
};

} // namespace

TEST_P(HostShapeContract, eachTypeHasAShapeOfItsKindAndClass)
{
    for (const KindOfShape &row : kKinds) {
        for (const qint64 type : row.types) {
            const IHBXShape *shape = placed(type).shape();
            ASSERT_NE(shape, nullptr) << type;
            EXPECT_EQ(shape->kind(), row.kind) << type;
            EXPECT_TRUE(row.hasClass(shape)) << type;
        }
    }
}

TEST_P(HostShapeContract, holeIsAPointSolidToo) { EXPECT_TRUE(is<IHBXCustomPointSolidShape>(placed(24).shape())); }

TEST_P(HostShapeContract, newShapeHasTheWorldsFrameOrNone)
{
    for (const qint64 type : {15, 19, 22, 23, 24, 25}) {
        const vks::CCoord3<double> frame = coordinatesOf(need(placed(type).shape(), "shape"));
        EXPECT_TRUE(frame.IsAbsent() || frame == vks::CCoord3<double>()) << type;
    }
}

TEST_P(HostShapeContract, frameThatIsSetIsReadBack)
{
    for (const qint64 type : {15, 19, 22, 23, 24, 25}) {
        IHBXShape &shape = need(placed(type).shape(), "shape");
        shape.setCoordinates(quarterTurn());
        EXPECT_EQ(coordinatesOf(shape), quarterTurn()) << type;
    }
}

TEST_P(HostShapeContract, shapeWithoutGeometryHasNoWorldOutlineAndAnEmptyBox)
{
    for (const qint64 type : {0, 15, 19, 22, 23, 25, 48}) {
        const IHBXShape &shape = need(placed(type).shape(), "shape");
        EXPECT_EQ(worldPolyOf(shape), nullptr) << type;
        EXPECT_FALSE(boxOf(shape).IsValid()) << type;
    }
}

TEST_P(HostShapeContract, shapeStaysTheObjectsOwn)
{
    IHBXElementDrawObj &slab = placed(19);
    EXPECT_EQ(slab.shape(), slab.shape());
    EXPECT_NE(slab.shape(), placed(*slab.element()).shape());
}
