#pragma once

#include "platform/geometry/CVec2.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

/** Points compared within a tolerance; mm. */
namespace shapes {

inline void expectNear(const vks::CVec2<double> &found, const vks::CVec2<double> &expected, double tolerance = 1e-9)
{
    EXPECT_NEAR(found.x, expected.x, tolerance);
    EXPECT_NEAR(found.y, expected.y, tolerance);
}

/** Of as many points, in order. */
inline void expectPoints(const std::vector<vks::CVec2<double>> &found, const std::vector<vks::CVec2<double>> &expected)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_LT(found[i].DistanceTo(expected[i]), 1e-6) << "point " << i;
}

} // namespace shapes
