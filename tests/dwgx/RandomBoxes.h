#pragma once

#include "platform/geometry/CBox2.h"

#include <cstddef>
#include <random>
#include <vector>

/** Boxes for trees, the same in every run, and what a look through all of them finds. */
namespace randomboxes {

using Box = vks::CBox2<double>;

/** Corners lie on whole millimetres, so that many boxes touch; some have no width or no height. */
inline std::vector<Box> make(std::size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> place(0, 1000);
    std::uniform_int_distribution<int> size(0, 30);
    std::vector<Box> boxes;
    for (std::size_t i = 0; i < count; ++i) {
        const vks::CVec2<double> corner(place(random), place(random));
        boxes.emplace_back(corner, corner + vks::CVec2<double>(size(random), size(random)));
    }
    return boxes;
}

/** A pointer that stands for the box at a position. */
inline void *tag(std::size_t position)
{
    return reinterpret_cast<void *>(position + 1); // NOLINT(performance-no-int-to-ptr): a mark, never followed
}

/** Tags of the first boxes, so many of them, that are no farther than the tolerance (mm) from a box; written without the
 *  box's own test, which the trees use. */
inline std::vector<void *> bruteForce(const std::vector<Box> &boxes, std::size_t count, const Box &query,
                                      double tolerance = 0.0)
{
    std::vector<void *> tags;
    for (std::size_t i = 0; i < count; ++i) {
        const bool apart = boxes[i].minPt.x - query.maxPt.x > tolerance ||
                           query.minPt.x - boxes[i].maxPt.x > tolerance ||
                           boxes[i].minPt.y - query.maxPt.y > tolerance || query.minPt.y - boxes[i].maxPt.y > tolerance;
        if (!apart)
            tags.push_back(tag(i));
    }
    return tags;
}

} // namespace randomboxes
