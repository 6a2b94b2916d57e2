#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"

#include "ModelSerialization/ReconstructionFixture.h"

namespace {

using Service = ORVCADBeamLocalModel2HBXService;
using testing::IsEmpty;

class ORVCADBeamLocalModel2HBXServiceTest : public ReconstructionFixture
{
protected:
    /** Calls that look up the floor of the fixture and an element of that type which is not there. */
    QStringList lookUp(int type) const
    {
        return {R"(findRegion("House"))", R"(findFloor("Level 1"))",
                QString(R"(findElement("KL1", %1, %2, true, 0))").arg(floor()->id()).arg(type)};
    }
};

const QString kBegin = R"(beginBatch("ModelSerialization\ORVCADBeamLocalModel2HBXService320", true))";
const QString kEnd = R"(endBatch("ModelSerialization\ORVCADBeamLocalModel2HBXService320"))";

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, beamIsMadeInTheStatedOrder)
{
    EXPECT_TRUE(service->reconstructBeam(beamOf(floorBeam(), {chain({0, 1}, 2)})));
    QStringList expected{kBegin};
    expected += lookUp(15);
    expected += {
        R"(createElement(15, 3, null, floor 1, 0, "", 0))",
        R"(setName("KL1"))",
        "refresh(0)",
        R"(setDouble("AxisOffset", 25.5, true))",
        R"(setDouble("AxisOffset_JZBZ", 25.5, true))",
        R"(setInt("Type1", 5, true))",
        R"(setString("SpanCount", "2A", true))",
        R"(setInt("SectionWidth", 300, true))",
        R"(setInt("SectionHeight", 600, true))",
        R"(setString("TopThroughBar", "2C25", true))",
        R"(setString("BottomThroughBar", "4C22", true))",
        R"(setString("SideBar", "4C12", true))",
        R"(setString("HoopBar", "A8@100/200", true))",
        R"(setString("Limb", "2", true))",
        R"(setString("TieBar", "A6@400", true))",
        "refresh(0)",
        R"(createDrawObj(floor 1, element KL1, true))",
        R"(addDrawObj(object of KL1))",
        R"(setLine(LINESTRING(0 0, 1000 0)))",
        R"(setInt("SectionWidth", 301, true))",
        "refresh(0)",
        R"(setDouble("AxisOffset", 12.5, true))",
        R"(setDouble("AxisOffset_JZBZ", 12.5, true))",
        R"(setString("StartPtTopElev", "3.5", true))",
        R"(setString("EndPtTopElev", "3.25", true))",
        R"(setString("SpanCount", "2", true))",
        R"(createDrawObj(floor 1, element KL1, true))",
        R"(addDrawObj(object of KL1))",
        R"(setLine(LINESTRING(1000 0, 2000 0)))",
        R"(setInt("SectionWidth", 301, true))",
        "refresh(0)",
        R"(setDouble("AxisOffset", 12.5, true))",
        R"(setDouble("AxisOffset_JZBZ", 12.5, true))",
        R"(setString("StartPtTopElev", "3.5", true))",
        R"(setString("EndPtTopElev", "3.25", true))",
        R"(linkNext(object of KL1))",
        kEnd,
    };
    EXPECT_EQ(host->calls(), expected) << host->calls().join('\n').toStdString();
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, linkBeamWritesNeitherTypeNorSpanCount)
{
    EXPECT_TRUE(service->reconstructBeam(beamOf(linkBeam(), {chain({0})})));
    EXPECT_THAT(callsWith(R"(setInt("Type)"), IsEmpty());
    EXPECT_THAT(callsWith(R"(setString("SpanCount")"), IsEmpty());
    EXPECT_EQ(callsWith("setString").mid(0, 6),
              (QStringList{R"(setString("TopHoriBar", "3C20", true))", R"(setString("BottomHoriBar", "3C18", true))",
                           R"(setString("SideBarAL", "C10@200", true))", R"(setString("HoopBar", "A8@100/200", true))",
                           R"(setString("Limb", "2", true))", R"(setString("TieBar", "A6@400", true))"}));
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, foundationBeamWritesTypeWithFlagFalse)
{
    EXPECT_TRUE(service->reconstructBeam(beamOf(floorBeam(47, 134))));
    EXPECT_EQ(callsWith(R"(setInt("Type)"), QStringList{R"(setInt("Type", 5, false))"});
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, beamWritesTypeOneWithFlagTrue)
{
    EXPECT_TRUE(service->reconstructBeam(beamOf(floorBeam())));
    EXPECT_EQ(callsWith(R"(setInt("Type)"), QStringList{R"(setInt("Type1", 5, true))"});
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, elementOfTheNameIsReusedAndGetsFurtherDrawObjects)
{
    service->reconstructBeam(beamOf(floorBeam(), {chain({0})}));
    auto again = floorBeam();
    again->TopThroughBar = "3C28";
    EXPECT_TRUE(service->reconstructBeam(beamOf(again, {chain({0, 1})})));
    EXPECT_EQ(model().elements()->count(), 1);
    EXPECT_EQ(find()->drawObjCount(), 3);
    EXPECT_EQ(text(find()->properties(), L"TopThroughBar"), "3C28");
    EXPECT_EQ(callsWith("createElement").size(), 1);
    EXPECT_EQ(callsWith("setName").size(), 2);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, elementOfAnotherTypeIsNotReused)
{
    newElement(47);
    EXPECT_TRUE(service->reconstructBeam(beamOf(floorBeam())));
    EXPECT_EQ(model().elements()->count(), 2);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, emptyTextLeavesTheHostsValueAsItWas)
{
    newElement(15)->properties()->setString(L"TopThroughBar", "9C9", true);
    auto ent = floorBeam();
    ent->TopThroughBar.clear();
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent)));
    EXPECT_EQ(text(find()->properties(), L"TopThroughBar"), "9C9");
}

struct SubTypeCase
{
    int type;
    int subType;
    int made;
};
class BeamSubTypeTest : public ReconstructionFixture, public ::testing::WithParamInterface<SubTypeCase>
{};

TEST_P(BeamSubTypeTest, subTypeIsChangedInTheRecordBeforeTheElementIsMade)
{
    const auto ent = floorBeam(GetParam().type, GetParam().subType);
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent)));
    EXPECT_EQ(ent->ElementSubType, GetParam().made);
    ASSERT_TRUE(find());
    EXPECT_EQ(find()->subType(), GetParam().made);
}
INSTANTIATE_TEST_SUITE_P(SubTypes, BeamSubTypeTest,
                         ::testing::Values(SubTypeCase{47, 135, 134}, SubTypeCase{15, 12, 11}, SubTypeCase{47, 12, 12},
                                           SubTypeCase{15, 135, 135}, SubTypeCase{15, 3, 3},
                                           SubTypeCase{47, 134, 134}));

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, subTypeIsChangedEvenWhenTheFloorIsUnknown)
{
    const auto ent = floorBeam(15, 12);
    ent->FloorName = "99";
    EXPECT_FALSE(service->reconstructBeam(beamOf(ent)));
    EXPECT_EQ(ent->ElementSubType, 11);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, unknownRegionOrFloorLeavesTheHostAsItIs)
{
    auto region = floorBeam();
    region->RegionName = "Elsewhere";
    EXPECT_FALSE(service->reconstructBeam(beamOf(region, {chain({0})})));
    EXPECT_EQ(host->calls(), (QStringList{kBegin, R"(findRegion("Elsewhere"))", kEnd}));
    auto level = floorBeam();
    level->FloorName = "1"; // the code, and not the name
    EXPECT_FALSE(service->reconstructBeam(beamOf(level, {chain({0})})));
    EXPECT_EQ(host->calls().mid(3), (QStringList{kBegin, R"(findRegion("House"))", R"(findFloor("1"))", kEnd}));
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, elementThatTheHostDoesNotMakeFails)
{
    EXPECT_FALSE(service->reconstructBeam(beamOf(floorBeam(999), {chain({0})})));
    EXPECT_EQ(host->calls().last(), kEnd);
    EXPECT_THAT(callsWith("setName"), IsEmpty());
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, refusedNameFailsAndTheElementStays)
{
    auto ent = floorBeam();
    ent->Name.clear();
    EXPECT_FALSE(service->reconstructBeam(beamOf(ent, {chain({0})})));
    EXPECT_EQ(model().elements()->count(), 1);
    EXPECT_EQ(host->calls().mid(host->calls().size() - 2), (QStringList{R"(setName(""))", kEnd}));
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, anyExceptionOfANameIsSwallowed)
{
    refuse<std::runtime_error>({"setName"});
    EXPECT_FALSE(service->reconstructBeam(beamOf(floorBeam())));
    EXPECT_EQ(host->calls().last(), kEnd);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, elementComesOutEvenWhenAStepFails)
{
    IHBXElement *element = nullptr;
    auto ent = floorBeam();
    ent->SectionPoly = "0,0;1,0;1,1;"; // on a sub-type that has no outline
    EXPECT_FALSE(service->localModel2BeamEnt(ent.get(), element));
    EXPECT_TRUE(element);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, batchIsClosedWhenTheHostThrows)
{
    refuse<std::runtime_error>({"refresh"});
    EXPECT_THROW(service->reconstructBeam(beamOf(floorBeam())), std::runtime_error);
    EXPECT_EQ(host->calls().last(), kEnd);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, refusedOffsetsOfTheElementAreNotLookedAt)
{
    refuse({R"(setDouble("AxisOffset)"});
    EXPECT_TRUE(service->reconstructBeam(beamOf(floorBeam())));
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, stepsBehindARefusedTypeAreNotTaken)
{
    refuse({R"(setInt("Type1")"});
    EXPECT_FALSE(service->reconstructBeam(beamOf(floorBeam(), {chain({0})})));
    EXPECT_THAT(callsWith("setString"), IsEmpty());
    EXPECT_EQ(callsWith("refresh").size(), 1);
    EXPECT_THAT(placed(), IsEmpty());
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, stepsBehindARefusedSpanCountAreNotTaken)
{
    refuse({R"(setString("SpanCount")"});
    EXPECT_FALSE(service->reconstructBeam(beamOf(floorBeam())));
    EXPECT_THAT(callsWith(R"(setInt("Section)"), IsEmpty());
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, sectionFailsOnlyWhenNeitherSizeIsAccepted)
{
    refuse({R"(setInt("SectionWidth")"});
    EXPECT_TRUE(service->reconstructBeam(beamOf(floorBeam())));
    refuse({R"(setInt("SectionWidth")", R"(setInt("SectionHeight")"});
    auto ent = floorBeam();
    EXPECT_EQ(service->reconstructBeam_BeamInfo_CreateEnt_SetSection(recorded(), ent.get()),
              Service::kSectionNotWritten);
    EXPECT_EQ(Service::kSectionNotWritten, 15);
    EXPECT_FALSE(service->reconstructBeam(beamOf(ent)));
}

struct WidthCase
{
    double width;
    int stored;
};
class ElementWidthTest : public ReconstructionFixture, public ::testing::WithParamInterface<WidthCase>
{};

TEST_P(ElementWidthTest, widthOfTheElementPassesThroughSixDigitsAndAWholeNumber)
{
    auto ent = floorBeam();
    ent->SectionWidth = GetParam().width;
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent)));
    EXPECT_EQ(callsWith(R"(setInt("SectionWidth")"),
              QStringList{QString(R"(setInt("SectionWidth", %1, true))").arg(GetParam().stored)});
}
INSTANTIATE_TEST_SUITE_P(Widths, ElementWidthTest,
                         ::testing::Values(WidthCase{300.0, 300}, WidthCase{300.5, 0}, WidthCase{1.5e6, 0},
                                           WidthCase{300.00001, 300}, WidthCase{-20, -20}, WidthCase{0.0, 0}));

class SegmentWidthTest : public ReconstructionFixture, public ::testing::WithParamInterface<WidthCase>
{};

TEST_P(SegmentWidthTest, widthOfTheDrawObjectIsRoundedUnlikeThatOfTheElement)
{
    auto edo = chain({0});
    edo->segments[0]->LineWidth = GetParam().width;
    EXPECT_EQ(service->localModel2BeamEdo(edo.get(), newElement(15)), Service::kDone);
    EXPECT_EQ(placed()[0]->properties()->asInt(std::wstring(L"SectionWidth")), GetParam().stored);
}
INSTANTIATE_TEST_SUITE_P(Widths, SegmentWidthTest,
                         ::testing::Values(WidthCase{300.5, 301}, WidthCase{300.4, 300}, WidthCase{1.5e6, 1500000}));

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, outlinedSectionIsWrittenInsteadOfWidthAndHeight)
{
    auto ent = floorBeam(15, 12);
    ent->SectionPoly = "100,0;500,0;500,300;100,300;";
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent)));
    EXPECT_THAT(callsWith(R"(setInt("SectionW)"), IsEmpty());
    const int typeId = host->calls().indexOf(R"(setInt("SectionTypeID", 0, false))");
    ASSERT_GE(typeId, 0);
    EXPECT_EQ(host->calls().mid(typeId + 1, 2),
              (QStringList{R"(setPolygon("SectionPoly", POLYGON((100 0, 500 0, 500 300, 100 300, 100 0)), false))",
                           R"(setPoint("InsertPt", (300, 150), false))"}));
    EXPECT_THAT(callsWith(R"(setString("SectionInfo")"), IsEmpty());
}

struct OutlineCase
{
    int type;
    int subType;
    bool accepted;
};
class OutlinedSubTypeTest : public ReconstructionFixture, public ::testing::WithParamInterface<OutlineCase>
{};

TEST_P(OutlinedSubTypeTest, onlySubTypes11And134And148MayHaveAnOutline)
{
    auto ent = floorBeam(GetParam().type, GetParam().subType);
    ent->SectionPoly = "0,0;500,0;500,300;";
    EXPECT_EQ(service->reconstructBeam(beamOf(ent, {chain({0})})), GetParam().accepted);
    EXPECT_EQ(callsWith(R"(setInt("SectionTypeID")").size(), GetParam().accepted ? 1 : 0);
    EXPECT_EQ(callsWith(R"(setInt("Type)").size(), 1);
    EXPECT_EQ(callsWith(R"(setString("SpanCount", "2A")").size(), 1);
    EXPECT_EQ(placed().size(), GetParam().accepted ? 1 : 0);
}
INSTANTIATE_TEST_SUITE_P(SubTypes, OutlinedSubTypeTest,
                         ::testing::Values(OutlineCase{15, 11, true}, OutlineCase{15, 12, true},
                                           OutlineCase{15, 148, true}, OutlineCase{47, 134, true},
                                           OutlineCase{47, 135, true}, OutlineCase{15, 3, false},
                                           OutlineCase{47, 12, false}, OutlineCase{15, 135, false}));

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, badOutlineTextIsAcceptedAndSetsNone)
{
    auto ent = floorBeam(15, 11);
    ent->SectionPoly = "nonsense";
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent)));
    EXPECT_EQ(callsWith(R"(setInt("SectionTypeID")"), QStringList{R"(setInt("SectionTypeID", 0, false))"});
    EXPECT_THAT(callsWith("setPolygon"), IsEmpty());
    EXPECT_THAT(callsWith("setPoint"), IsEmpty());
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, outlineThatIsBuiltButNotValidIsWritten)
{
    auto ent = floorBeam(15, 11);
    ent->SectionPoly = "0,0;100,100;100,0;0,100;"; // crosses itself
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent)));
    EXPECT_EQ(callsWith("setPolygon").size(), 1);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, refusedSectionNumberGives101)
{
    newElement(15);
    refuse({R"(setInt("SectionTypeID")"});
    auto ent = floorBeam(15, 11);
    ent->SectionPoly = "0,0;500,0;500,300;";
    EXPECT_EQ(service->reconstructBeam_BeamInfo_CreateEnt_SetSection(recorded(), ent.get()), 101);
    EXPECT_EQ(Service::kSectionInfoNotWritten, 101);
    EXPECT_EQ(callsWith("setPolygon").size(), 1); // it goes on all the same
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, hostsOwnExceptionAtTheOutlineIsSwallowedAndAnyOtherPassesOn)
{
    newElement(15);
    GeometryTextReader::Polygon square;
    ASSERT_TRUE(Service::reconstructPoly("0,0;400,0;400,400;0,400;", square));
    refuse({"setPolygon", "setPoint"});
    EXPECT_TRUE(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), square));
    refuse<std::runtime_error>({"setPolygon"});
    EXPECT_THROW(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), square), std::runtime_error);
    refuse<std::runtime_error>({"setPoint"});
    EXPECT_THROW(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), square), std::runtime_error);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, sectionNumberIsZeroAndNotTwo)
{
    newElement(15)->properties()->setInt(L"SectionTypeID", 7, false);
    EXPECT_TRUE(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), nullptr));
    EXPECT_EQ(host->calls(), QStringList{R"(setInt("SectionTypeID", 0, false))"});
    EXPECT_EQ(find()->properties()->asInt(std::wstring(L"SectionTypeID")), 0);
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, sidesOfAPileAreToldInStepsOfFifty)
{
    newElement(54);
    GeometryTextReader::Polygon section;
    ASSERT_TRUE(Service::reconstructPoly("0,0;400,0;400,399.6;0,399.6;", section));
    EXPECT_TRUE(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), section));
    EXPECT_EQ(host->calls().last(), R"(setString("SectionInfo", "100*9;100*9", false))");
    ASSERT_TRUE(Service::reconstructPoly("0,0;449.4,0;449.4,1000;0,1000;", section));
    service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), section);
    EXPECT_EQ(host->calls().last(), R"(setString("SectionInfo", "100*9;100*21", false))"); // 449 / 50 is cut to 8
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, sidesOfAPileMakeUpForARefusedSectionNumber)
{
    newElement(54);
    GeometryTextReader::Polygon section;
    ASSERT_TRUE(Service::reconstructPoly("0,0;400,0;400,400;0,400;", section));
    refuse({R"(setInt("SectionTypeID")"});
    EXPECT_TRUE(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), section));
    EXPECT_FALSE(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), nullptr));
    refuse({R"(setInt("SectionTypeID")", R"(setString("SectionInfo")"});
    EXPECT_FALSE(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(recorded(), section));
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, barsAreAcceptedWhenOneOfTheSixIs)
{
    newElement(15);
    auto ent = floorBeam();
    refuse({R"(setString("T)", R"(setString("B)", R"(setString("S)", R"(setString("H)"}); // all but "Limb"
    EXPECT_TRUE(service->reconstructBeam_BeamInfo_CreateEnt_SetBar(recorded(), ent.get()));
    refuse({"setString"});
    EXPECT_FALSE(service->reconstructBeam_BeamInfo_CreateEnt_SetBar(recorded(), ent.get()));
    EXPECT_FALSE(service->reconstructBeam(beamOf(ent)));
    EXPECT_TRUE(find()); // it stays
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, kindAndSpanCountOfALinkBeamAreAcceptedWithoutAWrite)
{
    newElement(17);
    auto ent = linkBeam();
    EXPECT_TRUE(service->reconstructBeam_BeamInfo_CreateEnt_SetType(recorded(), ent.get()));
    EXPECT_TRUE(service->reconstructBeam_BeamInfo_CreateEnt_SetSpanCount(recorded(), ent.get()));
    EXPECT_THAT(host->calls(), IsEmpty());
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, recordOfAnotherClassThanItsTypeWritesWhatItHas)
{
    auto ent = beamEnt<LinkBeamEntInfo>(15);
    ent->TopHoribar = "3C20";
    EXPECT_TRUE(service->reconstructBeam(beamOf(ent)));
    EXPECT_THAT(callsWith(R"(setInt("Type)"), IsEmpty());
    EXPECT_EQ(callsWith("setString").size(), 3); // the bars that all beams have
}

TEST_F(ORVCADBeamLocalModel2HBXServiceTest, missingServiceRecordOrElementFails)
{
    Service none(nullptr);
    IHBXElement *element = nullptr;
    EXPECT_FALSE(none.reconstructBeam(beamOf(floorBeam())));
    EXPECT_FALSE(none.localModel2BeamEnt(floorBeam().get(), element));
    EXPECT_FALSE(service->reconstructBeam(nullptr));
    EXPECT_FALSE(service->reconstructBeam(beamOf(nullptr)));
    EXPECT_FALSE(service->localModel2BeamEnt(nullptr, element));
    EXPECT_FALSE(service->reconstructBeam_BeamInfo_CreateEnt_SetType(nullptr, floorBeam().get()));
    EXPECT_FALSE(service->reconstructBeam_BeamInfo_CreateEnt_SetType(newElement(15), nullptr));
    EXPECT_FALSE(service->reconstructBeam_BeamInfo_CreateEnt_SetSpanCount(newElement(15), nullptr));
    EXPECT_EQ(service->reconstructBeam_BeamInfo_CreateEnt_SetSection(newElement(15), nullptr), 15);
    EXPECT_FALSE(service->reconstructBeam_BeamInfo_CreateEnt_SetBar(newElement(15), nullptr));
    EXPECT_FALSE(service->reconstruct_CreateAbnormityEnt_SetSectionInfo(nullptr, nullptr));
}

} // namespace
