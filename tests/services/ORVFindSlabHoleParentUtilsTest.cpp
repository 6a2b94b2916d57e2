#include "platform/services/ORVFindSlabHoleParentUtils.h"

#include "embedded/EmbeddedBuilding.h"

namespace {

using namespace hbx::embedded;

class ORVFindSlabHoleParentUtilsTest : public EmbeddedBuilding
{
protected:
    /** A hole that is not entered. */
    IHBXElementDrawObj *holeAt(double x, double y)
    {
        IHBXElementDrawObj *hole = drawObjs().createDrawObj(floor(), element(24), true);
        const Point point(x, y);
        as<IHBXSectionPointSolidShape>(hole)->setInsertPoint(&point);
        return hole;
    }
    IHBXElementDrawObj *raft(const char *outline)
    {
        IHBXElementDrawObj *object = placed(element(48));
        as<IHBXFaceSolidShape>(object)->setPolygon(polygonOf(outline));
        return object;
    }
    IHBXElementDrawObj *parentOf(IHBXElementDrawObj *hole)
    {
        return ORVFindSlabHoleParentUtils(store.service()->curState(), hole).getSlabHoleParent();
    }
};

constexpr char kLarge[] = "POLYGON((0 0, 9000 0, 9000 9000, 0 9000, 0 0))";
constexpr char kSmall[] = "POLYGON((1000 1000, 5000 1000, 5000 5000, 1000 5000, 1000 1000))";

TEST_F(ORVFindSlabHoleParentUtilsTest, smallestSlabThatHoldsThePointIsTheParent)
{
    IHBXElementDrawObj *large = slab(kLarge);
    IHBXElementDrawObj *small = slab(kSmall);
    EXPECT_EQ(parentOf(holeAt(2000, 2000)), small);
    EXPECT_EQ(parentOf(holeAt(6000, 2000)), large);
    EXPECT_EQ(parentOf(holeAt(9500, 2000)), nullptr);
}

TEST_F(ORVFindSlabHoleParentUtilsTest, firstOfEqualSlabsIsTheParent)
{
    IHBXElementDrawObj *first = slab(kSmall);
    slab(kSmall);
    EXPECT_EQ(parentOf(holeAt(2000, 2000)), first);
}

TEST_F(ORVFindSlabHoleParentUtilsTest, slabGoesBeforeASmallerRaft)
{
    IHBXElementDrawObj *small = raft(kSmall);
    EXPECT_EQ(parentOf(holeAt(2000, 2000)), small);
    IHBXElementDrawObj *large = slab(kLarge);
    EXPECT_EQ(parentOf(holeAt(2000, 2000)), large);
}

TEST_F(ORVFindSlabHoleParentUtilsTest, pointInAnInnerLoopIsHeldByTheOuterOne)
{
    IHBXElementDrawObj *ring = slab("POLYGON((0 0, 9000 0, 9000 9000, 0 9000, 0 0), "
                                    "(1000 1000, 1000 5000, 5000 5000, 5000 1000, 1000 1000))");
    EXPECT_EQ(parentOf(holeAt(2000, 2000)), ring);
}

TEST_F(ORVFindSlabHoleParentUtilsTest, pointOnTheEdgeIsHeld)
{
    IHBXElementDrawObj *large = slab(kLarge);
    EXPECT_EQ(parentOf(holeAt(9000, 2000)), large);
}

TEST_F(ORVFindSlabHoleParentUtilsTest, pointCountsInTheWorld)
{
    IHBXElementDrawObj *large = slab(kLarge);
    IHBXElementDrawObj *hole = holeAt(-1000, 2000);
    EXPECT_EQ(parentOf(hole), nullptr);
    vks::CCoord3<double> frame;
    frame.origin = {3000, 0, 0};
    hole->shape()->setCoordinates(frame);
    EXPECT_EQ(parentOf(hole), large);
}

TEST_F(ORVFindSlabHoleParentUtilsTest, nothingAndWhatHasNoPointHaveNoParent)
{
    slab(kLarge);
    EXPECT_EQ(parentOf(nullptr), nullptr);
    EXPECT_EQ(parentOf(placed(element(19))), nullptr);
    EXPECT_EQ(ORVFindSlabHoleParentUtils(nullptr, nullptr).getSlabHoleParent(), nullptr);
}

TEST_F(ORVFindSlabHoleParentUtilsTest, findingAttachesNothing)
{
    slab(kLarge);
    IHBXElementDrawObj *hole = holeAt(2000, 2000);
    parentOf(hole);
    EXPECT_EQ(hole->parent(), nullptr);
}

} // namespace
