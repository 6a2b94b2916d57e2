#include "beam/ORVCADBeamEDOInfo.h"

#include "RecordChecks.h"

#include <QJsonArray>

namespace {

const QByteArray kFilled = R"({"nSpanNum": "2A", "nWidth": 300, "strStartElev": "3.0", "strEndElev": "3.1",
    "enStartElevType": 1, "enEndElevType": 2, "vecSegmentInfo": [
        {"ipLine": "0,0,6000,0", "dOffset": 0, "id": "{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"},
        {"ipLine": "", "dOffset": 10, "id": "{00000000-0000-0000-0000-000000000000}"}]})";

class ORVCADBeamEDOInfoTest : public ::testing::Test
{
protected:
    ~ORVCADBeamEDOInfoTest() override { qDeleteAll(m_run.vecSegmentInfo); }
    ORVCADBeamEDOInfo m_run;
};

TEST_F(ORVCADBeamEDOInfoTest, eachKeyIsReadAndWritten)
{
    ORVCADBeamEDOInfo::fromJson(&m_run, jsonOf(kFilled));
    EXPECT_EQ(m_run.nSpanNum, "2A");
    EXPECT_EQ(m_run.nWidth, 300);
    EXPECT_EQ(m_run.strStartElev, "3.0");
    EXPECT_EQ(m_run.strEndElev, "3.1");
    EXPECT_EQ(m_run.enStartElevType, 1);
    EXPECT_EQ(m_run.enEndElevType, 2);
    ASSERT_EQ(m_run.vecSegmentInfo.size(), 2U);
    EXPECT_EQ(m_run.vecSegmentInfo[1]->dOffset, 10.0);
    expectSameJson(m_run.toJson(), jsonOf(kFilled));
}

TEST_F(ORVCADBeamEDOInfoTest, missingAndMistypedKeysGiveZeroAndEmptyText)
{
    ORVCADBeamEDOInfo::fromJson(&m_run, jsonOf(R"({"nSpanNum": "2A", "nWidth": 300})"));
    ORVCADBeamEDOInfo::fromJson(&m_run, jsonOf(R"({"nSpanNum": 2, "nWidth": "300", "vecSegmentInfo": 3})"));
    expectSameJson(m_run.toJson(), ORVCADBeamEDOInfo().toJson());
    EXPECT_EQ(m_run.nWidth, 0);
}

TEST_F(ORVCADBeamEDOInfoTest, nullSegmentsAreNotWrittenAndANullTargetIsLeftAlone)
{
    m_run.vecSegmentInfo = {nullptr};
    EXPECT_TRUE(m_run.toJson()["vecSegmentInfo"].toArray().isEmpty());
    ORVCADBeamEDOInfo::fromJson(nullptr, jsonOf(kFilled));
}

} // namespace
