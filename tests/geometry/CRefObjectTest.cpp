#include "platform/geometry/CRefObject.h"

#include "geometry/Counted.h"
#include "platform/geometry/CRefPtr.h"

#include <gtest/gtest.h>

namespace {

using vks::CRefPtr;

TEST(CRefObjectTest, holdsAreCounted)
{
    const CRefPtr<Counted> holder(new Counted);
    EXPECT_EQ(holder->HolderCount(), 1);
    holder->AddRef();
    EXPECT_EQ(holder->HolderCount(), 2);
    holder->Release();
    EXPECT_EQ(holder->HolderCount(), 1);
    EXPECT_EQ(Counted::alive, 1);
}

TEST(CRefObjectTest, lastReleaseDestroysTheObject)
{
    auto *object = new Counted;
    object->AddRef();
    object->Release();
    EXPECT_EQ(Counted::alive, 0);
}

TEST(CRefObjectTest, assignedObjectKeepsItsHolders)
{
    const CRefPtr<Counted> holder(new Counted);
    *holder = Counted();
    EXPECT_EQ(holder->HolderCount(), 1);
}

TEST(CRefObjectTest, copyOfAnObjectHasHoldersOfItsOwn)
{
    const CRefPtr<Counted> original(new Counted);
    const CRefPtr<Counted> copy(new Counted(*original));
    EXPECT_EQ(original->HolderCount(), 1);
    EXPECT_EQ(copy->HolderCount(), 1);
}

TEST(CRefObjectTest, freeDestroysAnObjectThatNothingHolds)
{
    auto *object = new Counted;
    object->Free();
    EXPECT_EQ(Counted::alive, 0);
}

TEST(CRefObjectTest, freeLeavesAHeldObjectAlone)
{
    const CRefPtr<Counted> holder(new Counted);
    holder->Free();
    EXPECT_EQ(Counted::alive, 1);
}

} // namespace
