#include "beam/BeamEdoInfo.h"

#include "RecordChecks.h"

#include <QJsonArray>

namespace {

const QByteArray kOne = R"({"BeamSpanInfo": [{"SpanIndex": 1}, {"SpanIndex": 2}], "BeamSegmentInfo": [{"Index": 5}]})";

TEST(BeamEdoInfoTest, spansAndSegmentsAreReadInArrayOrder)
{
    BeamEdoInfo edo;
    edo.fromJson(jsonOf(kOne));
    ASSERT_EQ(edo.spans.size(), 2U);
    ASSERT_EQ(edo.segments.size(), 1U);
    EXPECT_EQ(edo.spans[0]->SpanIndex, 1);
    EXPECT_EQ(edo.spans[1]->SpanIndex, 2);
    EXPECT_EQ(edo.segments[0]->Index, 5);
}

TEST(BeamEdoInfoTest, recordsThatAreThereAreKept)
{
    BeamEdoInfo edo;
    edo.fromJson(jsonOf(kOne));
    const auto first = edo.spans[0];
    edo.fromJson(jsonOf(kOne));
    ASSERT_EQ(edo.spans.size(), 4U);
    EXPECT_EQ(edo.segments.size(), 2U);
    EXPECT_EQ(edo.spans[0], first);
}

TEST(BeamEdoInfoTest, missingAndMistypedArraysAddNothing)
{
    BeamEdoInfo edo;
    edo.fromJson({});
    edo.fromJson({{"BeamSpanInfo", "text"}, {"BeamSegmentInfo", QJsonObject{{"Index", 1}}}});
    EXPECT_TRUE(edo.spans.empty());
    EXPECT_TRUE(edo.segments.empty());
}

TEST(BeamEdoInfoTest, entryThatIsNoObjectGivesARecordOfZeros)
{
    BeamEdoInfo edo;
    edo.fromJson({{"BeamSegmentInfo", QJsonArray{"text", QJsonObject{{"Index", 3}}}}});
    ASSERT_EQ(edo.segments.size(), 2U);
    EXPECT_EQ(edo.segments[0]->Index, 0);
    EXPECT_EQ(edo.segments[1]->Index, 3);
}

TEST(BeamEdoInfoTest, bothArraysAreWrittenInOrderEmptyOnesIncluded)
{
    expectSameJson(BeamEdoInfo().toJsonObj(), jsonOf(R"({"BeamSpanInfo": [], "BeamSegmentInfo": []})"));
    BeamEdoInfo edo;
    edo.fromJson(jsonOf(kOne));
    const QJsonObject json = edo.toJsonObj();
    EXPECT_EQ(json["BeamSpanInfo"].toArray(), (QJsonArray{edo.spans[0]->toJsonObj(), edo.spans[1]->toJsonObj()}));
    EXPECT_EQ(json["BeamSegmentInfo"].toArray(), QJsonArray{edo.segments[0]->toJsonObj()});
}

TEST(BeamEdoInfoTest, nullRecordsAreNotWritten)
{
    BeamEdoInfo edo;
    edo.spans = {nullptr, std::make_shared<BeamSpanInfo>()};
    EXPECT_EQ(edo.toJsonObj()["BeamSpanInfo"].toArray().size(), 1);
}

TEST(BeamEdoInfoTest, copySharesTheRecords)
{
    BeamEdoInfo edo;
    edo.fromJson(jsonOf(kOne));
    const BeamEdoInfo copy = edo;
    edo.spans[0]->SpanIndex = 9;
    EXPECT_EQ(copy.spans[0]->SpanIndex, 9);
}

} // namespace
