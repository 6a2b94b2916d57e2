#pragma once

#include "platform/services/HBXElementTypes.h"

namespace orvcad {

/** Element types of doors, windows and what else opens a wall. */
constexpr qint64 kOpeningTypes[] = {hbx::type::door, hbx::type::window, hbx::type::doorWithWindow,
                                    hbx::type::wallOpening};

inline bool isOpening(qint64 elementType) { return hbx::isOneOf(elementType, kOpeningTypes); }

} // namespace orvcad
