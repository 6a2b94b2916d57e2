#pragma once

#include "platform/geometry/CVec3.h"

#include <limits>

namespace vks {

/** Box in space with sides along the axes, in millimetres. A new box is empty: it reaches from plus to minus infinity. */
template <typename T> struct CBox3
{
    static constexpr T kInfinity = std::numeric_limits<T>::infinity();

    CVec3<T> minPt{kInfinity, kInfinity, kInfinity};
    CVec3<T> maxPt{-kInfinity, -kInfinity, -kInfinity};

    constexpr CBox3() = default;
    constexpr CBox3(const CVec3<T> &minimum, const CVec3<T> &maximum) : minPt(minimum), maxPt(maximum) {}

    /** False for an empty box and for one with a NaN. */
    constexpr bool IsValid() const { return maxPt.x >= minPt.x && maxPt.y >= minPt.y && maxPt.z >= minPt.z; }
    constexpr bool operator==(const CBox3 &other) const { return minPt == other.minPt && maxPt == other.maxPt; }
    constexpr bool operator!=(const CBox3 &other) const { return !(*this == other); }
};

} // namespace vks
