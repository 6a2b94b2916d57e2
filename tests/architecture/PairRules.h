#pragma once

#include "architecture/SourceTree.h"

#include <vector>

namespace architecture {

/** Where header and source of a class do not stand together:
 *  - a source without a header of its name beside it (but for the command's main.cpp and groups of verbs),
 *  - a source whose first include is not its own header, which proves that the header stands alone,
 *  - a header that exports something and has no source; interfaces, whose names begin with I, need none.
 *  The source of a header in platform/services may stand in platform/embedded. */
std::vector<Violation> pairViolations(const std::vector<SourceFile> &tree);

} // namespace architecture
