#pragma once

#include <cmath>

namespace vks {

/** Point or vector in space; lengths in millimetres. */
template <typename T> struct CVec3
{
    T x = T();
    T y = T();
    T z = T();

    constexpr CVec3() = default;
    constexpr CVec3(T xValue, T yValue, T zValue) : x(xValue), y(yValue), z(zValue) {}

    constexpr CVec3 operator+(const CVec3 &other) const { return {x + other.x, y + other.y, z + other.z}; }
    constexpr CVec3 operator-(const CVec3 &other) const { return {x - other.x, y - other.y, z - other.z}; }
    constexpr CVec3 operator*(T factor) const { return {x * factor, y * factor, z * factor}; }
    constexpr bool operator==(const CVec3 &other) const { return x == other.x && y == other.y && z == other.z; }
    constexpr bool operator!=(const CVec3 &other) const { return !(*this == other); }

    constexpr T Dot(const CVec3 &other) const { return x * other.x + y * other.y + z * other.z; }
    constexpr CVec3 Cross(const CVec3 &other) const
    {
        return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
    }
    T Length() const { return std::sqrt(Dot(*this)); }
    bool IsFinite() const { return std::isfinite(x) && std::isfinite(y) && std::isfinite(z); }
};

} // namespace vks
