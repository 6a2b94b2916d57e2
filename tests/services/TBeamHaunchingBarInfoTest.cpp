#include "platform/services/TBeamHaunchingBarInfo.h"

#include <gtest/gtest.h>

namespace {

struct HaunchCase
{
    const char *text;
    int left;
    int right;
    const char *leftText;
    const char *rightText;
};
class HaunchTextTest : public ::testing::TestWithParam<HaunchCase>
{};

TEST_P(HaunchTextTest, oneEntryStandsBeforeTheSemicolonAndOneBehindIt)
{
    const TBeamHaunchingBarInfo bars(QString::fromLatin1(GetParam().text));
    EXPECT_EQ(bars.LeftCount(), GetParam().left);
    EXPECT_EQ(bars.RightCount(), GetParam().right);
    EXPECT_EQ(bars.GetLeftBarInfos(0).asString(), GetParam().leftText);
    EXPECT_EQ(bars.GetRightBarInfos(0).asString(), GetParam().rightText);
}
INSTANTIATE_TEST_SUITE_P(Texts, HaunchTextTest,
                         ::testing::Values(HaunchCase{"", 0, 0, "", ""}, HaunchCase{";", 0, 0, "", ""},
                                           HaunchCase{"2C12", 1, 0, "2C12", ""}, HaunchCase{"2C12;", 1, 0, "2C12", ""},
                                           HaunchCase{";2C14", 0, 1, "", "2C14"},
                                           HaunchCase{"2C12;2C14", 1, 1, "2C12", "2C14"},
                                           HaunchCase{"2C12;2C14;3C16", 1, 1, "2C12", "2C14;3C16"}));

TEST(TBeamHaunchingBarInfoTest, positionOutOfRangeGivesEmptyBars)
{
    const TBeamHaunchingBarInfo bars({TBarTypeObj("2C12"), TBarTypeObj("2C14")}, {});
    EXPECT_EQ(bars.LeftCount(), 2);
    EXPECT_EQ(bars.GetLeftBarInfos(1).asString(), "2C14");
    EXPECT_EQ(bars.GetLeftBarInfos(2).asString(), "");
    EXPECT_EQ(bars.GetLeftBarInfos(-1).asString(), "");
    EXPECT_EQ(bars.GetRightBarInfos(0).asString(), "");
}

} // namespace
