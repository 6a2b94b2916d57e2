#include "beam/BeamSpanInfo.h"

#include "RecordChecks.h"

namespace {

const QByteArray kFilled = R"({
    "SpanIndex": 1, "StartElev": 3.5, "EndElev": 3.25, "SpanA1_A4": "100,200,300,400", "SpanLength": 6000,
    "Section": "300*600", "AxisOffset": -25, "TopThroughBar": "a", "LeftSupportBar": "b", "SpanBar": "c",
    "RightSupportBar": "d", "BottomThroughBar": "e", "BottomBar": "f", "SideBar": "g", "SideLabelBar": "h",
    "TieBar": "i", "HoopBar": "j", "HoopBarLimbCount": 4, "SecBeamWidth": "k", "SecBeamAddBar": "l", "HangBar": "m",
    "HangBarAnchor": "n", "DenseLength": "o", "HaunchingLength": "p", "HaunchingHeight": "q",
    "HaunchingBarInfo": "r;s", "OtherHoopBars": "t"
})";

TEST(BeamSpanInfoTest, eachKeyIsReadIntoItsField)
{
    BeamSpanInfo span;
    span.fromJson(jsonOf(kFilled));
    EXPECT_EQ(span.SpanIndex, 1);
    EXPECT_EQ(span.StartElev, 3.5);
    EXPECT_EQ(span.EndElev, 3.25);
    EXPECT_EQ(span.SpanA1_A4, "100,200,300,400");
    EXPECT_EQ(span.SpanLength, 6000.0);
    EXPECT_EQ(span.Section, "300*600");
    EXPECT_EQ(span.AxisOffset, -25.0);
    EXPECT_EQ(span.TopThroughBar, "a");
    EXPECT_EQ(span.LeftSupportBar, "b");
    EXPECT_EQ(span.SpanBar, "c");
    EXPECT_EQ(span.RightSupportBar, "d");
    EXPECT_EQ(span.BottomThroughBar, "e");
    EXPECT_EQ(span.BottomBar, "f");
    EXPECT_EQ(span.SideBar, "g");
    EXPECT_EQ(span.SideLabelBar, "h");
    EXPECT_EQ(span.TieBar, "i");
    EXPECT_EQ(span.HoopBar, "j");
    EXPECT_EQ(span.HoopBarLimbCount, 4);
    EXPECT_EQ(span.SecBeamWidth, "k");
    EXPECT_EQ(span.SecBeamAddBar, "l");
    EXPECT_EQ(span.HangBar, "m");
    EXPECT_EQ(span.HangBarAnchor, "n");
    EXPECT_EQ(span.DenseLength, "o");
    EXPECT_EQ(span.HaunchingLength, "p");
    EXPECT_EQ(span.HaunchingHeight, "q");
    EXPECT_EQ(span.HaunchingBarInfo, "r;s");
    EXPECT_EQ(span.OtherHoopBars, "t");
}

TEST(BeamSpanInfoTest, eachFieldIsWrittenUnderItsKey)
{
    BeamSpanInfo span;
    span.fromJson(jsonOf(kFilled));
    expectSameJson(span.toJsonObj(), jsonOf(kFilled));
    EXPECT_EQ(span.toJsonObj().size(), 27);
}

TEST(BeamSpanInfoTest, missingAndMistypedKeysGiveZeroAndEmptyText)
{
    BeamSpanInfo span;
    for (const QJsonObject &json : {QJsonObject(), mistyped(jsonOf(kFilled))}) {
        span.fromJson(jsonOf(kFilled));
        span.fromJson(json);
        expectSameJson(span.toJsonObj(), BeamSpanInfo().toJsonObj());
    }
    EXPECT_EQ(span.SpanLength, 0.0);
    EXPECT_EQ(span.OtherHoopBars, "");
}

} // namespace
