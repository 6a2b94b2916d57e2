#include "platform/geometry/CCoord3.h"

#include <gtest/gtest.h>

namespace {

using Frame = vks::CCoord3<double>;

TEST(CCoord3Test, newFrameIsTheWorlds)
{
    EXPECT_EQ(Frame().ToWorld({3, 4}), vks::CVec3<double>(3, 4, 0));
    EXPECT_EQ(Frame().Normal(), vks::CVec3<double>(0, 0, 1));
    EXPECT_FALSE(Frame().IsAbsent());
}

TEST(CCoord3Test, absentFrameHasNanInItsFirstTerm)
{
    EXPECT_TRUE(std::isnan(Frame::Absent().origin.x));
    EXPECT_TRUE(Frame::Absent().IsAbsent());
}

TEST(CCoord3Test, pointGoesThroughOriginAndAxes)
{
    const Frame turned({5000, 1000, 30}, {0, 1, 0}, {-1, 0, 0});
    EXPECT_EQ(turned.ToWorld({300, 200}), vks::CVec3<double>(4800, 1300, 30));
    EXPECT_EQ(turned.Normal(), vks::CVec3<double>(0, 0, 1));
}

} // namespace
