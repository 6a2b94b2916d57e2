#include "ModelSerialization/SlabHoleWriting.h"

#include "ModelSerialization/SlabWriterFixture.h"

namespace {

using hbx::embedded::expectBox;
using shapes::kPi;

constexpr double kNear = 1e-9; // rad

TEST(HoleAngleTest, rectangleAlongTheAxesIsNotTurned)
{
    EXPECT_EQ(slabhost::holeAngle(400, 300, *shapes::rectangle(50, 70, 400, 300)), 0.0);
}

TEST(HoleAngleTest, angleLiesWithinAQuarterTurnEitherWay)
{
    const auto rectangle = shapes::rectangle(0, 0, 400, 300);
    EXPECT_NEAR(slabhost::holeAngle(400, 300, *shapes::turned(*rectangle, 0.4)), 0.4, kNear);
    EXPECT_NEAR(slabhost::holeAngle(400, 300, *shapes::turned(*rectangle, 2.0)), 2.0 - kPi, kNear);
    EXPECT_NEAR(slabhost::holeAngle(400, 300, *shapes::turned(*rectangle, kPi + 0.4)), 0.4, kNear);
    EXPECT_NEAR(slabhost::holeAngle(400, 300, *shapes::turned(*rectangle, -0.4)), -0.4, kNear);
    EXPECT_NEAR(slabhost::holeAngle(400, 300, *shapes::rectangle(0, 0, 300, 400)), kPi / 2, kNear);
}

TEST(HoleAngleTest, anglesOfASquareThatAreNoneOrAQuarterTurnChangePlaces)
{
    const auto square = shapes::rectangle(0, 0, 400, 400);
    EXPECT_DOUBLE_EQ(slabhost::holeAngle(400, 400, *square), kPi / 2);
    EXPECT_NEAR(slabhost::holeAngle(400, 400, *shapes::turned(*square, 0.4)), 0.4, kNear);
}

TEST(HoleAngleTest, outlineOfAnotherShapeIsNotTurned)
{
    EXPECT_EQ(slabhost::holeAngle(400, 300, *shapes::turned(*shapes::rectangle(0, 0, 500, 300), 0.4)), 0.0);
}

class SlabHoleWritingTest : public SlabWriterFixture
{
protected:
    SlabHoleWritingTest() { parent = hostSlab(0, 0, 9000, 9000, "floor slab"); }

    Model::BoardHole *addHole(const PolygonPtr &surface, const char *name = "", const char *barInfo = "")
    {
        auto *hole = add<Model::BoardHole>();
        hole->surface = surface;
        hole->name = QString::fromUtf8(name);
        hole->barInfo = QString::fromUtf8(barInfo);
        return hole;
    }
    static PolygonPtr wedge(double x = 1000, double y = 1000)
    {
        return shapes::polygon({{{x, y}, {x + 3000, y}, {x, y + 2000}}});
    }
    void writeHoles(IHBXService *service)
    {
        Service::localBoardHole2HBX(&local, service->model(), service->curState(), "House", "F1", ids);
    }

    IHBXElementDrawObj *parent = nullptr;
};

TEST_F(SlabHoleWritingTest, rectangleBecomesAHoleOfItsSlab)
{
    const auto *added = addHole(shapes::rectangle(1000, 2000, 400, 300));
    write();
    IHBXElementDrawObj *hole = only(24);
    ASSERT_TRUE(hole);
    EXPECT_EQ(ids, (Service::IdMap{{hole->id(), added->recongnizedID}}));
    EXPECT_EQ(hole->parent(), parent);
    EXPECT_EQ(elementName(hole), "BD-400*300");
    EXPECT_EQ(hole->element()->subType(), 153);
    EXPECT_EQ(intOf(hole, L"SectionTypeID"), 0);
    EXPECT_EQ(intOf(hole, L"Width"), 400);
    EXPECT_EQ(intOf(hole, L"Length"), 300);
    expectBox(box(hole), 1000, 2000, 1400, 2300);
}

TEST_F(SlabHoleWritingTest, sidesAreRoundedToWholeMillimetres)
{
    addHole(shapes::rectangle(1000, 2000, 400.5, 300.4));
    write();
    EXPECT_EQ(elementName(only(24)), "BD-401*300");
}

TEST_F(SlabHoleWritingTest, circleIsToldByItsRadiusWithoutAFraction)
{
    addHole(shapes::circle({3000, 3000}, 250.9));
    write();
    IHBXElementDrawObj *hole = only(24);
    ASSERT_TRUE(hole);
    EXPECT_EQ(elementName(hole), "BD-r=250");
    EXPECT_EQ(hole->element()->subType(), 154);
    EXPECT_EQ(intOf(hole, L"SectionTypeID"), 1);
    EXPECT_EQ(intOf(hole, L"Radius"), 250);
    expectBox(box(hole), 2750, 2750, 3250, 3250);
}

TEST_F(SlabHoleWritingTest, anyOtherOutlineIsDrawn)
{
    addHole(wedge());
    write();
    IHBXElementDrawObj *hole = only(24);
    ASSERT_TRUE(hole);
    EXPECT_EQ(elementName(hole), "BD-异形");
    EXPECT_EQ(hole->element()->subType(), 167);
    EXPECT_EQ(intOf(hole, L"SectionTypeID"), 2);
    EXPECT_EQ(textOf(hole, L"SectionInfo"), "100*31;100*21");
    expectBox(box(hole), 1000, 1000, 4000, 3000);
    EXPECT_DOUBLE_EQ(worldPoly(hole)->Area(), 3e6);
}

TEST_F(SlabHoleWritingTest, holesOfOneNameTextAndSizeShareAnElement)
{
    addHole(shapes::rectangle(1000, 1000, 400, 300));
    addHole(shapes::rectangle(2000, 1000, 400, 300));
    addHole(shapes::rectangle(3000, 1000, 300, 400));
    addHole(shapes::rectangle(4000, 1000, 400, 300), "", "2C16");
    write();
    const auto holes = written(24);
    ASSERT_EQ(holes.size(), 4);
    EXPECT_EQ(holes[0]->element(), holes[1]->element());
    EXPECT_EQ(elementName(holes[2]), "BD-300*400");
    // A group of its own, whose element is found by name and size.
    EXPECT_EQ(holes[3]->element(), holes[0]->element());
    EXPECT_EQ(elementCount(24), 2);
}

TEST_F(SlabHoleWritingTest, elementOfAnotherSizeOrKindMakesANewName)
{
    addHole(shapes::rectangle(1000, 1000, 400, 300), "H");
    addHole(shapes::rectangle(2000, 1000, 500, 300), "H");
    addHole(shapes::circle({5000, 5000}, 200), "H");
    addHole(shapes::circle({6000, 5000}, 300), "H");
    write();
    const auto holes = written(24);
    ASSERT_EQ(holes.size(), 4);
    EXPECT_EQ(elementName(holes[0]), "H");
    EXPECT_EQ(elementName(holes[1]), "H-1");
    EXPECT_EQ(elementName(holes[2]), "H-2");
    EXPECT_EQ(elementName(holes[3]), "H-3");
}

TEST_F(SlabHoleWritingTest, otherOutlinesOfOneNameHaveTheFirstOne)
{
    addHole(wedge());
    addHole(shapes::polygon({{{5000, 5000}, {6000, 5000}, {6500, 6000}, {5000, 6500}}}));
    write();
    const auto holes = written(24);
    ASSERT_EQ(holes.size(), 2);
    EXPECT_EQ(holes[0]->element(), holes[1]->element());
    EXPECT_DOUBLE_EQ(worldPoly(holes[1])->Area(), 3e6);
}

TEST_F(SlabHoleWritingTest, circlesAndOtherOutlinesOfOneNameShareAnElementAcrossGroups)
{
    addHole(shapes::circle({3000, 3000}, 250));
    addHole(shapes::circle({5000, 3000}, 250), "", "2C16");
    addHole(shapes::circle({7000, 3000}, 250), "BD-r=250", "2C18");
    addHole(wedge(1000, 5000));
    addHole(wedge(5000, 5000), "", "2C16");
    write();
    const auto holes = written(24);
    ASSERT_EQ(holes.size(), 5);
    EXPECT_EQ(holes[1]->element(), holes[0]->element());
    EXPECT_EQ(holes[2]->element(), holes[0]->element());
    EXPECT_EQ(holes[4]->element(), holes[3]->element());
    EXPECT_EQ(elementCount(24), 2);
}

TEST_F(SlabHoleWritingTest, edgeBarsAreNotWritten)
{
    auto *hole = addHole(shapes::rectangle(1000, 1000, 400, 300), "", "2C16");
    hole->longSpanReinforceBar = "2C14";
    hole->shortSpanReinforceBar = "2C12";
    hole->obliqueReinforceBar = "1C10";
    write();
    EXPECT_EQ(textOf(only(24), L"LongSpanReinforcedBar"), "");
    EXPECT_EQ(textOf(only(24), L"ShortSpanReinforcedBar"), "");
    EXPECT_EQ(textOf(only(24), L"ObliqueReinforcedBar"), "");
}

TEST_F(SlabHoleWritingTest, hostIsCalledInTheStatedOrder)
{
    addHole(shapes::rectangle(1000, 2000, 400, 300));
    RecordingHost host(*store.service());
    writeHoles(host.service());
    expectEqual(host.calls(), {R"(findRegion("House"))",
                               R"(findFloor("F1"))",
                               R"(findElement("BD-400*300", 2, 24, true, 0))",
                               R"(findElement("BD-400*300", 2, 24, true, 0))",
                               R"(createElement(24, 153, floor 1, ""))",
                               R"(setName("BD-400*300"))",
                               R"(setInt("Width", 400, false))",
                               R"(setInt("Length", 300, false))",
                               R"(createDrawObj(floor 1, element BD-400*300, true))",
                               "setInsertPoint((1200, 2150))",
                               "setAngle(0)",
                               "drawObjsOfTypes({19}, true)",
                               "cloneDrawObj(0, 0, 1)",
                               "setCoordinates()",
                               "setInsertPoint((1200, 2150))",
                               "setAngle(0)",
                               "attachTo(object of floor slab)",
                               R"(addDrawObj(object of BD-400*300))",
                               R"(checkDrawObj(object of BD-400*300))",
                               R"(removeDrawObj(object of BD-400*300))"});
}

TEST_F(SlabHoleWritingTest, outlineOfItsOwnIsWrittenBehindTheSectionType)
{
    addHole(wedge());
    RecordingHost host(*store.service());
    writeHoles(host.service());
    EXPECT_EQ(host.calls().mid(6, 6),
              (QStringList{R"(setInt("SectionTypeID", 2, true))",
                           "setPolygon(\"SectionPoly\", " + QString::fromStdString(wedge(0, 0)->ToText()) + ", false)",
                           R"(setPoint("InsertPt", (1500, 1000), false))",
                           R"(setString("SectionInfo", "100*31;100*21", false))", R"(setInt("Width", 2000, false))",
                           R"(setInt("Length", 3000, false))"}));
}

TEST_F(SlabHoleWritingTest, holeInNoSlabLeavesNothing)
{
    addHole(shapes::rectangle(20000, 0, 400, 300));
    const int objectsBefore = drawObjs().count();
    RecordingHost host(*store.service());
    writeHoles(host.service());
    EXPECT_EQ(host.calls().mid(host.calls().size() - 2),
              (QStringList{R"(removeDrawObj(object of BD-400*300))", R"(removeElement(element BD-400*300))"}));
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(drawObjs().count(), objectsBefore);
    EXPECT_EQ(elementCount(24), 0);
}

TEST_F(SlabHoleWritingTest, elementThatWentWithItsFirstGroupIsMadeAnewForTheNext)
{
    addHole(shapes::rectangle(20000, 0, 400, 300)); // in no slab
    const auto *sound = addHole(shapes::rectangle(1000, 1000, 400, 300), "", "2C16");
    write();
    ASSERT_TRUE(only(24));
    EXPECT_EQ(ids, (Service::IdMap{{only(24)->id(), sound->recongnizedID}}));
    EXPECT_EQ(elementName(only(24)), "BD-400*300");
    EXPECT_EQ(elementCount(24), 1);
}

TEST_F(SlabHoleWritingTest, refusedHoleLeavesNothing)
{
    addHole(shapes::rectangle(1000, 1000, 400, 300));
    write();
    addHole(shapes::rectangle(1000, 1000, 400, 300), "another");
    write(); // both lie where one is by now
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(written(24).size(), 1);
    EXPECT_EQ(elementCount(24), 1);
}

TEST_F(SlabHoleWritingTest, holeOfARaftIsAttachedToIt)
{
    IHBXElementDrawObj *raft = placed(element(48));
    as<IHBXFaceSolidShape>(raft)->setPolygon(shapes::rectangle(20000, 0, 5000, 5000));
    addHole(shapes::rectangle(21000, 1000, 400, 300));
    write();
    ASSERT_TRUE(only(24));
    EXPECT_EQ(only(24)->parent(), raft);
}

TEST_F(SlabHoleWritingTest, holeOfANewSlabIsAttachedToIt)
{
    auto *board = add<Model::Board>();
    board->surface = shapes::rectangle(20000, 0, 5000, 5000);
    addHole(shapes::rectangle(21000, 1000, 400, 300));
    write();
    ASSERT_TRUE(only(24));
    EXPECT_EQ(ids.at(only(24)->parent()->id()), board->recongnizedID);
}

TEST_F(SlabHoleWritingTest, holeWithoutAnOutlineIsLeftOut)
{
    addHole(nullptr);
    addHole(shapes::rectangle(1000, 1000, 400, 300));
    write();
    EXPECT_EQ(ids.size(), 1U);
    EXPECT_EQ(elementCount(24), 1);
}

TEST_F(SlabHoleWritingTest, holeOfTheHostIsSkippedAndAnUnknownPlaceLeftAlone)
{
    addHole(shapes::rectangle(1000, 1000, 400, 300))->elementId = 5;
    write();
    EXPECT_TRUE(ids.empty());
    addHole(shapes::rectangle(2000, 1000, 400, 300));
    write("House", "F9");
    EXPECT_EQ(elementCount(24), 0);
}

struct StepCase
{
    double size; // of the box, along x
    const char *info;
};
class AlienHoleTest : public SlabWriterFixture, public ::testing::WithParamInterface<StepCase>
{};

TEST_P(AlienHoleTest, halfTheBoxIsToldInStepsOfFifty)
{
    IHBXElement *hole = element(24);
    slabhost::fillAlienHoleProp(shapes::rectangle(-500, 700, GetParam().size, 100), hole);
    EXPECT_EQ(textIn(hole->properties(), L"SectionInfo"), QString::fromLatin1(GetParam().info));
}
INSTANTIATE_TEST_SUITE_P(Steps, AlienHoleTest,
                         ::testing::Values(StepCase{3000, "100*31;100*2"}, StepCase{2999, "100*31;100*2"},
                                           StepCase{2998, "100*30;100*2"}, StepCase{98.8, "100*1;100*2"},
                                           StepCase{99, "100*2;100*2"}, StepCase{0.5, "100*1;100*2"}));

TEST_F(AlienHoleTest, widthIsTheHeightOfTheBoxAndLengthItsWidth)
{
    IHBXElement *hole = element(24);
    slabhost::fillAlienHoleProp(shapes::rectangle(-500, 700, 300.5, 200.25), hole);
    EXPECT_EQ(wholeIn(hole->properties(), L"Width"), 200);
    EXPECT_EQ(wholeIn(hole->properties(), L"Length"), 301);
    Point insertPoint;
    hole->properties()->asPoint(insertPoint, L"InsertPt");
    EXPECT_EQ(insertPoint, Point(150.25, 100.125));
    PolygonPtr section;
    hole->properties()->asPolygon(section, L"SectionPoly");
    expectBox(section->Box(), 0, 0, 300.5, 200.25);
}

TEST_F(AlienHoleTest, outlineWithoutABoxChangesNothing)
{
    IHBXElement *hole = element(24);
    slabhost::fillAlienHoleProp(nullptr, hole);
    slabhost::fillAlienHoleProp(PolygonPtr(new vks::CPolygon), hole);
    slabhost::fillAlienHoleProp(shapes::rectangle(0, 0, 1, 1), nullptr);
    EXPECT_TRUE(hole->properties()->isNull(L"SectionPoly"));
}

} // namespace
