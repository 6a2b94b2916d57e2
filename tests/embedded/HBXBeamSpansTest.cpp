#include "platform/embedded/HBXBeamSpans.h"

#include <gtest/gtest.h>

namespace hbx::embedded {
namespace {

struct BarCase
{
    IWLRBeamSpan::Bar bar;
    const char *key;
};
class HBXBeamSpanBarTest : public ::testing::TestWithParam<BarCase>
{};

TEST_P(HBXBeamSpanBarTest, barsStandUnderTheKeysOfTheirNames)
{
    const HBXBeamSpan span({{QLatin1String(GetParam().key), "3C22"}});
    EXPECT_EQ(span.bar(GetParam().bar)->asString(), "3C22");
    for (int bar = 0; bar < IWLRBeamSpan::kBarCount; ++bar)
        EXPECT_EQ(span.bar(static_cast<IWLRBeamSpan::Bar>(bar))->asString(), bar == GetParam().bar ? "3C22" : "");
}
INSTANTIATE_TEST_SUITE_P(Bars, HBXBeamSpanBarTest,
                         ::testing::Values(BarCase{IWLRBeamSpan::kTopThroughBar, "TopThroughBar"},
                                           BarCase{IWLRBeamSpan::kLeftSupportBar, "LeftSupportBar"},
                                           BarCase{IWLRBeamSpan::kSpanBar, "SpanBar"},
                                           BarCase{IWLRBeamSpan::kRightSupportBar, "RightSupportBar"},
                                           BarCase{IWLRBeamSpan::kBottomThroughBar, "BottomThroughBar"},
                                           BarCase{IWLRBeamSpan::kBottomBar, "BottomBar"},
                                           BarCase{IWLRBeamSpan::kSideBar, "SideBar"},
                                           BarCase{IWLRBeamSpan::kSideLabelBar, "SideLabelBar"},
                                           BarCase{IWLRBeamSpan::kTieBar, "TieBar"},
                                           BarCase{IWLRBeamSpan::kHoopBar, "HoopBar"},
                                           BarCase{IWLRBeamSpan::kSecBeamAddBar, "SecBeamAddBar"},
                                           BarCase{IWLRBeamSpan::kHangBar, "HangBar"}));

TEST(HBXBeamSpansTest, everyValueIsReadFromItsKey)
{
    const HBXBeamSpan span({{"SpanIndex", 2},
                            {"StartElev", 6.9},
                            {"EndElev", 6.4},
                            {"SpanA1_A4", "100,150,200,-250"},
                            {"SpanLength", 5000.5},
                            {"Section", "300*600"},
                            {"AxisOffset", 25},
                            {"HoopBarLimbCount", 4},
                            {"SecBeamWidth", "250"},
                            {"HangBarAnchor", "20*d"},
                            {"DenseLength", "900"},
                            {"HaunchingLength", "600"},
                            {"HaunchingHeight", "200"},
                            {"HaunchingBarInfo", "2C12;2C14"},
                            {"OtherHoopBars", "A10@50"}});
    EXPECT_EQ(span.spanIndex(), 2);
    EXPECT_EQ(span.startElev(), 6.9);
    EXPECT_EQ(span.endElev(), 6.4);
    EXPECT_EQ(span.measure(1, 1), 100);
    EXPECT_EQ(span.measure(2, 1), 150);
    EXPECT_EQ(span.measure(3, 1), 200);
    EXPECT_EQ(span.measure(4, 1), -250);
    EXPECT_EQ(span.spanLength(1), 5000.5);
    EXPECT_EQ(span.section(), "300*600");
    EXPECT_EQ(span.axisOffset(), 25);
    EXPECT_EQ(span.hoopBarLimbCount(), 4);
    EXPECT_EQ(span.secBeamWidth(), "250");
    EXPECT_EQ(span.hangBarAnchor(), "20*d");
    EXPECT_EQ(span.denseLength(), "900");
    EXPECT_EQ(span.haunchingLength(), "600");
    EXPECT_EQ(span.haunchingHeight(), "200");
    EXPECT_EQ(span.haunchingBarInfo(0)->GetRightBarInfos(0).asString(), "2C14");
    EXPECT_EQ(dynamic_cast<const TWLRCustomHoopBars &>(*span.customHoopBars()).getAsString(), "A10@50");
}

TEST(HBXBeamSpansTest, missingAndMistypedValuesAreZeroOrEmpty)
{
    const HBXBeamSpan span({{"SpanIndex", "2"}, {"Section", 7}, {"SpanA1_A4", "x,,3"}});
    EXPECT_EQ(span.spanIndex(), 0);
    EXPECT_EQ(span.section(), "");
    EXPECT_EQ(span.measure(1, 1), 0);
    EXPECT_EQ(span.measure(2, 1), 0);
    EXPECT_EQ(span.measure(3, 1), 3);
    EXPECT_EQ(span.measure(4, 1), 0);
    EXPECT_EQ(span.spanLength(1), 0.0);
    EXPECT_EQ(span.haunchingBarInfo(0)->LeftCount(), 0);
}

TEST(HBXBeamSpansTest, numbersOutOfRangeGiveNothing)
{
    const HBXBeamSpan span({{"SpanA1_A4", "1,2,3,4"}});
    EXPECT_EQ(span.measure(0, 1), 0);
    EXPECT_EQ(span.measure(5, 1), 0);
    EXPECT_FALSE(span.bar(static_cast<IWLRBeamSpan::Bar>(IWLRBeamSpan::kBarCount)));
}

TEST(HBXBeamSpansTest, setGivesSpansByPosition)
{
    const auto spans = HBXBeamSpans::make({{{"SpanIndex", 1}}, {{"SpanIndex", 2}}});
    ASSERT_TRUE(spans);
    EXPECT_EQ(spans->count(), 2);
    EXPECT_EQ(spans->span(1)->spanIndex(), 2);
    EXPECT_FALSE(spans->span(2));
    EXPECT_FALSE(spans->span(-1));
}

TEST(HBXBeamSpansTest, noSpansAreNoSet) { EXPECT_FALSE(HBXBeamSpans::make({})); }

} // namespace
} // namespace hbx::embedded
