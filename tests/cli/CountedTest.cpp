#include "cli/Counted.h"

#include <gtest/gtest.h>

using orvcad::counted;
using orvcad::countedInEnglish;

namespace {

TEST(CountedTest, wordIsInThePluralButForOne)
{
    EXPECT_EQ(counted(0, "door"), "0 doors");
    EXPECT_EQ(counted(1, "door"), "1 door");
    EXPECT_EQ(counted(2, "door"), "2 doors");
}

TEST(CountedTest, documentsCountInEnglish)
{
    EXPECT_EQ(countedInEnglish(0, "door"), "0 doors");
    EXPECT_EQ(countedInEnglish(1, "door"), "1 door");
    EXPECT_EQ(countedInEnglish(2, "door"), "2 doors");
}

TEST(CountedTest, placeholdersInWordsAreLeftAlone)
{
    EXPECT_EQ(counted(2, "%1"), "2 %1s");
    EXPECT_EQ(countedInEnglish(2, "%1%3"), "2 %1%3s");
}

} // namespace
