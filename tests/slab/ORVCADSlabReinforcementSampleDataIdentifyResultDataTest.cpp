#include "slab/ORVCADSlabReinforcementSampleDataIdentifyResultData.h"

#include "SampleFixture.h"

#include <limits>

namespace {

using Result = ORVCADSlabReinforcementSampleDataIdentifyResultData;
using Ids = std::vector<qint64>;

class ORVCADSlabReinforcementSampleDataIdentifyResultDataTest : public SampleFixture
{};

TEST_F(ORVCADSlabReinforcementSampleDataIdentifyResultDataTest, floorAndRegionAreThoseThatAreSelected)
{
    select("Level 2");
    const Result result(service());
    expectSecondFloor(result);
    EXPECT_TRUE(result.getAllBarRecognizedIDs().empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataIdentifyResultDataTest, nullServiceLeavesTheDefaults)
{
    const Result result(nullptr);
    expectNoFloor(result);
    EXPECT_TRUE(result.getAllBarRecognizedIDs().empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataIdentifyResultDataTest, idsKeepTheirOrderRepetitionsAnd64Bits)
{
    const Ids ids{std::numeric_limits<qint64>::max(), 5, 5, std::numeric_limits<qint64>::min()};
    Result result(nullptr);
    result.setBarRecognizedIDs(ids);
    EXPECT_EQ(result.getAllBarRecognizedIDs(), ids);
    EXPECT_EQ(ids.size(), 4u);
}

TEST_F(ORVCADSlabReinforcementSampleDataIdentifyResultDataTest, idsReplaceThoseBefore)
{
    Result result(nullptr);
    result.setBarRecognizedIDs({1, 2, 3});
    result.setBarRecognizedIDs({4});
    EXPECT_EQ(result.getAllBarRecognizedIDs(), (Ids{4}));
    result.setBarRecognizedIDs({});
    EXPECT_TRUE(result.getAllBarRecognizedIDs().empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataIdentifyResultDataTest, listThatIsMovedInIsEmptyAfterwards)
{
    Result result(nullptr);
    Ids ids{1, 2};
    result.setBarRecognizedIDs(std::move(ids));
    EXPECT_TRUE(ids.empty()); // NOLINT(bugprone-use-after-move): promised
    EXPECT_EQ(result.getAllBarRecognizedIDs(), (Ids{1, 2}));
}

TEST_F(ORVCADSlabReinforcementSampleDataIdentifyResultDataTest, idsThatWereReadAreACopy)
{
    Result result(nullptr);
    result.setBarRecognizedIDs({1});
    result.getAllBarRecognizedIDs().clear();
    EXPECT_EQ(result.getAllBarRecognizedIDs(), (Ids{1}));
}

TEST_F(ORVCADSlabReinforcementSampleDataIdentifyResultDataTest, copyIsIndependentAndMovingTakesEverything)
{
    select("Level 2");
    Result result(service());
    result.setBarRecognizedIDs({1});
    Result copy = result;
    copy.setBarRecognizedIDs({2});
    EXPECT_EQ(result.getAllBarRecognizedIDs(), (Ids{1}));
    expectSecondFloor(copy);

    Result target(nullptr);
    target = std::move(result);
    expectSecondFloor(target);
    EXPECT_EQ(target.getAllBarRecognizedIDs(), (Ids{1}));
}

} // namespace
