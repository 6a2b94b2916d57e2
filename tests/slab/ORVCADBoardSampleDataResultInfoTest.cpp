#include "slab/ORVCADBoardSampleDataResultInfo.h"

#include "SampleFixture.h"

#include <limits>

namespace {

using Ids = std::vector<int>;

class ORVCADBoardSampleDataResultInfoTest : public SampleFixture
{};

TEST_F(ORVCADBoardSampleDataResultInfoTest, floorAndRegionAreThoseThatAreSelected)
{
    select("Level 2");
    const ORVCADBoardSampleDataResultInfo info(service());
    expectSecondFloor(info);
    EXPECT_TRUE(info.getSlabRecognizedIDs().empty());
    EXPECT_TRUE(info.getBoardHoleRecognizedIDs().empty());
}

TEST_F(ORVCADBoardSampleDataResultInfoTest, nullServiceLeavesFloorIdMinusOneAndNoIds)
{
    const ORVCADBoardSampleDataResultInfo info(nullptr);
    EXPECT_EQ(info.floorID(), -1);
    expectNoFloor(info);
    EXPECT_TRUE(info.getSlabRecognizedIDs().empty());
    EXPECT_TRUE(info.getBoardHoleRecognizedIDs().empty());
}

TEST_F(ORVCADBoardSampleDataResultInfoTest, idsKeepTheirOrderAndRepetitions)
{
    const Ids ids{7, std::numeric_limits<int>::max(), -1, 7, std::numeric_limits<int>::min()};
    ORVCADBoardSampleDataResultInfo info(nullptr);
    info.setSlabRecognizedIDs(ids);
    info.setBoardHoleRecognizedIDs(ids);
    EXPECT_EQ(info.getSlabRecognizedIDs(), ids);
    EXPECT_EQ(info.getBoardHoleRecognizedIDs(), ids);
}

TEST_F(ORVCADBoardSampleDataResultInfoTest, idsOfSlabsAndOfHolesAreKeptApart)
{
    ORVCADBoardSampleDataResultInfo info(nullptr);
    info.setSlabRecognizedIDs({1, 2});
    EXPECT_TRUE(info.getBoardHoleRecognizedIDs().empty());
    info.setBoardHoleRecognizedIDs({3});
    EXPECT_EQ(info.getSlabRecognizedIDs(), (Ids{1, 2}));
    EXPECT_EQ(info.getBoardHoleRecognizedIDs(), (Ids{3}));
}

TEST_F(ORVCADBoardSampleDataResultInfoTest, idsReplaceThoseBeforeAndTheCallerKeepsHisList)
{
    ORVCADBoardSampleDataResultInfo info(nullptr);
    const Ids ids{4, 5};
    info.setSlabRecognizedIDs({1, 2, 3});
    info.setSlabRecognizedIDs(ids);
    info.setBoardHoleRecognizedIDs({6, 7});
    info.setBoardHoleRecognizedIDs({});
    EXPECT_EQ(info.getSlabRecognizedIDs(), (Ids{4, 5}));
    EXPECT_TRUE(info.getBoardHoleRecognizedIDs().empty());
    EXPECT_EQ(ids, (Ids{4, 5}));
}

TEST_F(ORVCADBoardSampleDataResultInfoTest, idsThatWereReadAreACopy)
{
    ORVCADBoardSampleDataResultInfo info(nullptr);
    info.setSlabRecognizedIDs({1});
    info.setBoardHoleRecognizedIDs({2});
    info.getSlabRecognizedIDs().push_back(9);
    info.getBoardHoleRecognizedIDs().clear();
    EXPECT_EQ(info.getSlabRecognizedIDs(), (Ids{1}));
    EXPECT_EQ(info.getBoardHoleRecognizedIDs(), (Ids{2}));
}

TEST_F(ORVCADBoardSampleDataResultInfoTest, copyIsIndependentAndMovingTakesEverything)
{
    select("Level 2");
    ORVCADBoardSampleDataResultInfo info(service());
    info.setSlabRecognizedIDs({1});
    info.setBoardHoleRecognizedIDs({2});
    ORVCADBoardSampleDataResultInfo copy = info;
    copy.setSlabRecognizedIDs({8});
    EXPECT_EQ(info.getSlabRecognizedIDs(), (Ids{1}));
    EXPECT_EQ(copy.getBoardHoleRecognizedIDs(), (Ids{2}));
    expectSecondFloor(copy);

    ORVCADBoardSampleDataResultInfo target(nullptr);
    target = std::move(info);
    expectSecondFloor(target);
    EXPECT_EQ(target.getSlabRecognizedIDs(), (Ids{1}));
    EXPECT_EQ(target.getBoardHoleRecognizedIDs(), (Ids{2}));
}

} // namespace
