#include "ModelSerialization/HostSlabReading.h"

#include "ModelSerialization/SlabReaderFixture.h"
#include "beam/SeatHost.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "support/BuildingHost.h"

namespace {

using hbx::embedded::curveOf;
using hbx::embedded::expectBox;
using hbx::embedded::polygonOf;

class HostSlabReadingTest : public SlabReaderFixture
{
protected:
    IHBXElementDrawObj *strip(qint64 type, const char *name = "", double axisOffset = 0.0)
    {
        IHBXElement *ofStrip = element(type, name);
        const bool isBeam = ofStrip->properties()->hasProperty(L"SectionWidth");
        ofStrip->properties()->setDouble(isBeam ? L"SectionWidth" : L"Thickness", 240.0, false);
        ofStrip->properties()->setDouble(L"AxisOffset", axisOffset, false);
        IHBXElementDrawObj *object = placed(ofStrip);
        as<IHBXCustomLineSolidShape>(object)->setLine(curveOf("LINESTRING(0 0, 6000 0)"));
        return object;
    }
    /** Of 600 mm by 400 mm. */
    IHBXElementDrawObj *column(qint64 type, const char *name = "")
    {
        IHBXElement *ofColumn = element(type, name);
        ofColumn->properties()->setDouble(L"SectionWidth", 600.0, false);
        ofColumn->properties()->setDouble(L"SectionHeight", 400.0, false);
        IHBXElementDrawObj *object = placed(ofColumn);
        const Point place(1000, 2000);
        as<IHBXCustomPointSolidShape>(object)->setInsertPoint(&place);
        return object;
    }
    IHBXElementDrawObj *hole()
    {
        IHBXElement *ofHole = element(24, "BD-1", "F1", 153);
        ofHole->properties()->setDouble(L"Width", 800.0, false);
        ofHole->properties()->setDouble(L"Length", 1200.0, false);
        IHBXElementDrawObj *object = placed(ofHole);
        const Point place(1000, 2000);
        as<IHBXCustomPointSolidShape>(object)->setInsertPoint(&place);
        return object;
    }
};

// ---- Rafts and slabs

TEST_F(HostSlabReadingTest, raftTakesItsOutlineSizeAndElevations)
{
    setTexts(plate(48, "FB-100"), {{L"TopElev", "-1.25"}, {L"BottomElev", "-1.35"}, {L"Remark", "whole"}});
    ASSERT_TRUE(read());
    const Model::Raft &raft = only(local.rafts());
    EXPECT_EQ(text(raft.surface), kOutline);
    EXPECT_DOUBLE_EQ(raft.thickness, 100.0);
    EXPECT_DOUBLE_EQ(raft.topElev, -1.25);
    EXPECT_DOUBLE_EQ(raft.bottomElev, -1.35);
    EXPECT_EQ(raft.stateDescript, "whole");
    EXPECT_EQ(raft.name, "FB-100");
}

TEST_F(HostSlabReadingTest, slabTakesItsOutlineSizeAndElevation)
{
    setTexts(plate(19, "B-h100"), {{L"TopElev", "层顶标高-0.05"}, {L"Remark", "bath"}});
    ASSERT_TRUE(read());
    const Model::Board &board = only(local.boards());
    EXPECT_EQ(text(board.surface), kOutline);
    EXPECT_DOUBLE_EQ(board.thickness, 100.0);
    EXPECT_DOUBLE_EQ(board.elev, 2.95); // m, of a floor that ends at 3 m
    EXPECT_EQ(board.stateDescript, "bath");
    EXPECT_EQ(board.name, "B-h100");
    EXPECT_EQ(board.boardType, Model::Board::Types());
}

TEST_F(HostSlabReadingTest, slabOfATurnedFrameComesInWorldGeometry)
{
    plate(19, "B")->shape()->setCoordinates({{10000, 0, 0}, {0, 1, 0}, {-1, 0, 0}});
    ASSERT_TRUE(read());
    expectBox(only(local.boards()).surface->Box(), 6000, 0, 10000, 6000);
}

TEST_F(HostSlabReadingTest, outlineIsACopyOfTheHosts)
{
    const IHBXElementDrawObj *object = plate(19, "B");
    ASSERT_TRUE(read());
    only(local.boards()).surface->Translate({5000, 0});
    expectBox(box(const_cast<IHBXElementDrawObj *>(object)), 0, 0, 6000, 4000);
}

TEST_F(HostSlabReadingTest, slabWithoutGeometryComesInWithoutASurface)
{
    as<IHBXFaceSolidShape>(plate(19, "B"))->setPolygon(nullptr);
    ASSERT_TRUE(read());
    EXPECT_EQ(text(only(local.boards()).surface), "none");
}

// ---- Holes

TEST_F(HostSlabReadingTest, holeTakesItsOutlineAndTheTextsOfItsSpans)
{
    setTexts(hole(), {{L"LongSpanReinforcedBar", "2C14"},
                      {L"ShortSpanReinforcedBar", "2C12"},
                      {L"ObliqueReinforcedBar", "8C10"},
                      {L"Remark", "shaft"}});
    ASSERT_TRUE(read());
    const Model::BoardHole &found = only(local.boardHoles());
    expectBox(found.surface->Box(), 600, 1400, 1400, 2600);
    EXPECT_EQ(found.longSpanReinforceBar, "2C14");
    EXPECT_EQ(found.shortSpanReinforceBar, "2C12");
    EXPECT_EQ(found.obliqueReinforceBar, "8C10");
    EXPECT_EQ(found.stateDescript, "shaft");
    EXPECT_EQ(found.name, "BD-1");
}

TEST_F(HostSlabReadingTest, barInfoOfAHoleIsNeverSet)
{
    setTexts(hole(), {{L"LongSpanReinforcedBar", "2C14"}});
    ASSERT_TRUE(read());
    EXPECT_EQ(only(local.boardHoles()).barInfo, "");
}

TEST_F(HostSlabReadingTest, holeMayBeAFaceSolidToo)
{
    seathost::FaceSolid face;
    face.outline = polygonOf(kOutline);
    seathost::DrawObj object;
    object.placed = &face;
    Model::BoardHole found;
    slabhost::read(object, found);
    EXPECT_EQ(text(found.surface), kOutline);
}

// ---- Supports

TEST_F(HostSlabReadingTest, columnTakesItsOutlineAndTheHostsElevation)
{
    setTexts(column(25, "KZ1"), {{L"TopElev", "2.8"}});
    ASSERT_TRUE(read());
    const Model::Column &found = only(local.columns());
    expectBox(found.surface->Box(), 700, 1800, 1300, 2200);
    EXPECT_DOUBLE_EQ(found.topElev, 2800.0); // not divided
    EXPECT_EQ(found.name, "KZ1");
}

TEST_F(HostSlabReadingTest, columnMayBeAFaceSolidToo)
{
    seathost::FaceSolid face;
    face.outline = polygonOf(kOutline);
    seathost::DrawObj object;
    object.placed = &face;
    Model::Column found;
    slabhost::read(object, found);
    EXPECT_EQ(text(found.surface), kOutline);
}

TEST_F(HostSlabReadingTest, beamTakesItsAxisWidthAndElevations)
{
    setTexts(strip(15, "KL1", 30.0), {{L"StartPtTopElev", "2.9"}, {L"EndPtTopElev", "3.1"}});
    ASSERT_TRUE(read());
    const Model::Beam &beam = only(local.beams());
    EXPECT_EQ(text(beam.line), "LINESTRING(0 0, 6000 0)");
    EXPECT_DOUBLE_EQ(beam.width, 240.0);
    EXPECT_DOUBLE_EQ(beam.distanceToLeft, 150.0);
    EXPECT_DOUBLE_EQ(beam.startTopElev, 2900.0);
    EXPECT_DOUBLE_EQ(beam.endTopElev, 3100.0);
    EXPECT_EQ(beam.name, "KL1");
}

TEST_F(HostSlabReadingTest, elevationsOfAWallGoToItsOwnFields)
{
    setTexts(strip(0, "Q1", -20.0), {{L"StartPtTopElev", "2.9"}, {L"EndPtTopElev", "层顶标高"}});
    ASSERT_TRUE(read());
    const Model::Wall &wall = only(local.walls());
    EXPECT_EQ(text(wall.line), "LINESTRING(0 0, 6000 0)");
    EXPECT_DOUBLE_EQ(wall.width, 240.0);
    EXPECT_DOUBLE_EQ(wall.distanceToLeft, 100.0);
    EXPECT_DOUBLE_EQ(wall.wallStartTopElev, 2900.0);
    EXPECT_DOUBLE_EQ(wall.wallEndTopElev, 3000.0);
    EXPECT_DOUBLE_EQ(wall.startTopElev, 0.0);
    EXPECT_DOUBLE_EQ(wall.endTopElev, 0.0);
}

TEST_F(HostSlabReadingTest, beamOfATurnedFrameComesInWorldGeometry)
{
    strip(15)->shape()->setCoordinates({{10000, 500, 0}, {0, 1, 0}, {-1, 0, 0}});
    ASSERT_TRUE(read());
    EXPECT_EQ(text(only(local.beams()).line), "LINESTRING(10000 500, 10000 6500)");
}

TEST_F(HostSlabReadingTest, beamWithoutAnAxisComesInWithoutALine)
{
    as<IHBXCustomLineSolidShape>(strip(15))->setLine(nullptr);
    ASSERT_TRUE(read());
    EXPECT_EQ(text(only(local.beams()).line), "none");
}

// ---- Axis nets

TEST_F(HostSlabReadingTest, netTakesOutlineAxesAndRemark)
{
    const BuildingHost host("made-building");
    ASSERT_TRUE(Service::hbx2local(&host.model(), "主楼", "第1层", topElev, btmElev, &local, Service::AxisNets));
    const Model::AxisNet &net = only(local.axisNet());
    EXPECT_EQ(net.name, "ZW-1");
    EXPECT_EQ(net.stateDescript, "主轴网");
    EXPECT_EQ(text(net.surface), "POLYGON((-1000 -1000, 11000 -1000, 11000 9000, -1000 9000, -1000 -1000))");
    ASSERT_TRUE(net.axisGrid);
    const AxisGridHalf &u = net.axisGrid->gridU;
    EXPECT_EQ(u.direction, 0);
    EXPECT_EQ(u.start, "1");
    EXPECT_EQ(u.end, "3");
    ASSERT_EQ(u.data.size(), 3U);
    EXPECT_EQ(u.data[1].first, "2");
    EXPECT_EQ(text(u.data[1].second), "LINESTRING(5000 -1000, 5000 9000)");
    const AxisGridHalf &v = net.axisGrid->gridV;
    EXPECT_EQ(v.direction, 1);
    EXPECT_EQ(v.start, "A");
    EXPECT_EQ(v.end, "B");
    ASSERT_EQ(v.data.size(), 2U);
    EXPECT_EQ(text(v.data[0].second), "LINESTRING(-1000 0, 11000 0)");
}

TEST_F(HostSlabReadingTest, secondGroupCountsWhereTheFirstIsEmptyAndFramesTurnAxes)
{
    const BuildingHost host("made-building");
    ASSERT_TRUE(Service::hbx2local(&host.model(), "附楼 Annex", "Ground", topElev, btmElev, &local, Service::AxisNets));
    const Model::AxisNet &net = only(local.axisNet());
    expectBox(net.surface->Box(), 19000, -1000, 21000, 7000);
    const AxisGridHalf &u = net.axisGrid->gridU;
    EXPECT_EQ(u.start, "1");
    EXPECT_EQ(u.end, "1");
    ASSERT_EQ(u.data.size(), 3U);
    EXPECT_EQ(u.data[1].first, "");
    EXPECT_EQ(text(u.data[2].second), "LINESTRING(21000 6000, 19000 6000)");
    const AxisGridHalf &v = net.axisGrid->gridV;
    EXPECT_EQ(v.start, "1/A");
    EXPECT_EQ(v.end, "1/A");
    ASSERT_EQ(v.data.size(), 1U);
    EXPECT_EQ(v.data[0].second->StartPoint(), Point(20000, -1000));
}

TEST_F(HostSlabReadingTest, netWithoutAxesHasNoLabels)
{
    as<IHBXGridShape>(placed(element(74, "ZW")));
    ASSERT_TRUE(read());
    const Model::AxisNet &net = only(local.axisNet());
    EXPECT_EQ(text(net.surface), "none");
    ASSERT_TRUE(net.axisGrid);
    EXPECT_EQ(net.axisGrid->gridU.start, "");
    EXPECT_EQ(net.axisGrid->gridU.end, "");
    EXPECT_TRUE(net.axisGrid->gridU.data.empty());
    EXPECT_EQ(net.axisGrid->gridV.direction, 1);
}

// ---- What a broken host holds

TEST_F(HostSlabReadingTest, shapeOfAnotherKindLeavesTheGeometryOut)
{
    seathost::PlanLine shape;
    shape.outline = polygonOf(kOutline);
    seathost::DrawObj object;
    object.placed = &shape;
    Model::Raft raft;
    Model::Board board;
    Model::BoardHole boardHole;
    Model::Column found;
    Model::Beam beam;
    slabhost::read(object, raft);
    slabhost::read(object, board);
    slabhost::read(object, boardHole);
    slabhost::read(object, found);
    slabhost::read(object, beam);
    EXPECT_FALSE(raft.surface || board.surface || boardHole.surface || found.surface || beam.line);
    EXPECT_DOUBLE_EQ(board.thickness, 0.0);
    EXPECT_DOUBLE_EQ(beam.width, 0.0);
}

TEST_F(HostSlabReadingTest, objectWithoutAGridGivesItsRemarkAlone)
{
    seathost::DrawObj object;
    object.number = 74;
    Model::AxisNet net;
    slabhost::read(object, net);
    EXPECT_FALSE(net.surface);
    EXPECT_FALSE(net.axisGrid);
}

/** A draw object that has neither shape nor properties. */
struct BareDrawObj : seathost::DrawObj
{
    IHBXProperties *properties() override { return nullptr; }
};

TEST_F(HostSlabReadingTest, objectWithNothingGivesEmptyElements)
{
    BareDrawObj object;
    Model::Raft raft;
    Model::Wall wall;
    slabhost::read(object, raft);
    slabhost::read(object, wall);
    EXPECT_FALSE(raft.surface);
    EXPECT_DOUBLE_EQ(raft.topElev, 0.0);
    EXPECT_EQ(raft.stateDescript, "");
    EXPECT_FALSE(wall.line);
}

} // namespace
