#include "ModelSerialization/SlabsOfBars.h"

#include "ModelSerialization/SlabWriterFixture.h"

namespace {

using namespace slabhost;
using Found = std::vector<IHBXElementDrawObj *>;

class SlabsOfBarsTest : public SlabWriterFixture
{
protected:
    static CurvePtr line(const Point &start, const Point &end) { return CurvePtr(new vks::CLine2d(start, end)); }
    IHBXElementDrawObj *under(const Point &start, const Point &end)
    {
        return findBoardByCurve(slabs.get(), line(start, end));
    }
    /** A negative bar of the host. */
    IHBXElementDrawObj *hostBar(const Point &start, const Point &end, const CurvePtr &drawn,
                                IHBXElementDrawObj *slab = nullptr, qint64 type = 23)
    {
        IHBXElementDrawObj *bar = placed(element(type));
        as<IHBXLineShape2D>(bar)->setLine(line(start, end));
        bar->properties()->setCurve(L"CurveData", drawn, true);
        bar->properties()->setInt(L"DependSlabID", slab ? static_cast<int>(slab->id()) : -1, true);
        return bar;
    }
    bool stays(IHBXElementDrawObj *bar, IHBXElementDrawObj *slab = nullptr, int elementType = 23)
    {
        CurvePtr curve;
        as<IHBXLineShape2D>(bar)->curve(curve);
        return checkBFJOverlap(store.service(), slab ? static_cast<int>(slab->id()) : -1, curve, elementType,
                               static_cast<int>(bar->id()));
    }
};

// ---- findBoardByCurve

TEST_F(SlabsOfBarsTest, slabUnderACurveIsFound)
{
    IHBXElementDrawObj *slab = hostSlab(0, 0, 4000, 4000);
    EXPECT_EQ(under({500, 1000}, {2000, 1000}), slab);
    EXPECT_EQ(under({-2000, 1000}, {2000, 1000}), slab) << "partly in";
    EXPECT_EQ(under({0, 0}, {4000, 0}), slab) << "along the boundary";
    EXPECT_EQ(under({-150, 1000}, {2000, 1000}), slab) << "in, touching the boundary";
}

TEST_F(SlabsOfBarsTest, slabThatOnlyTheEndsReachIsNotUnderTheCurve)
{
    hostSlab(0, 0, 4000, 4000);
    EXPECT_EQ(under({-2000, 1000}, {140, 1000}), nullptr);
    EXPECT_EQ(under({5000, 1000}, {8000, 1000}), nullptr);
}

TEST_F(SlabsOfBarsTest, slabThatTheCurveTouchesFromOutsideIsNotUnderIt)
{
    hostSlab(0, 0, 4000, 4000);
    EXPECT_EQ(under({-2000, 1000}, {150, 1000}), nullptr);
}

TEST_F(SlabsOfBarsTest, lowestSlabIsTakenAndTheFirstOfEquals)
{
    hostSlab(0, 0, 4000, 4000, "high", "层顶标高+0.05");
    IHBXElementDrawObj *low = hostSlab(0, 0, 4000, 4000, "low", "层顶标高-0.05");
    hostSlab(0, 0, 4000, 4000, "as low", "层顶标高-0.05");
    EXPECT_EQ(under({500, 1000}, {2000, 1000}), low);
}

TEST_F(SlabsOfBarsTest, curveOfLessThanThreeHundredHasNoSlab)
{
    IHBXElementDrawObj *slab = hostSlab(0, 0, 4000, 4000);
    EXPECT_EQ(under({500, 1000}, {799, 1000}), nullptr);
    EXPECT_EQ(under({500, 1000}, {801, 1000}), slab);
}

TEST_F(SlabsOfBarsTest, curveItselfIsNotTrimmed)
{
    hostSlab(0, 0, 4000, 4000);
    const CurvePtr curve = line({500, 1000}, {2000, 1000});
    findBoardByCurve(slabs.get(), curve);
    EXPECT_EQ(curve->Length(), 1500.0);
}

TEST_F(SlabsOfBarsTest, nothingHasNoSlab)
{
    hostSlab(0, 0, 4000, 4000);
    EXPECT_EQ(findBoardByCurve(slabs.get(), nullptr), nullptr);
    EXPECT_EQ(findBoardByCurve(nullptr, line({500, 1000}, {2000, 1000})), nullptr);
    EXPECT_TRUE(findBoardEdosByPoly(slabs.get(), nullptr).empty());
    EXPECT_TRUE(findBoardEdosByPoly(nullptr, shapes::rectangle(0, 0, 10, 10)).empty());
}

// ---- findBoardEdosByPoly

TEST_F(SlabsOfBarsTest, slabsInAnAreaAreFoundInTheOrderOfTheTree)
{
    IHBXElementDrawObj *holding = hostSlab(-1000, -1000, 9000, 9000);
    IHBXElementDrawObj *inside = hostSlab(1000, 1000, 500, 500);
    IHBXElementDrawObj *same = hostSlab(0, 0, 4000, 3000);
    IHBXElementDrawObj *overlapping = hostSlab(3000, 0, 4000, 3000);
    IHBXElementDrawObj *insideTouching = hostSlab(0, 0, 500, 500);
    IHBXElementDrawObj *holdingTouching = hostSlab(0, 0, 5000, 3000);
    hostSlab(4000, 0, 2000, 3000); // only touches
    hostSlab(6000, 0, 2000, 3000); // apart
    EXPECT_EQ(findBoardEdosByPoly(slabs.get(), shapes::rectangle(0, 0, 4000, 3000)),
              (Found{holding, inside, same, overlapping, insideTouching, holdingTouching}));
}

// ---- syncReinfInfo

TEST_F(SlabsOfBarsTest, barAndSlabsAreLinkedBothWaysInTurn)
{
    IHBXElementDrawObj *first = hostSlab(0, 0, 100, 100);
    IHBXElementDrawObj *second = hostSlab(0, 0, 100, 100);
    IHBXElementDrawObj *bar = placed(element(22));
    syncReinfInfo(store.service(), bar, {second, first});
    EXPECT_EQ(textOf(bar, L"ReinforcementInfo"), QStringLiteral("%1,1;%2,1;").arg(second->id()).arg(first->id()));
    EXPECT_EQ(textOf(first, L"ReinforcementInfo"), QStringLiteral("%1,1;").arg(bar->id()));
    EXPECT_EQ(textOf(second, L"ReinforcementInfo"), QStringLiteral("%1,1;").arg(bar->id()));
}

TEST_F(SlabsOfBarsTest, withoutABarNothingIsLinked)
{
    IHBXElementDrawObj *slab = hostSlab(0, 0, 100, 100);
    syncReinfInfo(store.service(), nullptr, {slab});
    EXPECT_EQ(textOf(slab, L"ReinforcementInfo"), "");
}

// ---- checkBFJOverlap

constexpr char kDrawn[] = "LINESTRING(-900 2000, 800 2000)";
constexpr char kDrawnElsewhere[] = "LINESTRING(-900 3000, 800 3000)";

TEST_F(SlabsOfBarsTest, barDrawnOverAnotherMayNotStay)
{
    hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn));
    IHBXElementDrawObj *self = hostBar({0, 1000}, {0, 5000}, hbx::embedded::curveOf(kDrawn));
    EXPECT_FALSE(stays(self));
}

TEST_F(SlabsOfBarsTest, barDrawnElsewhereOnTheLineMayStay)
{
    hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawnElsewhere));
    EXPECT_TRUE(stays(hostBar({0, 1000}, {0, 5000}, hbx::embedded::curveOf(kDrawn))));
}

TEST_F(SlabsOfBarsTest, barOnAnotherLineMayStay)
{
    hostBar({10, 0}, {10, 4000}, hbx::embedded::curveOf(kDrawn));   // beside it
    hostBar({0, 5000}, {0, 9000}, hbx::embedded::curveOf(kDrawn));  // behind it
    hostBar({-50, 100}, {50, 100}, hbx::embedded::curveOf(kDrawn)); // across it
    EXPECT_TRUE(stays(hostBar({0, 1000}, {0, 5000}, hbx::embedded::curveOf(kDrawn))));
}

TEST_F(SlabsOfBarsTest, barAtAnotherLevelMayStay)
{
    IHBXElementDrawObj *high = hostSlab(0, 0, 4000, 4000, "high", "3");
    IHBXElementDrawObj *low = hostSlab(0, 0, 4000, 4000, "low", "2.9");
    hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn), high);
    IHBXElementDrawObj *self = hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn), low);
    EXPECT_TRUE(stays(self, low));
    EXPECT_FALSE(stays(self, high));
    EXPECT_TRUE(stays(self)) << "without a slab at zero";
}

TEST_F(SlabsOfBarsTest, barsWithoutSlabsLieAtZero)
{
    IHBXElementDrawObj *atZero = hostSlab(0, 0, 4000, 4000, "ground", "0");
    hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn));
    EXPECT_FALSE(stays(hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn)), atZero));
}

TEST_F(SlabsOfBarsTest, onlyBarsOfTheTypeOnTheCurrentFloorCount)
{
    hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn), nullptr, 50);
    IHBXElementDrawObj *self = hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn));
    EXPECT_TRUE(stays(self));
    EXPECT_FALSE(stays(self, nullptr, 50));
    store.setCurrent("House", "F2");
    EXPECT_TRUE(stays(self, nullptr, 50));
}

TEST_F(SlabsOfBarsTest, barWithoutACurveMayNotStay)
{
    EXPECT_FALSE(checkBFJOverlap(store.service(), -1, nullptr, 23, -1));
    EXPECT_FALSE(checkBFJOverlap(nullptr, -1, line({0, 0}, {0, 10}), 23, -1));
    EXPECT_TRUE(checkBFJOverlap(store.service(), -1, line({0, 0}, {0, 10}), 23, -1));
}

TEST_F(SlabsOfBarsTest, barWithoutADrawnCurveCoversNothing)
{
    hostBar({0, 0}, {0, 4000}, nullptr);
    hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn));
    EXPECT_TRUE(stays(hostBar({0, 0}, {0, 4000}, nullptr)));
}

TEST_F(SlabsOfBarsTest, lineOfAnotherBarCountsInThePlan)
{
    IHBXElementDrawObj *other = hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn));
    vks::CCoord3<double> frame;
    frame.origin = {5000, 0, 0};
    other->shape()->setCoordinates(frame);
    EXPECT_TRUE(stays(hostBar({0, 0}, {0, 4000}, hbx::embedded::curveOf(kDrawn))));
    IHBXElementDrawObj *moved = hostBar({5000, 0}, {5000, 4000}, hbx::embedded::curveOf(kDrawn));
    EXPECT_FALSE(stays(moved));
}

} // namespace
