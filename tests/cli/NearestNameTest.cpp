#include "cli/NearestName.h"

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

const QStringList kKinds{"face", "line", "point", "section"};

TEST(NearestNameTest, oneSlipOfEachKindIsForgiven)
{
    EXPECT_EQ(nearestName("lin", kKinds), "line");
    EXPECT_EQ(nearestName("linne", kKinds), "line");
    EXPECT_EQ(nearestName("lime", kKinds), "line");
    EXPECT_EQ(nearestName("fcae", kKinds), "face");
}

TEST(NearestNameTest, caseOfLettersIsNoSlip)
{
    EXPECT_EQ(nearestName("SECTION", kKinds), "section");
    EXPECT_EQ(nearestName("kzMark", {"KJZMark", "eType"}), "KJZMark");
}

TEST(NearestNameTest, farNamesAreNotMeant)
{
    EXPECT_EQ(nearestName("grid", kKinds), "");
    EXPECT_EQ(nearestName("x", {"y"}), "");
    EXPECT_EQ(nearestName("", kKinds), "");
    EXPECT_EQ(nearestName(QString(100000, 'a'), kKinds), "");
}

TEST(NearestNameTest, nearestCountsAndTheFirstOfEquals)
{
    EXPECT_EQ(nearestName("Heigth", {"Weight", "Height"}), "Height");
    EXPECT_EQ(nearestName("ab", {"ac", "ad"}), "ac");
}

TEST(NearestNameTest, slipsAreCountedUpToTheLimit)
{
    EXPECT_EQ(slipsBetween("abc", "abc", 3), 0);
    EXPECT_EQ(slipsBetween("abcd", "acbd", 3), 1);
    EXPECT_EQ(slipsBetween("abc", "xyz", 3), 3);
    EXPECT_EQ(slipsBetween("abc", "xyz", 1), 2);
    EXPECT_EQ(slipsBetween("a", "abcd", 2), 3);
}

} // namespace
