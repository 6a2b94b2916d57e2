#pragma once

#include "suite/Road.h"

namespace bench {

/** What holds of all roads from records to the bytes of a document and back: against the same document by hand, and of
 *  memory against its bytes. */
inline const std::vector<std::size_t> kPayloadSizes{2'000, 20'000, 200'000};
inline constexpr Bounds kPayloadWritten{1.25, 1.8, 4.0};
inline constexpr Bounds kPayloadRead{1.25, 1.8, 6.0};
// Nodes of QDomDocument cost twice as much where they outgrow the caches, by hand, too; and writing XML is so little work
// that the fresh memory of a large text shows.
inline constexpr Bounds kXmlWritten{1.35, 2.6};
inline constexpr Bounds kXmlRead{1.35, 2.6};

} // namespace bench
