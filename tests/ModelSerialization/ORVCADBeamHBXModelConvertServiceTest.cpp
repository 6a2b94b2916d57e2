#include "ModelSerialization/ORVCADBeamHBXModelConvertService.h"

#include "ModelSerialization/ReconstructionFixture.h"
#include "beam/SeatHost.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

using Beams = ORVCADBeamHBXModelConvertService::Beams;
using testing::IsEmpty;

/** A draw object in a chain that a test puts together. */
class Link : public seathost::DrawObj
{
public:
    Link()
    {
        placed = &line;
        own.values = {{"AxisOffset", 12.5}, {"StartPtTopElev", "3.5"}, {"EndPtTopElev", "3.25"}};
    }
    seathost::LineSolid line;
    Link *head = this;
    Link *next = nullptr;
    bool isWithoutShape = false; ///< asking for it throws

    IHBXElementDrawObj *chainHead() override { return head; }
    IHBXElementDrawObj *nextInChain() override { return next; }
    IHBXShape *shape() override { return isWithoutShape ? throw std::runtime_error("no shape") : placed; }
};

class BeamElement : public seathost::Element
{
public:
    explicit BeamElement(qint64 type)
    {
        number = type;
        label = "KL1";
        inRegion = &house;
        onFloor = &level;
        own.values = {{"SectionWidth", 300},
                      {"SectionHeight", 600},
                      {"StartPtTopElev", "1.5"},
                      {"EndPtTopElev", "1.25"},
                      {"HoopBar", "A8"},
                      {"Limb", "2"},
                      {"TieBar", "A6"},
                      {"AxisOffset", 25.5},
                      {"AxisOffset_JZBZ", 30.5},
                      {"SpanCount", "2A"},
                      {"TopThroughBar", "2C25"},
                      {"BottomThroughBar", "4C22"},
                      {"SideBar", "4C12"},
                      {"Type1", 5},
                      {"Type", 6},
                      {"TopHoriBar", "3C20"},
                      {"BottomHoriBar", "3C18"},
                      {"SideBarAL", "C10@200"}};
    }
    qint64 subType() const override { return 134; }
    void drawObjs(QList<IHBXElementDrawObj *> &out, int mode) override
    {
        EXPECT_EQ(mode, 0);
        out = objects;
    }

    seathost::Region house;
    seathost::Floor level;
    QList<IHBXElementDrawObj *> objects;
};

std::shared_ptr<BeamModelDataInfo> convert(BeamElement &element)
{
    const Beams beams = ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel({&element});
    return beams.size() == 1 ? beams[0] : nullptr;
}

const QStringList kAskedOfAll{"int SectionWidth",    "int SectionHeight",
                              "has SectionPoly",     "text StartPtTopElev",
                              "text EndPtTopElev",   "has HoopBar",
                              "text HoopBar",        "has Limb",
                              "text Limb",           "has TieBar",
                              "text TieBar",         "double AxisOffset",
                              "has AxisOffset_JZBZ", "double AxisOffset_JZBZ"};
const QStringList kAskedOfSpanned{"text SpanCount", "text TopThroughBar", "text BottomThroughBar", "text SideBar"};

TEST(ORVCADBeamHBXModelConvertServiceTest, beamReadsTypeOneInOrderOfTheTable)
{
    BeamElement element(15);
    const auto beam = convert(element);
    EXPECT_EQ(element.own.asked, kAskedOfAll + kAskedOfSpanned + QStringList{"int Type1"});
    const auto *ent = dynamic_cast<BeamEntInfo *>(beam->elementInfo.get());
    ASSERT_TRUE(ent);
    EXPECT_EQ(ent->Name, "KL1");
    EXPECT_EQ(ent->FloorName, "Level 1");
    EXPECT_EQ(ent->RegionName, "House");
    EXPECT_EQ(ent->ElementType, 15);
    EXPECT_EQ(ent->ElementSubType, 134);
    EXPECT_EQ(ent->SectionWidth, 300);
    EXPECT_EQ(ent->SectionHeight, 600);
    EXPECT_EQ(ent->SectionPoly, "");
    EXPECT_EQ(ent->StartTopElev, "1.5");
    EXPECT_EQ(ent->EndTopElev, "1.25");
    EXPECT_EQ(ent->HoopBar, "A8");
    EXPECT_EQ(ent->LimbCount, "2");
    EXPECT_EQ(ent->TieBar, "A6");
    EXPECT_EQ(ent->AxisOffset, 30.5);
    EXPECT_EQ(ent->SpanCount, "2A");
    EXPECT_EQ(ent->TopThroughBar, "2C25");
    EXPECT_EQ(ent->BottomThroughBar, "4C22");
    EXPECT_EQ(ent->SideBar, "4C12");
    EXPECT_EQ(ent->Type, 5);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, foundationBeamReadsType)
{
    BeamElement element(47);
    const auto beam = convert(element);
    EXPECT_EQ(element.own.asked, kAskedOfAll + kAskedOfSpanned + QStringList{"int Type"});
    const auto *ent = dynamic_cast<BeamEntInfo *>(beam->elementInfo.get());
    ASSERT_TRUE(ent);
    EXPECT_EQ(ent->Type, 6);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, linkBeamReadsNoType)
{
    BeamElement element(17);
    const auto beam = convert(element);
    EXPECT_EQ(element.own.asked,
              kAskedOfAll + QStringList({"text TopHoriBar", "text BottomHoriBar", "text SideBarAL"}));
    const auto *ent = dynamic_cast<LinkBeamEntInfo *>(beam->elementInfo.get());
    ASSERT_TRUE(ent);
    EXPECT_EQ(ent->ElementType, 17);
    EXPECT_EQ(ent->TopHoribar, "3C20");
    EXPECT_EQ(ent->BottomHoriBar, "3C18");
    EXPECT_EQ(ent->SideBarAL, "C10@200");
}

TEST(ORVCADBeamHBXModelConvertServiceTest, elementOfAnotherTypeIsALinkBeamRecordWithWhatThatHas)
{
    BeamElement element(18);
    const auto beam = convert(element);
    ASSERT_TRUE(dynamic_cast<LinkBeamEntInfo *>(beam->elementInfo.get()));
    EXPECT_EQ(beam->elementInfo->ElementType, 18);
    EXPECT_EQ(element.own.asked, kAskedOfAll);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, somePropertiesAreReadOnlyWhereTheyAre)
{
    BeamElement element(15);
    for (const char *name : {"HoopBar", "Limb", "TieBar", "AxisOffset_JZBZ"})
        element.own.values.remove(name);
    const auto beam = convert(element);
    for (const char *name : {"HoopBar", "Limb", "TieBar"})
        EXPECT_FALSE(element.own.asked.contains(QString("text ") + name)) << name;
    EXPECT_FALSE(element.own.asked.contains("double AxisOffset_JZBZ"));
    EXPECT_EQ(beam->elementInfo->AxisOffset, 25.5);
    EXPECT_EQ(beam->elementInfo->HoopBar, "");
}

TEST(ORVCADBeamHBXModelConvertServiceTest, outlineIsWrittenInTheShortForm)
{
    BeamElement element(15);
    element.own.polygons.insert("SectionPoly", seathost::rectangle(0, 0, 400, 300));
    EXPECT_EQ(convert(element)->elementInfo->SectionPoly, "0,0;400,0;400,300;0,300;");
    element.own.polygons["SectionPoly"] = nullptr;
    EXPECT_EQ(convert(element)->elementInfo->SectionPoly, "");
}

TEST(ORVCADBeamHBXModelConvertServiceTest, sizesAreReadAsWholeNumbers)
{
    BeamElement element(15);
    element.own.values["SectionWidth"] = 2147483647;
    EXPECT_EQ(convert(element)->elementInfo->SectionWidth, 2147483647.0);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, exceptionEndsTheReadingOfAnElementAndKeepsWhatWasRead)
{
    BeamElement element(15);
    Link link;
    element.objects = {&link};
    element.own.failing = "Limb";
    const auto beam = convert(element);
    EXPECT_EQ(beam->elementInfo->HoopBar, "A8");
    EXPECT_EQ(beam->elementInfo->LimbCount, "");
    EXPECT_EQ(beam->elementInfo->AxisOffset, 0.0);
    EXPECT_EQ(beam->edoInfos.size(), 1U); // its draw objects are read all the same
}

TEST(ORVCADBeamHBXModelConvertServiceTest, elementWithoutFloorOrRegionIsReadWithoutTheirNames)
{
    BeamElement element(15);
    element.onFloor = nullptr;
    element.inRegion = nullptr;
    const auto beam = convert(element);
    EXPECT_EQ(beam->elementInfo->FloorName, "");
    EXPECT_EQ(beam->elementInfo->Name, "KL1");
}

TEST(ORVCADBeamHBXModelConvertServiceTest, linksOfOneChainAreOnePlacedBeamNumberedFromZero)
{
    BeamElement element(15);
    Link first;
    Link second;
    second.head = &first;
    first.next = &second;
    second.line.world = new vks::CLine2d({3000, 0}, {4000, 0});
    element.objects = {&second, &first};
    const auto beam = convert(element);
    ASSERT_EQ(beam->edoInfos.size(), 1U);
    const auto &segments = beam->edoInfos[0]->segments;
    ASSERT_EQ(segments.size(), 2U);
    EXPECT_EQ(segments[0]->Index, 0);
    EXPECT_EQ(segments[0]->WordLine, "0,0,3000,0");
    EXPECT_EQ(segments[1]->Index, 1);
    EXPECT_EQ(segments[1]->WordLine, "3000,0,4000,0");
}

TEST(ORVCADBeamHBXModelConvertServiceTest, segmentIsReadFromShapeAndPropertiesInOrder)
{
    BeamElement element(15);
    Link link;
    element.objects = {&link};
    const auto beam = convert(element);
    const BeamSegmentInfo &segment = *beam->edoInfos[0]->segments[0];
    EXPECT_EQ(segment.LineWidth, 200);
    EXPECT_EQ(segment.AxisOffset, 12.5);
    EXPECT_EQ(segment.StartPtTopElev, "3.5");
    EXPECT_EQ(segment.EndPtTopElev, "3.25");
    EXPECT_EQ(link.own.asked.mid(link.own.asked.size() - 4),
              (QStringList{"double AxisOffset", "has AxisOffset_JZBZ", "text StartPtTopElev", "text EndPtTopElev"}));
    link.own.values["AxisOffset_JZBZ"] = 40.5;
    EXPECT_EQ(convert(element)->edoInfos[0]->segments[0]->AxisOffset, 40.5);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, drawObjectWithoutAHeadGivesNoPlacedBeam)
{
    BeamElement element(15);
    Link link;
    link.head = nullptr;
    element.objects = {&link, nullptr};
    EXPECT_THAT(convert(element)->edoInfos, IsEmpty());
}

TEST(ORVCADBeamHBXModelConvertServiceTest, shapeThatIsNoLineSolidLeavesTheAxisEmptyAndTheRestIsRead)
{
    BeamElement element(15);
    Link link;
    seathost::PointSolid point;
    link.placed = &point;
    element.objects = {&link};
    const BeamSegmentInfo segment = *convert(element)->edoInfos[0]->segments[0];
    EXPECT_EQ(segment.WordLine, "");
    EXPECT_EQ(segment.LineWidth, 0.0);
    EXPECT_EQ(segment.EndPtTopElev, "3.25");
}

TEST(ORVCADBeamHBXModelConvertServiceTest, beamWithoutASpanSetHasSegmentsAndNoSpans)
{
    BeamElement element(15);
    Link link;
    seathost::PointSolid point; // nothing that could be cut
    link.placed = &point;
    element.objects = {&link};
    const auto beam = convert(element);
    EXPECT_THAT(beam->edoInfos[0]->spans, IsEmpty());
    EXPECT_EQ(beam->edoInfos[0]->segments.size(), 1U);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, exceptionEndsTheReadingOfASegmentAndKeepsWhatWasRead)
{
    BeamElement element(15);
    Link first;
    Link second;
    second.head = &first;
    first.next = &second;
    second.own.failing = "StartPtTopElev";
    second.line.own = nullptr;
    element.objects = {&first, &second};
    first.line.world = nullptr; // the chain is not cut then, which would ask for elevations, too
    second.line.world = nullptr;
    const auto beam = convert(element);
    const BeamSegmentInfo &segment = *beam->edoInfos[0]->segments[1];
    EXPECT_EQ(segment.Index, 1);
    EXPECT_EQ(segment.AxisOffset, 12.5);
    EXPECT_EQ(segment.StartPtTopElev, "");
    EXPECT_EQ(segment.EndPtTopElev, "");
}

TEST(ORVCADBeamHBXModelConvertServiceTest, exceptionOfAShapeGoesOnToTheCaller)
{
    BeamElement element(15);
    Link link;
    link.isWithoutShape = true;
    element.objects = {&link};
    EXPECT_THROW(convert(element), std::runtime_error);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, chainThatTheHostClosesToARingIsReadOnce)
{
    BeamElement element(15);
    Link first;
    Link second;
    second.head = &first;
    first.next = &second;
    second.next = &first;
    element.objects = {&first};
    EXPECT_EQ(convert(element)->edoInfos[0]->segments.size(), 2U);
}

TEST(ORVCADBeamHBXModelConvertServiceTest, elementsAreReadInListOrderAndAMissingOneIsEmpty)
{
    BeamElement first(15);
    BeamElement second(47);
    const Beams beams = ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel({&second, nullptr, &first});
    ASSERT_EQ(beams.size(), 3U);
    EXPECT_EQ(beams[0]->getElementType(), 47);
    EXPECT_EQ(beams[1]->getElementType(), 0);
    EXPECT_THAT(beams[1]->edoInfos, IsEmpty());
    EXPECT_EQ(beams[2]->getElementType(), 15);
    EXPECT_THAT(ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel({}), IsEmpty());
}

// --- out of the embedded host

class BeamSelectionTest : public ReconstructionFixture
{};

TEST_F(BeamSelectionTest, selectionGoesToTheHostAsItIs)
{
    newElement(15, "KL1");
    newElement(47, "JZL1");
    newElement(25, "KZ1");
    const long long floorId = floor()->id();
    const Beams beams =
        ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(host->service()->model(), {floorId}, {15, 47});
    ASSERT_EQ(beams.size(), 2U);
    EXPECT_EQ(beams[0]->elementInfo->Name, "KL1");
    EXPECT_EQ(beams[1]->elementInfo->Name, "JZL1");
    EXPECT_EQ(host->calls(), QStringList{QString("queryElements({%1}, {15, 47}, true)").arg(floorId)}); // no write
}

TEST_F(BeamSelectionTest, withoutAModelThereAreNoBeams)
{
    EXPECT_THAT(ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(nullptr, {}, {}), IsEmpty());
}

TEST_F(BeamSelectionTest, storedSpansAreGivenBeforeCutOnes)
{
    load(R"json({"name": "KL1", "type": 15, "drawObjects": [
        {"shape": {"kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 300}, "next": 1,
         "spans": [{"SpanIndex": 1, "SpanLength": 4321, "TopThroughBar": "2C25"}, {"SpanIndex": 2}]},
        {"shape": {"kind": "line", "axis": "LINESTRING(5000 0, 9000 0)", "width": 300}},
        {"shape": {"kind": "line", "axis": "LINESTRING(0 9000, 7000 9000)", "width": 300}}]})json");
    const Beams beams = ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(host->service()->model(),
                                                                                        {floor()->id()}, {15});
    ASSERT_EQ(beams.size(), 1U);
    ASSERT_EQ(beams[0]->edoInfos.size(), 2U);
    const bool isFirst = beams[0]->edoInfos[0]->segments.size() == 2;
    const BeamEdoInfo &stored = *beams[0]->edoInfos[isFirst ? 0 : 1];
    const BeamEdoInfo &cut = *beams[0]->edoInfos[isFirst ? 1 : 0];
    ASSERT_EQ(stored.spans.size(), 2U);
    EXPECT_EQ(stored.spans[0]->SpanLength, 4321);
    EXPECT_EQ(stored.spans[0]->TopThroughBar, "2C25");
    ASSERT_EQ(cut.spans.size(), 1U);
    EXPECT_EQ(cut.spans[0]->SpanLength, 7000);
    EXPECT_EQ(cut.spans[0]->SpanA1_A4, "0,0,0,0");
}

} // namespace
