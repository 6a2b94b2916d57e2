#include "slab/ORVCADBoardSampleDataContextInfo.h"

#include "SampleFixture.h"

namespace {

using SupportTypes = QSet<etCustomSupportEdoType>;

class ORVCADBoardSampleDataContextInfoTest : public SampleFixture
{};

TEST_F(ORVCADBoardSampleDataContextInfoTest, floorAndRegionAreThoseThatAreSelected)
{
    select("Level 2");
    const ORVCADBoardSampleDataContextInfo info(service());
    expectSecondFloor(info);
    EXPECT_TRUE(info.getSupportTypes().isEmpty());
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, nullServiceLeavesTheDefaults)
{
    const ORVCADBoardSampleDataContextInfo info(nullptr);
    expectNoFloor(info);
    EXPECT_TRUE(info.getSupportTypes().isEmpty());
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, withoutASelectionTheDefaultsStay)
{
    expectNoFloor(ORVCADBoardSampleDataContextInfo(service()));
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, recordStaysAsItWasWhenAnotherFloorIsSelected)
{
    select("Level 2");
    const ORVCADBoardSampleDataContextInfo info(service());
    select("Level 1");
    expectSecondFloor(info);
    EXPECT_EQ(ORVCADBoardSampleDataContextInfo(service()).standardFloorCount(), 1);
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, kindsOfSupportsAreNumberedAsTheHostDoes)
{
    EXPECT_EQ(int(etCustomSupportBeam), 1);
    EXPECT_EQ(int(etCustomSupportWall), 2);
    EXPECT_EQ(int(etCustomSupportColumn), 4);
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, supportTypesReplaceThoseBefore)
{
    ORVCADBoardSampleDataContextInfo info(nullptr);
    info.setSupportTypes({etCustomSupportBeam, etCustomSupportWall});
    EXPECT_EQ(info.getSupportTypes(), (SupportTypes{etCustomSupportWall, etCustomSupportBeam}));
    info.setSupportTypes({etCustomSupportColumn});
    EXPECT_EQ(info.getSupportTypes(), (SupportTypes{etCustomSupportColumn}));
    info.setSupportTypes({});
    EXPECT_TRUE(info.getSupportTypes().isEmpty());
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, kindThatHasNoNameHereIsKept)
{
    ORVCADBoardSampleDataContextInfo info(nullptr);
    info.setSupportTypes({etCustomSupportEdoType(64)});
    EXPECT_EQ(info.getSupportTypes(), (SupportTypes{etCustomSupportEdoType(64)}));
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, supportTypesThatWereReadAreACopy)
{
    ORVCADBoardSampleDataContextInfo info(nullptr);
    info.setSupportTypes({etCustomSupportBeam});
    info.getSupportTypes().clear();
    EXPECT_EQ(info.getSupportTypes(), (SupportTypes{etCustomSupportBeam}));
}

TEST_F(ORVCADBoardSampleDataContextInfoTest, copyIsIndependentAndMovingTakesEverything)
{
    select("Level 2");
    ORVCADBoardSampleDataContextInfo info(service());
    info.setSupportTypes({etCustomSupportBeam});
    ORVCADBoardSampleDataContextInfo copy = info;
    copy.setSupportTypes({etCustomSupportWall});
    EXPECT_EQ(info.getSupportTypes(), (SupportTypes{etCustomSupportBeam}));
    expectSecondFloor(copy);

    ORVCADBoardSampleDataContextInfo target(nullptr);
    target = std::move(info);
    expectSecondFloor(target);
    EXPECT_EQ(target.getSupportTypes(), (SupportTypes{etCustomSupportBeam}));
}

} // namespace
