#include "beam/ORVCADBeamSegmentInfo.h"

#include "RecordChecks.h"
#include "platform/geometry/CLine2d.h"

namespace {

const QByteArray kFilled = R"({"ipLine": "0,0,6000,0", "dOffset": 50.5,
                               "id": "{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"})";

TEST(ORVCADBeamSegmentInfoTest, eachKeyIsReadAndWritten)
{
    ORVCADBeamSegmentInfo segment;
    ORVCADBeamSegmentInfo::fromJson(&segment, jsonOf(kFilled));
    ASSERT_TRUE(segment.ipLine);
    EXPECT_EQ(segment.ipLine->Length(), 6000.0);
    EXPECT_EQ(segment.dOffset, 50.5);
    EXPECT_EQ(segment.id, QUuid("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"));
    expectSameJson(segment.toJson(), jsonOf(kFilled));
}

TEST(ORVCADBeamSegmentInfoTest, badCurveAndIdReadAsNull)
{
    ORVCADBeamSegmentInfo segment;
    segment.ipLine = new vks::CLine2d({0, 0}, {1, 0});
    ORVCADBeamSegmentInfo::fromJson(&segment, jsonOf(R"({"ipLine": "0,0", "dOffset": "50", "id": "7"})"));
    EXPECT_FALSE(segment.ipLine);
    EXPECT_EQ(segment.dOffset, 0.0);
    EXPECT_TRUE(segment.id.isNull());
}

TEST(ORVCADBeamSegmentInfoTest, copySharesTheCurveAndTheLastOneReleasesIt)
{
    const vks::CRefPtr<vks::CCurve2d> line = new vks::CLine2d({0, 0}, {1, 0});
    {
        ORVCADBeamSegmentInfo segment;
        segment.ipLine = line;
        const ORVCADBeamSegmentInfo copy = segment;
        EXPECT_EQ(copy.ipLine.get(), line.get());
        EXPECT_EQ(line->HolderCount(), 3);
    }
    EXPECT_EQ(line->HolderCount(), 1);
}

TEST(ORVCADBeamSegmentInfoTest, nullTargetIsLeftAlone) { ORVCADBeamSegmentInfo::fromJson(nullptr, jsonOf(kFilled)); }

} // namespace
