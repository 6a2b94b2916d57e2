#include "platform/services/SlabElevations.h"

#include "embedded/EmbeddedBuilding.h"

namespace {

using namespace hbx::embedded;

class SlabElevationsTest : public EmbeddedBuilding
{
protected:
    IHBXElementDrawObj *slabAt(const char *elevation, const char *floorName = "F1")
    {
        IHBXElementDrawObj *object = placed(element(19, "", floorName));
        object->properties()->setString(L"TopElev", QString::fromUtf8(elevation), false);
        return object;
    }
    IHBXElementDrawObj *barIn(qint64 slabId, qint64 type = 23)
    {
        IHBXElementDrawObj *object = placed(element(type));
        object->properties()->setInt(L"DependSlabID", static_cast<int>(slabId), false);
        return object;
    }
};

TEST_F(SlabElevationsTest, elevationOfASlabIsWorkedOutInMillimetres)
{
    EXPECT_DOUBLE_EQ(getSlabElev(slabAt("层顶标高-0.05"), "TopElev"), 2950.0);
    EXPECT_DOUBLE_EQ(getSlabElev(slabAt("1.2"), "TopElev"), 1200.0);
}

TEST_F(SlabElevationsTest, noSlabAndNoSuchPropertyAreAtZero)
{
    EXPECT_EQ(getSlabElev(nullptr, "TopElev"), 0.0);
    EXPECT_EQ(getSlabElev(slabAt("1.2"), "BottomElev"), 0.0);
}

TEST_F(SlabElevationsTest, negativeBarLiesAtTheTopOfItsSlab)
{
    IHBXElementDrawObj *slab = slabAt("2.8");
    EXPECT_DOUBLE_EQ(getNegReinfElev(barIn(slab->id())), 2800.0);
}

TEST_F(SlabElevationsTest, negativeBarOfARaftLiesAtTheTopOfItsRaft)
{
    IHBXElementDrawObj *raft = placed(element(48));
    raft->properties()->setString(L"TopElev", QStringLiteral("-1.5"), false);
    EXPECT_DOUBLE_EQ(getNegReinfElev(barIn(raft->id(), 50)), -1500.0);
}

TEST_F(SlabElevationsTest, negativeBarWithoutASlabOnItsFloorLiesAtZero)
{
    IHBXElementDrawObj *elsewhere = slabAt("5", "F2");
    IHBXElementDrawObj *beam = placed(element(15));
    EXPECT_EQ(getNegReinfElev(nullptr), 0.0);
    EXPECT_EQ(getNegReinfElev(barIn(-1)), 0.0);
    EXPECT_EQ(getNegReinfElev(barIn(elsewhere->id())), 0.0);
    EXPECT_EQ(getNegReinfElev(barIn(beam->id())), 0.0);
}

} // namespace
