#pragma once

#include "architecture/SourceTree.h"

#include <vector>

namespace architecture {

/** Sources, with paths below src, that have no test file of their own name, with paths below tests:
 *  "drawing/ORVCADFloors.cpp" has "drawing/ORVCADFloorsTest.cpp", and the folders of src/platform stand in tests without
 *  that step. A service that has its body in the embedded host may be tested in either folder. The program itself, which
 *  is run by the tests of the command line, needs none. */
std::vector<Violation> testViolations(const std::vector<SourceFile> &sources, const std::vector<SourceFile> &tests);

} // namespace architecture
