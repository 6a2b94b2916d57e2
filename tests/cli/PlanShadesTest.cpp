#include "cli/PlanShades.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using orvcad::PlanShades;

namespace {

PlanShades shadesOf(const std::vector<double> &elevations)
{
    PlanShades shades;
    for (const double elevation : elevations)
        shades.add(elevation);
    return shades;
}

TEST(PlanShadesTest, eachElevationHasItsShadeFromTheHighestDown)
{
    const auto bands = shadesOf({2950, 3000, 2950, 2900}).bands();
    ASSERT_EQ(bands.size(), 3U);
    EXPECT_EQ(bands[0].text(), "+3.000 m");
    EXPECT_EQ(bands[1].number, 2);
    EXPECT_EQ(bands[2].text(), "+2.900 m");
    EXPECT_LT(bands[0].opacity, bands[1].opacity);
    EXPECT_LT(bands[1].opacity, bands[2].opacity);
}

TEST(PlanShadesTest, elevationsWithinAMillimetreShareAShade)
{
    EXPECT_EQ(shadesOf({3000.0, 3000.3}).bands().size(), 1U);
}

TEST(PlanShadesTest, manyElevationsShareEightShadesAndLoseNone)
{
    std::vector<double> elevations(100);
    for (int i = 0; i < 100; ++i)
        elevations[static_cast<std::size_t>(i)] = i * 10.0;
    const PlanShades shades = shadesOf(elevations);
    const auto bands = shades.bands();
    ASSERT_EQ(bands.size(), 8U);
    int number = 0;
    for (const auto &band : bands)
        number += band.number;
    EXPECT_EQ(number, 100);
    EXPECT_EQ(bands.back().from, 0.0);
    EXPECT_EQ(bands.front().to, 990.0);
    for (const double elevation : elevations)
        EXPECT_GT(shades.opacity(elevation), 0.0);
    EXPECT_EQ(shades.opacity(0.0), bands.back().opacity);
}

TEST(PlanShadesTest, shadeOfSeveralElevationsTellsTheLowestAndTheHighest)
{
    PlanShades shades;
    for (int i = 0; i < 100; ++i)
        shades.add(i * 10.0);
    const auto bands = shades.bands();
    ASSERT_EQ(bands.size(), 8U); // 12 or 13 elevations each
    EXPECT_EQ(bands.front().text(), QStringLiteral("+0.880 … +0.990 m"));
    EXPECT_EQ(bands.back().text(), QStringLiteral("±0.000 … +0.120 m"));
}

TEST(PlanShadesTest, signsAreWritten)
{
    EXPECT_EQ(shadesOf({0}).bands()[0].text(), QStringLiteral("±0.000 m"));
    EXPECT_EQ(shadesOf({-1500}).bands()[0].text(), QStringLiteral("−1.500 m"));
}

TEST(PlanShadesTest, noElevationsAndOddOnesBreakNothing)
{
    EXPECT_TRUE(PlanShades().bands().empty());
    EXPECT_GT(PlanShades().opacity(7), 0.0);
    EXPECT_EQ(shadesOf({std::nan(""), std::numeric_limits<double>::infinity(), 1e300}).bands().size(), 2U);
}

} // namespace
