#pragma once

#include <cmath>

namespace vks {

/** Point or vector in space; lengths in millimetres. */
template <typename T> struct CVec3
{
    T x = T(); ///< mm
    T y = T(); ///< mm
    T z = T(); ///< mm

    constexpr CVec3() = default;
    /** The terms as they are. */
    constexpr CVec3(T xValue, T yValue, T zValue) : x(xValue), y(yValue), z(zValue) {}

    /** Term by term. */
    constexpr CVec3 operator+(const CVec3 &other) const { return {x + other.x, y + other.y, z + other.z}; }
    /** Term by term. */
    constexpr CVec3 operator-(const CVec3 &other) const { return {x - other.x, y - other.y, z - other.z}; }
    /** Each term times a factor. */
    constexpr CVec3 operator*(T factor) const { return {x * factor, y * factor, z * factor}; }
    /** Exact, term by term. */
    constexpr bool operator==(const CVec3 &other) const { return x == other.x && y == other.y && z == other.z; }
    /** The contrary. */
    constexpr bool operator!=(const CVec3 &other) const { return !(*this == other); }

    /** Scalar product; above 0 for directions less than a quarter turn apart. */
    constexpr T Dot(const CVec3 &other) const { return x * other.x + y * other.y + z * other.z; }
    /** At right angles to both; its length is the area that they span. */
    constexpr CVec3 Cross(const CVec3 &other) const
    {
        return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
    }
    /** mm. */
    T Length() const { return std::sqrt(Dot(*this)); }
    /** False when a term is infinite or NaN. */
    bool IsFinite() const { return std::isfinite(x) && std::isfinite(y) && std::isfinite(z); }
};

} // namespace vks
