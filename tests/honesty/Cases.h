#pragma once

#include <QtGlobal>

#include <cstddef>

namespace honestytest {

constexpr unsigned kSeed = 20261121;

/** Changed copies for each document: ORVCAD_HONEST_CASES, or what is done with every run of the tests. */
inline std::size_t casesAsked()
{
    constexpr std::size_t kCases = 50;
    const int asked = qEnvironmentVariableIntValue("ORVCAD_HONEST_CASES");
    return asked > 0 ? static_cast<std::size_t>(asked) : kCases;
}

} // namespace honestytest
