#include "platform/dwgx/ORVBoxTreeImpl.h"

#include "dwgx/RandomBoxes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using randomboxes::Box;
using randomboxes::tag;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Box kUnit({0, 0}, {10, 10});

/** A box that many millimetres to the right of the unit box. */
Box rightOfUnit(double gap) { return {{10 + gap, 0}, {20 + gap, 10}}; }

std::size_t number(void *tagged) { return reinterpret_cast<std::size_t>(tagged); }

TEST(ORVBoxTreeImplTest, boxesWithinTheToleranceCountAsTouching)
{
    ORVBoxTreeImpl tree(2.0);
    tree.add(kUnit, tag(0));
    EXPECT_THAT(tree.getIntersectantData(rightOfUnit(0.0), {}), ElementsAre(tag(0)));
    EXPECT_THAT(tree.getIntersectantData(rightOfUnit(2.0), {}), ElementsAre(tag(0)));
    EXPECT_THAT(tree.getIntersectantData(rightOfUnit(2.001), {}), IsEmpty());
}

TEST(ORVBoxTreeImplTest, negativeAndNaNToleranceCountAsNone)
{
    for (const double tolerance : {-5.0, 0.0, std::numeric_limits<double>::quiet_NaN()}) {
        ORVBoxTreeImpl tree(tolerance);
        tree.add(kUnit, tag(0));
        EXPECT_THAT(tree.getIntersectantData(rightOfUnit(0.0), {}), ElementsAre(tag(0)));
        EXPECT_THAT(tree.getIntersectantData(rightOfUnit(0.001), {}), IsEmpty());
    }
}

TEST(ORVBoxTreeImplTest, thousandsOfBoxesAreFoundLikeBruteForceWithinTheTolerance)
{
    const auto boxes = randomboxes::make(3000, 11);
    ORVBoxTreeImpl tree(2.0);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        tree.add(boxes[i], tag(i));
    for (const Box &asked : randomboxes::make(500, 12))
        ASSERT_EQ(tree.getIntersectantData(asked, {}), randomboxes::bruteForce(boxes, boxes.size(), asked, 2.0));
}

TEST(ORVBoxTreeImplTest, emptyBoxIsNeitherKeptNorFindsAnything)
{
    ORVBoxTreeImpl tree(1e9);
    tree.add(Box(), tag(0));
    tree.add(kUnit, tag(1));
    EXPECT_THAT(tree.getIntersectantData(kUnit, {}), ElementsAre(tag(1)));
    EXPECT_THAT(tree.getIntersectantData(Box(), {}), IsEmpty());
}

TEST(ORVBoxTreeImplTest, withoutComparisonResultsComeInOrderOfInsertion)
{
    ORVBoxTreeImpl tree(0.0);
    for (const std::size_t i : {3U, 1U, 2U, 1U})
        tree.add(kUnit, tag(i));
    EXPECT_THAT(tree.getIntersectantData(kUnit, {}), ElementsAre(tag(3), tag(1), tag(2), tag(1)));
}

TEST(ORVBoxTreeImplTest, comparisonOrdersResultsAndKeepsTheFirstOfThoseThatAreTheSame)
{
    ORVBoxTreeImpl tree(0.0);
    for (const std::size_t i : {13U, 21U, 11U, 2U, 1U})
        tree.add(kUnit, tag(i));
    const auto byLastDigit = [](void *a, void *b) {
        return static_cast<int>(number(a) % 10) - static_cast<int>(number(b) % 10);
    };
    EXPECT_THAT(tree.getIntersectantData(kUnit, byLastDigit), ElementsAre(tag(21), tag(2), tag(13)));
}

TEST(ORVBoxTreeImplTest, comparisonWithoutSenseDoesNoHarm)
{
    ORVBoxTreeImpl tree(0.0);
    for (std::size_t i = 0; i < 1000; ++i)
        tree.add(kUnit, tag(i));
    EXPECT_EQ(tree.getIntersectantData(kUnit, [](void *, void *) { return -1; }).size(), 1000U);
    EXPECT_EQ(tree.getIntersectantData(kUnit, [](void *, void *) { return 0; }).size(), 1U);
}

} // namespace
