#pragma once

#include <cmath>
#include <limits>

namespace vks {

/** Point or vector in the plan; lengths in millimetres. */
template <typename T> struct CVec2
{
    T x = T(); ///< mm
    T y = T(); ///< mm

    constexpr CVec2() = default;
    /** The terms as they are. */
    constexpr CVec2(T xValue, T yValue) : x(xValue), y(yValue) {}

    /** Term by term. */
    constexpr CVec2 operator+(const CVec2 &other) const { return {x + other.x, y + other.y}; }
    /** Term by term. */
    constexpr CVec2 operator-(const CVec2 &other) const { return {x - other.x, y - other.y}; }
    /** The opposite direction. */
    constexpr CVec2 operator-() const { return {-x, -y}; }
    /** Each term times a factor. */
    constexpr CVec2 operator*(T factor) const { return {x * factor, y * factor}; }
    /** Each term divided; nothing guards against 0. */
    constexpr CVec2 operator/(T divisor) const { return {x / divisor, y / divisor}; }
    /** In place. */
    CVec2 &operator+=(const CVec2 &other) { return *this = *this + other; }
    /** In place. */
    CVec2 &operator-=(const CVec2 &other) { return *this = *this - other; }
    /** Exact, term by term. */
    constexpr bool operator==(const CVec2 &other) const { return x == other.x && y == other.y; }
    /** The contrary. */
    constexpr bool operator!=(const CVec2 &other) const { return !(*this == other); }

    /** Scalar product; above 0 for directions less than a quarter turn apart. */
    constexpr T Dot(const CVec2 &other) const { return x * other.x + y * other.y; }
    /** Positive when other lies to the left of this. */
    constexpr T Cross(const CVec2 &other) const { return x * other.y - y * other.x; }
    /** mm²; may overflow where Length does not. */
    constexpr T SqrLength() const { return Dot(*this); }
    /** mm. */
    T Length() const
    {
        // std::hypot takes several times as long, and is needed only where the square overflows or vanishes.
        constexpr T least = std::numeric_limits<T>::min() / std::numeric_limits<T>::epsilon();
        const T square = SqrLength();
        return square >= least && square <= std::numeric_limits<T>::max() ? std::sqrt(square) : std::hypot(x, y);
    }
    /** Of two points, mm. */
    T DistanceTo(const CVec2 &other) const { return (other - *this).Length(); }
    /** The same direction with length 1; (0, 0) stays as it is. */
    CVec2 Normalized() const
    {
        const T length = Length();
        return length > T() ? *this / length : *this;
    }
    /** A quarter turn counter-clockwise. */
    constexpr CVec2 Left() const { return {-y, x}; }
    /** Turned counter-clockwise about the origin, rad. */
    CVec2 Rotated(T angle) const
    {
        const T c = std::cos(angle);
        const T s = std::sin(angle);
        return {x * c - y * s, x * s + y * c};
    }
    /** Angle from the x axis, counter-clockwise, rad; from -pi to pi. */
    T Angle() const { return std::atan2(y, x); }
    /** Turn from this direction to another one, positive to the left, rad; from -pi to pi. */
    T AngleTo(const CVec2 &other) const { return std::atan2(Cross(other), Dot(other)); }
    /** False when a term is infinite or NaN. */
    bool IsFinite() const { return std::isfinite(x) && std::isfinite(y); }
};

/** Both terms times the factor. */
template <typename T> constexpr CVec2<T> operator*(T factor, const CVec2<T> &vector) { return vector * factor; }

} // namespace vks
