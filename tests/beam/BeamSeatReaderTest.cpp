#include "beam/BeamSeatReader.h"

#include "SeatHost.h"
#include "platform/geometry/KernelTolerance.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace seathost;
using Seat = std::unique_ptr<ORVBeamSDCSeatInfoModel>;

class BeamSeatReaderTest : public ::testing::Test
{
protected:
    BeamSeatReaderTest()
    {
        m_element.inRegion = &m_region;
        m_element.onFloor = &m_floor;
        m_object.of = &m_element;
        m_face.outline = rectangle(0, 0, 400, 600);
        m_point.outline = m_face.outline;
        m_line.outline = m_face.outline;
        m_planLine.outline = m_face.outline;
        m_object.placed = &m_face;
    }
    ~BeamSeatReaderTest() override { vks::g_DistEpsilon = vks::g_DefaultDistEpsilon; }

    Seat read(qint64 type)
    {
        m_object.number = type;
        return beam::readBeamSeat(m_object);
    }
    Seat read(qint64 type, IHBXShape &shape)
    {
        m_object.placed = &shape;
        return read(type);
    }
    /** A child of a unit of that type and rank, whose outline is that wide. */
    void addUnit(qint64 type, int order, double width)
    {
        auto element = std::make_unique<Element>();
        element->number = type;
        element->order = order;
        auto shape = std::make_unique<PointSolid>();
        shape->outline = rectangle(0, 0, width, 100);
        auto child = std::make_unique<DrawObj>();
        child->of = element.get();
        child->placed = shape.get();
        m_object.children.push_back(child.get());
        m_units.emplace_back(std::move(element), std::move(shape), std::move(child));
    }
    double widthOf(const Seat &seat) const { return seat->ipWorldPoly->Box().Width(); }

    Region m_region;
    Floor m_floor;
    Element m_element;
    FaceSolid m_face;
    PointSolid m_point;
    LineSolid m_line;
    PlanLine m_planLine;
    DrawObj m_object;
    std::vector<std::tuple<std::unique_ptr<Element>, std::unique_ptr<PointSolid>, std::unique_ptr<DrawObj>>> m_units;
};

TEST_F(BeamSeatReaderTest, objectWithoutAShapeOrAnOutlineIsNoSeat)
{
    m_face.outline = nullptr;
    EXPECT_FALSE(read(26));
    m_object.placed = nullptr;
    EXPECT_FALSE(read(26));
}

TEST_F(BeamSeatReaderTest, columnOfSection124OfKind8IsNoSeat)
{
    Section section;
    m_object.withSection = &section;
    EXPECT_FALSE(read(25));
    section.sectionKind = 7;
    EXPECT_TRUE(read(25));
    section.sectionKind = 8;
    section.sectionNumber = 123;
    EXPECT_TRUE(read(25));
    section.sectionNumber = 124;
    section.isSet = false;
    EXPECT_TRUE(read(25));
    m_object.withSection = nullptr;
    EXPECT_TRUE(read(25));
}

TEST_F(BeamSeatReaderTest, sectionIsAskedOfType25Only)
{
    Section section;
    m_object.withSection = &section;
    EXPECT_TRUE(read(26));
    EXPECT_TRUE(read(1002));
    EXPECT_TRUE(read(54));
}

TEST_F(BeamSeatReaderTest, everySeatHasTypeSubTypeIdKindBoxAndNames)
{
    m_object.subNumber = 41;
    m_face.kindNumber = 2;
    m_face.plan = {{1, 2}, {3, 4}};
    const Seat seat = read(15);
    EXPECT_EQ(seat->seatElementType, 15);
    EXPECT_EQ(seat->nElementSubType, 41);
    EXPECT_EQ(seat->nEDOID, 77);
    EXPECT_EQ(seat->eLineShapeClass, 2);
    EXPECT_EQ(seat->box, vks::CBox3<double>({1, 2, 0}, {3, 4, 0}));
    EXPECT_EQ(seat->dOffsetDist, 100.0);
    EXPECT_EQ(seat->FloorName, "Level 1");
    EXPECT_EQ(seat->RegionName, "House");
    EXPECT_EQ(seat->EntName, "E1");
}

TEST_F(BeamSeatReaderTest, whatIsNotReadStaysAsInANewRecord)
{
    const Seat seat = read(26);
    EXPECT_EQ(seat->dWallThickness, -1.0);
    EXPECT_FALSE(seat->bHasWallThicknessProperty || seat->bLineShape || seat->bIsAColumn || seat->Mirror);
    EXPECT_FALSE(seat->ipCenterLine || seat->ipWallLine || seat->ipSeatLine || seat->ipWorldLine);
    EXPECT_FALSE(seat->SectionPoly);
    EXPECT_EQ(seat->TopElev + seat->BtmElev + seat->EDOTopElev + seat->EDOBtmElev + seat->Type, "");
    EXPECT_EQ(seat->box, vks::CBox3<double>()); // the shape has an empty one
}

TEST_F(BeamSeatReaderTest, objectWithoutAnElementHasNoNames)
{
    m_object.of = nullptr;
    EXPECT_EQ(read(26)->EntName, "");
    EXPECT_EQ(read(52)->TopElev, "");
    m_object.of = &m_element;
    m_element.inRegion = nullptr;
    m_element.onFloor = nullptr;
    EXPECT_EQ(read(26)->RegionName, "");
    EXPECT_EQ(read(26)->FloorName, "");
}

TEST_F(BeamSeatReaderTest, idBeyond32BitsIsTakenAsZero)
{
    m_object.ownId = 5000000000;
    EXPECT_EQ(read(26)->nEDOID, 0);
}

TEST_F(BeamSeatReaderTest, outlineIsACopyOfTheHosts)
{
    const Seat seat = read(26);
    EXPECT_NE(seat->ipWorldPoly.get(), m_face.outline.get());
    EXPECT_EQ(seat->ipWorldPoly->ToText(), m_face.outline->ToText());
}

TEST_F(BeamSeatReaderTest, typeOfNoSeatIsReadWithoutAnySpecialData)
{
    m_object.own.values = {{"TopElev", "3"}, {"Type", 2}};
    const Seat seat = read(19);
    EXPECT_EQ(seat->seatElementType, 19);
    EXPECT_FALSE(seat->bIsColumn || seat->bIsAColumn);
    EXPECT_EQ(seat->EDOTopElev, "");
}

TEST_F(BeamSeatReaderTest, columnsAreThreeTypes)
{
    for (const qint64 type : {25, 26, 1002})
        EXPECT_TRUE(read(type)->bIsColumn) << type;
    for (const qint64 type : {0, 1003, 54, 52, 53, 15, 17, 18})
        EXPECT_FALSE(read(type)->bIsColumn) << type;
}

TEST_F(BeamSeatReaderTest, columnOfType2IsAnAColumn)
{
    EXPECT_FALSE(read(25)->bIsAColumn);
    m_object.own.values["Type"] = 1;
    EXPECT_FALSE(read(25)->bIsAColumn);
    m_object.own.values["Type"] = 2;
    EXPECT_TRUE(read(25)->bIsAColumn);
    EXPECT_TRUE(read(1002)->bIsAColumn);
    EXPECT_FALSE(read(54)->bIsAColumn);
}

TEST_F(BeamSeatReaderTest, foundationTakesTheOutlineOfItsHighestUnit)
{
    addUnit(82, 1, 10);
    addUnit(82, 3, 30);
    addUnit(82, 2, 20);
    EXPECT_EQ(widthOf(read(52)), 30.0);
}

TEST_F(BeamSeatReaderTest, laterOfTwoEqualUnitsWins)
{
    addUnit(83, 1, 10);
    addUnit(83, 1, 20);
    EXPECT_EQ(widthOf(read(53)), 20.0);
}

TEST_F(BeamSeatReaderTest, unitOfRankZeroCanWinAndOneOfANegativeRankCannot)
{
    addUnit(83, -1, 10);
    EXPECT_EQ(widthOf(read(53)), 400.0);
    addUnit(83, 0, 20);
    EXPECT_EQ(widthOf(read(53)), 20.0);
}

TEST_F(BeamSeatReaderTest, unitsOfBothTypesCountForBothFoundations)
{
    addUnit(82, 1, 10);
    addUnit(83, 2, 20);
    EXPECT_EQ(widthOf(read(52)), 20.0);
    EXPECT_EQ(widthOf(read(53)), 20.0);
}

TEST_F(BeamSeatReaderTest, pileCapWithoutAUnitTakesItsOwnOutline)
{
    EXPECT_EQ(widthOf(read(53)), 400.0);
    addUnit(84, 5, 10);
    m_object.children.push_back(nullptr);
    EXPECT_EQ(widthOf(read(53)), 400.0);
}

TEST_F(BeamSeatReaderTest, childrenOfOtherTypesAreNotLookedAt)
{
    addUnit(82, 1, 10);
    EXPECT_EQ(widthOf(read(54)), 400.0);
    EXPECT_EQ(widthOf(read(25)), 400.0);
}

TEST_F(BeamSeatReaderTest, unitWithoutAnOutlineLeavesTheSeatWithoutOne)
{
    addUnit(82, 1, 10);
    std::get<1>(m_units[0])->outline = nullptr;
    const Seat seat = read(52);
    ASSERT_TRUE(seat);
    EXPECT_FALSE(seat->ipWorldPoly);
}

TEST_F(BeamSeatReaderTest, dataForRebuildingAreReadOfFourTypes)
{
    for (const qint64 type : {52, 53, 54, 18}) {
        m_object.own.values = {
            {"AxisOffset", 12.5}, {"Type1", 3}, {"Height", 500}, {"SectionWidth", 300}, {"SectionHeight", 600}};
        m_object.own.polygons = {{"SectionPoly", rectangle(0, 0, 50, 60)}};
        const Seat seat = read(type);
        ASSERT_TRUE(seat->SectionPoly) << type;
        EXPECT_EQ(seat->SectionPoly->Area(), 3000.0);
        EXPECT_EQ(seat->AxisOffset, 12.5);
        EXPECT_EQ(seat->Type, "3");
        EXPECT_EQ(seat->Height, 500.0);
        EXPECT_EQ(seat->SectionWidth, 300);
        EXPECT_EQ(seat->SectionHeight, 600);
    }
}

TEST_F(BeamSeatReaderTest, dataForRebuildingAreNotReadOfOtherTypes)
{
    m_object.own.values = {{"AxisOffset", 12.5}, {"Type1", 3}, {"SectionWidth", 300}, {"TopElev", "3"}};
    for (const qint64 type : {25, 26, 1002, 0, 1003, 15, 17}) {
        const Seat seat = read(type);
        EXPECT_EQ(seat->AxisOffset, 0.0) << type;
        EXPECT_EQ(seat->Type, "");
        EXPECT_EQ(seat->SectionWidth, 0);
        EXPECT_EQ(seat->EDOTopElev, "");
    }
}

TEST_F(BeamSeatReaderTest, secondNameOfTheAxisOffsetOverwritesTheFirst)
{
    m_object.own.values = {{"AxisOffset", 12.5}, {"AxisOffset_JZBZ", -7.5}};
    EXPECT_EQ(read(18)->AxisOffset, -7.5);
    m_object.own.values = {{"AxisOffset_JZBZ", 0.0}};
    EXPECT_EQ(read(18)->AxisOffset, 0.0);
}

TEST_F(BeamSeatReaderTest, heightIsReadAsAnInteger)
{
    m_object.own.values = {{"Height", 2900}};
    EXPECT_EQ(read(54)->Height, 2900.0);
    EXPECT_THAT(m_object.own.asked, testing::Contains(QString("int Height")));
}

TEST_F(BeamSeatReaderTest, propertiesAreAskedForInOrderAndReadWhereTheyAre)
{
    m_object.own.values = {{"AxisOffset", 1.0}, {"Height", 1}, {"TopElev", "1"}};
    m_element.own.values = {{"BottomElev", "2"}};
    read(54);
    EXPECT_EQ(m_object.own.asked.join("; ").toStdString(),
              "has SectionPoly; has AxisOffset; double AxisOffset; has AxisOffset_JZBZ; has Type1; has Height; "
              "int Height; has SectionWidth; has SectionHeight; has TopElev; text TopElev; has BottomElev");
    EXPECT_EQ(m_element.own.asked.join("; ").toStdString(), "has TopElev; has BottomElev; text BottomElev");
}

TEST_F(BeamSeatReaderTest, elevationsComeFromTheObjectAndFromItsElement)
{
    m_object.own.values = {{"TopElev", "1"}, {"BottomElev", "2"}, {"StartPtTopElev", "x"}};
    m_element.own.values = {{"TopElev", "3"}, {"BottomElev", "4"}, {"EndPtTopElev", "x"}};
    const Seat seat = read(52, m_point);
    EXPECT_EQ(seat->EDOTopElev, "1");
    EXPECT_EQ(seat->EDOBtmElev, "2");
    EXPECT_EQ(seat->TopElev, "3");
    EXPECT_EQ(seat->BtmElev, "4");
}

TEST_F(BeamSeatReaderTest, elevationsOfATieBeamAreTheTopsAtStartAndEnd)
{
    m_object.own.values = {{"StartPtTopElev", "1"}, {"EndPtTopElev", "2"}, {"TopElev", "x"}, {"BottomElev", "x"}};
    m_element.own.values = {{"StartPtTopElev", "3"}, {"EndPtTopElev", "4"}, {"TopElev", "x"}, {"BottomElev", "x"}};
    const Seat seat = read(18, m_line);
    EXPECT_EQ(seat->EDOTopElev, "1");
    EXPECT_EQ(seat->EDOBtmElev, "2");
    EXPECT_EQ(seat->TopElev, "3");
    EXPECT_EQ(seat->BtmElev, "4");
}

TEST_F(BeamSeatReaderTest, angleAndMirrorAreThoseOfAPointSolid)
{
    m_point.turn = 0.5;
    m_point.mirrored = true;
    const Seat seat = read(54, m_point);
    EXPECT_EQ(seat->Angle, 0.5);
    EXPECT_TRUE(seat->Mirror);
    EXPECT_EQ(read(25, m_point)->Angle, 0.0); // of four types only
}

TEST_F(BeamSeatReaderTest, lineSolidGivesCopiesOfItsLocalAndItsWorldLine)
{
    const Seat seat = read(15, m_line);
    EXPECT_TRUE(seat->bLineShape);
    EXPECT_EQ(seat->ipWallLine->Length(), 2000.0);
    EXPECT_EQ(seat->ipCenterLine->Length(), 3000.0);
    EXPECT_NE(seat->ipWallLine.get(), m_line.local.get());
    EXPECT_NE(seat->ipCenterLine.get(), m_line.world.get());
}

TEST_F(BeamSeatReaderTest, objectWithoutAThicknessHasItsCentreLineOffsetAllTheSame)
{
    m_object.own.values = {{"AxisOffset", 50.0}};
    const Seat seat = read(0, m_line);
    EXPECT_EQ(seat->ipCenterLine->StartPoint().y, 50.0);
    ASSERT_TRUE(seat->ipWorldLine);
    EXPECT_EQ(seat->ipWorldLine->StartPoint().y, 0.0);
    EXPECT_EQ(m_object.own.asked.join("; ").toStdString(),
              "has Thickness; double AxisOffset; double Thickness; has Thickness");
}

TEST_F(BeamSeatReaderTest, objectWithAThicknessKeepsItsCentreLineAndHasNoWorldLine)
{
    m_object.own.values = {{"AxisOffset", 50.0}, {"Thickness", 200.0}};
    const Seat seat = read(1003, m_line);
    EXPECT_EQ(seat->ipCenterLine->StartPoint().y, 0.0);
    EXPECT_FALSE(seat->ipWorldLine);
}

TEST_F(BeamSeatReaderTest, beamsKeepTheirCentreLine)
{
    m_object.own.values = {{"AxisOffset", 50.0}};
    for (const qint64 type : {15, 17, 18}) {
        const Seat seat = read(type, m_line);
        EXPECT_EQ(seat->ipCenterLine->StartPoint().y, 0.0) << type;
        EXPECT_FALSE(seat->ipWorldLine);
    }
}

TEST_F(BeamSeatReaderTest, offsetHasToExceedOneMillimetreByMoreThanTheTolerance)
{
    const auto offsetFor = [this](double axisOffset) {
        m_object.own.values = {{"AxisOffset", axisOffset}};
        const Seat seat = read(0, m_line);
        EXPECT_TRUE(seat->ipWorldLine); // whether or not the line was moved
        return seat->ipCenterLine->StartPoint().y;
    };
    EXPECT_EQ(offsetFor(1.0), 0.0);
    EXPECT_EQ(offsetFor(-1.0), 0.0);
    EXPECT_EQ(offsetFor(1.0000005), 0.0); // within 1e-6
    EXPECT_EQ(offsetFor(1.5), 1.5);
    EXPECT_EQ(offsetFor(-1.5), -1.5);
    vks::g_DistEpsilon = 1.0;
    EXPECT_EQ(offsetFor(1.5), 0.0);
    vks::g_DistEpsilon = 0.0;
    EXPECT_NEAR(offsetFor(1.0000005), 1.0000005, 1e-12);
    EXPECT_EQ(offsetFor(1.0), 0.0);
    EXPECT_EQ(offsetFor(1.0 + 5e-13), 0.0); // within 1e-12
}

TEST_F(BeamSeatReaderTest, lineThatHasNoOffsetStays)
{
    m_object.own.values = {{"AxisOffset", 50.0}};
    m_line.world = nullptr;
    m_line.local = nullptr;
    const Seat seat = read(0, m_line);
    EXPECT_TRUE(seat->bLineShape);
    EXPECT_FALSE(seat->ipCenterLine || seat->ipWallLine || seat->ipWorldLine);
}

TEST_F(BeamSeatReaderTest, wallsSearchByTheirThicknessUpTo180)
{
    const auto distanceFor = [this](qint64 type, double thickness) {
        m_object.own.values = {{"Thickness", thickness}};
        const Seat seat = read(type);
        EXPECT_TRUE(seat->bHasWallThicknessProperty);
        EXPECT_EQ(seat->dWallThickness, thickness);
        return seat->dOffsetDist;
    };
    EXPECT_DOUBLE_EQ(distanceFor(0, 200.0), 82.0);
    EXPECT_DOUBLE_EQ(distanceFor(1003, 200.0), 82.0);
    EXPECT_EQ(distanceFor(0, 500.0), 180.0);
}

TEST_F(BeamSeatReaderTest, wallWithoutAThicknessKeepsTheDistanceOf100)
{
    const Seat seat = read(0);
    EXPECT_EQ(seat->dOffsetDist, 100.0);
    EXPECT_EQ(seat->dWallThickness, -1.0);
    EXPECT_FALSE(seat->bHasWallThicknessProperty);
}

TEST_F(BeamSeatReaderTest, thicknessOfOtherTypesIsNotLookedAt)
{
    m_object.own.values = {{"Thickness", 200.0}};
    const Seat seat = read(26);
    EXPECT_EQ(seat->dOffsetDist, 100.0);
    EXPECT_FALSE(seat->bHasWallThicknessProperty);
}

TEST_F(BeamSeatReaderTest, seatLineIsTheShapesCurveProjectedIntoTheWorld)
{
    m_line.frame.origin = {10, 20, 30};
    const Seat fromSolid = read(15, m_line);
    ASSERT_TRUE(fromSolid->ipSeatLine);
    EXPECT_EQ(fromSolid->ipSeatLine->StartPoint(), (vks::CVec2<double>(10, 20)));
    EXPECT_EQ(fromSolid->ipSeatLine->EndPoint(), (vks::CVec2<double>(1010, 20)));
    const Seat fromPlanLine = read(15, m_planLine);
    ASSERT_TRUE(fromPlanLine->ipSeatLine);
    EXPECT_EQ(fromPlanLine->ipSeatLine->Length(), 4000.0);
    EXPECT_FALSE(fromPlanLine->bLineShape); // a plan line is no solid
}

TEST_F(BeamSeatReaderTest, seatLineNeedsAKindACurveAndAFrame)
{
    m_line.kindNumber = 2;
    EXPECT_FALSE(read(15, m_line)->ipSeatLine);
    m_line.kindNumber = 1;
    m_line.frame = vks::CCoord3<double>::Absent();
    EXPECT_FALSE(read(15, m_line)->ipSeatLine);
    m_line.frame = {};
    m_line.own = nullptr;
    EXPECT_FALSE(read(15, m_line)->ipSeatLine);
    EXPECT_FALSE(read(15, m_face)->ipSeatLine);
    m_face.kindNumber = 1; // says that it is a line, and is none
    EXPECT_FALSE(read(15, m_face)->ipSeatLine);
    m_face.kindNumber = 4;
    EXPECT_FALSE(read(15, m_face)->ipSeatLine);
}

TEST_F(BeamSeatReaderTest, whatTheHostThrowsPassesThrough)
{
    m_object.own.failing = "Height";
    EXPECT_THROW(read(54), HBXModelException);
}

} // namespace
