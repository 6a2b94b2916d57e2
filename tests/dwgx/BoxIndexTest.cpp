#include "platform/dwgx/BoxIndex.h"

#include "dwgx/RandomBoxes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace {

using randomboxes::Box;
using randomboxes::bruteForce;
using randomboxes::tag;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargest = std::numeric_limits<double>::max();

Box box(double x0, double y0, double x1, double y1) { return {{x0, y0}, {x1, y1}}; }

class BoxIndexTest : public ::testing::Test
{
protected:
    std::vector<void *> query(const Box &asked) const
    {
        std::vector<void *> out{tag(4711)}; // must be gone afterwards
        m_index->query(asked, out);
        return out;
    }
    /** Puts so many boxes far away, so that there is a tree to ask. */
    void addFiller(int count)
    {
        for (int i = 0; i < count; ++i)
            m_index->add(box(1e6 + i, 1e6, 1e6 + i, 1e6), nullptr);
    }
    void addRange(const std::vector<Box> &boxes, std::size_t from, std::size_t to)
    {
        for (std::size_t i = from; i < to; ++i)
            m_index->add(boxes[i], tag(i));
    }
    void expectLikeBruteForce(const std::vector<Box> &boxes, std::size_t count, unsigned seed) const
    {
        for (const Box &asked : randomboxes::make(300, seed))
            ASSERT_EQ(query(asked), bruteForce(boxes, count, asked));
    }

    std::unique_ptr<dwgx::BoxIndex> m_index = std::make_unique<dwgx::BoxIndex>();
};

TEST_F(BoxIndexTest, newIndexHoldsNothing)
{
    EXPECT_THAT(query(box(-kLargest, -kLargest, kLargest, kLargest)), IsEmpty());
}

TEST_F(BoxIndexTest, countIsThatOfTheBoxesTaken)
{
    m_index->add(box(0, 0, 1, 1), tag(0));
    m_index->add(Box(), tag(1));
    m_index->add(box(kNaN, 0, 1, 1), tag(2));
    m_index->add(box(0, 0, 1, 1), nullptr);
    EXPECT_EQ(m_index->count(), 2U);
}

TEST_F(BoxIndexTest, fewBoxesAreFoundLikeBruteForce)
{
    const auto boxes = randomboxes::make(150, 1);
    addRange(boxes, 0, boxes.size());
    expectLikeBruteForce(boxes, boxes.size(), 2);
}

TEST_F(BoxIndexTest, boxesPackedAtTheFirstQueryAreFoundLikeBruteForce)
{
    const auto boxes = randomboxes::make(5000, 3);
    addRange(boxes, 0, boxes.size());
    expectLikeBruteForce(boxes, boxes.size(), 4);
}

TEST_F(BoxIndexTest, boxesAskedForAfterEachInsertionAreFoundLikeBruteForce)
{
    const auto boxes = randomboxes::make(2000, 5);
    const auto queries = randomboxes::make(2000, 6);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        addRange(boxes, i, i + 1);
        ASSERT_EQ(query(queries[i]), bruteForce(boxes, i + 1, queries[i])) << "after " << i + 1 << " boxes";
    }
}

TEST_F(BoxIndexTest, packedInsertedAndRepackedBoxesAreFoundLikeBruteForce)
{
    const auto boxes = randomboxes::make(4000, 7);
    std::size_t known = 0;
    // Below the threshold of the tree, packed, a few inserted, one inserted, more new ones than old.
    for (const std::size_t next : {100U, 600U, 700U, 701U, 4000U}) {
        addRange(boxes, known, next);
        known = next;
        expectLikeBruteForce(boxes, known, static_cast<unsigned>(known));
    }
}

TEST_F(BoxIndexTest, thresholdOfTheTreeMakesNoDifference)
{
    const auto boxes = randomboxes::make(201, 8);
    for (const std::size_t next : {199U, 200U, 201U}) {
        m_index = std::make_unique<dwgx::BoxIndex>();
        addRange(boxes, 0, next);
        expectLikeBruteForce(boxes, next, 9);
    }
}

TEST_F(BoxIndexTest, touchingCounts)
{
    for (const int filler : {0, 500}) {
        m_index = std::make_unique<dwgx::BoxIndex>();
        addFiller(filler);
        m_index->add(box(0, 0, 10, 10), tag(0));
        EXPECT_THAT(query(box(10, 3, 20, 4)), ElementsAre(tag(0))) << "side";
        EXPECT_THAT(query(box(10, 10, 20, 20)), ElementsAre(tag(0))) << "corner";
        EXPECT_THAT(query(box(-5, 5, 0, 5)), ElementsAre(tag(0))) << "box without height";
        EXPECT_THAT(query(box(10.000001, 0, 20, 10)), IsEmpty()) << "just beside";
    }
}

TEST_F(BoxIndexTest, boxHeldByTheQueryAndBoxHoldingItAreFound)
{
    m_index->add(box(4, 4, 6, 6), tag(0));
    m_index->add(box(-100, -100, 100, 100), tag(1));
    EXPECT_THAT(query(box(0, 0, 10, 10)), ElementsAre(tag(0), tag(1)));
}

TEST_F(BoxIndexTest, resultsComeInOrderOfInsertion)
{
    addFiller(300);
    for (std::size_t i = 0; i < 50; ++i)
        m_index->add(box(50.0 - static_cast<double>(i), 0, 100, 1), tag(i));
    const auto found = query(box(60, 0, 61, 1));
    ASSERT_EQ(found.size(), 50U);
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i], tag(i));
}

TEST_F(BoxIndexTest, emptyAndNaNBoxesAreInNoIndex)
{
    for (const int filler : {0, 500}) {
        m_index = std::make_unique<dwgx::BoxIndex>();
        addFiller(filler);
        m_index->add(Box(), tag(0));
        m_index->add(box(5, 0, 4, 10), tag(1));
        m_index->add(box(kNaN, 0, 10, 10), tag(2));
        m_index->add(box(0, kNaN, 10, 10), tag(3));
        m_index->add(box(0, 0, kNaN, 10), tag(4));
        m_index->add(box(0, 0, 10, kNaN), tag(5));
        EXPECT_THAT(query(box(-100, -100, 100, 100)), IsEmpty());
    }
}

TEST_F(BoxIndexTest, emptyAndNaNQueriesFindNothing)
{
    for (const int filler : {0, 500}) {
        addFiller(filler);
        m_index->add(box(0, 0, 10, 10), tag(0));
        EXPECT_THAT(query(Box()), IsEmpty());
        EXPECT_THAT(query(box(0, 0, kNaN, 10)), IsEmpty());
        EXPECT_THAT(query(box(kNaN, kNaN, kNaN, kNaN)), IsEmpty());
    }
}

TEST_F(BoxIndexTest, endlessAndHugeBoxesAreFoundToo)
{
    addFiller(500);
    m_index->add(box(0, 0, 10, 10), tag(0));
    m_index->add(box(-kInfinity, -kInfinity, kInfinity, kInfinity), tag(1));
    m_index->add(box(-kLargest, 2, kLargest, 3), tag(2));
    m_index->add(box(1e200, 0, 1e201, 1), tag(3));
    EXPECT_THAT(query(box(1, 1, 2, 2)), ElementsAre(tag(0), tag(1), tag(2)));
    EXPECT_THAT(query(box(1, 8, 2, 9)), ElementsAre(tag(0), tag(1)));
    EXPECT_THAT(query(box(5e200, 0, kInfinity, 1)), ElementsAre(tag(1), tag(3)));
    EXPECT_EQ(query(box(-kInfinity, -kInfinity, kInfinity, kInfinity)).size(), 504U);
}

} // namespace
