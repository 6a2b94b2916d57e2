#include "tools/SlabBarGenerator.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <algorithm>

namespace {

using Model = SlabBarGenerator::Model;
using Point = vks::CVec2<double>;

vks::CRefPtr<vks::CCurve2d> line(const Point &start, const Point &end) { return new vks::CLine2d(start, end); }

void addSlab(Model &floor, double x, double y, double width, double height)
{
    (new Model::Board(&floor))->surface = shapes::rectangle(x, y, width, height);
}
void addBeam(Model &floor, const Point &start, const Point &end) { (new Model::Beam(&floor))->line = line(start, end); }

QStringList told(const Model &reply)
{
    QStringList bars;
    for (const Model::ForcedBar *bar : reply.forcedBars())
        bars << bar->barInfo + QString::fromStdString(bar->surface->ToText());
    for (const Model::StraddleForcedBar *bar : reply.straddleForcedBars())
        bars << bar->barInfo + QString::fromStdString(bar->surface->ToText());
    for (const Model::NegativeForcedBar *bar : reply.negativeForcedBars())
        bars << bar->barInfo + QString::fromStdString(bar->line->ToText());
    return bars;
}

TEST(SlabBarGeneratorTest, bayHasAWorkingBarEachWay)
{
    Model floor;
    Model reply;
    addSlab(floor, 0, 0, 6000, 4000);
    SlabBarGenerator(1).layOverSlabs(floor, reply);
    const auto bars = reply.forcedBars();
    ASSERT_EQ(bars.size(), 2U);
    EXPECT_EQ(bars[0]->direction, Point(0, 1)) << "the short way";
    EXPECT_EQ(bars[0]->forcedType, 0);
    EXPECT_EQ(bars[1]->direction, Point(1, 0));
    EXPECT_EQ(bars[1]->forcedType, 1);
    EXPECT_DOUBLE_EQ(bars[0]->surface->Area(), 5950.0 * 3950.0);
    EXPECT_TRUE(reply.negativeForcedBars().empty()) << "nothing carries it";
}

TEST(SlabBarGeneratorTest, beamCutsASlabIntoBaysWithABarAcrossIt)
{
    Model floor;
    Model reply;
    addSlab(floor, 0, 0, 8000, 4000);
    addBeam(floor, {3000, 0}, {3000, 4000});
    SlabBarGenerator(1).layOverSlabs(floor, reply);
    const auto bars = reply.forcedBars();
    ASSERT_EQ(bars.size(), 4U);
    EXPECT_DOUBLE_EQ(bars[0]->surface->Area(), 2950.0 * 3950.0);
    EXPECT_DOUBLE_EQ(bars[2]->surface->Area(), 4950.0 * 3950.0);
    EXPECT_EQ(reply.negativeForcedBars().size() + reply.straddleForcedBars().size(), 1U);
}

TEST(SlabBarGeneratorTest, beamAtTheEdgeHasTopBarsThatReachInwards)
{
    Model floor;
    Model reply;
    addSlab(floor, 0, 0, 6000, 4000);
    addBeam(floor, {0, 0}, {0, 4000});
    SlabBarGenerator(1).layOverSlabs(floor, reply);
    ASSERT_EQ(reply.negativeForcedBars().size(), 1U);
    const Model::NegativeForcedBar &bar = *reply.negativeForcedBars()[0];
    EXPECT_EQ(bar.leftStretchLength + bar.rightStretchLength, 1500.0);
    EXPECT_EQ(bar.leftStretchLength * bar.rightStretchLength, 0.0);
    const bool goesUp = bar.line->EndPoint().y > 0;
    EXPECT_EQ(goesUp, bar.rightStretchLength > 0) << "the slab lies to the right of a line upwards";
}

TEST(SlabBarGeneratorTest, slabsSideBySideShareOneBar)
{
    Model floor;
    Model reply;
    addSlab(floor, 0, 0, 4000, 4000);
    addSlab(floor, 4000, 0, 4000, 4000);
    SlabBarGenerator(1).layOverSlabs(floor, reply);
    EXPECT_EQ(reply.negativeForcedBars().size() + reply.straddleForcedBars().size(), 1U);
}

TEST(SlabBarGeneratorTest, turnedSlabHasTurnedBars)
{
    Model floor;
    Model reply;
    auto outline = shapes::rectangle(0, 0, 6000, 4000);
    outline->Rotate({0, 0}, 0.5);
    (new Model::Board(&floor))->surface = outline;
    SlabBarGenerator(1).layOverSlabs(floor, reply);
    ASSERT_EQ(reply.forcedBars().size(), 2U);
    const Point direction = reply.forcedBars()[1]->direction;
    EXPECT_NEAR(std::fabs(direction.x), std::cos(0.5), 1e-9);
    EXPECT_NEAR(std::fabs(direction.y), std::sin(0.5), 1e-9);
    EXPECT_NEAR(reply.forcedBars()[1]->surface->Area(), 5950.0 * 3950.0, 10.0);
}

TEST(SlabBarGeneratorTest, raftWithoutCutsHasTopBarsAlongItsMiddle)
{
    Model floor;
    Model reply;
    (new Model::Raft(&floor))->surface = shapes::rectangle(0, 0, 8000, 1000);
    SlabBarGenerator(1).layOverRafts(floor, reply);
    EXPECT_EQ(reply.raftMainForcedBars().size(), 2U);
    ASSERT_EQ(reply.raftNegativeForcedBars().size(), 1U);
    EXPECT_EQ(reply.raftNegativeForcedBars()[0]->line->StartPoint(), Point(0, 500));
    EXPECT_EQ(reply.raftNegativeForcedBars()[0]->leftStretchLength, 350.0);
}

TEST(SlabBarGeneratorTest, seedTellsTheBars)
{
    Model floor;
    for (int i = 0; i < 20; ++i)
        addSlab(floor, i * 4000.0, 0, 4000, 3000);
    Model once;
    Model again;
    Model other;
    SlabBarGenerator(5).layOverSlabs(floor, once);
    SlabBarGenerator(5).layOverSlabs(floor, again);
    SlabBarGenerator(6).layOverSlabs(floor, other);
    EXPECT_EQ(told(once), told(again));
    EXPECT_NE(told(once), told(other));
}

TEST(SlabBarGeneratorTest, plateWithoutAnOutlineHasNoBars)
{
    Model floor;
    Model reply;
    new Model::Board(&floor);
    new Model::Raft(&floor);
    SlabBarGenerator generator(1);
    generator.layOverSlabs(floor, reply);
    generator.layOverRafts(floor, reply);
    EXPECT_TRUE(reply.objects().empty());
}

} // namespace
