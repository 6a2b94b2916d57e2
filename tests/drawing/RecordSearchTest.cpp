#include "drawing/RecordSearch.h"

#include <gtest/gtest.h>

using drawing::firstRecord;
using drawing::indexOfFirst;

namespace {

class RecordSearchTest : public testing::Test
{
protected:
    static bool isTwo(int number) { return number == 2; }

    int one = 1;
    int two = 2;
    int otherTwo = 2;
    QList<int *> records{nullptr, &one, nullptr, &two, &otherTwo};
};

TEST_F(RecordSearchTest, firstThatTheConditionHoldsForIsFound)
{
    EXPECT_EQ(indexOfFirst(records, isTwo), 3);
    EXPECT_EQ(firstRecord(records, isTwo), &two);
}

TEST_F(RecordSearchTest, searchMayBeginBehindTheFirst)
{
    EXPECT_EQ(indexOfFirst(records, isTwo, 4), 4);
    EXPECT_EQ(indexOfFirst(records, isTwo, 5), 5);
}

TEST_F(RecordSearchTest, withoutAMatchTheIndexIsTheEndAndTheRecordNull)
{
    const auto none = [](int) { return false; };
    EXPECT_EQ(indexOfFirst(records, none), 5);
    EXPECT_EQ(firstRecord(records, none), nullptr);
    EXPECT_EQ(indexOfFirst(QList<int *>(), isTwo), 0);
}

TEST_F(RecordSearchTest, nullIsNeverFound)
{
    const auto any = [](int) { return true; };
    EXPECT_EQ(indexOfFirst(records, any), 1);
    EXPECT_EQ(firstRecord(QList<int *>{nullptr}, any), nullptr);
}

} // namespace
