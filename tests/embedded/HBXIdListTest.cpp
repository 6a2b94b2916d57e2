#include "platform/embedded/HBXIdList.h"

#include <gtest/gtest.h>

#include <array>

namespace hbx::embedded {
namespace {

class HBXIdListTest : public ::testing::Test
{
protected:
    HBXIdListTest()
    {
        for (qint64 &id : ids)
            list.insert(id, &id);
    }
    std::vector<qint64> inOrder() const
    {
        std::vector<qint64> found;
        list.forEach([&found](const qint64 &id) { found.push_back(id); });
        return found;
    }

    qint64 ids[6] = {3, 5, 1, 9, 7, 8};
    HBXIdList<qint64> list;
};

TEST_F(HBXIdListTest, objectsStandInIdOrderHoweverTheyCame)
{
    EXPECT_EQ(inOrder(), (std::vector<qint64>{1, 3, 5, 7, 8, 9}));
    EXPECT_EQ(*list.at(0), 1);
    EXPECT_EQ(*list.at(5), 9);
}

TEST_F(HBXIdListTest, positionsOutOfRangeGiveNull)
{
    EXPECT_EQ(list.at(-1), nullptr);
    EXPECT_EQ(list.at(6), nullptr);
}

TEST_F(HBXIdListTest, removedObjectsLeaveCountsOrderAndPositions)
{
    list.remove(5);
    list.remove(1);
    list.remove(4); // never there
    list.remove(5); // gone already
    EXPECT_EQ(list.count(), 4);
    EXPECT_EQ(inOrder(), (std::vector<qint64>{3, 7, 8, 9}));
    EXPECT_EQ(*list.at(1), 7);
    EXPECT_EQ(list.at(4), nullptr);
}

TEST_F(HBXIdListTest, anIdMayComeBackIntoItsGap)
{
    list.remove(5);
    list.insert(5, &ids[1]);
    list.insert(5, &ids[1]);
    EXPECT_EQ(list.count(), 6);
    EXPECT_EQ(*list.at(2), 5);
}

TEST_F(HBXIdListTest, removingEveryObjectLeavesAnEmptyList)
{
    for (const qint64 id : ids)
        list.remove(id);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.at(0), nullptr);
    EXPECT_TRUE(list.objects().empty());
}

TEST_F(HBXIdListTest, severalListsAreMergedByIdWithoutTheirGaps)
{
    std::array<qint64, 3> others{4, 2, 10};
    HBXIdList<qint64> second;
    for (qint64 &id : others)
        second.insert(id, &id);
    list.remove(5);
    QList<qint64 *> merged{&others[0]}; // is replaced
    HBXIdList<qint64>::merge({&list, &second}, merged);
    std::vector<qint64> all;
    for (const qint64 *id : qAsConst(merged))
        all.push_back(*id);
    EXPECT_EQ(all, (std::vector<qint64>{1, 2, 3, 4, 7, 8, 9, 10}));
    HBXIdList<qint64>::merge({}, merged);
    EXPECT_TRUE(merged.isEmpty());
}

} // namespace
} // namespace hbx::embedded
