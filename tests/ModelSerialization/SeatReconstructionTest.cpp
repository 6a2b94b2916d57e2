#include "ModelSerialization/ReconstructionFixture.h"

#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "platform/geometry/CLine2d.h"

namespace {

using Service = ORVCADBeamLocalModel2HBXService;
using Seat = std::shared_ptr<ORVBeamSDCSeatInfoModel>;
using testing::IsEmpty;

const QString kSquareAtWorld = "POLYGON((4800 6800, 5200 6800, 5200 7200, 4800 7200, 4800 6800))"; // about (5000, 7000)

class SeatReconstructionTest : public ReconstructionFixture
{
protected:
    static vks::CRefPtr<vks::CPolygon> square()
    {
        return vks::CPolygon::LoadFromString(kSquareAtWorld.toUtf8().constData());
    }
    static Seat seat(int type, int subType = 0)
    {
        auto record = std::make_shared<ORVBeamSDCSeatInfoModel>();
        record->seatElementType = type;
        record->nElementSubType = subType;
        record->FloorName = "Level 1";
        record->RegionName = "House";
        record->EntName = "CT1";
        record->Type = "2";
        record->ipWorldPoly = square();
        record->SectionPoly = square();
        record->SectionWidth = 250;
        record->SectionHeight = 500;
        record->TopElev = "-1.5";
        record->BtmElev = "-2.25";
        record->Height = 750;
        record->AxisOffset = 12.5;
        record->ipCenterLine = new vks::CLine2d({0, 0}, {6000, 0});
        return record;
    }
    QString key(const char *operation, int site) const
    {
        return QString(R"(%1("ModelSerialization\ORVCADBeamLocalModel2HBXService%2")").arg(operation).arg(site);
    }
    /** The calls of a whole reconstruction: bracket, look-ups and these. */
    QStringList wholeRun(int site, int type, const QStringList &calls) const
    {
        return QStringList{key("beginBatch", site) + ", true)", R"(findRegion("House"))", R"(findFloor("Level 1"))",
                           QString(R"(findElement("CT1", %1, %2, true, 0))").arg(floor()->id()).arg(type)} +
               calls + QStringList{key("endBatch", site) + ")"};
    }
    void expectCalls(const QStringList &expected) const
    {
        EXPECT_EQ(host->calls(), expected) << host->calls().join('\n').toStdString();
    }
    vks::CVec2<double> placeOf(IHBXElementDrawObj *object) const
    {
        vks::CVec2<double> point;
        return dynamic_cast<IHBXCustomPointSolidShape *>(object->shape())->insertPoint(point);
    }
};

// --- foundations

struct FoundationCase
{
    int type;
    QString made;
    QString unitMade;
};
class FoundationReconstructionTest : public SeatReconstructionTest, public ::testing::WithParamInterface<FoundationCase>
{};

TEST_P(FoundationReconstructionTest, foundationIsMadeWithItsUnitInTheStatedOrder)
{
    EXPECT_TRUE(service->reconstructFoundation(seat(GetParam().type)));
    expectCalls(wholeRun(712, GetParam().type,
                         {
                             "createElement(" + GetParam().made + R"(, null, floor 1, 1, "", 0))",
                             R"(setName("CT1"))",
                             R"(setInt("Height", 750, true))",
                             "createElement(" + GetParam().unitMade + R"(, element CT1, floor 1, 2, "", 0))",
                             "refresh(0)",
                             R"(setName("CT1-1"))",
                             R"(setInt("Height", 750, true))",
                             R"(setInt("SectionTypeID", 0, false))",
                             R"(setPolygon("SectionPoly", )" + kSquareAtWorld + ", false)", // meant: where it stands
                             R"(setPoint("InsertPt", (5000, 7000), false))",
                             "createDrawObj(floor 1, element CT1, true)",
                             "addDrawObj(object of CT1)",
                             "setInsertPoint((5000, 7000))",
                             R"(setString("TopElev", "-1.5", true))",
                             R"(setString("BottomElev", "-2.25", true))",
                         }));
}
INSTANTIATE_TEST_SUITE_P(Types, FoundationReconstructionTest,
                         ::testing::Values(FoundationCase{52, "52, 41", "82, 43"},
                                           FoundationCase{53, "53, 48", "83, 51"}));

TEST_F(SeatReconstructionTest, foundationStandsWhereItsOutlineIs)
{
    EXPECT_TRUE(service->reconstructFoundation(seat(52)));
    ASSERT_EQ(placed().size(), 1);
    const vks::CBox2<double> box = [this] {
        vks::CBox2<double> out;
        return placed()[0]->shape()->box(out, true);
    }();
    EXPECT_NEAR(box.minPt.x, 4800, 1e-6);
    EXPECT_NEAR(box.maxPt.y, 7200, 1e-6);
}

TEST_F(SeatReconstructionTest, foundationOfTheNameIsReusedAndGetsAFurtherUnitOfTheSameName)
{
    EXPECT_TRUE(service->reconstructFoundation(seat(53)));
    EXPECT_TRUE(service->reconstructFoundation(seat(53)));
    EXPECT_EQ(callsWith("createElement(53").size(), 1);
    EXPECT_EQ(callsWith("createElement(83").size(), 2);
    EXPECT_EQ(callsWith(R"(setName("CT1-1"))").size(), 2);
    EXPECT_EQ(model().elements()->count(), 3);
    EXPECT_EQ(find("CT1")->drawObjCount(), 2);
}

TEST_F(SeatReconstructionTest, refusedNameEndsAFoundation)
{
    refuse<std::runtime_error>({R"(setName("CT1"))"});
    EXPECT_FALSE(service->reconstructFoundation(seat(52)));
    EXPECT_THAT(callsWith("createElement(82"), IsEmpty());
    EXPECT_EQ(model().elements()->count(), 1); // it stays
    EXPECT_EQ(host->calls().last(), key("endBatch", 712) + ")");
}

TEST_F(SeatReconstructionTest, refusedNameOfTheUnitDoesNotEndAFoundation)
{
    refuse<std::runtime_error>({R"(setName("CT1-1"))"});
    EXPECT_TRUE(service->reconstructFoundation(seat(52)));
    EXPECT_EQ(placed().size(), 1);
}

TEST_F(SeatReconstructionTest, refreshThatFailsAheadOfTheUnitsNameLeavesTheUnitItsName)
{
    refuse<std::runtime_error>({"refresh"});
    EXPECT_TRUE(service->reconstructFoundation(seat(52)));
    EXPECT_THAT(callsWith(R"(setName("CT1-1"))"), IsEmpty());
}

TEST_F(SeatReconstructionTest, foundationFailsOnlyWhenNeitherHeightNorSectionOfTheUnitIsAccepted)
{
    refuse({R"(setInt("Height")"});
    EXPECT_TRUE(service->reconstructFoundation(seat(52)));
    refuse({R"(setInt("SectionTypeID")"});
    EXPECT_TRUE(service->reconstructFoundation(seat(52)));
    refuse({R"(setInt("Height")", R"(setInt("SectionTypeID")"});
    EXPECT_FALSE(service->reconstructFoundation(seat(52)));
    EXPECT_EQ(placed().size(), 2); // none of the last one
}

TEST_F(SeatReconstructionTest, placeOfAFoundationFailsOnlyWhenNeitherElevationIsAccepted)
{
    refuse({R"(setString("TopElev")"});
    EXPECT_TRUE(service->reconstructFoundation(seat(52)));
    refuse({R"(setString("TopElev")", R"(setString("BottomElev")"});
    EXPECT_FALSE(service->reconstructFoundation(seat(52)));
    EXPECT_EQ(placed().size(), 2); // it stays
}

TEST_F(SeatReconstructionTest, refusedInsertionPointIsSwallowed)
{
    refuse<std::runtime_error>({"setInsertPoint"});
    EXPECT_TRUE(service->reconstructFoundation(seat(52)));
    EXPECT_TRUE(service->reconstructPile(seat(54, 64)));
}

TEST_F(SeatReconstructionTest, foundationWithoutAnOutlineIsMadeWithoutOneAndNotMoved)
{
    Seat bare = seat(52);
    bare->ipWorldPoly = nullptr;
    EXPECT_TRUE(service->reconstructFoundation(bare));
    EXPECT_THAT(callsWith("setPolygon"), IsEmpty());
    EXPECT_THAT(callsWith("setInsertPoint"), IsEmpty());
}

TEST_F(SeatReconstructionTest, fractionOfAHeightBecomesZero)
{
    Seat fraction = seat(52);
    fraction->Height = 750.5;
    EXPECT_TRUE(service->reconstructFoundation(fraction));
    EXPECT_EQ(callsWith(R"(setInt("Height")"),
              (QStringList{R"(setInt("Height", 0, true))", R"(setInt("Height", 0, true))"}));
}

// --- piles

TEST_F(SeatReconstructionTest, outlinedPileIsMadeInTheStatedOrderWithItsOutlineAtTheOrigin)
{
    EXPECT_TRUE(service->reconstructPile(seat(54, 65)));
    expectCalls(wholeRun(613, 54,
                         {
                             R"(createElement(54, 65, null, floor 1, 0, "", 0))",
                             R"(setName("CT1"))",
                             R"(setInt("Type1", 2, false))",
                             R"(setString("TopElev", "-1.5", false))",
                             R"(setInt("SectionTypeID", 0, false))",
                             R"(setPolygon("SectionPoly", POLYGON((0 0, 400 0, 400 400, 0 400, 0 0)), false))",
                             R"(setPoint("InsertPt", (200, 200), false))",
                             R"(setString("SectionInfo", "100*9;100*9", false))",
                             R"(setInt("Height", 750, false))",
                             "refresh(0)",
                             "createDrawObj(floor 1, element CT1, true)",
                             "addDrawObj(object of CT1)",
                             "setInsertPoint((5000, 7000))",
                             R"(setString("TopElev", "-1.5", true))",
                         }));
    EXPECT_EQ(placeOf(placed()[0]).x, 5000);
    EXPECT_EQ(placeOf(placed()[0]).y, 7000);
}

TEST_F(SeatReconstructionTest, outlineOfThePilesRecordIsNotMoved)
{
    const Seat pile = seat(54, 65);
    service->reconstructPile(pile);
    EXPECT_EQ(QString::fromStdString(pile->ipWorldPoly->ToText()), kSquareAtWorld);
}

TEST_F(SeatReconstructionTest, rectangularPileIsMadeOfWidthAndHeight)
{
    EXPECT_TRUE(service->reconstructPile(seat(54, 64)));
    EXPECT_EQ(callsWith("setInt"), (QStringList{R"(setInt("Type1", 2, false))", R"(setInt("SectionWidth", 250, false))",
                                                R"(setInt("SectionHeight", 500, false))"}));
    EXPECT_THAT(callsWith("setPolygon"), IsEmpty());
}

TEST_F(SeatReconstructionTest, pileOfSubType169IsMadeAs128AndTheRecordShowsIt)
{
    const Seat pile = seat(54, 169);
    EXPECT_TRUE(service->reconstructPile(pile));
    EXPECT_EQ(pile->nElementSubType, 128);
    EXPECT_EQ(find("CT1")->subType(), 128);
}

TEST_F(SeatReconstructionTest, pileSucceedsWhenItsTypeIsAcceptedAndItsHeightRefused)
{
    refuse({R"(setInt("SectionHeight")", R"(setInt("SectionWidth")", R"(setString("TopElev", "-1.5", false)"});
    IHBXElement *element = nullptr;
    EXPECT_TRUE(service->localModel2PileEnt(seat(54, 64), element));
    EXPECT_TRUE(element);
}

TEST_F(SeatReconstructionTest, heightOfARectangularPileIsNotLookedAt)
{
    refuse({R"(setInt("Type1")", R"(setString("TopElev")", R"(setInt("SectionWidth")"});
    IHBXElement *element = nullptr;
    EXPECT_FALSE(service->localModel2PileEnt(seat(54, 64), element));
    EXPECT_EQ(callsWith(R"(setInt("SectionHeight")").size(), 1);
}

TEST_F(SeatReconstructionTest, widthOfARectangularPileCounts)
{
    refuse({R"(setInt("Type1")", R"(setString("TopElev")", R"(setInt("SectionHeight")"});
    IHBXElement *element = nullptr;
    EXPECT_TRUE(service->localModel2PileEnt(seat(54, 64), element));
}

TEST_F(SeatReconstructionTest, outlineOfAPileDoesNotCount)
{
    refuse({R"(setInt("Type1")", R"(setString("TopElev")"});
    IHBXElement *element = nullptr;
    EXPECT_FALSE(service->localModel2PileEnt(seat(54, 65), element));
    EXPECT_EQ(callsWith("setPolygon").size(), 1);
    EXPECT_EQ(callsWith("refresh").size(), 1);
}

TEST_F(SeatReconstructionTest, refusedNameEndsAPile)
{
    refuse<std::runtime_error>({"setName"});
    EXPECT_FALSE(service->reconstructPile(seat(54, 65)));
    EXPECT_THAT(callsWith("setInt"), IsEmpty());
}

TEST_F(SeatReconstructionTest, pileWithoutAnOutlineIsMadeWithoutOne)
{
    Seat bare = seat(54, 65);
    bare->ipWorldPoly = nullptr;
    EXPECT_TRUE(service->reconstructPile(bare));
    EXPECT_THAT(callsWith("setPolygon"), IsEmpty());
    EXPECT_EQ(callsWith(R"(setInt("Height")").size(), 1);
}

TEST_F(SeatReconstructionTest, pileWithoutAKindWritesNone)
{
    Seat plain = seat(54, 64);
    plain->Type.clear();
    EXPECT_TRUE(service->reconstructPile(plain));
    EXPECT_THAT(callsWith(R"(setInt("Type1")"), IsEmpty());
}

TEST_F(SeatReconstructionTest, placeOfAPileFailsWhenItsElevationIsRefused)
{
    refuse({R"(setString("TopElev", "-1.5", true)"});
    EXPECT_FALSE(service->reconstructPile(seat(54, 64)));
    EXPECT_EQ(placed().size(), 1); // it stays
}

// --- tie beams

TEST_F(SeatReconstructionTest, rectangularTieBeamIsMadeInTheStatedOrder)
{
    EXPECT_TRUE(service->reconstructTieBeam(seat(18, 70)));
    expectCalls(wholeRun(532, 18,
                         {
                             R"(createElement(18, 70, null, floor 1, 0, "", 0))",
                             R"(setName("CT1"))",
                             R"(setInt("SectionWidth", 250, true))",
                             R"(setInt("SectionHeight", 500, true))",
                             "createDrawObj(floor 1, element CT1, true)",
                             "addDrawObj(object of CT1)",
                             "setLine(LINESTRING(0 0, 6000 0))",
                             R"(setString("StartPtTopElev", "-1.5", true))",
                             R"(setString("EndPtTopElev", "-2.25", true))",
                             R"(setDouble("AxisOffset", 12.5, true))",
                             R"(setDouble("AxisOffset_JZBZ", 12.5, true))",
                         }));
}

TEST_F(SeatReconstructionTest, outlinedTieBeamKeepsItsOutlineWhereItIs)
{
    EXPECT_TRUE(service->reconstructTieBeam(seat(18, 71)));
    EXPECT_EQ(callsWith("setPolygon"), QStringList{R"(setPolygon("SectionPoly", )" + kSquareAtWorld + ", false)"});
    EXPECT_THAT(callsWith(R"(setString("SectionInfo")"), IsEmpty());
    EXPECT_THAT(callsWith(R"(setInt("SectionWidth")"), IsEmpty());
}

TEST_F(SeatReconstructionTest, tieBeamWithoutALineSetsNull)
{
    Seat tie = seat(18, 70);
    tie->ipCenterLine = nullptr;
    EXPECT_TRUE(service->reconstructTieBeam(tie));
    EXPECT_EQ(callsWith("setLine"), QStringList{"setLine(null)"});
}

TEST_F(SeatReconstructionTest, refusedNameDoesNotEndATieBeam)
{
    refuse<std::runtime_error>({"setName"});
    EXPECT_TRUE(service->reconstructTieBeam(seat(18, 70)));
    EXPECT_EQ(placed().size(), 1);
}

TEST_F(SeatReconstructionTest, sectionOfATieBeamFailsOnlyWhenNeitherSizeIsAccepted)
{
    refuse({R"(setInt("SectionWidth")"});
    EXPECT_TRUE(service->reconstructTieBeam(seat(18, 70)));
    refuse({"setInt"});
    EXPECT_FALSE(service->reconstructTieBeam(seat(18, 70)));
    EXPECT_FALSE(service->reconstructTieBeam(seat(18, 71)));
}

TEST_F(SeatReconstructionTest, placeOfATieBeamFailsOnlyWhenNoneOfTheFourIsAccepted)
{
    refuse({"setString", R"(setDouble("AxisOffset",)"});
    EXPECT_TRUE(service->reconstructTieBeam(seat(18, 70)));
    refuse({"setString", "setDouble"});
    EXPECT_FALSE(service->reconstructTieBeam(seat(18, 70)));
}

TEST_F(SeatReconstructionTest, tieBeamHasOneDrawObjectAndNoChain)
{
    EXPECT_TRUE(service->reconstructTieBeam(seat(18, 70)));
    EXPECT_EQ(placed().size(), 1);
    EXPECT_THAT(callsWith("linkNext"), IsEmpty());
}

// --- what all share

struct KindCase
{
    int site;
    int type;
    int wrongShapeType; ///< its draw objects are of the other kind of solid
    bool (Service::*reconstruct)(const Seat &);
    bool (Service::*makeEnt)(const Seat &, IHBXElement *&);
    bool (Service::*makeEdo)(const Seat &, IHBXElement *);
};
class SeatKindTest : public SeatReconstructionTest, public ::testing::WithParamInterface<KindCase>
{
protected:
    bool reconstruct(const Seat &record) { return (service.get()->*GetParam().reconstruct)(record); }
};

TEST_P(SeatKindTest, unknownRegionOrFloorMakesNothing)
{
    Seat lost = seat(GetParam().type);
    lost->RegionName = "Elsewhere";
    EXPECT_FALSE(reconstruct(lost));
    expectCalls({key("beginBatch", GetParam().site) + ", true)", R"(findRegion("Elsewhere"))",
                 key("endBatch", GetParam().site) + ")"});
    lost = seat(GetParam().type);
    lost->FloorName = "99";
    EXPECT_FALSE(reconstruct(lost));
    EXPECT_EQ(model().elements()->count(), 0);
}

TEST_P(SeatKindTest, elementThatTheHostDoesNotMakeFails)
{
    EXPECT_FALSE(reconstruct(seat(999)));
    EXPECT_THAT(placed(), IsEmpty());
    EXPECT_EQ(host->calls().last(), key("endBatch", GetParam().site) + ")");
}

TEST_P(SeatKindTest, elementOfTheNameIsReused)
{
    newElement(GetParam().type, "CT1");
    EXPECT_TRUE(reconstruct(seat(GetParam().type)));
    EXPECT_THAT(callsWith(QString("createElement(%1").arg(GetParam().type)), IsEmpty());
}

TEST_P(SeatKindTest, batchIsClosedWhenTheHostThrows)
{
    refuse<std::runtime_error>({"createElement"});
    EXPECT_THROW(reconstruct(seat(GetParam().type)), std::runtime_error);
    EXPECT_EQ(host->calls().last(), key("endBatch", GetParam().site) + ")");
}

TEST_P(SeatKindTest, drawObjectOfAnotherShapeFailsAndStays)
{
    newElement(GetParam().wrongShapeType, "other");
    EXPECT_FALSE((service.get()->*GetParam().makeEdo)(seat(GetParam().type), recorded("other")));
    EXPECT_EQ(placed().size(), 1);
}

TEST_P(SeatKindTest, missingServiceRecordOrElementFails)
{
    Service none(nullptr);
    IHBXElement *element = nullptr;
    EXPECT_FALSE((none.*GetParam().reconstruct)(seat(GetParam().type)));
    EXPECT_FALSE((none.*GetParam().makeEnt)(seat(GetParam().type), element));
    EXPECT_FALSE(reconstruct(nullptr));
    EXPECT_FALSE((service.get()->*GetParam().makeEnt)(nullptr, element));
    EXPECT_FALSE((service.get()->*GetParam().makeEdo)(nullptr, newElement(GetParam().type)));
    EXPECT_FALSE((service.get()->*GetParam().makeEdo)(seat(GetParam().type), nullptr));
}

INSTANTIATE_TEST_SUITE_P(Kinds, SeatKindTest,
                         ::testing::Values(KindCase{712, 53, 18, &Service::reconstructFoundation,
                                                    &Service::localModel2FoundationEnt,
                                                    &Service::localModel2FoundationEdo},
                                           KindCase{613, 54, 18, &Service::reconstructPile,
                                                    &Service::localModel2PileEnt, &Service::localModel2PileEdo},
                                           KindCase{532, 18, 54, &Service::reconstructTieBeam,
                                                    &Service::localModel2TieBeamEnt, &Service::localModel2TieBeamEdo}));

TEST_F(SeatReconstructionTest, checkGivesFloorAndElement)
{
    IHBXElement *element = nullptr;
    IHBXFloor *level = nullptr;
    Seat record = seat(54);
    EXPECT_TRUE(service->checkBeforeReconstruct(record, element, level));
    EXPECT_FALSE(element);
    EXPECT_TRUE(level);
    newElement(54, "CT1");
    EXPECT_TRUE(service->checkBeforeReconstruct(record, element, level));
    EXPECT_TRUE(element);
    IHBXFloor *unset = nullptr;
    record->FloorName = "99";
    EXPECT_FALSE(service->checkBeforeReconstruct(record, element, unset));
    EXPECT_FALSE(unset);
}

} // namespace
