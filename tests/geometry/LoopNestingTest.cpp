#include "platform/geometry/LoopNesting.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

namespace {

using shapes::box;
using vks::CRefPtr;
using Loops = std::vector<CRefPtr<vks::CLoop>>;

Loops loopsOf(const std::vector<shapes::Points> &rings)
{
    Loops loops;
    for (const auto &ring : rings)
        loops.emplace_back(shapes::loop(ring));
    return loops;
}

TEST(LoopNestingTest, depthCountsTheLoopsAround)
{
    EXPECT_EQ(loopDepths(loopsOf({box(2, 2, 1, 1), box(0, 0, 10, 10), box(1, 1, 8, 8), box(20, 0, 5, 5)})),
              (std::vector<int>{2, 0, 1, 0}));
    EXPECT_EQ(vks::loopDepths({}), std::vector<int>());
}

TEST(LoopNestingTest, loopWithoutCurvesLiesInNone)
{
    Loops loops = loopsOf({box(0, 0, 10, 10)});
    loops.emplace_back(new vks::CLoop);
    EXPECT_EQ(loopDepths(loops), (std::vector<int>{0, 0}));
}

TEST(LoopNestingTest, ofTwoEqualLoopsTheLaterLiesInTheEarlier)
{
    EXPECT_EQ(loopDepths(loopsOf({box(0, 0, 10, 10), box(0, 0, 10, 10)})), (std::vector<int>{0, 1}));
}

TEST(LoopNestingTest, loopInTheBoxOfAnotherNeedNotLieInIt)
{
    const auto loops = loopsOf({{{0, 0}, {10, 0}, {10, 10}, {9, 10}, {9, 1}, {0, 1}}, box(2, 3, 2, 2)});
    EXPECT_FALSE(liesIn(*loops[1], *loops[0]));
    EXPECT_FALSE(liesIn(*loops[0], *loops[1]));
}

TEST(LoopNestingTest, touchingLoopsAreJudgedByTheirOtherPoints)
{
    const auto loops = loopsOf({box(0, 0, 10, 10), {{0, 0}, {10, 0}, {5, 5}}, box(10, 0, 5, 5)});
    EXPECT_TRUE(liesIn(*loops[1], *loops[0]));
    EXPECT_FALSE(liesIn(*loops[2], *loops[0]));
}

TEST(LoopNestingTest, halfOfASquareLiesInIt)
{
    const CRefPtr<vks::CLoop> around(shapes::loop({{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
    const CRefPtr<vks::CLoop> half(shapes::loop({{0, 0}, {4, 0}, {4, 4}}));
    EXPECT_TRUE(liesIn(*half, *around));
    EXPECT_FALSE(liesIn(*around, *half));
}

TEST(LoopNestingTest, discHoldsASquareInIt)
{
    const CRefPtr<vks::CLoop> disc(shapes::circleLoop({0, 0}, 10));
    const CRefPtr<vks::CLoop> inscribed(shapes::loop({{10, 0}, {0, 10}, {-10, 0}, {0, -10}}));
    EXPECT_TRUE(liesIn(*inscribed, *disc));
    EXPECT_FALSE(liesIn(*disc, *inscribed));
}

TEST(LoopNestingTest, sameAreaIsTheSameWhateverStartAndDirection)
{
    const CRefPtr<vks::CLoop> first(shapes::loop({{0, 0}, {4, 0}, {4, 4}, {2, 1}, {0, 4}}));
    const CRefPtr<vks::CLoop> second(shapes::loop({{4, 4}, {4, 0}, {2, 0}, {0, 0}, {0, 4}, {2, 1}}));
    EXPECT_TRUE(boundTheSame(*first, *second));
    const CRefPtr<vks::CLoop> other(shapes::loop({{0, 0}, {4, 0}, {4, 4}, {2, 3}, {0, 4}}));
    EXPECT_FALSE(boundTheSame(*first, *other));
}

} // namespace
