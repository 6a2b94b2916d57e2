#pragma once

#include "platform/geometry/CVec3.h"

#include <limits>

namespace vks {

/** Box in space with sides along the axes, in millimetres. A new box is empty: it reaches from plus to minus infinity. */
template <typename T> struct CBox3
{
    /** Where an empty box begins. */
    static constexpr T kInfinity = std::numeric_limits<T>::infinity();

    /** Least corner. */
    CVec3<T> minPt{kInfinity, kInfinity, kInfinity};
    /** Greatest corner. */
    CVec3<T> maxPt{-kInfinity, -kInfinity, -kInfinity};

    constexpr CBox3() = default;
    /** The corners as they are. */
    constexpr CBox3(const CVec3<T> &minimum, const CVec3<T> &maximum) : minPt(minimum), maxPt(maximum) {}

    /** False for an empty box and for one with a NaN. */
    constexpr bool IsValid() const { return maxPt.x >= minPt.x && maxPt.y >= minPt.y && maxPt.z >= minPt.z; }
    /** Exact; two empty boxes as made are the same. */
    constexpr bool operator==(const CBox3 &other) const { return minPt == other.minPt && maxPt == other.maxPt; }
    /** The contrary. */
    constexpr bool operator!=(const CBox3 &other) const { return !(*this == other); }
};

} // namespace vks
