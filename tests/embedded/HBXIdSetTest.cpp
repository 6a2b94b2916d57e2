#include "platform/embedded/HBXIdSet.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

namespace hbx::embedded {
namespace {

using Ids = std::vector<qint64>;

TEST(HBXIdSetTest, idsComeAscendingAndOnce)
{
    HBXIdSet set;
    for (const qint64 id : {500, 3, 64, 63, 3, 1000000})
        set.insert(id);
    EXPECT_EQ(set.ascending(), (Ids{3, 63, 64, 500, 1000000}));
    set.clear();
    EXPECT_EQ(set.ascending(), Ids());
}

TEST(HBXIdSetTest, eraseTellsWhetherTheSetHadTheId)
{
    HBXIdSet set;
    set.insert(7);
    EXPECT_FALSE(set.erase(8)); // a neighbour
    EXPECT_FALSE(set.erase(700));
    EXPECT_TRUE(set.contains(7));
    EXPECT_TRUE(set.erase(7));
    EXPECT_FALSE(set.erase(7));
    EXPECT_FALSE(set.contains(7));
    EXPECT_EQ(set.ascending(), Ids());
}

TEST(HBXIdSetTest, idsBelowZeroAndAtBothEndsAreKept)
{
    constexpr qint64 least = std::numeric_limits<qint64>::min();
    constexpr qint64 greatest = std::numeric_limits<qint64>::max();
    HBXIdSet set;
    for (const qint64 id : {greatest, least, qint64(-1), qint64(0), qint64(-64), qint64(-65)})
        set.insert(id);
    EXPECT_EQ(set.ascending(), (Ids{least, -65, -64, -1, 0, greatest}));
}

TEST(HBXIdSetTest, isAsAnOrdinarySet)
{
    std::mt19937 random(3);
    std::uniform_int_distribution<qint64> any(-300, 300);
    HBXIdSet set;
    std::set<qint64> plain;
    for (int i = 0; i < 20000; ++i) {
        const qint64 id = any(random);
        if (i % 3 == 0) {
            EXPECT_EQ(set.erase(id), plain.erase(id) > 0);
        } else {
            set.insert(id);
            plain.insert(id);
        }
    }
    EXPECT_EQ(set.ascending(), Ids(plain.begin(), plain.end()));
}

} // namespace
} // namespace hbx::embedded
