#include "platform/embedded/ChainRing.h"

#include <algorithm>

namespace hbx::embedded {

std::optional<std::size_t> firstInRing(const std::vector<int> &next)
{
    std::vector<bool> isFollowed(next.size());
    for (const int place : next)
        if (place >= 0)
            isFollowed[static_cast<std::size_t>(place)] = true;
    std::vector<bool> isReached(next.size());
    for (std::size_t head = 0; head < next.size(); ++head)
        for (int at = isFollowed[head] ? -1 : static_cast<int>(head); at >= 0; at = next[static_cast<std::size_t>(at)])
            isReached[static_cast<std::size_t>(at)] = true;
    // With one predecessor at most, what no head leads to is a ring.
    const auto lost = std::find(isReached.begin(), isReached.end(), false);
    return lost == isReached.end() ? std::nullopt : std::optional(static_cast<std::size_t>(lost - isReached.begin()));
}

} // namespace hbx::embedded
