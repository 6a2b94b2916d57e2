#include "beam/ORVBeamSDCSeatInfoModel.h"

#include "RecordChecks.h"
#include "platform/geometry/CLine2d.h"

namespace {

const QByteArray kFilled = R"seat({"ElementType": 18, "ElementSubType": 70,
    "WorldPoly": "POLYGON((0 0, 400.123456789 0, 400.123456789 600, 0 600, 0 0))",
    "CenterLine": "LINESTRING(0 0, 6000.125 0)", "FloorName": "Level 1", "RegionName": "House", "EntName": "LL1",
    "Type": "2", "SectionPoly": "POLYGON((0 0, 50 0, 50 60, 0 0))", "SectionWidth": 300, "SectinoHeight": 600,
    "TopElev": "1", "BtmElev": "2", "Height": 2900, "AxisOffset": 12.5, "Mirror": true, "Angle": 0.5,
    "EDOTopElev": "3", "EDOBtmElev": "4"})seat";

ORVBeamSDCSeatInfoModel read(const QJsonObject &json)
{
    ORVBeamSDCSeatInfoModel seat;
    seat.fromJson(json);
    return seat;
}

TEST(ORVBeamSDCSeatInfoModelTest, newRecordIsEmpty)
{
    const ORVBeamSDCSeatInfoModel seat;
    EXPECT_EQ(seat.dWallThickness, -1.0);
    EXPECT_EQ(seat.box, vks::CBox3<double>());
    expectSameJson(seat.toJson(), jsonOf(R"({"ElementType": 0, "ElementSubType": 0, "WorldPoly": "", "CenterLine": "",
        "FloorName": "", "RegionName": "", "EntName": "", "Type": "", "SectionPoly": "", "SectionWidth": 0,
        "SectinoHeight": 0, "TopElev": "", "BtmElev": "", "Height": 0, "AxisOffset": 0, "Mirror": false, "Angle": 0,
        "EDOTopElev": "", "EDOBtmElev": ""})"));
}

TEST(ORVBeamSDCSeatInfoModelTest, eachKeyIsReadIntoItsField)
{
    const ORVBeamSDCSeatInfoModel seat = read(jsonOf(kFilled));
    EXPECT_EQ(seat.seatElementType, 18);
    EXPECT_EQ(seat.nElementSubType, 70);
    ASSERT_TRUE(seat.ipWorldPoly && seat.ipCenterLine && seat.SectionPoly);
    EXPECT_EQ(seat.ipWorldPoly->Box().Width(), 400.123456789);
    EXPECT_EQ(seat.ipCenterLine->Length(), 6000.125);
    EXPECT_EQ(seat.SectionPoly->Area(), 1500.0);
    EXPECT_EQ(seat.FloorName, "Level 1");
    EXPECT_EQ(seat.RegionName, "House");
    EXPECT_EQ(seat.EntName, "LL1");
    EXPECT_EQ(seat.Type, "2");
    EXPECT_EQ(seat.SectionWidth, 300);
    EXPECT_EQ(seat.SectionHeight, 600);
    EXPECT_EQ(seat.TopElev, "1");
    EXPECT_EQ(seat.BtmElev, "2");
    EXPECT_EQ(seat.Height, 2900.0);
    EXPECT_EQ(seat.AxisOffset, 12.5);
    EXPECT_TRUE(seat.Mirror);
    EXPECT_EQ(seat.Angle, 0.5);
    EXPECT_EQ(seat.EDOTopElev, "3");
    EXPECT_EQ(seat.EDOBtmElev, "4");
}

TEST(ORVBeamSDCSeatInfoModelTest, eachFieldIsWrittenUnderItsKeyWithExactGeometry)
{
    expectSameJson(read(jsonOf(kFilled)).toJson(), jsonOf(kFilled));
}

TEST(ORVBeamSDCSeatInfoModelTest, sectinoHeightIsTheOnlyKeyOfTheHeight)
{
    EXPECT_EQ(read({{"SectionHeight", 600}}).SectionHeight, 0);
    EXPECT_EQ(read({{"SectinoHeight", 600}}).SectionHeight, 600);
    EXPECT_FALSE(ORVBeamSDCSeatInfoModel().toJson().contains("SectionHeight"));
}

TEST(ORVBeamSDCSeatInfoModelTest, heightWithAFractionIsWrittenAndReadsBackAsZero)
{
    ORVBeamSDCSeatInfoModel seat;
    seat.Height = 2900.5;
    EXPECT_EQ(seat.toJson()["Height"].toDouble(), 2900.5);
    EXPECT_EQ(read(seat.toJson()).Height, 0.0);
}

TEST(ORVBeamSDCSeatInfoModelTest, emptyAndBadGeometryTextsReadAsNull)
{
    for (const char *text : {"", "0,0;400,0;400,600;", "LINESTRING(0 0", "POINT(1 2)"}) {
        ORVBeamSDCSeatInfoModel seat = read(jsonOf(kFilled));
        seat.fromJson({{"WorldPoly", text}, {"SectionPoly", text}, {"CenterLine", text}});
        EXPECT_FALSE(seat.ipWorldPoly || seat.SectionPoly || seat.ipCenterLine) << text;
    }
}

TEST(ORVBeamSDCSeatInfoModelTest, missingAndMistypedKeysGiveZeroFalseAndEmptyText)
{
    QJsonObject wrong = mistyped(jsonOf(kFilled));
    wrong["Mirror"] = 1;
    for (const QJsonObject &json : {QJsonObject(), wrong}) {
        ORVBeamSDCSeatInfoModel seat = read(jsonOf(kFilled));
        seat.fromJson(json);
        expectSameJson(seat.toJson(), ORVBeamSDCSeatInfoModel().toJson());
    }
}

TEST(ORVBeamSDCSeatInfoModelTest, membersWithoutAKeyKeepTheirValuesAndAreNotWritten)
{
    ORVBeamSDCSeatInfoModel seat;
    seat.eLineShapeClass = 1;
    seat.bHasWallThicknessProperty = true;
    seat.dWallThickness = 200.0;
    seat.dOffsetDist = 82.0;
    seat.nEDOID = 77;
    seat.bIsAColumn = true;
    seat.bIsColumn = true;
    seat.bLineShape = true;
    seat.ipWallLine = new vks::CLine2d({0, 0}, {1, 0});
    seat.ipSeatLine = seat.ipWallLine;
    seat.ipWorldLine = seat.ipWallLine;
    seat.box = {{0, 0, 0}, {1, 1, 1}};
    EXPECT_EQ(seat.toJson().size(), 19);
    seat.fromJson(jsonOf(kFilled));
    EXPECT_EQ(seat.eLineShapeClass, 1);
    EXPECT_EQ(seat.dWallThickness, 200.0);
    EXPECT_EQ(seat.dOffsetDist, 82.0);
    EXPECT_EQ(seat.nEDOID, 77);
    EXPECT_TRUE(seat.bHasWallThicknessProperty && seat.bIsAColumn && seat.bIsColumn && seat.bLineShape);
    EXPECT_TRUE(seat.ipWallLine && seat.ipSeatLine && seat.ipWorldLine);
    EXPECT_EQ(seat.box, vks::CBox3<double>({0, 0, 0}, {1, 1, 1}));
}

} // namespace
