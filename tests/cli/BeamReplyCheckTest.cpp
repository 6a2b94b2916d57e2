#include "cli/BeamReplyCheck.h"

#include "BeamReplies.h"
#include "CommandFailures.h"
#include "JsonTexts.h"
#include "embedded/ExchangeDocuments.h"
#include "platform/host/IHBXService.h"

using namespace clitest;
using namespace orvcad;

namespace {

class BeamReplyCheckTest : public ::testing::Test
{
protected:
    BeamReplyCheck check(const QJsonObject &reply) const
    {
        return BeamReplyCheck(*m_house->service()->model(), reply, "reply.json");
    }
    /** "place: reason" of each member left out of such an array. */
    std::string leftOut(const QJsonArray &beams, const QString &key = "Beam") const
    {
        return textOf(check({{key, beams}}).leftOut());
    }
    std::string leftOutElement(const QJsonObject &elementInfo) const { return leftOut({beam(elementInfo, {})}); }
    std::string leftOutChain(const QJsonValue &chainValue) const { return leftOut({beam(element(), {chainValue})}); }
    std::string leftOutSegment(const QJsonValue &segmentValue) const
    {
        return leftOutChain(chain({segment(0), segmentValue}));
    }

private:
    std::unique_ptr<hbx::embedded::HBXProject> m_house = exchangetest::projectOf(exchangetest::kSmallBuilding);
};

TEST_F(BeamReplyCheckTest, soundBeamsGoOnArrayByArrayInTheOrderOfTheReply)
{
    const auto named = [](const char *name, int type) { return beam(with(element(type), "Name", name), {}); };
    const BeamReplyCheck reply = check(
        {{"FDBeam", QJsonArray{named("JL-1", 47)}}, {"Beam", QJsonArray{named("KL-2", 15), 4, named("KL-1", 15)}}});
    EXPECT_EQ(reply.memberCount(), 4);
    ASSERT_EQ(reply.sound().size(), 3U);
    EXPECT_EQ(reply.sound()[0].place, "Beam[0]");
    EXPECT_EQ(reply.sound()[0].beam->elementInfo->Name, "KL-2");
    EXPECT_EQ(reply.sound()[1].place, "Beam[2]");
    EXPECT_EQ(reply.sound()[2].place, "FDBeam[0]");
    EXPECT_EQ(textOf(reply.leftOut()), "Beam[1]: is no object");
}

TEST_F(BeamReplyCheckTest, beamGoesOnWithoutTheChainsThatAreLeftOut)
{
    const BeamReplyCheck reply =
        check({{"Beam", QJsonArray{beam(element(), {chain({segment(0)}), 7, chain({segment(1), segment(2)})})}}});
    ASSERT_EQ(reply.sound().size(), 1U);
    EXPECT_EQ(reply.sound()[0].chains, (std::vector<int>{0, 2}));
    ASSERT_EQ(reply.sound()[0].beam->edoInfos.size(), 2U);
    EXPECT_EQ(reply.sound()[0].beam->edoInfos[1]->segments.size(), 2U);
    EXPECT_EQ(textOf(reply.leftOut()), "Beam[0].EDOInfo[1]: is no object");
    EXPECT_EQ(reply.leftOut()[0].name, "KL-1");
}

TEST_F(BeamReplyCheckTest, documentThatIsNoReplyIsRefused)
{
    EXPECT_EQ(failureOf([&] { check({}); }),
              "reply.json: has none of the keys \"Beam\", \"LinkBeam\" and \"FDBeam\": no reply of beams");
    EXPECT_EQ(failureOf([&] { check({{"LinkBeam", QJsonObject()}}); }), "reply.json: LinkBeam: is no array");
}

TEST_F(BeamReplyCheckTest, beamsThatCannotBeUsedAreLeftOut)
{
    EXPECT_EQ(leftOut({17}), "Beam[0]: is no object");
    EXPECT_EQ(leftOut({QJsonObject{{"EDOInfo", QJsonArray()}}}), "Beam[0]: ElementInfo is no object");
    EXPECT_EQ(leftOut({QJsonObject{{"ElementInfo", element()}, {"EDOInfo", 4}}}), "Beam[0]: EDOInfo is no array");
    EXPECT_EQ(leftOutElement(with(element(), "Name", "")), "Beam[0]: has no name");
    EXPECT_EQ(leftOutElement(without(element(), "Name")), "Beam[0]: Name is missing");
    EXPECT_EQ(leftOutElement(with(element(), "HoopBar", 8)), "Beam[0]: HoopBar is not text");
    EXPECT_EQ(leftOutElement(with(element(), "AxisOffset", "25")), "Beam[0]: AxisOffset is not a number");
    EXPECT_EQ(leftOutElement(with(element(), "ElementSubType", 3.5)),
              "Beam[0]: ElementSubType is not a whole number of 32 bits");
    EXPECT_EQ(leftOutElement(with(element(), "RegionName", "Barn")), "Beam[0]: unknown region \"Barn\"");
    EXPECT_EQ(leftOutElement(with(element(), "FloorName", "1")),
              "Beam[0]: unknown floor \"1\" in region \"House\""); // a code is no name
}

TEST_F(BeamReplyCheckTest, beamOfAnotherTypeThanItsArrayIsLeftOut)
{
    EXPECT_EQ(leftOutElement(element(17)), "Beam[0]: a beam of type 17 belongs into \"LinkBeam\"");
    EXPECT_EQ(leftOutElement(element(25)), "Beam[0]: type 25 is no beam (15, 17, 47)");
    EXPECT_EQ(leftOut({beam(element(17), {})}, "LinkBeam"), "");
    EXPECT_EQ(leftOut({beam(element(47), {})}, "FDBeam"), "");
}

TEST_F(BeamReplyCheckTest, sizeThatTheHostWouldGetAsZeroIsLeftOut)
{
    EXPECT_EQ(leftOutElement(with(element(), "SectionWidth", 300.5)),
              "Beam[0]: SectionWidth is not a whole number of millimetres");
    EXPECT_EQ(leftOutElement(with(element(), "SectionHeight", 1500000)),
              "Beam[0]: SectionHeight is not a whole number of millimetres");
    EXPECT_EQ(leftOutElement(without(element(), "SectionWidth")),
              "Beam[0]: SectionWidth is not a whole number of millimetres");
}

TEST_F(BeamReplyCheckTest, sizeBelowZeroIsLeftOut)
{
    EXPECT_EQ(leftOutElement(with(element(), "SectionHeight", -600)), "Beam[0]: SectionHeight is below 0");
    EXPECT_EQ(leftOutSegment(with(segment(1), "LineWidth", -300)),
              "Beam[0].EDOInfo[0]: BeamSegmentInfo[1]: LineWidth is below 0");
}

TEST_F(BeamReplyCheckTest, widthThatIsRoundedIsToldAndTheChainGoesOn)
{
    EXPECT_EQ(leftOutSegment(with(segment(1), "LineWidth", 250.5)),
              "Beam[0].EDOInfo[0].BeamSegmentInfo[1]: LineWidth 250.5 is written as a whole number of millimetres");
    EXPECT_EQ(check({{"Beam", QJsonArray{beam(element(), {chain({with(segment(0), "LineWidth", 250.5)})})}}})
                  .sound()[0]
                  .chains.size(),
              1U);
}

TEST_F(BeamReplyCheckTest, supportsOfASpanThatAreNoFourNumbersAreTold)
{
    const auto spanOf = [](const char *supports) {
        return with(chain({segment(0)}), "BeamSpanInfo", QJsonArray{QJsonObject{{"SpanA1_A4", supports}}});
    };
    EXPECT_EQ(leftOutChain(spanOf("250,250,-60,60.5")), "");
    EXPECT_EQ(leftOutChain(spanOf("")), "");
    for (const char *wrong : {"nan", "250,250,250", "1,2,3,x", "1,2,3,inf"})
        EXPECT_EQ(leftOutChain(spanOf(wrong)),
                  "Beam[0].EDOInfo[0].BeamSpanInfo[0]: SpanA1_A4 is not four numbers, and is read as such");
}

TEST_F(BeamReplyCheckTest, keysThatNothingReadsAreToldAtEachLevel)
{
    const QJsonObject spans = with(chain({with(segment(0), "Linewidth", 1)}), "Spans", QJsonArray());
    const BeamReplyCheck reply = check(
        {{"Beam", QJsonArray{with(beam(with(element(), "SpanCounts", "1"), {spans}), "Remark", "")}}, {"Beams", 4}});
    EXPECT_EQ(
        textOf(reply.leftOut()),
        "Beam[0].Remark: is no key of this record, and not read\n"
        "Beam[0].ElementInfo.SpanCounts: is no key of this record, and not read: SpanCount is one\n"
        "Beam[0].EDOInfo[0].Spans: is no key of this record, and not read\n"
        "Beam[0].EDOInfo[0].BeamSegmentInfo[0].Linewidth: is no key of this record, and not read: LineWidth is one\n"
        "Beams: is no key of this record, and not read: Beam is one");
    EXPECT_EQ(reply.sound().size(), 1U);
}

TEST_F(BeamReplyCheckTest, beamsOfOneNameWithOtherValuesAreTold)
{
    const QJsonObject wide = with(element(), "SectionWidth", 400);
    const QJsonObject elsewhere = with(element(), "StartTopElev", "2.5"); // never written
    EXPECT_EQ(leftOut({beam(element(), {}), beam(elsewhere, {})}), "");
    EXPECT_EQ(leftOut({beam(element(), {}), beam(wide, {})}),
              "Beam[0]: has the name of Beam[1], whose values take the place of its own");
    EXPECT_EQ(leftOut({beam(element(), {}), beam(with(wide, "Name", "KL-2"), {})}), "");
}

TEST_F(BeamReplyCheckTest, outlineThatWouldLoseItsLastCornerIsLeftOut)
{
    const QJsonObject odd = with(element(), "ElementSubType", 11);
    EXPECT_EQ(leftOutElement(with(odd, "SectionPoly", "0,0;300,0;300,600;0,600")),
              "Beam[0]: SectionPoly does not end in \";\", and its last corner would be lost");
}

TEST_F(BeamReplyCheckTest, outlineIsForItsSubTypesAlone)
{
    const QJsonObject outlined = with(element(), "SectionPoly", "0,0;300,0;300,600;0,600;");
    EXPECT_EQ(leftOutElement(outlined), "Beam[0]: a beam of sub-type 3 has no outline, and SectionPoly is one");
    EXPECT_EQ(leftOutElement(with(outlined, "ElementSubType", 11)), "");
    EXPECT_EQ(leftOutElement(with(outlined, "ElementSubType", 12)), ""); // made as 11
    EXPECT_EQ(leftOutElement(with(with(outlined, "ElementSubType", 11), "SectionPoly", "a box")),
              "Beam[0]: SectionPoly is no outline");
}

TEST_F(BeamReplyCheckTest, chainsThatCannotBeUsedAreLeftOut)
{
    EXPECT_EQ(leftOutChain(3), "Beam[0].EDOInfo[0]: is no object");
    EXPECT_EQ(leftOutChain(chain({})), "Beam[0].EDOInfo[0]: has no segment");
    EXPECT_EQ(leftOutChain(QJsonObject{{"BeamSegmentInfo", "none"}}),
              "Beam[0].EDOInfo[0]: BeamSegmentInfo is no array");
    EXPECT_EQ(leftOutChain(with(chain({segment(0)}), "BeamSpanInfo", QJsonArray{QJsonObject{{"Section", 4}}})),
              "Beam[0].EDOInfo[0]: BeamSpanInfo[0]: Section is not text");
    const std::string place = "Beam[0].EDOInfo[0]: BeamSegmentInfo[1]: ";
    EXPECT_EQ(leftOutSegment("x"), place + "is no object");
    EXPECT_EQ(leftOutSegment(without(segment(1), "LineWidth")), place + "LineWidth is missing");
    EXPECT_EQ(leftOutSegment(with(segment(1), "Index", "1")), place + "Index is not a number");
    EXPECT_EQ(leftOutSegment(with(segment(1), "WordLine", "from here to there")), place + "WordLine is no curve");
    EXPECT_EQ(leftOutSegment(with(segment(1), "WordLine", "5,5,5,5")), place + "WordLine has no length");
    EXPECT_EQ(leftOutSegment(with(segment(1), "WordLine", "")), "");
}

} // namespace
