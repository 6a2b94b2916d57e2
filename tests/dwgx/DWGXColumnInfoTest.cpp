#include "platform/dwgx/DWGXColumnInfo.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

TEST(DWGXColumnInfoTest, newInfoKnowsNothing)
{
    const dwgx::DWGXColumnInfo info;
    EXPECT_EQ(info.dSteelWeight, 0.0);
    EXPECT_EQ(info.ePolyType, 0);
    EXPECT_EQ(info.eColumnType, 0);
    EXPECT_FALSE(info.bEdoInfoValid);
    EXPECT_FALSE(info.bMirror);
    EXPECT_EQ(info.dAngle, 0.0);
    EXPECT_TRUE(info.strParam.isEmpty());
    EXPECT_EQ(info.position, vks::CVec2<double>());
    EXPECT_EQ(info.insertPt, vks::CVec2<double>());
    EXPECT_EQ(info.dWidth, 0.0);
    EXPECT_EQ(info.dHeight, 0.0);
    EXPECT_EQ(info.dRadius, 0.0);
    EXPECT_EQ(info.m_type, 0);
}

TEST(DWGXColumnInfoTest, isDeletedThroughItsBase)
{
    static_assert(std::has_virtual_destructor_v<dwgx::DWGXColumnInfo>);
}

} // namespace
