#pragma once

#include "platform/geometry/CVec2.h"

#include <algorithm>
#include <limits>

namespace vks {

/** Box with sides along the axes, in millimetres. A new box is empty: its minimum lies above its maximum. */
template <typename T> struct CBox2
{
    /** Lower left corner. */
    CVec2<T> minPt{std::numeric_limits<T>::max(), std::numeric_limits<T>::max()};
    /** Upper right corner. */
    CVec2<T> maxPt{std::numeric_limits<T>::lowest(), std::numeric_limits<T>::lowest()};

    constexpr CBox2() = default;
    /** The corners as they are: a minimum above the maximum makes it empty. */
    constexpr CBox2(const CVec2<T> &minimum, const CVec2<T> &maximum) : minPt(minimum), maxPt(maximum) {}

    /** False for an empty box and for one with a NaN; tolerance lets the minimum lie that far above the maximum. */
    constexpr bool IsValid(T tolerance = T()) const
    {
        return maxPt.x + tolerance >= minPt.x && maxPt.y + tolerance >= minPt.y;
    }
    /** Along x, mm; below 0 for an empty box. */
    constexpr T Width() const { return maxPt.x - minPt.x; }
    /** Along y, mm; below 0 for an empty box. */
    constexpr T Height() const { return maxPt.y - minPt.y; }
    /** Means nothing for an empty box. */
    constexpr CVec2<T> Center() const { return (minPt + maxPt) / T(2); }

    /** Grows the box until it holds the point. */
    void Add(const CVec2<T> &point)
    {
        minPt = {std::min(minPt.x, point.x), std::min(minPt.y, point.y)};
        maxPt = {std::max(maxPt.x, point.x), std::max(maxPt.y, point.y)};
    }
    /** An empty box adds nothing. */
    void Add(const CBox2 &other)
    {
        if (!other.IsValid())
            return;
        minPt = {std::min(minPt.x, other.minPt.x), std::min(minPt.y, other.minPt.y)};
        maxPt = {std::max(maxPt.x, other.maxPt.x), std::max(maxPt.y, other.maxPt.y)};
    }
    /** What both boxes hold; empty when they lie apart. */
    constexpr CBox2 Common(const CBox2 &other) const
    {
        return {{std::max(minPt.x, other.minPt.x), std::max(minPt.y, other.minPt.y)},
                {std::min(maxPt.x, other.maxPt.x), std::min(maxPt.y, other.maxPt.y)}};
    }
    /** Grown by the margin on all four sides; an empty box stays empty. */
    CBox2 Grown(T margin) const
    {
        return IsValid() ? CBox2(minPt - CVec2<T>(margin, margin), maxPt + CVec2<T>(margin, margin)) : *this;
    }
    /** True when the boxes share a point or come within the tolerance of it in x and y; valid boxes are taken for granted. */
    constexpr bool Touches(const CBox2 &other, T tolerance) const
    {
        return maxPt.x + tolerance >= other.minPt.x && other.maxPt.x + tolerance >= minPt.x &&
               maxPt.y + tolerance >= other.minPt.y && other.maxPt.y + tolerance >= minPt.y;
    }
    /** Touches for boxes that may be empty; an empty one never does. */
    constexpr bool Intersects(const CBox2 &other, T tolerance = T()) const
    {
        return IsValid() && other.IsValid() && Touches(other, tolerance);
    }
    /** True for a point within, or outside by no more than the tolerance; false for an empty box. */
    constexpr bool Contains(const CVec2<T> &point, T tolerance = T()) const
    {
        return point.x >= minPt.x - tolerance && point.x <= maxPt.x + tolerance && point.y >= minPt.y - tolerance &&
               point.y <= maxPt.y + tolerance;
    }
};

} // namespace vks
