#pragma once

#include "architecture/SourceTree.h"

#include <vector>

namespace architecture {

/** Names of the host's properties, which are the wide texts of one word: they stand in
 *  platform/services/HBXPropertyNames.h, each once, and nowhere else. */
std::vector<Violation> nameViolations(const std::vector<SourceFile> &tree);

} // namespace architecture
