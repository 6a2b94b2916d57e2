#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/dwgx/Reason.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace hbx::embedded {

/** Why a file is refused whose chains hold a ring. */
inline constexpr char kClosesRing[] = QT_TRANSLATE_NOOP("host", "closes the chain to a ring");

/** The first object that stands in a ring of chains.
 *  @param next  place of the object behind each, below 0 for none; each is behind one other at most
 *  @return      nothing when every chain has an end */
ORVCADPLATFORM_EXPORT std::optional<std::size_t> firstInRing(const std::vector<int> &next);

} // namespace hbx::embedded
