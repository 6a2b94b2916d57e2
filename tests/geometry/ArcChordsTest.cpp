#include "platform/geometry/ArcChords.h"

#include "geometry/KernelShapes.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace shapes;
using vks::ArcChords;

namespace {

vks::Ring corners(const ArcChords &chords, const vks::CCurve2d &curve)
{
    vks::Ring ring;
    chords.appendCorners(curve, curve.StartPoint(), ring);
    return ring;
}

} // namespace

TEST(ArcChordsTest, aLineGivesItsStartAndIsNotLearnt)
{
    ArcChords chords({10, 20});
    const vks::CLine2d line({110, 220}, {500, 500});
    chords.learn(line);
    EXPECT_FALSE(chords.hasArcs());
    EXPECT_EQ(corners(chords, line), (vks::Ring{{100, 200}}));
}

TEST(ArcChordsTest, chordsStayWithinTheSagitta)
{
    for (const double radius : {0.005, 1.0, 150.0, 12345.6, 1e7}) {
        ArcChords chords({0, 0});
        const vks::CArc2d circle({0, 0}, radius, 0.0, 2 * kPi);
        chords.learn(circle);
        const vks::Ring ring = corners(chords, circle);
        ASSERT_GE(ring.size(), 3U) << radius;
        for (std::size_t i = 0; i < ring.size(); ++i)
            EXPECT_GE(((ring[i] + ring[(i + 1) % ring.size()]) / 2).Length(), radius - 0.01 - 1e-6) << radius;
    }
}

TEST(ArcChordsTest, cornersOfACircleAreThoseOfItsArcsBothWays)
{
    const vks::CArc2d part({5, 5}, 1000.0, 0.3, 1.3);
    const vks::CArc2d back({5, 5}, 1000.0, 1.3, 0.3);
    const vks::CArc2d whole({5, 5}, 1000.0, 0.0, 2 * kPi);
    ArcChords chords({0, 0});
    for (const vks::CArc2d *arc : {&part, &back, &whole})
        chords.learn(*arc);
    vks::Ring forward = corners(chords, part);
    vks::Ring backward = corners(chords, back);
    const vks::Ring around = corners(chords, whole);
    ASSERT_EQ(forward.size(), backward.size());
    EXPECT_TRUE(std::equal(forward.begin() + 1, forward.end(), backward.rbegin()));
    for (const Point &corner : forward)
        EXPECT_TRUE(std::any_of(around.begin(), around.end(),
                                [&corner](const Point &other) { return corner.DistanceTo(other) < 1e-9; }));
}

TEST(ArcChordsTest, circlesThatDifferByArithmeticAreOne)
{
    const vks::CArc2d part({5, 5}, 1000.0, 0.3, 1.3);
    const vks::CArc2d noisy({5 + 1e-9, 5 - 1e-9}, 1000.0 + 1e-9, 1.1, 2.0);
    ArcChords chords({0, 0});
    chords.learn(part);
    chords.learn(noisy);
    const vks::Ring ring = corners(chords, part);
    const Point end = noisy.StartPoint();
    EXPECT_TRUE(std::any_of(ring.begin(), ring.end(), [&end](const Point &p) { return p.DistanceTo(end) < 1e-6; }));
}

TEST(ArcChordsTest, aHugeCircleHasABoundedNumberOfChords)
{
    ArcChords chords({0, 0});
    const vks::CArc2d circle({0, 0}, 1e12, 0.0, 2 * kPi);
    chords.learn(circle);
    EXPECT_LE(corners(chords, circle).size(), std::size_t(ArcChords::kMostChords) + 1);
}
