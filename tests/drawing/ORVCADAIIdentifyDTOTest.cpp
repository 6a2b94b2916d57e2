#include "drawing/ORVCADAIIdentifyDTO.h"

#include "DrawingSetFixture.h"

namespace {

constexpr int kRegion = 7; // of the fixture
constexpr int kBeam = 15;
constexpr int kColumn = 25;

using ORVCADAIIdentifyDTOTest = DrawingSetFixture;

} // namespace

TEST_F(ORVCADAIIdentifyDTOTest, setWithoutFloorsOrMappingsGivesAnEmptyView)
{
    EXPECT_EQ(ORVCADAIIdentifyDTO(kRegion, kBeam).getDrawingCount(), 0);
    addFloor("F1", 0.0, 3.0);
    EXPECT_TRUE(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames().isEmpty());
    set->floorMappings = new ORVCADDrawingFloorMappings;
    set->floorMappings->addMapping(kRegion, QStringLiteral("F1"), QStringLiteral("plan"));
    EXPECT_TRUE(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames().isEmpty());
    set->elementMappings = new ORVCADDrawingElementMappings;
    EXPECT_EQ(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames(), QStringList{"F1"});
    delete set->floors;
    set->floors = nullptr;
    EXPECT_TRUE(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames().isEmpty());
}

TEST_F(ORVCADAIIdentifyDTOTest, setIsMadeWhereThereIsNone)
{
    ORVCADDisposeInfoData::freeData();
    EXPECT_TRUE(ORVCADAIIdentifyDTO(kRegion, kBeam).getDrawings().isEmpty());
    EXPECT_EQ(ORVCADDisposeInfoData::getData()->floors, nullptr);
}

TEST_F(ORVCADAIIdentifyDTOTest, floorSetWithoutFloorsGivesAnEmptyView)
{
    addDrawing("F1", "plan", {kBeam});
    set->floors = new ORVCADFloors;
    EXPECT_TRUE(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames().isEmpty());
}

TEST_F(ORVCADAIIdentifyDTOTest, floorsAreVisitedFromTheLowestUp)
{
    addFloor("F2", 3.0, 3.0);
    addFloor("F3", 6.0, 3.0);
    addFloor("F1", 0.0, 3.0);
    for (const char *floor : {"F1", "F2", "F3"})
        addDrawing(floor, floor, {kBeam});
    const ORVCADAIIdentifyDTO view(kRegion, kBeam);
    EXPECT_EQ(view.getFloorNames(), (QStringList{"F1", "F2", "F3"}));
    EXPECT_EQ(view.getDrawings(), (QStringList{"F1", "F2", "F3"}));
    EXPECT_EQ(view.getDrawingCount(), 3);
}

TEST_F(ORVCADAIIdentifyDTOTest, gapInTheElevationsEndsTheWalk)
{
    addFloor("F1", 0.0, 3.0);
    addFloor("F3", 6.0, 3.0);
    addFloor("F4", 9.0, 3.0);
    for (const char *floor : {"F1", "F3", "F4"})
        addDrawing(floor, floor, {kBeam});
    EXPECT_EQ(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames(), QStringList{"F1"});
}

TEST_F(ORVCADAIIdentifyDTOTest, walkThatComesBackToAFloorEnds)
{
    addFloor("down", 0.0, 3.0);
    addFloor("up", 3.0, -3.0);
    addDrawing("down", "a", {kBeam});
    addDrawing("up", "b", {kBeam});
    EXPECT_EQ(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames(), (QStringList{"down", "up"}));
}

TEST_F(ORVCADAIIdentifyDTOTest, drawingsOfOtherTypesAreLeftOutAndTheFloorStays)
{
    addFloor("F1", 0.0, 3.0);
    addFloor("F2", 3.0, 3.0);
    addDrawing("F1", "columns", {kColumn});
    addDrawing("F2", "columns", {kColumn});
    addDrawing("F2", "beams", {kBeam});
    addDrawing("F2", "both", {kColumn, kBeam});
    const ORVCADAIIdentifyDTO view(kRegion, kBeam);
    EXPECT_EQ(view.getFloorNames(), (QStringList{"F1", "F2"}));
    EXPECT_TRUE(view.getDrawingNames(QStringLiteral("F1")).isEmpty());
    EXPECT_EQ(view.getDrawingNames(QStringLiteral("F2")), (QStringList{"beams", "both"}));
    EXPECT_EQ(view.getDrawings(), (QStringList{"beams", "both"}));
}

TEST_F(ORVCADAIIdentifyDTOTest, floorWithoutDrawingsHasNoEntry)
{
    addFloor("F1", 0.0, 3.0);
    addFloor("F2", 3.0, 3.0);
    addFloor("F3", 6.0, 3.0);
    addDrawing("F1", "a", {kBeam});
    addDrawing("F3", "b", {kBeam});
    EXPECT_EQ(ORVCADAIIdentifyDTO(kRegion, kBeam).getFloorNames(), (QStringList{"F1", "F3"}));
}

TEST_F(ORVCADAIIdentifyDTOTest, drawingsOfAnotherRegionDoNotCount)
{
    addFloor("F1", 0.0, 3.0);
    addDrawing("F1", "a", {kBeam});
    EXPECT_TRUE(ORVCADAIIdentifyDTO(8, kBeam).getFloorNames().isEmpty());
    EXPECT_TRUE(ORVCADAIIdentifyDTO(-1, kBeam).getFloorNames().isEmpty());
}

TEST_F(ORVCADAIIdentifyDTOTest, drawingOfTwoFloorsStandsThereTwice)
{
    addFloor("F1", 0.0, 3.0);
    addFloor("F2", 3.0, 3.0);
    addDrawing("F1", "a", {kBeam});
    addDrawing("F2", "a", {kBeam});
    EXPECT_EQ(ORVCADAIIdentifyDTO(kRegion, kBeam).getDrawings(), (QStringList{"a", "a"}));
}

TEST_F(ORVCADAIIdentifyDTOTest, unknownAndEmptyFloorNamesHaveNoDrawings)
{
    addFloor("F1", 0.0, 3.0);
    addDrawing("F1", "a", {kBeam});
    const ORVCADAIIdentifyDTO view(kRegion, kBeam);
    EXPECT_TRUE(view.getDrawingNames(QString()).isEmpty());
    EXPECT_TRUE(view.getDrawingNames(QStringLiteral("f1")).isEmpty());
}

TEST_F(ORVCADAIIdentifyDTOTest, firstEntryOfAFloorNameAnswers)
{
    addFloor("F1", 0.0, 3.0);
    addFloor("F1", 3.0, 3.0);
    addDrawing("F1", "a", {kBeam});
    const ORVCADAIIdentifyDTO view(kRegion, kBeam);
    EXPECT_EQ(view.getFloorNames(), (QStringList{"F1", "F1"}));
    EXPECT_EQ(view.getDrawingNames(QStringLiteral("F1")), QStringList{"a"});
}

TEST_F(ORVCADAIIdentifyDTOTest, viewKeepsWhatItSawWhenTheSetIsGone)
{
    addFloor("F1", 0.0, 3.0);
    addDrawing("F1", "a", {kBeam});
    const ORVCADAIIdentifyDTO view(kRegion, kBeam);
    ORVCADDisposeInfoData::freeData();
    EXPECT_EQ(view.getDrawings(), QStringList{"a"});
}
