#include "slab/ORVCADSlabReinforcementSampleDataContextInfo.h"

#include "SampleFixture.h"

namespace {

using Info = ORVCADSlabReinforcementSampleDataContextInfo;
using Options = std::map<QString, QString>;

class ORVCADSlabReinforcementSampleDataContextInfoTest : public SampleFixture
{};

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, floorAndRegionAreThoseThatAreSelected)
{
    select("Level 2");
    const Info info(service());
    expectSecondFloor(info);
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, newRecordHasNoOptionsThoughTheHostHasSome)
{
    EXPECT_TRUE(Info(service()).getCADOptions().empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, nullServiceLeavesTheDefaults)
{
    const Info info(nullptr);
    expectNoFloor(info);
    EXPECT_TRUE(info.getCADOptions().empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, optionsReplaceThoseBefore)
{
    Info info(nullptr);
    info.setCADOptionsData({{"a", "1"}, {"b", "2"}});
    info.setCADOptionsData({{"c", "3"}});
    EXPECT_EQ(info.getCADOptions(), (Options{{"c", "3"}}));
    info.setCADOptionsData({});
    EXPECT_TRUE(info.getCADOptions().empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, mapThatIsMovedInIsEmptyAfterwards)
{
    Info info(nullptr);
    Options options{{"spacing", "200"}};
    info.setCADOptionsData(std::move(options));
    EXPECT_TRUE(options.empty()); // NOLINT(bugprone-use-after-move): promised
    EXPECT_EQ(info.getCADOptions(), (Options{{"spacing", "200"}}));
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, mapThatIsCopiedInStays)
{
    Info info(nullptr);
    const Options options{{"spacing", "200"}};
    info.setCADOptionsData(options);
    EXPECT_EQ(options, (Options{{"spacing", "200"}}));
    EXPECT_EQ(info.getCADOptions(), options);
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, optionsThatWereReadAreACopy)
{
    Info info(nullptr);
    info.setCADOptionsData({{"spacing", "200"}});
    info.getCADOptions().clear();
    EXPECT_EQ(info.getCADOptions(), (Options{{"spacing", "200"}}));
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, groupIsReadAndTheFirstRowOfANameCounts)
{
    EXPECT_EQ(Info::parseCADOptions(service(), "SlabBars"), (Options{{"grade", ""}, {"spacing", "200"}}));
    EXPECT_EQ(Info::parseCADOptions(service(), "Another"), (Options{{"cover", "15"}}));
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, unknownGroupHasNoOptions)
{
    EXPECT_TRUE(Info::parseCADOptions(service(), "Roof").empty());
    EXPECT_TRUE(Info::parseCADOptions(service(), "slabbars").empty());
    EXPECT_TRUE(Info::parseCADOptions(service(), QString()).empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, nullServiceHasNoOptions)
{
    EXPECT_TRUE(Info::parseCADOptions(nullptr, "SlabBars").empty());
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, optionsAreReadWithoutBeingKept)
{
    Info info(service());
    info.setCADOptionsData({{"mine", "1"}});
    const Options options =
        info.parseCADOptions(service(), "SlabBars"); // NOLINT(readability-static-accessed-through-instance)
    EXPECT_EQ(options.size(), 2u);
    EXPECT_EQ(info.getCADOptions(), (Options{{"mine", "1"}}));
}

TEST_F(ORVCADSlabReinforcementSampleDataContextInfoTest, copyIsIndependentAndMovingTakesEverything)
{
    select("Level 2");
    Info info(service());
    info.setCADOptionsData({{"a", "1"}});
    Info copy = info;
    copy.setCADOptionsData({});
    EXPECT_EQ(info.getCADOptions(), (Options{{"a", "1"}}));
    expectSecondFloor(copy);

    Info target(nullptr);
    target = std::move(info);
    expectSecondFloor(target);
    EXPECT_EQ(target.getCADOptions(), (Options{{"a", "1"}}));
}

} // namespace
