#include "platform/services/DwgxRound.h"

#include <algorithm>
#include <cmath>
#include <limits>

int dwgx::round(double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double greatest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(std::round(value), least, greatest));
}
