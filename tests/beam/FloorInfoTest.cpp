#include "beam/FloorInfo.h"

#include <gtest/gtest.h>

namespace {

TEST(FloorInfoTest, jsonOfAFilledFloorIsTheEmptyObject)
{
    FloorInfo floor;
    floor.FloorCode = "1";
    floor.FloorName = "Level 1";
    floor.BtmElev = 0.5;
    floor.Height = 3.0;
    floor.FloorID = 7.0;
    EXPECT_TRUE(floor.toJsonObj().isEmpty());
}

} // namespace
