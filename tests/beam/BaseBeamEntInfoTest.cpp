#include "beam/BaseBeamEntInfo.h"

#include "RecordChecks.h"

#include <limits>

namespace {

const QByteArray kFilled = R"({
    "Name": "KL1", "ElementType": 15, "ElementSubType": 12, "SectionWidth": 300.5, "SectionHeight": 600,
    "SectionPoly": "0,0;300,0;300,600;", "StartTopElev": "3.000", "EndTopElev": "3.050", "FloorName": "Level 1",
    "RegionName": "House", "HoopBar": "A8@100/200", "LimbCount": "4", "TieBar": "A6", "AxisOffset": -50
})";

TEST(BaseBeamEntInfoTest, newRecordIsEmpty)
{
    expectSameJson(BaseBeamEntInfo().toJsonObj(), jsonOf(R"({
        "Name": "", "ElementType": 0, "ElementSubType": 0, "SectionWidth": 0, "SectionHeight": 0, "SectionPoly": "",
        "StartTopElev": "", "EndTopElev": "", "FloorName": "", "RegionName": "", "HoopBar": "", "LimbCount": "",
        "TieBar": "", "AxisOffset": 0})"));
}

TEST(BaseBeamEntInfoTest, eachKeyIsReadIntoItsField)
{
    BaseBeamEntInfo beam;
    beam.fromJson(jsonOf(kFilled));
    EXPECT_EQ(beam.Name, "KL1");
    EXPECT_EQ(beam.ElementType, 15);
    EXPECT_EQ(beam.ElementSubType, 12);
    EXPECT_EQ(beam.SectionWidth, 300.5);
    EXPECT_EQ(beam.SectionHeight, 600.0);
    EXPECT_EQ(beam.SectionPoly, "0,0;300,0;300,600;");
    EXPECT_EQ(beam.StartTopElev, "3.000");
    EXPECT_EQ(beam.EndTopElev, "3.050");
    EXPECT_EQ(beam.FloorName, "Level 1");
    EXPECT_EQ(beam.RegionName, "House");
    EXPECT_EQ(beam.HoopBar, "A8@100/200");
    EXPECT_EQ(beam.LimbCount, "4");
    EXPECT_EQ(beam.TieBar, "A6");
    EXPECT_EQ(beam.AxisOffset, -50.0);
}

TEST(BaseBeamEntInfoTest, eachFieldIsWrittenUnderItsKey)
{
    BaseBeamEntInfo beam;
    beam.fromJson(jsonOf(kFilled));
    expectSameJson(beam.toJsonObj(), jsonOf(kFilled));
}

TEST(BaseBeamEntInfoTest, missingKeysOverwriteWithZeroAndEmptyText)
{
    BaseBeamEntInfo beam;
    beam.fromJson(jsonOf(kFilled));
    beam.fromJson({});
    expectSameJson(beam.toJsonObj(), BaseBeamEntInfo().toJsonObj());
}

TEST(BaseBeamEntInfoTest, mistypedValuesOverwriteWithZeroAndEmptyText)
{
    BaseBeamEntInfo beam;
    beam.fromJson(jsonOf(kFilled));
    beam.fromJson(mistyped(jsonOf(kFilled)));
    expectSameJson(beam.toJsonObj(), BaseBeamEntInfo().toJsonObj());
}

TEST(BaseBeamEntInfoTest, sectionWidthGivenAsTextReadsAsZero)
{
    BaseBeamEntInfo beam;
    beam.fromJson({{"SectionWidth", "300"}});
    EXPECT_EQ(beam.SectionWidth, 0.0);
}

TEST(BaseBeamEntInfoTest, elementTypeIsWrittenWith64BitsAndReadWith32)
{
    BaseBeamEntInfo beam;
    beam.ElementType = 5000000000;
    beam.ElementSubType = -5000000000;
    const QJsonObject json = beam.toJsonObj();
    EXPECT_EQ(json["ElementType"].toDouble(), 5e9);
    EXPECT_EQ(json["ElementSubType"].toDouble(), -5e9);
    BaseBeamEntInfo read;
    read.fromJson(json);
    EXPECT_EQ(read.ElementType, 0);
    EXPECT_EQ(read.ElementSubType, 0);
}

TEST(BaseBeamEntInfoTest, elementTypeWithAFractionReadsAsZero)
{
    BaseBeamEntInfo beam;
    beam.fromJson({{"ElementType", 15.5}});
    EXPECT_EQ(beam.ElementType, 0);
}

} // namespace
