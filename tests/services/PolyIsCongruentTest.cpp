#include "platform/services/PolyIsCongruent.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

namespace {

using orvcadcommon::PolyIsCongruent;
using shapes::kPi;

constexpr double kNear = 1e-9;   // rad
constexpr double kUntold = -7.0; // what the angle holds before

/** The turn of pattern to polygon, kUntold when they are not congruent. */
double turnOf(const vks::CPolygon *pattern, const vks::CPolygon *polygon)
{
    double angle = kUntold;
    const bool isCongruent = PolyIsCongruent(pattern, polygon, angle);
    EXPECT_EQ(isCongruent, angle != kUntold);
    return angle;
}

TEST(PolyIsCongruentTest, movedPolygonIsNotTurned)
{
    EXPECT_EQ(turnOf(shapes::rectangle(0, 0, 400, 300), shapes::rectangle(-900, 70, 400, 300)), 0.0);
}

TEST(PolyIsCongruentTest, turnedPolygonTellsItsTurn)
{
    const auto pattern = shapes::polygon({{{0, 0}, {400, 0}, {400, 100}, {100, 300}, {0, 300}}});
    for (const double turn : {0.3, kPi / 2, kPi, 5.0})
        EXPECT_NEAR(turnOf(pattern, shapes::moved(*shapes::turned(*pattern, turn), {1000, 2000})), turn, kNear);
}

TEST(PolyIsCongruentTest, leastOfSeveralTurnsCounts)
{
    const auto pattern = shapes::rectangle(0, 0, 400, 300);
    EXPECT_NEAR(turnOf(pattern, shapes::turned(*pattern, kPi + 0.25)), 0.25, kNear);
    EXPECT_NEAR(turnOf(pattern, shapes::rectangle(0, 0, 300, 400)), kPi / 2, kNear);
    EXPECT_EQ(turnOf(shapes::rectangle(0, 0, 300, 300), shapes::rectangle(5, 5, 300, 300)), 0.0);
}

TEST(PolyIsCongruentTest, directionOfALoopMeansNothing)
{
    const auto clockwise = shapes::polygon({{{0, 0}, {0, 300}, {400, 300}, {400, 0}}});
    EXPECT_EQ(turnOf(shapes::rectangle(0, 0, 400, 300), clockwise), 0.0);
}

TEST(PolyIsCongruentTest, circlesAreCongruentByTheirRadius)
{
    EXPECT_EQ(turnOf(shapes::circle({0, 0}, 200), shapes::circle({900, 0}, 200)), 0.0);
    EXPECT_EQ(turnOf(shapes::circle({0, 0}, 200), shapes::circle({0, 0}, 210)), kUntold);
}

TEST(PolyIsCongruentTest, arcsCountAsWhatTheyAre)
{
    const auto half = shapes::discSegment({0, 0}, 500, 0.0, kPi);
    EXPECT_NEAR(turnOf(half, shapes::turned(*half, 1.0)), 1.0, kNear);
    const auto bite = shapes::discSegment({0, 0}, 500, 0.0, kPi / 2);
    EXPECT_EQ(turnOf(half, bite), kUntold);
}

TEST(PolyIsCongruentTest, anotherSizeOrShapeIsNotCongruent)
{
    const auto pattern = shapes::rectangle(0, 0, 400, 300);
    EXPECT_EQ(turnOf(pattern, shapes::rectangle(0, 0, 410, 300)), kUntold);
    EXPECT_EQ(turnOf(pattern, shapes::polygon({{{0, 0}, {400, 0}, {500, 283}, {100, 283}}})), kUntold);
    EXPECT_EQ(turnOf(pattern, shapes::polygon({{{0, 0}, {400, 0}, {0, 300}}})), kUntold);
}

TEST(PolyIsCongruentTest, mirroredPolygonIsNotCongruent)
{
    const auto pattern = shapes::polygon({{{0, 0}, {400, 0}, {0, 300}}});
    auto mirrored = pattern->Clone();
    mirrored->MirrorX();
    EXPECT_EQ(turnOf(pattern, mirrored), kUntold);
}

TEST(PolyIsCongruentTest, innerLoopsCount)
{
    const auto frame = shapes::frame(0, 0, 1000, 100);
    EXPECT_EQ(turnOf(frame, shapes::moved(*frame, {50, 50})), 0.0);
    EXPECT_EQ(turnOf(frame, shapes::rectangle(0, 0, 1000, 1000)), kUntold);
    EXPECT_EQ(turnOf(frame, shapes::frame(0, 0, 1000, 200)), kUntold);
}

TEST(PolyIsCongruentTest, nothingIsNotCongruent)
{
    const auto pattern = shapes::rectangle(0, 0, 400, 300);
    const vks::CRefPtr<vks::CPolygon> empty = new vks::CPolygon;
    EXPECT_EQ(turnOf(nullptr, pattern), kUntold);
    EXPECT_EQ(turnOf(pattern, nullptr), kUntold);
    EXPECT_EQ(turnOf(empty, empty), kUntold);
}

} // namespace
