#include "beam/BeamModelDataInfo.h"

#include "RecordChecks.h"
#include "beam/BeamEntInfo.h"
#include "beam/LinkBeamEntInfo.h"

#include <QJsonArray>

namespace {

BeamModelDataInfo read(const QByteArray &text)
{
    BeamModelDataInfo beam;
    beam.fromJson(jsonOf(text));
    return beam;
}

template <typename Kind> bool isA(const BeamModelDataInfo &beam)
{
    return dynamic_cast<const Kind *>(beam.elementInfo.get()) != nullptr;
}

TEST(BeamModelDataInfoTest, beamAndFoundationBeamBecomeABeamEntInfo)
{
    EXPECT_TRUE(isA<BeamEntInfo>(read(R"({"ElementInfo": {"ElementType": 15}})")));
    EXPECT_TRUE(isA<BeamEntInfo>(read(R"({"ElementInfo": {"ElementType": 47}})")));
}

TEST(BeamModelDataInfoTest, linkBeamAndEveryOtherTypeBecomeALinkBeamEntInfo)
{
    EXPECT_TRUE(isA<LinkBeamEntInfo>(read(R"({"ElementInfo": {"ElementType": 17}})")));
    EXPECT_TRUE(isA<LinkBeamEntInfo>(read(R"({"ElementInfo": {"ElementType": 18}})")));
    EXPECT_TRUE(isA<LinkBeamEntInfo>(read(R"({"ElementInfo": {"ElementType": -1}})")));
}

TEST(BeamModelDataInfoTest, elementTypeZeroOrMissingGivesAnEmptyLinkBeamEntInfo)
{
    for (const char *text : {R"({"ElementInfo": {"ElementType": 0}})", R"({"ElementInfo": {}})", "{}",
                             R"({"ElementInfo": "text"})", R"({"ElementInfo": {"ElementType": "15"}})"}) {
        const BeamModelDataInfo beam = read(text);
        ASSERT_TRUE(isA<LinkBeamEntInfo>(beam)) << text;
        expectSameJson(beam.elementInfo->toJsonObj(), LinkBeamEntInfo().toJsonObj());
    }
}

TEST(BeamModelDataInfoTest, elementReadsItsOwnFields)
{
    const BeamModelDataInfo beam = read(R"({"ElementInfo": {"ElementType": 47, "Name": "JL1", "Type": 3}})");
    EXPECT_EQ(beam.elementInfo->Name, "JL1");
    EXPECT_EQ(std::static_pointer_cast<BeamEntInfo>(beam.elementInfo)->Type, 3);
    EXPECT_EQ(beam.getElementType(), 47);
}

TEST(BeamModelDataInfoTest, placedBeamsAreReadInArrayOrder)
{
    const BeamModelDataInfo beam =
        read(R"({"EDOInfo": [{"BeamSegmentInfo": [{"Index": 1}]}, {"BeamSegmentInfo": [{"Index": 2}]}]})");
    ASSERT_EQ(beam.edoInfos.size(), 2U);
    EXPECT_EQ(beam.edoInfos[0]->segments[0]->Index, 1);
    EXPECT_EQ(beam.edoInfos[1]->segments[0]->Index, 2);
}

TEST(BeamModelDataInfoTest, secondReadReplacesTheElementAndDoublesThePlacedBeams)
{
    BeamModelDataInfo beam = read(R"({"ElementInfo": {"ElementType": 15, "Name": "KL1"}, "EDOInfo": [{}]})");
    const auto first = beam.elementInfo;
    beam.fromJson(jsonOf(R"({"ElementInfo": {"ElementType": 15}, "EDOInfo": [{}]})"));
    EXPECT_NE(beam.elementInfo, first);
    EXPECT_EQ(beam.elementInfo->Name, "");
    EXPECT_EQ(beam.edoInfos.size(), 2U);
}

TEST(BeamModelDataInfoTest, elementAndPlacedBeamsAreWritten)
{
    const BeamModelDataInfo beam = read(R"({"ElementInfo": {"ElementType": 17, "SideBarAL": "C10"}, "EDOInfo": [{}]})");
    const QJsonObject json = beam.toJsonObj();
    EXPECT_EQ(json.keys(), (QStringList{"EDOInfo", "ElementInfo"}));
    expectSameJson(json["ElementInfo"].toObject(), beam.elementInfo->toJsonObj());
    EXPECT_EQ(json["ElementInfo"].toObject()["SideBarAL"], "C10");
    EXPECT_EQ(json["EDOInfo"].toArray(), QJsonArray{BeamEdoInfo().toJsonObj()});
}

TEST(BeamModelDataInfoTest, recordWithoutAnElementHasType0AndWritesAnEmptyObject)
{
    const BeamModelDataInfo beam;
    EXPECT_EQ(beam.getElementType(), 0);
    expectSameJson(beam.toJsonObj(), jsonOf(R"({"ElementInfo": {}, "EDOInfo": []})"));
}

TEST(BeamModelDataInfoTest, copySharesElementAndPlacedBeams)
{
    BeamModelDataInfo beam = read(R"({"EDOInfo": [{}]})");
    const BeamModelDataInfo copy = beam;
    EXPECT_EQ(copy.elementInfo, beam.elementInfo);
    EXPECT_EQ(copy.edoInfos[0], beam.edoInfos[0]);
}

} // namespace
