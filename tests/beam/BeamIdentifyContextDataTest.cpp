#include "beam/BeamIdentifyContextData.h"

#include "RecordChecks.h"

namespace {

TEST(BeamIdentifyContextDataTest, newContextHasAnEmptyFloorAndNoOptions)
{
    const BeamIdentifyContextData context;
    ASSERT_TRUE(context.floorInfo);
    EXPECT_TRUE(context.cadOptions.isEmpty());
    expectSameJson(context.toJson(), jsonOf(R"({"FloorInfo": {"FloorName": "", "FloorCode": "", "Height": 0,
        "BtmElev": 0, "FloorID": 0}, "CADOptions": {}})"));
}

TEST(BeamIdentifyContextDataTest, floorAndOptionsAreWritten)
{
    BeamIdentifyContextData context;
    context.floorInfo->FloorName = "Level 1";
    context.floorInfo->FloorCode = "1";
    context.floorInfo->Height = 3.1;
    context.floorInfo->BtmElev = -0.05;
    context.floorInfo->FloorID = 5000000000.0;
    context.cadOptions = {{"b", "2"}, {"a", "1"}, {"empty", ""}};
    expectSameJson(context.toJson(), jsonOf(R"({"FloorInfo": {"FloorName": "Level 1", "FloorCode": "1", "Height": 3.1,
        "BtmElev": -0.05, "FloorID": 5000000000}, "CADOptions": {"a": "1", "b": "2", "empty": ""}})"));
}

TEST(BeamIdentifyContextDataTest, contextWithoutAFloorWritesAnEmptyOne)
{
    BeamIdentifyContextData context;
    context.floorInfo = nullptr;
    expectSameJson(context.toJson(), jsonOf(R"({"FloorInfo": {}, "CADOptions": {}})"));
}

TEST(BeamIdentifyContextDataTest, copySharesTheFloor)
{
    const BeamIdentifyContextData context;
    const BeamIdentifyContextData copy = context; // NOLINT(performance-unnecessary-copy-initialization): tested
    EXPECT_EQ(copy.floorInfo, context.floorInfo);
}

} // namespace
