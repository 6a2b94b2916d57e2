#pragma once

#include "platform/geometry/CBox2.h"

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

namespace bench {

/** Boxes of the walls, beams and columns of a floor: up to 6 m, 10,000 of them in a square of 200 m, and others as close
 *  together as these. */
inline std::vector<vks::CBox2<double>> floorBoxes(std::size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> place(0.0, 2000.0 * std::sqrt(static_cast<double>(count)));
    std::uniform_real_distribution<double> size(100.0, 6000.0);
    std::vector<vks::CBox2<double>> boxes;
    boxes.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double x = place(random);
        const vks::CVec2<double> corner(x, place(random));
        const double width = size(random);
        boxes.emplace_back(corner, corner + vks::CVec2<double>(width, size(random)));
    }
    return boxes;
}

} // namespace bench
