#include "beam/BeamSegmentInfo.h"

#include "RecordChecks.h"

namespace {

const QByteArray kFilled = R"({"Index": 2, "WordLine": "0,0,6000,0", "LineWidth": 250.5, "AxisOffset": 25,
                               "StartPtTopElev": "3.0", "EndPtTopElev": "3.1"})";

TEST(BeamSegmentInfoTest, eachKeyIsReadIntoItsField)
{
    BeamSegmentInfo segment;
    segment.fromJson(jsonOf(kFilled));
    EXPECT_EQ(segment.Index, 2);
    EXPECT_EQ(segment.WordLine, "0,0,6000,0");
    EXPECT_EQ(segment.LineWidth, 250.5);
    EXPECT_EQ(segment.AxisOffset, 25.0);
    EXPECT_EQ(segment.StartPtTopElev, "3.0");
    EXPECT_EQ(segment.EndPtTopElev, "3.1");
    expectSameJson(segment.toJsonObj(), jsonOf(kFilled));
}

TEST(BeamSegmentInfoTest, newRecordIsEmpty)
{
    expectSameJson(BeamSegmentInfo().toJsonObj(), jsonOf(R"({"Index": 0, "WordLine": "", "LineWidth": 0,
        "AxisOffset": 0, "StartPtTopElev": "", "EndPtTopElev": ""})"));
}

TEST(BeamSegmentInfoTest, missingAndMistypedKeysGiveZeroAndEmptyText)
{
    BeamSegmentInfo segment;
    for (const QJsonObject &json : {QJsonObject(), mistyped(jsonOf(kFilled))}) {
        segment.fromJson(jsonOf(kFilled));
        segment.fromJson(json);
        expectSameJson(segment.toJsonObj(), BeamSegmentInfo().toJsonObj());
    }
}

TEST(BeamSegmentInfoTest, worldLineIsSpelledWordLine)
{
    BeamSegmentInfo segment;
    segment.fromJson({{"WorldLine", "0,0,6000,0"}});
    EXPECT_EQ(segment.WordLine, "");
}

} // namespace
