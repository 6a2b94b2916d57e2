#include "slab/BoardLocalModelBars.h"

#include "slab/SlabModelFixture.h"

#include <gmock/gmock.h>

#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

template <typename Derived, typename Base> constexpr bool derives = std::is_base_of_v<Base, Derived>;
/** Whether a class says itself what shape() is. */
template <typename Class>
constexpr bool hasShapeOfItsOwn = std::is_same_v<Model::Object::Shape (Class::*)() const, decltype(&Class::shape)>;

static_assert(derives<Model::AbstractForcedBar, Model::SectionObject>);
static_assert(derives<Model::ForcedBar, Model::AbstractForcedBar>);
static_assert(derives<Model::StraddleForcedBar, Model::AbstractForcedBar>);
static_assert(derives<Model::RaftMainForcedBar, Model::AbstractForcedBar>);
static_assert(derives<Model::RaftMainStraddleForcedBar, Model::AbstractForcedBar>);
static_assert(derives<Model::NegativeForcedBar, Model::LineObject>);
static_assert(derives<Model::RaftNegativeForcedBar, Model::LineObject>);

static_assert(hasShapeOfItsOwn<Model::AbstractForcedBar>);
static_assert(hasShapeOfItsOwn<Model::ForcedBar> && hasShapeOfItsOwn<Model::RaftMainForcedBar>);
static_assert(hasShapeOfItsOwn<Model::NegativeForcedBar> && hasShapeOfItsOwn<Model::RaftNegativeForcedBar>);
static_assert(!hasShapeOfItsOwn<Model::StraddleForcedBar> && !hasShapeOfItsOwn<Model::RaftMainStraddleForcedBar>);

class BoardLocalModelBarsTest : public SlabModelFixture
{
protected:
    static void expectNewAreaBar(const Model::AbstractForcedBar &bar, int type)
    {
        EXPECT_EQ(bar.type(), type);
        EXPECT_EQ(bar.surface.get(), nullptr);
        EXPECT_EQ(bar.direction, Point(0, 0));
        EXPECT_EQ(bar.barInfo, QString());
        EXPECT_EQ(bar.rowNumber, 0);
        EXPECT_EQ(bar.leftHookLength, 0);
        EXPECT_EQ(bar.rightHookLength, 0);
        EXPECT_FALSE(bar.refPointValid);
        EXPECT_EQ(bar.refPoint, Point(0, 0));
        EXPECT_THAT(bar.propertyNames(), UnorderedElementsAre("名称", "方位", "钢筋规格", "钢筋排数"));
        expectNoBox(bar.shape().box());
    }
    /** A bar of one slab or raft. */
    template <typename MainBar> static void expectNewMainBar(int type)
    {
        const MainBar bar;
        expectNewAreaBar(bar, type);
        EXPECT_EQ(bar.forcedType, 0);
        EXPECT_EQ(bar.supportPoly.get(), nullptr);
    }
    /** A bar with a label. */
    template <typename Bar> static void expectNewLabel(const Bar &bar)
    {
        EXPECT_EQ(bar.labelPosition, 2);
        EXPECT_EQ(bar.leftStretchLength, 0.0);
        EXPECT_EQ(bar.rightStretchLength, 0.0);
    }
    template <typename TopBar> static void expectNewTopBar(const TopBar &bar, int type)
    {
        EXPECT_EQ(bar.type(), type);
        EXPECT_EQ(bar.line.get(), nullptr);
        EXPECT_EQ(bar.barInfo, QString());
        expectNewLabel(bar);
        EXPECT_EQ(bar.leftHookLength, 0);
        EXPECT_EQ(bar.rightHookLength, 0);
        EXPECT_EQ(bar.rowNumber, 0);
        EXPECT_FALSE(bar.refPointValid);
        EXPECT_EQ(bar.refPoint, Point(0, 0));
        EXPECT_THAT(bar.propertyNames(), UnorderedElementsAre("名称", "起点顶标高", "终点顶标高", "钢筋规格"));
        expectNoBox(bar.shape().box());
    }

    void fillAreaBar(Model::AbstractForcedBar &bar)
    {
        bar.surface = rectangle(0, 0, 3000, 1000);
        bar.direction = {0, 1};
        bar.barInfo = "C8@200";
        bar.rowNumber = 1;
        bar.leftHookLength = 100;
        bar.rightHookLength = 200;
        bar.refPointValid = true;
        bar.refPoint = {5, 6};
    }
    /** That a bar is as fillAreaBar makes one, and that its properties are its own. */
    static void expectFilledAreaBar(const Model::AbstractForcedBar &bar)
    {
        expectBox(bar.shape().box(), {0, 0}, {3000, 1000});
        EXPECT_EQ(bar.direction, Point(0, 1));
        EXPECT_EQ(bar.barInfo, "C8@200");
        EXPECT_EQ(bar.rowNumber, 1);
        EXPECT_EQ(bar.leftHookLength, 100);
        EXPECT_EQ(bar.rightHookLength, 200);
        EXPECT_TRUE(bar.refPointValid);
        EXPECT_EQ(bar.refPoint, Point(5, 6));
        EXPECT_EQ(bar.property("方位").cast<Point>(), Point(0, 1));
        EXPECT_EQ(bar.property("钢筋规格").cast<QString>(), "C8@200");
        EXPECT_EQ(bar.property("钢筋排数").cast<int>(), 1);
    }
    template <typename TopBar> static void fillTopBar(TopBar &bar)
    {
        bar.line = line({0, 0}, {0, 1500});
        bar.barInfo = "C10@150";
        bar.labelPosition = 5;
        bar.leftStretchLength = 700.0;
        bar.rightStretchLength = 800.0;
        bar.leftHookLength = 100;
        bar.rightHookLength = 200;
        bar.rowNumber = 3;
        bar.refPointValid = true;
        bar.refPoint = {5, 6};
    }
    template <typename TopBar> static void expectFilledTopBar(const TopBar &bar)
    {
        expectBox(bar.shape().box(), {0, 0}, {0, 1500});
        EXPECT_EQ(bar.barInfo, "C10@150");
        EXPECT_EQ(bar.labelPosition, 5);
        EXPECT_EQ(bar.leftStretchLength, 700.0);
        EXPECT_EQ(bar.rightStretchLength, 800.0);
        EXPECT_EQ(bar.leftHookLength, 100);
        EXPECT_EQ(bar.rightHookLength, 200);
        EXPECT_EQ(bar.rowNumber, 3);
        EXPECT_TRUE(bar.refPointValid);
        EXPECT_EQ(bar.refPoint, Point(5, 6));
        EXPECT_EQ(bar.property("钢筋规格").template cast<QString>(), "C10@150");
    }
    /** A new bar that takes over another, which is gone then. */
    template <typename Bar> static std::unique_ptr<Bar> moved(std::unique_ptr<Bar> bar)
    {
        return std::make_unique<Bar>(std::move(*bar));
    }
};

// ---- Bars of an area

TEST_F(BoardLocalModelBarsTest, newForcedBar) { expectNewMainBar<Model::ForcedBar>(16); }

TEST_F(BoardLocalModelBarsTest, newStraddleForcedBarIsLabelledAtPositionTwo)
{
    const Model::StraddleForcedBar bar;
    expectNewAreaBar(bar, 32);
    EXPECT_THAT(bar.supportPolys, IsEmpty());
    expectNewLabel(bar);
    EXPECT_EQ(bar.distributeBarInfo, QString());
    EXPECT_EQ(bar.saddleBarlineCount, QString());
}

TEST_F(BoardLocalModelBarsTest, newRaftMainForcedBar) { expectNewMainBar<Model::RaftMainForcedBar>(1024); }

TEST_F(BoardLocalModelBarsTest, newRaftMainStraddleForcedBarIsLabelledAtPositionTwo)
{
    const Model::RaftMainStraddleForcedBar bar;
    expectNewAreaBar(bar, 2048);
    expectNewLabel(bar);
}

TEST_F(BoardLocalModelBarsTest, propertiesOfAnAreaBarReachItsFields)
{
    Model::ForcedBar bar;
    bar.setProperty("方位", Point(0, -1));
    bar.setProperty("钢筋规格", QString("C8@200"));
    bar.setProperty("钢筋排数", 2);
    EXPECT_EQ(bar.direction, Point(0, -1));
    EXPECT_EQ(bar.barInfo, "C8@200");
    EXPECT_EQ(bar.rowNumber, 2);
}

TEST_F(BoardLocalModelBarsTest, rowNumberTakesEveryNumberAndLosesItsFraction)
{
    Model::ForcedBar bar;
    bar.setProperty("钢筋排数", 2.9);
    EXPECT_EQ(bar.rowNumber, 2);
    bar.setProperty("钢筋排数", qint64(-3));
    EXPECT_EQ(bar.rowNumber, -3);
    bar.setProperty("钢筋排数", std::string("4"));
    EXPECT_EQ(bar.rowNumber, 4);
    bar.setProperty("钢筋排数", 2147483647.0);
    EXPECT_EQ(bar.rowNumber, 2147483647);
    bar.setProperty("钢筋排数", -2147483648.0);
    EXPECT_EQ(bar.rowNumber, -2147483647 - 1);
}

TEST_F(BoardLocalModelBarsTest, rowNumberThatDoesNotFitIsZero)
{
    Model::ForcedBar bar;
    for (const double number : {2147483648.0, -2147483649.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
        bar.rowNumber = 7;
        bar.setProperty("钢筋排数", number);
        EXPECT_EQ(bar.rowNumber, 0) << number;
    }
}

TEST_F(BoardLocalModelBarsTest, directionWrittenAsAnythingElseIsNone)
{
    Model::ForcedBar bar;
    bar.direction = {1, 0};
    bar.setProperty("方位", 1.5);
    EXPECT_EQ(bar.direction, Point(0, 0));
}

TEST_F(BoardLocalModelBarsTest, boxOfAForcedBarIsNotWidenedByItsSlab)
{
    Model::ForcedBar bar;
    bar.surface = rectangle(100, 100, 200, 300);
    bar.supportPoly = rectangle(0, 0, 5000, 6000);
    expectBox(bar.shape().box(), {100, 100}, {300, 400});
    EXPECT_EQ(bar.shape().owner(), &bar);
}

TEST_F(BoardLocalModelBarsTest, boxOfARaftMainForcedBarIsNotWidenedByItsRaft)
{
    Model::RaftMainForcedBar bar;
    bar.supportPoly = rectangle(0, 0, 5000, 6000);
    expectNoBox(bar.shape().box());
    bar.surface = rectangle(100, 100, 200, 300);
    expectBox(bar.shape().box(), {100, 100}, {300, 400});
    EXPECT_EQ(bar.shape().owner(), &bar);
}

TEST_F(BoardLocalModelBarsTest, boxOfAStraddleBarIsThatOfItsOutline)
{
    Model::StraddleForcedBar slabBar;
    slabBar.surface = rectangle(0, 0, 10, 20);
    slabBar.supportPolys.push_back(rectangle(0, 0, 5000, 6000));
    expectBox(slabBar.shape().box(), {0, 0}, {10, 20});
    Model::RaftMainStraddleForcedBar raftBar;
    raftBar.surface = rectangle(0, 0, 30, 40);
    expectBox(raftBar.shape().box(), {0, 0}, {30, 40});
}

TEST_F(BoardLocalModelBarsTest, movedForcedBarKeepsItsFields)
{
    auto bar = std::make_unique<Model::ForcedBar>();
    fillAreaBar(*bar);
    bar->forcedType = 3;
    bar->supportPoly = rectangle(0, 0, 1, 1);
    const vks::CPolygon *support = bar->supportPoly;
    const auto copy = moved(std::move(bar));
    expectFilledAreaBar(*copy);
    EXPECT_EQ(copy->forcedType, 3);
    EXPECT_EQ(copy->supportPoly.get(), support);
}

TEST_F(BoardLocalModelBarsTest, movedStraddleForcedBarKeepsItsFields)
{
    auto bar = std::make_unique<Model::StraddleForcedBar>();
    fillAreaBar(*bar);
    bar->supportPolys = {rectangle(0, 0, 1, 1), rectangle(1, 0, 1, 1)};
    bar->labelPosition = 1;
    bar->leftStretchLength = 700.0;
    bar->rightStretchLength = 800.0;
    bar->distributeBarInfo = "C6@250";
    bar->saddleBarlineCount = "2";
    const auto copy = moved(std::move(bar));
    expectFilledAreaBar(*copy);
    EXPECT_EQ(copy->supportPolys.size(), 2u);
    EXPECT_EQ(copy->labelPosition, 1);
    EXPECT_EQ(copy->leftStretchLength, 700.0);
    EXPECT_EQ(copy->rightStretchLength, 800.0);
    EXPECT_EQ(copy->distributeBarInfo, "C6@250");
    EXPECT_EQ(copy->saddleBarlineCount, "2");
}

TEST_F(BoardLocalModelBarsTest, movedRaftMainBarsKeepTheirFields)
{
    auto bar = std::make_unique<Model::RaftMainForcedBar>();
    fillAreaBar(*bar);
    bar->forcedType = 2;
    const auto copy = moved(std::move(bar));
    expectFilledAreaBar(*copy);
    EXPECT_EQ(copy->forcedType, 2);

    auto straddle = std::make_unique<Model::RaftMainStraddleForcedBar>();
    fillAreaBar(*straddle);
    straddle->labelPosition = 3;
    straddle->leftStretchLength = 700.0;
    straddle->rightStretchLength = 800.0;
    const auto straddleCopy = moved(std::move(straddle));
    expectFilledAreaBar(*straddleCopy);
    EXPECT_EQ(straddleCopy->labelPosition, 3);
    EXPECT_EQ(straddleCopy->leftStretchLength, 700.0);
    EXPECT_EQ(straddleCopy->rightStretchLength, 800.0);
}

// ---- Top bars

TEST_F(BoardLocalModelBarsTest, newNegativeForcedBarIsLabelledAtPositionTwo)
{
    const Model::NegativeForcedBar bar;
    expectNewTopBar(bar, 64);
    EXPECT_EQ(bar.distributeBarInfo, QString());
    EXPECT_EQ(bar.saddleBarlineCount, QString());
}

TEST_F(BoardLocalModelBarsTest, newRaftNegativeForcedBarIsLabelledAtPositionTwo)
{
    expectNewTopBar(Model::RaftNegativeForcedBar(), 4096);
}

TEST_F(BoardLocalModelBarsTest, propertiesOfTopBarsReachTheirFields)
{
    Model::NegativeForcedBar slabBar;
    slabBar.setProperty("钢筋规格", QString("C10@150"));
    EXPECT_EQ(slabBar.barInfo, "C10@150");
    EXPECT_EQ(slabBar.distributeBarInfo, QString());
    Model::RaftNegativeForcedBar raftBar;
    raftBar.setProperty("钢筋规格", QString("C25@200"));
    EXPECT_EQ(raftBar.barInfo, "C25@200");
}

TEST_F(BoardLocalModelBarsTest, boxOfATopBarIsThatOfItsCurve)
{
    Model::NegativeForcedBar slabBar;
    slabBar.line = line({0, 0}, {1500, 10});
    slabBar.refPoint = {5000, 5000};
    expectBox(slabBar.shape().box(), {0, 0}, {1500, 10});
    EXPECT_EQ(slabBar.shape().owner(), &slabBar);
    Model::RaftNegativeForcedBar raftBar;
    raftBar.line = line({0, 0}, {10, 1500});
    expectBox(raftBar.shape().box(), {0, 0}, {10, 1500});
}

TEST_F(BoardLocalModelBarsTest, movedTopBarsKeepTheirFields)
{
    auto slabBar = std::make_unique<Model::NegativeForcedBar>();
    fillTopBar(*slabBar);
    slabBar->distributeBarInfo = "C6@250";
    slabBar->saddleBarlineCount = "2";
    const auto slabCopy = moved(std::move(slabBar));
    expectFilledTopBar(*slabCopy);
    EXPECT_EQ(slabCopy->distributeBarInfo, "C6@250");
    EXPECT_EQ(slabCopy->saddleBarlineCount, "2");

    auto raftBar = std::make_unique<Model::RaftNegativeForcedBar>();
    fillTopBar(*raftBar);
    expectFilledTopBar(*moved(std::move(raftBar)));
}

} // namespace
