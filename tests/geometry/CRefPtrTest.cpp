#include "platform/geometry/CRefPtr.h"

#include "geometry/Counted.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/CLoop.h"

#include <gtest/gtest.h>

namespace {

using vks::CRefPtr;

TEST(CRefPtrTest, lastHolderDestroysTheObject)
{
    CRefPtr<Counted> first(new Counted);
    {
        const CRefPtr<Counted> second = first;
        EXPECT_EQ(first->HolderCount(), 2);
        first = nullptr;
        EXPECT_EQ(Counted::alive, 1);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(CRefPtrTest, movingHandsTheHoldOver)
{
    CRefPtr<Counted> first(new Counted);
    const CRefPtr<Counted> second = std::move(first);
    EXPECT_EQ(second->HolderCount(), 1);
}

TEST(CRefPtrTest, assigningItselfKeepsTheObject)
{
    CRefPtr<Counted> holder(new Counted);
    const CRefPtr<Counted> &same = holder;
    holder = same;
    EXPECT_EQ(holder->HolderCount(), 1);
}

TEST(CRefPtrTest, cloneOfAPointerOrHolderIsAnObjectOfItsOwn)
{
    const CRefPtr<vks::CCurve2d> line(new vks::CLine2d({0, 0}, {3000, 0}));
    for (const auto &copy : {vks::cloneOrNull(line), vks::cloneOrNull(line.get())}) {
        EXPECT_NE(copy, line);
        EXPECT_EQ(copy->EndPoint().x, 3000.0);
    }
}

TEST(CRefPtrTest, cloneOfNullIsNull)
{
    EXPECT_FALSE(vks::cloneOrNull(CRefPtr<vks::CLoop>()));
    EXPECT_FALSE(vks::cloneOrNull(static_cast<const vks::CCurve2d *>(nullptr)));
}

TEST(CRefPtrTest, loopHoldsACurveThatItWasGiven)
{
    auto *line = new vks::CLine2d({0, 0}, {1, 0});
    CRefPtr<vks::CLoop> loop(new vks::CLoop);
    loop->AddCurve(line, false);
    const CRefPtr<vks::CCurve2d> curve = loop->GetCurve(0);
    loop = nullptr;
    EXPECT_EQ(curve->HolderCount(), 1);
    EXPECT_EQ(curve->Length(), 1);
}

} // namespace
