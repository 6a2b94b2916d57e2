#include "platform/dwgx/DWGXBaseBoxTree.h"

#include "dwgx/RandomBoxes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace {

using randomboxes::Box;
using randomboxes::tag;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DWGXBaseBoxTreeTest : public ::testing::Test
{
protected:
    std::vector<void *> query(const Box &asked) const
    {
        std::vector<void *> out{tag(4711)}; // must be gone afterwards
        m_tree->getIntersectantData(asked, out);
        return out;
    }

    std::unique_ptr<dwgx::DWGXBaseBoxTree> m_tree{dwgx::DWGXBaseBoxTree::createObject()};
};

TEST_F(DWGXBaseBoxTreeTest, newTreeHoldsNothing) { EXPECT_THAT(query({{-1e9, -1e9}, {1e9, 1e9}}), IsEmpty()); }

TEST_F(DWGXBaseBoxTreeTest, eachTreeIsNewAndBelongsToTheCaller)
{
    const std::unique_ptr<dwgx::DWGXBaseBoxTree> other(dwgx::DWGXBaseBoxTree::createObject());
    other->add({{0, 0}, {10, 10}}, tag(0));
    EXPECT_THAT(query({{0, 0}, {10, 10}}), IsEmpty());
}

TEST_F(DWGXBaseBoxTreeTest, touchingCountsAndResultsComeInOrderOfInsertion)
{
    m_tree->add({{10, 0}, {20, 10}}, tag(7));
    m_tree->add({{10.001, 0}, {20, 10}}, tag(5));
    m_tree->add({{0, 10}, {5, 20}}, tag(3));
    EXPECT_THAT(query({{0, 0}, {10, 10}}), ElementsAre(tag(7), tag(3)));
}

TEST_F(DWGXBaseBoxTreeTest, emptyBoxIsNeitherKeptNorFindsAnything)
{
    m_tree->add(Box(), tag(0));
    m_tree->add({{0, 0}, {10, 10}}, tag(1));
    EXPECT_THAT(query({{-100, -100}, {100, 100}}), ElementsAre(tag(1)));
    EXPECT_THAT(query(Box()), IsEmpty());
}

TEST_F(DWGXBaseBoxTreeTest, thousandsOfBoxesAreFoundLikeBruteForce)
{
    const auto boxes = randomboxes::make(3000, 13);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        m_tree->add(boxes[i], tag(i));
    for (const Box &asked : randomboxes::make(300, 14))
        ASSERT_EQ(query(asked), randomboxes::bruteForce(boxes, boxes.size(), asked));
}

TEST_F(DWGXBaseBoxTreeTest, onePointerMayStandForSeveralBoxes)
{
    m_tree->add({{0, 0}, {1, 1}}, tag(0));
    m_tree->add({{0, 0}, {2, 2}}, tag(0));
    m_tree->add({{0, 0}, {3, 3}}, nullptr);
    EXPECT_THAT(query({{0, 0}, {1, 1}}), ElementsAre(tag(0), tag(0), nullptr));
}

} // namespace
