#include "ModelSerialization/HostSlabValues.h"

#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

namespace {

using slabhost::curveInPlan;
using slabhost::CurvePtr;
using Frame = vks::CCoord3<double>;

const CurvePtr kLine(new vks::CLine2d({100, 0}, {400, 0}));

std::string text(const CurvePtr &curve) { return curve ? curve->ToText() : "none"; }

TEST(HostSlabValuesTest, linksAreTheItemsBetweenSemicolonsTheEmptyLastOneIncluded)
{
    const slabhost::HostSlabLinks links("12,1;7;13,0,5;");
    ASSERT_EQ(links.count(), 4);
    EXPECT_EQ(links.id(0), 12);
    EXPECT_EQ(links.fieldCount(0), 2);
    EXPECT_EQ(links.id(1), 7);
    EXPECT_EQ(links.fieldCount(1), 1);
    EXPECT_EQ(links.id(2), 13);
    EXPECT_EQ(links.fieldCount(2), 3);
    EXPECT_EQ(links.id(3), 0);
    EXPECT_EQ(links.fieldCount(3), 1);
}

TEST(HostSlabValuesTest, linksOfNoTextAreOneEmptyItem)
{
    const slabhost::HostSlabLinks links{QString()};
    ASSERT_EQ(links.count(), 1);
    EXPECT_EQ(links.id(0), 0);
    EXPECT_EQ(links.fieldCount(0), 1);
}

TEST(HostSlabValuesTest, linkThatNamesNoNumberHasTheId0)
{
    const slabhost::HostSlabLinks links("x,1;,3; +5 ,1;99999999999999999999,1");
    const qint64 expected[] = {0, 0, 5, 0};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(links.id(i), expected[i]) << i;
}

TEST(HostSlabValuesTest, curveWithoutAFrameStaysAsItStands)
{
    EXPECT_EQ(text(curveInPlan(Frame::Absent(), kLine)), "LINESTRING(100 0, 400 0)");
}

TEST(HostSlabValuesTest, curveWithoutAFrameIsACopy) { EXPECT_NE(curveInPlan(Frame::Absent(), kLine), kLine); }

TEST(HostSlabValuesTest, curveOfAMovedAndTurnedFrameComesIntoThePlan)
{
    const Frame turned({1000, 2000, 300}, {0, 1, 0}, {-1, 0, 0});
    EXPECT_EQ(text(curveInPlan(turned, kLine)), "LINESTRING(1000 2100, 1000 2400)");
}

TEST(HostSlabValuesTest, curveOfASlopingFrameIsSeenFromAbove)
{
    const Frame sloping({0, 0, 0}, {0.8, 0, 0.6}, {0, 1, 0});
    EXPECT_EQ(text(curveInPlan(sloping, kLine)), "LINESTRING(80 0, 320 0)");
}

TEST(HostSlabValuesTest, curveOfAFrameThatLooksDownIsMirrored)
{
    const Frame flipped({0, 0, 0}, {-1, 0, 0}, {0, 1, 0});
    EXPECT_EQ(text(curveInPlan(flipped, kLine)), "LINESTRING(-100 0, -400 0)");
}

TEST(HostSlabValuesTest, curveOfAnUprightFrameHasNoPlace)
{
    EXPECT_EQ(text(curveInPlan(Frame({0, 0, 0}, {1, 0, 0}, {0, 0, 1}), kLine)), "none");
}

TEST(HostSlabValuesTest, noCurveGivesNone)
{
    EXPECT_EQ(text(curveInPlan(Frame(), nullptr)), "none");
    EXPECT_EQ(text(curveInPlan(Frame::Absent(), nullptr)), "none");
}

} // namespace
