#include "beam/ORVBeamSeatInfoModel.h"

#include "RecordChecks.h"
#include "platform/geometry/CLine2d.h"

namespace {

const QByteArray kBox = "Box3d=[(0.00000000000000000000 0.00000000000000000000 0.00000000000000000000),"
                        "(400.00000000000000000000 600.00000000000000000000 3000.00000000000000000000)]";

const QByteArray kFilled = R"({"eLineShapeClass": 1, "seatElementType": 1003, "nElementSubType": 5,
    "bHasWallThicknessProperty": true, "dWallThickness": 200.5, "ipWorldPoly": "0,0;400,0;400,600;0,600;",
    "dOffsetDist": 82, "nEDOID": 77, "bIsAColumn": true, "bIsColumn": true, "bLineShape": true,
    "ipCenterLine": "0,0,1,0", "ipWallLine": "0,0,2,0", "ipSeatLine": "0,0,3,0", "ipWorldLine": "0,0,4,0", "box": ")" +
                           kBox + R"("})";

ORVBeamSeatInfoModel read(const QJsonObject &json)
{
    ORVBeamSeatInfoModel seat;
    ORVBeamSeatInfoModel::fromJson(&seat, json);
    return seat;
}

TEST(ORVBeamSeatInfoModelTest, newRecordHasTheEmptyBoxAndNoWall)
{
    expectSameJson(ORVBeamSeatInfoModel().toJson(), jsonOf(R"({"eLineShapeClass": 0, "seatElementType": 0,
        "nElementSubType": 0, "bHasWallThicknessProperty": false, "dWallThickness": -1, "ipWorldPoly": "",
        "dOffsetDist": 0, "nEDOID": 0, "bIsAColumn": false, "bIsColumn": false, "bLineShape": false,
        "ipCenterLine": "", "ipWallLine": "", "ipSeatLine": "", "ipWorldLine": "",
        "box": "Box3d=[(inf inf inf),(-inf -inf -inf)]"})"));
}

TEST(ORVBeamSeatInfoModelTest, eachKeyIsReadIntoItsField)
{
    const ORVBeamSeatInfoModel seat = read(jsonOf(kFilled));
    EXPECT_EQ(seat.eLineShapeClass, 1);
    EXPECT_EQ(seat.seatElementType, 1003);
    EXPECT_EQ(seat.nElementSubType, 5);
    EXPECT_TRUE(seat.bHasWallThicknessProperty);
    EXPECT_EQ(seat.dWallThickness, 200.5);
    ASSERT_TRUE(seat.ipWorldPoly);
    EXPECT_EQ(seat.ipWorldPoly->Area(), 240000.0);
    EXPECT_EQ(seat.dOffsetDist, 82.0);
    EXPECT_EQ(seat.nEDOID, 77);
    EXPECT_TRUE(seat.bIsAColumn);
    EXPECT_TRUE(seat.bIsColumn);
    EXPECT_TRUE(seat.bLineShape);
    EXPECT_EQ(seat.ipCenterLine->Length(), 1.0);
    EXPECT_EQ(seat.ipWallLine->Length(), 2.0);
    EXPECT_EQ(seat.ipSeatLine->Length(), 3.0);
    EXPECT_EQ(seat.ipWorldLine->Length(), 4.0);
    EXPECT_EQ(seat.box, vks::CBox3<double>({0, 0, 0}, {400, 600, 3000}));
}

TEST(ORVBeamSeatInfoModelTest, eachFieldIsWrittenUnderItsKey)
{
    expectSameJson(read(jsonOf(kFilled)).toJson(), jsonOf(kFilled));
}

TEST(ORVBeamSeatInfoModelTest, missingThicknessReadsAsZeroAndNotAsMinusOne)
{
    EXPECT_EQ(read({}).dWallThickness, 0.0);
    EXPECT_EQ(read({{"dWallThickness", "200"}}).dWallThickness, 0.0);
}

TEST(ORVBeamSeatInfoModelTest, missingAndMistypedKeysGiveZeroFalseAndNull)
{
    QJsonObject zero = ORVBeamSeatInfoModel().toJson();
    zero["dWallThickness"] = 0;
    for (const QJsonObject &json : {QJsonObject(), mistyped(jsonOf(kFilled))}) {
        ORVBeamSeatInfoModel seat = read(jsonOf(kFilled));
        QJsonObject other = json;
        for (const char *flag : {"bHasWallThicknessProperty", "bIsAColumn", "bIsColumn", "bLineShape"})
            if (other.contains(flag))
                other[flag] = 1;
        ORVBeamSeatInfoModel::fromJson(&seat, other);
        expectSameJson(seat.toJson(), zero);
    }
}

TEST(ORVBeamSeatInfoModelTest, badGeometryTextsReadAsNull)
{
    const ORVBeamSeatInfoModel seat =
        read({{"ipWorldPoly", "0,0,100,0"}, {"ipCenterLine", "1,2"}, {"ipWallLine", "LINESTRING(0 0, 1 0)"}});
    EXPECT_FALSE(seat.ipWorldPoly);
    EXPECT_FALSE(seat.ipCenterLine);
    EXPECT_FALSE(seat.ipWallLine);
}

TEST(ORVBeamSeatInfoModelTest, badBoxTextReadsAsTheEmptyBoxWhateverTheRecordHeld)
{
    ORVBeamSeatInfoModel seat = read(jsonOf(kFilled));
    ORVBeamSeatInfoModel::fromJson(&seat, {{"box", "Box3d=[(1 2 3)]"}});
    EXPECT_EQ(seat.box, vks::CBox3<double>());
}

TEST(ORVBeamSeatInfoModelTest, copySharesTheGeometry)
{
    const ORVBeamSeatInfoModel seat = read(jsonOf(kFilled));
    const ORVBeamSeatInfoModel copy = seat; // NOLINT(performance-unnecessary-copy-initialization): tested
    EXPECT_EQ(copy.ipWorldPoly.get(), seat.ipWorldPoly.get());
    EXPECT_EQ(copy.ipCenterLine.get(), seat.ipCenterLine.get());
}

TEST(ORVBeamSeatInfoModelTest, nullTargetIsLeftAlone) { ORVBeamSeatInfoModel::fromJson(nullptr, jsonOf(kFilled)); }

} // namespace
