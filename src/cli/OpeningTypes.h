#pragma once

#include "doorwindow/DoorWindowKeys.h"

#include <algorithm>
#include <iterator>

namespace orvcad {

/** Element types of doors, windows and what else opens a wall. */
constexpr qint64 kOpeningTypes[] = {doorwindow::type::door, doorwindow::type::window, doorwindow::type::combined,
                                    doorwindow::type::wallOpening};

inline bool isOpening(qint64 elementType)
{
    return std::find(std::begin(kOpeningTypes), std::end(kOpeningTypes), elementType) != std::end(kOpeningTypes);
}

} // namespace orvcad
