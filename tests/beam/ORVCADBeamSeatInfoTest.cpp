#include "beam/ORVCADBeamSeatInfo.h"

#include "RecordChecks.h"

namespace {

const QByteArray kFilled = R"({"eSeatIDType": 1, "nSeatID": 12,
                               "nBeamSegmentInfoID": "{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"})";

ORVCADBeamSeatInfo read(const QJsonObject &json)
{
    ORVCADBeamSeatInfo seat;
    ORVCADBeamSeatInfo::fromJson(&seat, json);
    return seat;
}

TEST(ORVCADBeamSeatInfoTest, newSeatIsADrawObjectWithoutAnId)
{
    const ORVCADBeamSeatInfo seat;
    EXPECT_EQ(seat.eSeatIDType, kSeatIsDrawObj);
    EXPECT_EQ(seat.nSeatID, -1);
    EXPECT_TRUE(seat.nBeamSegmentInfoID.isNull());
}

TEST(ORVCADBeamSeatInfoTest, eachKeyIsReadAndWritten)
{
    const ORVCADBeamSeatInfo seat = read(jsonOf(kFilled));
    EXPECT_EQ(seat.eSeatIDType, kSeatIsSegment);
    EXPECT_EQ(seat.nSeatID, 12);
    EXPECT_EQ(seat.nBeamSegmentInfoID, QUuid("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"));
    expectSameJson(seat.toJson(), jsonOf(kFilled));
}

TEST(ORVCADBeamSeatInfoTest, missingIdReadsAsZeroAndNotAsMinusOne)
{
    EXPECT_EQ(read({}).nSeatID, 0);
    EXPECT_EQ(read({{"nSeatID", "12"}}).nSeatID, 0);
}

TEST(ORVCADBeamSeatInfoTest, idAbove32BitsIsWrittenAndReadsBackAsZero)
{
    ORVCADBeamSeatInfo seat;
    seat.nSeatID = 2147483648;
    EXPECT_EQ(seat.toJson()["nSeatID"].toDouble(), 2147483648.0);
    EXPECT_EQ(read(seat.toJson()).nSeatID, 0);
}

TEST(ORVCADBeamSeatInfoTest, badOrMissingSegmentReadsAsTheNullId)
{
    EXPECT_TRUE(read({{"nBeamSegmentInfoID", "segment"}}).nBeamSegmentInfoID.isNull());
    ORVCADBeamSeatInfo seat = read(jsonOf(kFilled));
    ORVCADBeamSeatInfo::fromJson(&seat, {});
    EXPECT_TRUE(seat.nBeamSegmentInfoID.isNull());
    EXPECT_EQ(seat.eSeatIDType, kSeatIsDrawObj);
}

TEST(ORVCADBeamSeatInfoTest, nullTargetIsLeftAlone) { ORVCADBeamSeatInfo::fromJson(nullptr, jsonOf(kFilled)); }

} // namespace
