#include "platform/embedded/ChainRing.h"

#include <gtest/gtest.h>

using hbx::embedded::firstInRing;

TEST(ChainRingTest, chainsWithAnEndAreNoRings)
{
    EXPECT_FALSE(firstInRing({}));
    EXPECT_FALSE(firstInRing({-1, -1}));
    EXPECT_FALSE(firstInRing({1, 2, -1}));
    EXPECT_FALSE(firstInRing({-1, 0, 1}));
}

TEST(ChainRingTest, anObjectBehindItselfIsARing) { EXPECT_EQ(firstInRing({-1, 1}), 1U); }

TEST(ChainRingTest, theFirstObjectOfARingIsTold)
{
    EXPECT_EQ(firstInRing({-1, 3, -1, 1}), 1U);
    EXPECT_EQ(firstInRing({1, 2, 0}), 0U);
}

TEST(ChainRingTest, aChainBesideARingIsNoPartOfIt) { EXPECT_EQ(firstInRing({1, -1, 3, 2}), 2U); }

TEST(ChainRingTest, aLongChainIsWalkedOnce)
{
    std::vector<int> next(200000);
    for (std::size_t i = 0; i + 1 < next.size(); ++i)
        next[i] = static_cast<int>(i) + 1;
    next.back() = -1;
    EXPECT_FALSE(firstInRing(next));
    next.back() = 0;
    EXPECT_EQ(firstInRing(next), 0U);
}
