#pragma once

#include <QLatin1String>

#include <cstddef>

namespace dwgx::literals {

/** A constant Latin-1 text such as a JSON key, "Name"_key. QLatin1String's own constructor is constant only for
 *  compilers that know strlen at compile time. */
constexpr QLatin1String operator""_key(const char *text, std::size_t size)
{
    return QLatin1String(text, static_cast<int>(size));
}

} // namespace dwgx::literals
