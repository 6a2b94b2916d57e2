#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using vks::CLine2d;
using Vec = vks::CVec2<double>;

TEST(CLine2dTest, parameterIsLengthFromTheStart)
{
    const CLine2d line({0, 0}, {300, 400});
    EXPECT_EQ(line.Type(), 1);
    EXPECT_EQ(line.StartT(), 0);
    EXPECT_EQ(line.EndT(), 500);
    EXPECT_EQ(line.Length(), 500);
    EXPECT_EQ(line.GetPoint(250), Vec(150, 200));
    EXPECT_EQ(line.StartVt(), Vec(0.6, 0.8));
    EXPECT_EQ(line.EndVt(), Vec(0.6, 0.8));
    EXPECT_FALSE(line.IsClosed());
}

TEST(CLine2dTest, endsAreTheGivenPointsToTheLastBit)
{
    const CLine2d line({0.1, 0.7}, {1e7 + 0.3, -3e-5});
    EXPECT_EQ(line.StartPoint(), Vec(0.1, 0.7));
    EXPECT_EQ(line.EndPoint(), Vec(1e7 + 0.3, -3e-5));
}

TEST(CLine2dTest, lineFromPointDirectionAndRangeStartsAtTheLowerEnd)
{
    const CLine2d line(Vec(10, 0), Vec(0, 2), -5, 15);
    EXPECT_EQ(line.StartPoint(), Vec(10, -5));
    EXPECT_EQ(line.EndPoint(), Vec(10, 15));
    EXPECT_EQ(line.StartT(), 0);
    EXPECT_EQ(line.EndT(), 20);
}

TEST(CLine2dTest, rangeGivenTheOtherWayRoundStartsAtTheLowerEndToo)
{
    const CLine2d line(Vec(10, 0), Vec(0, 2), 15, -5);
    EXPECT_EQ(line.StartPoint(), Vec(10, -5));
}

TEST(CLine2dTest, trimmingKeepsTheParameterOfEveryPoint)
{
    CLine2d line({0, 0}, {1000, 0});
    line.SetStartT(150);
    line.SetEndT(850);
    EXPECT_EQ(line.StartPoint(), Vec(150, 0));
    EXPECT_EQ(line.EndPoint(), Vec(850, 0));
    EXPECT_EQ(line.Length(), 700);
    EXPECT_EQ(line.GetPoint(500), Vec(500, 0));
    EXPECT_EQ(line.ToText(), "LINESTRING(150 0, 850 0)");
}

TEST(CLine2dTest, startBeyondTheEndMakesAnEmptyCurve)
{
    CLine2d line({0, 0}, {200, 0});
    line.SetStartT(150);
    line.SetEndT(50);
    EXPECT_TRUE(line.IsEmpty());
    EXPECT_EQ(line.Length(), 0);
    EXPECT_FALSE(line.Box().IsValid());
}

TEST(CLine2dTest, nearestPointOfAnEmptyLineIsItsStart)
{
    CLine2d line({0, 0}, {200, 0});
    line.SetStartT(150);
    line.SetEndT(50);
    EXPECT_EQ(line.NearestT({75, 10}), 150);
}

TEST(CLine2dTest, lineMayBeLengthened)
{
    CLine2d line({0, 0}, {200, 0});
    line.SetStartT(-100);
    line.SetEndT(300);
    EXPECT_EQ(line.StartPoint(), Vec(-100, 0));
    EXPECT_EQ(line.EndPoint(), Vec(300, 0));
}

TEST(CLine2dTest, parameterThatIsNotFiniteChangesNothing)
{
    CLine2d line({0, 0}, {200, 0});
    line.SetStartT(std::numeric_limits<double>::quiet_NaN());
    line.SetEndT(std::numeric_limits<double>::infinity());
    EXPECT_EQ(line.StartT(), 0);
    EXPECT_EQ(line.EndT(), 200);
}

TEST(CLine2dTest, lineOfNoLengthCannotBeLengthened)
{
    CLine2d line({7, 7}, {7, 7});
    line.SetEndT(10);
    EXPECT_EQ(line.Length(), 0);
}

TEST(CLine2dTest, reversedTrimmedLineStartsAtItsOldEnd)
{
    CLine2d line({0, 0}, {1000, 0});
    line.SetEndT(600);
    line.Reverse();
    EXPECT_EQ(line.StartPoint(), Vec(600, 0));
    EXPECT_EQ(line.EndPoint(), Vec(0, 0));
    EXPECT_EQ(line.StartT(), 0);
    EXPECT_EQ(line.EndVt(), Vec(-1, 0));
}

TEST(CLine2dTest, movesTurnsAndMirrors)
{
    CLine2d line({0, 0}, {10, 0});
    line.Translate({5, 1});
    EXPECT_EQ(line.EndPoint(), Vec(15, 1));
    line.Rotate({5, 1}, std::acos(0.0)); // a quarter turn
    EXPECT_NEAR(line.EndPoint().x, 5, 1e-12);
    EXPECT_NEAR(line.EndPoint().y, 11, 1e-12);
    line.MirrorX();
    EXPECT_EQ(line.StartPoint(), Vec(-5, 1));
}

TEST(CLine2dTest, nearestPointLiesBetweenTheEnds)
{
    const CLine2d line({0, 0}, {100, 0});
    EXPECT_EQ(line.NearestT({40, 7}), 40);
    EXPECT_EQ(line.NearestT({-40, 7}), 0);
    EXPECT_EQ(line.NearestT({140, 7}), 100);
    EXPECT_EQ(line.DistanceTo({103, 4}), 5);
}

TEST(CLine2dTest, lineOfNoLengthStandsAsItIs)
{
    const CLine2d line({7, 7}, {7, 7});
    EXPECT_EQ(line.Length(), 0);
    EXPECT_FALSE(line.IsEmpty());
    EXPECT_EQ(line.StartVt(), Vec(0, 0));
    EXPECT_EQ(line.EndPoint(), Vec(7, 7));
    EXPECT_EQ(line.DistanceTo({7, 10}), 3);
}

TEST(CLine2dTest, cloneIsTrimmedLikeTheOriginalAndIndependentOfIt)
{
    CLine2d line({0, 0}, {100, 0});
    line.SetStartT(20);
    const auto copy = line.Clone();
    line.Translate({0, 5});
    EXPECT_EQ(copy->StartPoint(), Vec(20, 0));
}

} // namespace
