#include "slab/SlabBarDirection.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using Line = vks::CLine2d;
using Arc = vks::CArc2d;
using Vector = vks::CVec2<double>;

namespace {

constexpr double kDegree = shapes::kPi / 180.0;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Vector heading(double degrees, double length = 1.0)
{
    return {length * std::cos(degrees * kDegree), length * std::sin(degrees * kDegree)};
}

/** Of a line of a metre from the origin; rad. */
bool needsNormalizingAt(double angle)
{
    const Line line({0, 0}, {1000.0 * std::cos(angle), 1000.0 * std::sin(angle)});
    return needNormalizeStretchInfo(&line);
}

bool needsNormalizing(double degrees) { return needsNormalizingAt(degrees * kDegree); }

} // namespace

TEST(IsSameDirPiTest, holdsForVectorsInOneDirection)
{
    EXPECT_TRUE(isSameDirPi({1, 0}, {1, 0}));
    EXPECT_TRUE(isSameDirPi({0, -3}, {0, -0.001}));
}

TEST(IsSameDirPiTest, holdsForVectorsInOppositeDirections)
{
    EXPECT_TRUE(isSameDirPi({1, 0}, {-1, 0}));
    EXPECT_TRUE(isSameDirPi({1, 0}, {-1, -0.0}));
    EXPECT_TRUE(isSameDirPi({2, 3}, {-20, -30}));
}

TEST(IsSameDirPiTest, tenDegreesAreWithinAndElevenAreNotWhereverTheVectorsPoint)
{
    for (int base = 0; base < 360; ++base)
        for (const int half : {0, 180})
            for (const int sign : {-1, 1}) {
                EXPECT_TRUE(isSameDirPi(heading(base), heading(base + half + sign * 10.0))) << base << ' ' << half;
                EXPECT_FALSE(isSameDirPi(heading(base), heading(base + half + sign * 11.0))) << base << ' ' << half;
            }
}

TEST(IsSameDirPiTest, aMillionthOfARadianBeyondTenDegreesIsNotWithin)
{
    const double limit = 0.17453292519943295;
    EXPECT_TRUE(isSameDirPi({1, 0}, {std::cos(limit), std::sin(limit)}));
    EXPECT_TRUE(isSameDirPi({1, 0}, {std::cos(limit), -std::sin(limit)}));
    EXPECT_FALSE(isSameDirPi({1, 0}, {std::cos(limit + 1e-6), std::sin(limit + 1e-6)}));
    EXPECT_FALSE(isSameDirPi({1, 0}, {-std::cos(limit + 1e-6), std::sin(limit + 1e-6)}));
}

TEST(IsSameDirPiTest, failsAtARightAngle)
{
    EXPECT_FALSE(isSameDirPi({1, 0}, {0, 1}));
    EXPECT_FALSE(isSameDirPi({1, 0}, {0, -1}));
}

TEST(IsSameDirPiTest, lengthsMeanNothing)
{
    EXPECT_TRUE(isSameDirPi(heading(30, 1e6), heading(39, 1e-6)));
    EXPECT_FALSE(isSameDirPi(heading(30, 1e6), heading(42, 1e-6)));
}

TEST(IsSameDirPiTest, theZeroVectorHasTheDirectionOfEveryVector)
{
    EXPECT_TRUE(isSameDirPi({0, 0}, {0, 1}));
    EXPECT_TRUE(isSameDirPi({1, 0}, {0, 0}));
}

TEST(IsSameDirPiTest, failsForDirectionsThatAreNotFinite)
{
    EXPECT_FALSE(isSameDirPi({kNaN, 0}, {1, 0}));
    EXPECT_FALSE(isSameDirPi({1, 0}, {kInfinity, 0}));
}

TEST(IsSameLineTest, holdsForACurveAndItself)
{
    const Line line({0, 0}, {1000, 0});
    EXPECT_TRUE(isSameLine(&line, &line));
    const Arc arc({0, 0}, 1000.0, 0.0, 2.0);
    EXPECT_TRUE(isSameLine(&arc, &arc));
}

TEST(IsSameLineTest, holdsForTheLineTurnedAround)
{
    const Line line({0, 0}, {1000, 0});
    const Line back({1000, 0}, {0, 0});
    EXPECT_TRUE(isSameLine(&line, &back));
    EXPECT_TRUE(isSameLine(&back, &line));
}

TEST(IsSameLineTest, holdsForLinesThatShareAStretch)
{
    const Line line({0, 0}, {1000, 0});
    const Line further({800, 0}, {1500, 0});
    const Line behind({1000, 0}, {1500, 0});
    EXPECT_TRUE(isSameLine(&line, &further));
    EXPECT_FALSE(isSameLine(&line, &behind)); // a common point is no stretch
}

TEST(IsSameLineTest, aMillimetreBesideIsTheSameAndMoreIsNot)
{
    const Line line({0, 0}, {1000, 0});
    const Line beside({0, 1.0}, {1000, 1.0});
    const Line farther({0, 1.1}, {1000, 1.1});
    EXPECT_TRUE(isSameLine(&line, &beside));
    EXPECT_FALSE(isSameLine(&line, &farther));
}

TEST(IsSameLineTest, tenDegreesAreWithinAndElevenAreNot)
{
    // So short that it lies within the tolerance of the other line all along, whatever its direction.
    const Line line({-1000, 0}, {1000, 0});
    for (const double turn : {0.0, 180.0}) {
        const Line atTen({0, 0}, heading(turn + 10.0, 2.0));
        const Line atEleven({0, 0}, heading(turn + 11.0, 2.0));
        EXPECT_TRUE(isSameLine(&line, &atTen)) << turn;
        EXPECT_TRUE(isSameLine(&atTen, &line)) << turn;
        EXPECT_FALSE(isSameLine(&line, &atEleven)) << turn;
        EXPECT_FALSE(isSameLine(&atEleven, &line)) << turn;
    }
}

TEST(IsSameLineTest, directionsAreThoseAtTheEnds)
{
    // A quarter and a half of one circle share the quarter, but end at a right angle.
    const Arc quarter({0, 0}, 1000.0, 0.0, shapes::kPi / 2);
    const Arc half({0, 0}, 1000.0, 0.0, shapes::kPi);
    const Arc backToStart({0, 0}, 1000.0, shapes::kPi / 2, 0.0);
    EXPECT_FALSE(isSameLine(&quarter, &half));
    EXPECT_FALSE(isSameLine(&quarter, &backToStart)); // turned around it ends where the other begins
}

TEST(IsSameLineTest, failsForNullAndForCurvesWithoutLength)
{
    const Line line({0, 0}, {1000, 0});
    const Line point({500, 0}, {500, 0});
    EXPECT_FALSE(isSameLine(nullptr, &line));
    EXPECT_FALSE(isSameLine(&line, nullptr));
    EXPECT_FALSE(isSameLine(nullptr, nullptr));
    EXPECT_FALSE(isSameLine(&line, &point));
    EXPECT_FALSE(isSameLine(&point, &point));
}

TEST(NeedNormalizeStretchInfoTest, holdsForTheHalfTurnAroundTheXAxis)
{
    for (const int degrees : {0, 10, 22, 204, 225, 270, 315, 350, 359})
        EXPECT_TRUE(needsNormalizing(degrees)) << degrees;
    for (const int degrees : {24, 45, 90, 135, 180, 202})
        EXPECT_FALSE(needsNormalizing(degrees)) << degrees;
}

TEST(NeedNormalizeStretchInfoTest, changesAtTheTwoAngles)
{
    EXPECT_TRUE(needsNormalizingAt(0.4014 - 1e-9));
    EXPECT_FALSE(needsNormalizingAt(0.4014 + 1e-9));
    EXPECT_FALSE(needsNormalizingAt(3.542992653589793 - 1e-9));
    EXPECT_TRUE(needsNormalizingAt(3.542992653589793 + 1e-9));
}

TEST(NeedNormalizeStretchInfoTest, aDirectionJustBelowTheXAxisIsAFullTurn) { EXPECT_TRUE(needsNormalizingAt(-1e-12)); }

TEST(NeedNormalizeStretchInfoTest, takesTheDirectionAtTheEndOfACurve)
{
    const Arc upward({0, 0}, 1000.0, -shapes::kPi / 2, 0.0); // starts along x, ends along y
    const Arc along({0, 0}, 1000.0, shapes::kPi, 1.5 * shapes::kPi);
    EXPECT_FALSE(needNormalizeStretchInfo(&upward));
    EXPECT_TRUE(needNormalizeStretchInfo(&along));
}

TEST(NeedNormalizeStretchInfoTest, failsForNullAndHoldsForALineWithoutDirection)
{
    const Line point({500, 0}, {500, 0});
    EXPECT_FALSE(needNormalizeStretchInfo(nullptr));
    EXPECT_TRUE(needNormalizeStretchInfo(&point));
}

TEST(BarReachTest, aBarReachesToTheSideOfTheStretchThatItHas)
{
    const Line upward({0, 0}, {0, 1000});
    EXPECT_EQ(barReach(&upward, 800, 0), BarReach::ToLeft);
    EXPECT_EQ(barReach(&upward, 0, 800), BarReach::ToRight);
    EXPECT_EQ(barReach(&upward, 0, 0), BarReach::ToRight);
    EXPECT_EQ(barReach(&upward, 800, 900), BarReach::ToBoth);
}

TEST(BarReachTest, sidesAreExchangedAlongALineThatIsNormalized)
{
    const Line along({0, 0}, {1000, 0});
    EXPECT_EQ(barReach(&along, 800, 0), BarReach::ToRight);
    EXPECT_EQ(barReach(&along, 0, 800), BarReach::ToLeft);
    EXPECT_EQ(barReach(&along, 800, 900), BarReach::ToBoth);
}

TEST(BarReachTest, halfAMillimetreIsNoStretch)
{
    const Line upward({0, 0}, {0, 1000});
    EXPECT_EQ(barReach(&upward, 0.5, 800), BarReach::ToRight);
    EXPECT_EQ(barReach(&upward, -0.5, 800), BarReach::ToRight);
    EXPECT_EQ(barReach(&upward, 0.6, 800), BarReach::ToBoth);
}
