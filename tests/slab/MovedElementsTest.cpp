#include "slab/BoardLocalModelElements.h"

#include "slab/SlabModelFixture.h"

#include <gmock/gmock.h>

#include <memory>
#include <utility>

namespace {

using Model = ORVCADBoardLocalModel_Sample;

const QUuid kId("{6f1d2f3a-5d0a-4f6e-9a5e-0d9a4c1b2e70}");

class MovedElementsTest : public SlabModelFixture
{};

TEST_F(MovedElementsTest, movedElementTakesNameIdsChildrenAndPlace)
{
    auto *board = add<Model::Board>(kId);
    auto *last = add<Model::Board>();
    auto *child = new Model::Column(board);
    board->elementId = 17;
    board->name = "LB1";
    board->stateDescript = "sunk";
    board->setProperty("zone", QString("A"));
    Access::setType(*board, 12);
    auto *moved = new Model::Board(std::move(*board));
    delete board;
    EXPECT_EQ(moved->elementId, 17);
    EXPECT_EQ(moved->name, "LB1");
    EXPECT_EQ(moved->stateDescript, "sunk");
    EXPECT_EQ(moved->recongnizedID, kId);
    EXPECT_EQ(moved->type(), 12);
    EXPECT_EQ(moved->property("zone").to<QString>(), "A");
    EXPECT_EQ(child->parent(), moved);
    EXPECT_THAT(model.boards(), ::testing::ElementsAre(last, moved));
}

TEST_F(MovedElementsTest, propertiesOfAMovedElementAreItsOwnFields)
{
    auto board = std::make_unique<Model::Board>();
    const Model::Board constant;
    Model::Board moved(std::move(*board));
    board.reset(); // a property bound to it would now reach into freed memory
    EXPECT_EQ(moved.propertyNames(), constant.propertyNames());
    moved.setProperty("名称", QString("LB2"));
    moved.setProperty("厚度", 90.0);
    moved.setProperty("顶标高", 1.5);
    moved.setProperty("类型", 2);
    EXPECT_EQ(moved.name, "LB2");
    EXPECT_EQ(moved.thickness, 90.0);
    EXPECT_EQ(moved.elev, 1.5);
    EXPECT_EQ(moved.boardType, 2);
}

TEST_F(MovedElementsTest, movedSupportsKeepTheirFields)
{
    auto wall = std::make_unique<Model::Wall>();
    wall->line = line({0, 0}, {1000, 0});
    wall->startTopElev = 1.0;
    wall->endTopElev = 2.0;
    wall->width = 3.0;
    wall->distanceToLeft = 4.0;
    wall->supportType = 5;
    wall->wallStartTopElev = 6.0;
    wall->wallEndTopElev = 7.0;
    Model::Wall moved(std::move(*wall));
    wall.reset();
    expectBox(moved.shape().box(), {0, 0}, {1000, 0});
    EXPECT_EQ(moved.startTopElev, 1.0);
    EXPECT_EQ(moved.endTopElev, 2.0);
    EXPECT_EQ(moved.width, 3.0);
    EXPECT_EQ(moved.supportType, 5);
    EXPECT_EQ(moved.wallStartTopElev, 6.0);
    EXPECT_EQ(moved.wallEndTopElev, 7.0);
    EXPECT_EQ(moved.property("起点顶标高").to<double>(), 1.0);
    EXPECT_EQ(moved.property("终点顶标高").to<double>(), 2.0);
    EXPECT_EQ(moved.property("支座宽度").to<double>(), 4.0);
}

TEST_F(MovedElementsTest, movedBeamAndColumnKeepTheirFields)
{
    Model::Beam beam;
    beam.width = 300.0;
    const Model::Beam movedBeam(std::move(beam));
    EXPECT_EQ(movedBeam.width, 300.0);
    EXPECT_EQ(movedBeam.type(), 1);
    Model::Column column;
    column.surface = rectangle(0, 0, 400, 500);
    column.topElev = 3000.0;
    const Model::Column movedColumn(std::move(column));
    expectBox(movedColumn.shape().box(), {0, 0}, {400, 500});
    EXPECT_EQ(movedColumn.topElev, 3000.0);
}

TEST_F(MovedElementsTest, movedBoardKeepsItsFields)
{
    Model::Board board;
    board.surface = rectangle(0, 0, 1, 2);
    board.thickness = 120.0;
    board.elev = 5.95;
    board.boardType = Model::Board::Types(3);
    const Model::Board moved(std::move(board));
    expectBox(moved.shape().box(), {0, 0}, {1, 2});
    EXPECT_EQ(moved.thickness, 120.0);
    EXPECT_EQ(moved.elev, 5.95);
    EXPECT_EQ(moved.boardType, 3);
}

TEST_F(MovedElementsTest, movedHoleKeepsItsFields)
{
    auto hole = std::make_unique<Model::BoardHole>();
    hole->barInfo = "2C12";
    hole->shortSpanReinforceBar = "2C14";
    hole->longSpanReinforceBar = "2C16";
    hole->obliqueReinforceBar = "1C18";
    const Model::BoardHole moved(std::move(*hole));
    hole.reset();
    EXPECT_EQ(moved.property("板边加筋").to<QString>(), "2C12");
    EXPECT_EQ(moved.barInfo, "2C12");
    EXPECT_EQ(moved.shortSpanReinforceBar, "2C14");
    EXPECT_EQ(moved.longSpanReinforceBar, "2C16");
    EXPECT_EQ(moved.obliqueReinforceBar, "1C18");
}

TEST_F(MovedElementsTest, movedRaftKeepsItsFields)
{
    auto raft = std::make_unique<Model::Raft>();
    raft->thickness = 600.0;
    raft->topElev = -4.5;
    raft->bottomElev = -5.1;
    const Model::Raft moved(std::move(*raft));
    raft.reset();
    EXPECT_EQ(moved.property("厚度").to<double>(), 600.0);
    EXPECT_EQ(moved.property("顶标高").to<double>(), -4.5);
    EXPECT_EQ(moved.bottomElev, -5.1);
}

TEST_F(MovedElementsTest, movedAxisNetKeepsItsFields)
{
    Model::AxisNet net;
    net.surface = rectangle(0, 0, 1, 2);
    net.axisGrid = std::make_shared<AxisGrid_Sample>();
    const AxisGrid_Sample *grid = net.axisGrid.get();
    const Model::AxisNet moved(std::move(net));
    expectBox(moved.shape().box(), {0, 0}, {1, 2});
    EXPECT_EQ(moved.axisGrid.get(), grid);
}

} // namespace
