#pragma once

#include "platform/geometry/CVec2.h"
#include "platform/geometry/CVec3.h"

#include <limits>

namespace vks {

/** Frame in space: an origin (mm) and two axes; the third, the normal, is their cross product.
 *  Axes of length 1 at right angles are the rule; nothing checks it. A new frame is the world's. */
template <typename T> struct CCoord3
{
    CVec3<T> origin; ///< mm
    /** First axis. */
    CVec3<T> u{T(1), T(), T()};
    /** Second axis. */
    CVec3<T> v{T(), T(1), T()};

    constexpr CCoord3() = default;
    /** The terms as they are. */
    constexpr CCoord3(const CVec3<T> &originPoint, const CVec3<T> &uAxis, const CVec3<T> &vAxis)
        : origin(originPoint), u(uAxis), v(vAxis)
    {}

    /** The frame of an object that has none: its first term is NaN. */
    static constexpr CCoord3 Absent()
    {
        CCoord3 frame;
        frame.origin.x = std::numeric_limits<T>::quiet_NaN();
        return frame;
    }
    /** Whether this stands for no frame. */
    bool IsAbsent() const { return std::isnan(origin.x); }

    /** Third axis. */
    constexpr CVec3<T> Normal() const { return u.Cross(v); }
    /** A point of the frame's own plane, in the world. */
    constexpr CVec3<T> ToWorld(const CVec2<T> &point) const { return origin + u * point.x + v * point.y; }
    /** Exact; an absent frame is equal to none. */
    constexpr bool operator==(const CCoord3 &other) const
    {
        return origin == other.origin && u == other.u && v == other.v;
    }
    /** The contrary. */
    constexpr bool operator!=(const CCoord3 &other) const { return !(*this == other); }
};

} // namespace vks
