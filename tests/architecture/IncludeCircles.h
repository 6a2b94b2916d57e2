#pragma once

#include "architecture/SourceTree.h"

#include <vector>

namespace architecture {

/** Files that include themselves by way of others, each at the include line that leads back to it. */
std::vector<Violation> circleViolations(const std::vector<SourceFile> &tree);

} // namespace architecture
