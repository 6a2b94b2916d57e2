#include "platform/embedded/HBXChangeLog.h"

#include <gtest/gtest.h>

using hbx::embedded::HBXChangedIds;

namespace {

using Ids = std::vector<qint64>;

class HBXChangeLogTest : public ::testing::Test
{
protected:
    void take() { ids.take(changed, removed); }

    HBXChangedIds ids;
    Ids changed{99};
    Ids removed{99};
};

} // namespace

TEST_F(HBXChangeLogTest, idsAreTakenOnceAndAscend)
{
    for (const qint64 id : {5, 3, 9, 3})
        ids.changed(id);
    take();
    EXPECT_EQ(changed, (Ids{3, 5, 9}));
    EXPECT_TRUE(removed.empty());
    take();
    EXPECT_TRUE(changed.empty());
}

TEST_F(HBXChangeLogTest, whatTheStoreNeverHadLeavesNoTrace)
{
    ids.changed(5);
    ids.removed(5);
    take();
    EXPECT_TRUE(changed.empty());
    EXPECT_TRUE(removed.empty());
}

TEST_F(HBXChangeLogTest, whatTheStoreHasIsToldWhenItGoes)
{
    ids.stored(5);
    ids.changed(6);
    take(); // and so the store has 6 as well
    ids.changed(6);
    ids.removed(6);
    ids.removed(5);
    take();
    EXPECT_TRUE(changed.empty());
    EXPECT_EQ(removed, (Ids{5, 6}));
}

TEST_F(HBXChangeLogTest, whatIsGivenBackComesAgain)
{
    ids.stored(5);
    ids.changed(6);
    ids.removed(5);
    take();
    ids.giveBack(changed, removed);
    ids.changed(7);
    take();
    EXPECT_EQ(changed, (Ids{6, 7}));
    EXPECT_EQ(removed, Ids{5});
}

TEST_F(HBXChangeLogTest, whatWentSinceStaysGoneWhenItIsGivenBack)
{
    ids.changed(6);
    take();
    ids.removed(6);
    ids.giveBack(changed, removed);
    take();
    EXPECT_TRUE(changed.empty());
    EXPECT_EQ(removed, Ids{6});
}

TEST_F(HBXChangeLogTest, clearForgetsWhatTheStoreHas)
{
    ids.stored(5);
    ids.changed(6);
    ids.clear();
    ids.removed(5);
    take();
    EXPECT_TRUE(changed.empty());
    EXPECT_TRUE(removed.empty());
}
