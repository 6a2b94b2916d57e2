#include "ModelSerialization/SlabPlateWriting.h"

#include "ModelSerialization/SlabWriterFixture.h"

#include <limits>

namespace {

using hbx::embedded::expectBox;
using hbx::embedded::polygonOf;

struct ElevationCase
{
    double metres;
    const char *text;
};
class ElevationTextTest : public ::testing::TestWithParam<ElevationCase>
{};

TEST_P(ElevationTextTest, offsetIsToldFromTheBase)
{
    EXPECT_EQ(slabhost::elevationText("层顶标高", GetParam().metres), QString::fromUtf8(GetParam().text));
}
INSTANTIATE_TEST_SUITE_P(Offsets, ElevationTextTest,
                         ::testing::Values(ElevationCase{0.0, "层顶标高"}, ElevationCase{0.000009, "层顶标高"},
                                           ElevationCase{-0.000009, "层顶标高"}, ElevationCase{0.05, "层顶标高+0.05"},
                                           ElevationCase{-0.05, "层顶标高-0.05"},
                                           ElevationCase{1.23456789, "层顶标高+1.23457"},
                                           ElevationCase{-12.0, "层顶标高-12"},
                                           ElevationCase{0.00002, "层顶标高+2e-05"}));

constexpr char kSquare[] = "POLYGON((0 0, 4000 0, 4000 4000, 0 4000, 0 0))";

class SlabPlateWritingTest : public SlabWriterFixture
{
protected:
    Model::Board *addBoard(double x, double thickness = 120.9, double elev = 3.0, const char *name = "")
    {
        auto *board = add<Model::Board>();
        board->surface = shapes::rectangle(x, 0, 4000, 4000);
        board->thickness = thickness;
        board->elev = elev;
        board->name = QString::fromUtf8(name);
        return board;
    }
    Model::Raft *addRaft(double x, double thickness = 500, double top = -1.0, double bottom = -1.5)
    {
        auto *raft = add<Model::Raft>();
        raft->surface = shapes::rectangle(x, 0, 4000, 4000);
        raft->thickness = thickness;
        raft->topElev = top;
        raft->bottomElev = bottom;
        return raft;
    }
    void writeBoards(IHBXService *service)
    {
        Service::localBoard2HBX(&local, service->model(), service->curState(), "House", "F1", ids);
    }
};

TEST_F(SlabPlateWritingTest, newBoardBecomesADrawObjectWithItsId)
{
    const auto *board = addBoard(0);
    write();
    IHBXElementDrawObj *slab = only(19);
    ASSERT_TRUE(slab);
    EXPECT_EQ(ids, (Service::IdMap{{slab->id(), board->recongnizedID}}));
    EXPECT_EQ(worldPoly(slab)->ToText(), polygonOf(kSquare)->ToText());
    EXPECT_EQ(slab->element()->subType(), 13);
    EXPECT_EQ(slab->status()->layer(), 7);
    EXPECT_EQ(slab->status()->state(), 1);
    EXPECT_EQ(as<IHBXFaceSolidShape>(slab)->height(), -120.0);
}

TEST_F(SlabPlateWritingTest, boardWithoutANameIsCalledByItsThickness)
{
    addBoard(0, 120.9);
    write();
    EXPECT_EQ(elementName(only(19)), "B-h120");
    EXPECT_EQ(wholeIn(named("B-h120", 19)->properties(), L"Thickness"), 120);
}

TEST_F(SlabPlateWritingTest, boardOfTheHostIsSkipped)
{
    addBoard(0)->elementId = 5;
    addBoard(4000)->elementId = 1;
    write();
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(elementCount(19), 0);
}

TEST_F(SlabPlateWritingTest, idsBelowOneAreNew)
{
    addBoard(0)->elementId = 0;
    addBoard(4000)->elementId = -1;
    write();
    EXPECT_EQ(ids.size(), 2U);
}

TEST_F(SlabPlateWritingTest, boardsOfOneNameAndThicknessShareAnElement)
{
    addBoard(0, 120.0, 3.0, "LB1");
    addBoard(4000, 120.7, 3.0, "LB1");
    addBoard(8000, 150.0, 3.0, "LB1");
    write();
    const auto slabsThere = written(19);
    ASSERT_EQ(slabsThere.size(), 3);
    EXPECT_EQ(slabsThere[0]->element(), slabsThere[1]->element());
    EXPECT_EQ(elementName(slabsThere[0]), "LB1");
    EXPECT_EQ(elementName(slabsThere[2]), "LB1-1");
    EXPECT_EQ(elementCount(19), 2);
}

TEST_F(SlabPlateWritingTest, elementOfThatThicknessIsUsed)
{
    IHBXElement *held = element(19, "B-h120");
    held->properties()->setDouble(L"Thickness", 120.0, false);
    addBoard(0);
    write();
    EXPECT_EQ(only(19)->element(), held);
}

TEST_F(SlabPlateWritingTest, elementOfAnotherThicknessMakesANewName)
{
    element(19, "B-h120")->properties()->setDouble(L"Thickness", 150.0, false);
    addBoard(0);
    write();
    EXPECT_EQ(elementName(only(19)), "B-h120-1");
}

TEST_F(SlabPlateWritingTest, elevationIsToldFromTheTopOfTheFloor)
{
    addBoard(0, 120, 3.000009);
    addBoard(4000, 120, 3.05);
    addBoard(8000, 120, 2.95);
    write();
    const auto slabsThere = written(19);
    ASSERT_EQ(slabsThere.size(), 3);
    EXPECT_EQ(textOf(slabsThere[0], L"TopElev"), "层顶标高");
    EXPECT_EQ(textOf(slabsThere[1], L"TopElev"), "层顶标高+0.05");
    EXPECT_EQ(textOf(slabsThere[2], L"TopElev"), "层顶标高-0.05");
}

TEST_F(SlabPlateWritingTest, elevationsOfARaftAreToldFromTheBottomOfTheFloor)
{
    const auto *raft = addRaft(0, 500.5, 0.0, -0.5);
    write();
    IHBXElementDrawObj *object = only(48);
    ASSERT_TRUE(object);
    EXPECT_EQ(textOf(object, L"TopElev"), "层底标高");
    EXPECT_EQ(textOf(object, L"BottomElev"), "层底标高-0.5");
    EXPECT_EQ(elementName(object), "FB-500");
    EXPECT_EQ(object->element()->subType(), 67);
    EXPECT_EQ(ids, (Service::IdMap{{object->id(), raft->recongnizedID}}));
}

TEST_F(SlabPlateWritingTest, hostIsCalledInTheStatedOrder)
{
    addBoard(0);
    RecordingHost host(*store.service());
    writeBoards(host.service());
    expectEqual(host.calls(), {R"(findRegion("House"))", R"(findFloor("F1"))",
                               R"(findElement("B-h120", 2, 19, true, 0))", R"(findElement("B-h120", 2, 19, true, 0))",
                               R"(createElement(19, 13, floor 1, ""))", R"(setName("B-h120"))",
                               R"(setInt("Thickness", 120, false))", R"(createDrawObj(floor 1, element B-h120, true))",
                               R"(addDrawObj(object of B-h120))", R"(setString("TopElev", "层顶标高", false))",
                               "setPolygon(" + QString::fromStdString(polygonOf(kSquare)->ToText()) + ")",
                               "setLayer(7)", R"(checkDrawObj(object of B-h120))", "setState(1)"});
}

TEST_F(SlabPlateWritingTest, raftGetsBothElevationsAheadOfItsOutline)
{
    addRaft(0);
    RecordingHost host(*store.service());
    Service::localRaft2HBX(&local, host.service()->model(), host.service()->curState(), "House", "F1", ids);
    ASSERT_EQ(host.calls().size(), 15);
    EXPECT_EQ(host.calls().mid(4, 7),
              (QStringList{R"(createElement(48, 67, floor 1, ""))", R"(setName("FB-500"))",
                           R"(setInt("Thickness", 500, false))", R"(createDrawObj(floor 1, element FB-500, true))",
                           R"(addDrawObj(object of FB-500))", R"(setString("TopElev", "层底标高-1", false))",
                           R"(setString("BottomElev", "层底标高-1.5", false))"}));
}

TEST_F(SlabPlateWritingTest, everyGroupHasItsElementBeforeAnythingIsDrawn)
{
    addBoard(0, 120);
    addBoard(4000, 150);
    RecordingHost host(*store.service());
    writeBoards(host.service());
    const QStringList &calls = host.calls();
    EXPECT_LT(calls.indexOf(R"(setName("B-h150"))"), calls.indexOf(R"(createDrawObj(floor 1, element B-h120, true))"));
}

TEST_F(SlabPlateWritingTest, refusedBoardLeavesNoObjectNoElementAndNoId)
{
    addBoard(0)->surface = nullptr;
    RecordingHost host(*store.service());
    writeBoards(host.service());
    EXPECT_EQ(host.calls().mid(host.calls().size() - 3),
              (QStringList{R"(checkDrawObj(object of B-h120))", R"(removeDrawObj(object of B-h120))",
                           R"(removeElement(element B-h120))"}));
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(drawObjs().count(), 0);
    EXPECT_EQ(elements().count(), 0);
}

TEST_F(SlabPlateWritingTest, refusedBoardLeavesTheOthersOfItsElement)
{
    addBoard(0)->surface = nullptr;
    const auto *sound = addBoard(4000);
    write();
    ASSERT_EQ(ids.size(), 1U);
    EXPECT_EQ(ids.begin()->second, sound->recongnizedID);
    EXPECT_EQ(elementCount(19), 1);
}

TEST_F(SlabPlateWritingTest, elementThatWasThereStaysWithoutDrawObjects)
{
    element(19, "B-h120")->properties()->setDouble(L"Thickness", 120.0, false);
    addBoard(0)->surface = nullptr;
    write();
    EXPECT_TRUE(named("B-h120", 19));
    EXPECT_TRUE(written(19).isEmpty());
}

TEST_F(SlabPlateWritingTest, boardThatTheHostHasAlreadyIsRefused)
{
    addBoard(0);
    write();
    write();
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(written(19).size(), 1);
}

TEST_F(SlabPlateWritingTest, elevationThatIsNoNumberCostsOnlyItsBoard)
{
    addBoard(0, 120, std::numeric_limits<double>::quiet_NaN());
    addBoard(4000, 120);
    write();
    EXPECT_EQ(ids.size(), 1U);
    EXPECT_EQ(drawObjs().count(), 1);
}

TEST_F(SlabPlateWritingTest, writeThatThrowsTakesItsObjectAway)
{
    addBoard(0);
    addBoard(4000);
    RecordingHost host(*store.service());
    int outlines = 0;
    host.beforeCall([&outlines](const QString &call) {
        if (call.startsWith("setPolygon") && ++outlines == 1)
            throw HBXModelException("refused");
    });
    writeBoards(host.service());
    EXPECT_EQ(ids.size(), 1U);
    EXPECT_EQ(drawObjs().count(), 1);
}

TEST_F(SlabPlateWritingTest, thicknessThatTheHostRefusesLeavesOutItsGroup)
{
    addBoard(0, 120);
    addBoard(4000, 150);
    RecordingHost host(*store.service());
    host.beforeCall([](const QString &call) {
        if (call == R"(setInt("Thickness", 120, false))")
            throw HBXModelException("refused");
    });
    writeBoards(host.service());
    EXPECT_EQ(ids.size(), 1U);
    EXPECT_EQ(elementCount(19), 1);
    EXPECT_TRUE(named("B-h150", 19));
}

TEST_F(SlabPlateWritingTest, surfaceIsCopied)
{
    const auto *board = addBoard(0);
    write();
    board->surface->Translate({100, 0});
    expectBox(box(only(19)), 0, 0, 4000, 4000);
}

TEST_F(SlabPlateWritingTest, unknownPlaceIsLeftAlone)
{
    addBoard(0);
    addRaft(0);
    write("Nowhere", "F1");
    EXPECT_TRUE(ids.empty());
    write("House", "F9");
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(elements().count(), 0);
}

} // namespace
