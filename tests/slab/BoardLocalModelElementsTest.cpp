#include "slab/BoardLocalModelElements.h"

#include "encoding/CountedCurve.h"
#include "slab/SlabModelFixture.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Object = Model::Object;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

template <typename Derived, typename Base> constexpr bool derives = std::is_base_of_v<Base, Derived>;
/** Whether it is Owner that says what shape() is in a class. */
template <typename Class, typename Owner>
constexpr bool shapeIsOf = std::is_same_v<Object::Shape (Owner::*)() const, decltype(&Class::shape)>;

static_assert(derives<Object, cv::Object_AI> && derives<Model::LineObject, Object>);
static_assert(derives<Model::SectionObject, Object> && derives<Model::Support, Model::LineObject>);
static_assert(derives<Model::Beam, Model::Support> && derives<Model::Wall, Model::Support>);
static_assert(derives<Model::Board, Model::SectionObject> && derives<Model::BoardHole, Model::SectionObject>);
static_assert(derives<Model::Raft, Model::SectionObject> && derives<Model::Column, Model::SectionObject>);
static_assert(derives<Model::AxisNet, Object> && !derives<Model::AxisNet, Model::SectionObject>);

static_assert(std::is_abstract_v<Object>);
static_assert(shapeIsOf<Model::LineObject, Model::LineObject> && shapeIsOf<Model::Beam, Model::LineObject>);
static_assert(shapeIsOf<Model::SectionObject, Model::SectionObject> && shapeIsOf<Model::Board, Model::SectionObject>);
static_assert(shapeIsOf<Model::AxisNet, Model::AxisNet>);

class BoardLocalModelElementsTest : public SlabModelFixture
{};

// ---- What all have

TEST_F(BoardLocalModelElementsTest, newElementHasNoIdsNameOrRemark)
{
    const Model::Board board;
    EXPECT_EQ(board.elementId, -1);
    EXPECT_TRUE(board.recongnizedID.isNull());
    EXPECT_EQ(board.name, QString());
    EXPECT_EQ(board.stateDescript, QString());
    EXPECT_EQ(board.objectName(), QString());
    EXPECT_EQ(board.parent(), nullptr);
}

TEST_F(BoardLocalModelElementsTest, kindsAreSingleBits)
{
    const std::vector<int> kinds = {Object::BeamKind,
                                    Object::WallKind,
                                    Object::BoardKind,
                                    Object::BoardHoleKind,
                                    Object::ForcedBarKind,
                                    Object::StraddleForcedBarKind,
                                    Object::NegativeForcedBarKind,
                                    Object::ColumnKind,
                                    Object::AxisNetKind,
                                    Object::RaftKind,
                                    Object::RaftMainForcedBarKind,
                                    Object::RaftMainStraddleForcedBarKind,
                                    Object::RaftNegativeForcedBarKind};
    EXPECT_EQ(kinds, (std::vector<int>{1, 2, 4, 8, 16, 32, 64, 128, 256, 512, 1024, 2048, 4096}));
}

TEST_F(BoardLocalModelElementsTest, elementWithAParentIsItsLastChild)
{
    auto *board = new Model::Board(&model);
    auto *column = new Model::Column(board);
    EXPECT_EQ(board->parent(), &model);
    EXPECT_EQ(column->parent(), board);
}

TEST_F(BoardLocalModelElementsTest, nameIsAProperty)
{
    Model::Column column;
    column.name = "KZ1";
    EXPECT_EQ(column.property("名称").to<QString>(), "KZ1");
    column.setProperty("名称", QString("KZ2"));
    EXPECT_EQ(column.name, "KZ2");
    EXPECT_EQ(column.objectName(), QString()); // another name
}

TEST_F(BoardLocalModelElementsTest, nameWrittenAsANumberIsEmpty)
{
    Model::Column column;
    column.name = "KZ1";
    column.setProperty("名称", 5);
    EXPECT_EQ(column.name, QString());
}

TEST_F(BoardLocalModelElementsTest, shapeWithoutAFunctionThrows)
{
    const Model::Board board;
    const Object::Shape shape(&board, std::function<vks::CBox2<double>()>());
    EXPECT_EQ(shape.owner(), &board);
    EXPECT_THROW(shape.box(), std::bad_function_call);
}

TEST_F(BoardLocalModelElementsTest, shapeCallsItsFunctionAtEachQuestion)
{
    int calls = 0;
    const Object::Shape shape(nullptr, [&calls] {
        ++calls;
        return Box({0, 0}, {1, 2});
    });
    EXPECT_EQ(calls, 0);
    expectBox(shape.box(), {0, 0}, {1, 2});
    shape.box();
    EXPECT_EQ(calls, 2);
}

// ---- Elements with a centre curve

TEST_F(BoardLocalModelElementsTest, newLineObjectHasNoCurveAndElevationsOfZero)
{
    const Model::Beam beam;
    EXPECT_EQ(beam.line.get(), nullptr);
    EXPECT_EQ(beam.startTopElev, 0.0);
    EXPECT_EQ(beam.endTopElev, 0.0);
}

TEST_F(BoardLocalModelElementsTest, elevationsOfALineObjectAreProperties)
{
    Model::Beam beam;
    beam.setProperty("起点顶标高", 2950.5);
    beam.setProperty("终点顶标高", 3000);
    EXPECT_EQ(beam.startTopElev, 2950.5);
    EXPECT_EQ(beam.endTopElev, 3000.0);
    beam.startTopElev = -50.0;
    EXPECT_EQ(beam.property("起点顶标高").cast<double>(), -50.0);
    EXPECT_EQ(beam.property("终点顶标高").cast<double>(), 3000.0);
}

TEST_F(BoardLocalModelElementsTest, boxOfALineObjectIsThatOfItsCurveWithoutItsWidth)
{
    Model::Wall wall;
    wall.line = line({1000, 500}, {0, 2000});
    wall.width = 240.0;
    expectBox(wall.shape().box(), {0, 500}, {1000, 2000});
    EXPECT_EQ(wall.shape().owner(), &wall);
}

TEST_F(BoardLocalModelElementsTest, boxFollowsTheGeometryOfTheElement)
{
    Model::Beam beam;
    const Object::Shape shape = beam.shape();
    expectNoBox(shape.box());
    beam.line = line({0, 0}, {100, 0});
    expectBox(shape.box(), {0, 0}, {100, 0});
    beam.line = line({0, 0}, {100, 50});
    expectBox(shape.box(), {0, 0}, {100, 50});
    beam.line = nullptr;
    expectNoBox(shape.box());
}

TEST_F(BoardLocalModelElementsTest, assigningGeometryHoldsTheNewAndLetsGoOfTheOld)
{
    int alive = 0;
    Model::Beam beam;
    beam.line = new CountedCurve(alive);
    EXPECT_EQ(alive, 1);
    const CurvePtr held = beam.line;
    EXPECT_EQ(held->HolderCount(), 2);
    beam.line = new CountedCurve(alive);
    EXPECT_EQ(alive, 2);
    EXPECT_EQ(held->HolderCount(), 1);
    beam.line = held;
    EXPECT_EQ(beam.line.get(), held.get()); // shared, not copied
    EXPECT_EQ(alive, 1);
}

// ---- Supports

TEST_F(BoardLocalModelElementsTest, newSupportIsAllZero)
{
    const Model::Beam beam;
    EXPECT_EQ(beam.type(), 1);
    EXPECT_EQ(beam.width, 0.0);
    EXPECT_EQ(beam.distanceToLeft, 0.0);
    EXPECT_EQ(beam.supportType, 0);
    const Model::Wall wall;
    EXPECT_EQ(wall.type(), 2);
    EXPECT_EQ(wall.wallStartTopElev, 0.0);
    EXPECT_EQ(wall.wallEndTopElev, 0.0);
}

TEST_F(BoardLocalModelElementsTest, propertySupportWidthIsTheDistanceToTheLeftAndNotTheWidth)
{
    Model::Beam beam;
    beam.width = 300.0;
    beam.distanceToLeft = 150.0;
    EXPECT_EQ(beam.property("支座宽度").cast<double>(), 150.0);
    beam.setProperty("支座宽度", 100.0);
    EXPECT_EQ(beam.distanceToLeft, 100.0);
    EXPECT_EQ(beam.width, 300.0);
}

TEST_F(BoardLocalModelElementsTest, propertiesOfSupports)
{
    EXPECT_THAT(Model::Beam().propertyNames(), UnorderedElementsAre("名称", "起点顶标高", "终点顶标高", "支座宽度"));
    EXPECT_THAT(Model::Wall().propertyNames(), UnorderedElementsAre("名称", "起点顶标高", "终点顶标高", "支座宽度"));
}

TEST_F(BoardLocalModelElementsTest, elevationPropertiesOfAWallAreNotThoseOfTheWall)
{
    Model::Wall wall;
    wall.wallStartTopElev = 3000.0;
    wall.wallEndTopElev = 3100.0;
    EXPECT_EQ(wall.property("起点顶标高").cast<double>(), 0.0);
    EXPECT_EQ(wall.property("终点顶标高").cast<double>(), 0.0);
}

// ---- Elements with an outline

TEST_F(BoardLocalModelElementsTest, newColumn)
{
    const Model::Column column;
    EXPECT_EQ(column.type(), 128);
    EXPECT_EQ(column.surface.get(), nullptr);
    EXPECT_EQ(column.topElev, 0.0);
    EXPECT_THAT(column.propertyNames(), UnorderedElementsAre("名称"));
    expectNoBox(column.shape().box());
}

TEST_F(BoardLocalModelElementsTest, boxOfASectionObjectIsThatOfItsOutline)
{
    Model::Board board;
    board.surface = rectangle(-10, 20, 100, 200);
    expectBox(board.shape().box(), {-10, 20}, {90, 220});
    EXPECT_EQ(board.shape().owner(), &board);
    Model::Column column;
    column.surface = shapes::circle({500, 0}, 100);
    const Box box = column.shape().box();
    EXPECT_NEAR(box.minPt.x, 400, 1e-9);
    EXPECT_NEAR(box.maxPt.y, 100, 1e-9);
}

TEST_F(BoardLocalModelElementsTest, newBoard)
{
    const Model::Board board;
    EXPECT_EQ(board.type(), 4);
    EXPECT_EQ(board.surface.get(), nullptr);
    EXPECT_EQ(board.thickness, 0.0);
    EXPECT_EQ(board.elev, 0.0);
    EXPECT_EQ(board.boardType, 0);
}

TEST_F(BoardLocalModelElementsTest, propertiesOfABoard)
{
    Model::Board board;
    EXPECT_THAT(board.propertyNames(), UnorderedElementsAre("名称", "厚度", "顶标高", "类型"));
    board.setProperty("厚度", 120);
    board.setProperty("顶标高", 5.95);
    EXPECT_EQ(board.thickness, 120.0);
    EXPECT_EQ(board.elev, 5.95);
    board.thickness = 100.0;
    EXPECT_EQ(board["厚度"].to<double>(), 100.0);
}

TEST_F(BoardLocalModelElementsTest, numberReadFromTextReachesAField)
{
    Model::Board board;
    board.setProperty("厚度", std::string("120.5 mm"));
    EXPECT_EQ(board.thickness, 120.5);
    board.setProperty("厚度", std::string("thick"));
    EXPECT_EQ(board.thickness, 0.0);
}

TEST_F(BoardLocalModelElementsTest, typeOfABoardTakesAnyWholeNumber)
{
    Model::Board board;
    board.setProperty("类型", 3);
    EXPECT_EQ(board.boardType, 3);
    EXPECT_EQ(board.property("类型").cast<Model::Board::Types>(), 3);
    board.setProperty("类型", board.property("类型"));
    EXPECT_EQ(board.boardType, 3);
    board.setProperty("类型", -7);
    EXPECT_EQ(board.boardType, -7);
    board.setProperty("类型", 3.0); // meant: a double is no type
    EXPECT_EQ(board.boardType, -1);
    board.setProperty("类型", Any());
    EXPECT_EQ(board.boardType, 0);
}

TEST_F(BoardLocalModelElementsTest, newBoardHole)
{
    const Model::BoardHole hole;
    EXPECT_EQ(hole.type(), 8);
    EXPECT_EQ(hole.surface.get(), nullptr);
    EXPECT_EQ(hole.barInfo, QString());
    EXPECT_EQ(hole.shortSpanReinforceBar, QString());
    EXPECT_EQ(hole.longSpanReinforceBar, QString());
    EXPECT_EQ(hole.obliqueReinforceBar, QString());
}

TEST_F(BoardLocalModelElementsTest, propertiesOfABoardHole)
{
    Model::BoardHole hole;
    EXPECT_THAT(hole.propertyNames(), UnorderedElementsAre("名称", "板边加筋"));
    hole.setProperty("板边加筋", QString("2C12"));
    EXPECT_EQ(hole.barInfo, "2C12");
    hole.barInfo = "2C14";
    EXPECT_EQ(hole.property("板边加筋").cast<QString>(), "2C14");
}

TEST_F(BoardLocalModelElementsTest, newRaft)
{
    const Model::Raft raft;
    EXPECT_EQ(raft.type(), 512);
    EXPECT_EQ(raft.surface.get(), nullptr);
    EXPECT_EQ(raft.thickness, 0.0);
    EXPECT_EQ(raft.topElev, 0.0);
    EXPECT_EQ(raft.bottomElev, 0.0);
}

TEST_F(BoardLocalModelElementsTest, propertiesOfARaft)
{
    Model::Raft raft;
    EXPECT_THAT(raft.propertyNames(), UnorderedElementsAre("名称", "厚度", "顶标高"));
    raft.setProperty("厚度", 600.0);
    raft.setProperty("顶标高", -4.5);
    EXPECT_EQ(raft.thickness, 600.0);
    EXPECT_EQ(raft.topElev, -4.5);
    EXPECT_EQ(raft.bottomElev, 0.0);
}

// ---- Axes

TEST_F(BoardLocalModelElementsTest, newAxisNet)
{
    const Model::AxisNet net;
    EXPECT_EQ(net.type(), 256);
    EXPECT_EQ(net.surface.get(), nullptr);
    EXPECT_EQ(net.axisGrid, nullptr);
    EXPECT_THAT(net.propertyNames(), UnorderedElementsAre("名称"));
    expectNoBox(net.shape().box());
}

TEST_F(BoardLocalModelElementsTest, boxOfAnAxisNetIsThatOfItsOutlineAndNotOfItsAxes)
{
    Model::AxisNet net;
    net.surface = rectangle(0, 0, 8000, 6000);
    net.axisGrid = std::make_shared<AxisGrid_Sample>();
    net.axisGrid->gridU.data.emplace_back("1", line({-500, -500}, {-500, 7000}));
    expectBox(net.shape().box(), {0, 0}, {8000, 6000});
    EXPECT_EQ(net.shape().owner(), &net);
}

TEST_F(BoardLocalModelElementsTest, newGridIsEmptyInBothDirections)
{
    const AxisGrid_Sample grid;
    for (const AxisGridHalf &half : {grid.gridU, grid.gridV}) {
        EXPECT_EQ(half.direction, 0);
        EXPECT_EQ(half.start, QString());
        EXPECT_EQ(half.end, QString());
        EXPECT_THAT(half.data, IsEmpty());
    }
}

} // namespace
