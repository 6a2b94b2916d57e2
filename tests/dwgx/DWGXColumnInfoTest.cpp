#include "platform/dwgx/DWGXColumnInfo.h"

#include "host/Lifetime.h"

#include <gtest/gtest.h>

#include <memory>

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

/** What a recognition may know beyond it. */
class RicherInfo : public dwgx::DWGXColumnInfo
{
public:
    explicit RicherInfo(bool &isGone) : m_lifetime(isGone) {}

private:
    Lifetime m_lifetime;
};

TEST(DWGXColumnInfoTest, richerInfoIsDestroyedWholeThroughItsBase)
{
    bool isGone = false;
    std::unique_ptr<dwgx::DWGXColumnInfo> info = std::make_unique<RicherInfo>(isGone);
    info.reset();
    EXPECT_TRUE(isGone);
}

} // namespace
