#pragma once

#include "architecture/SourceTree.h"

#include <vector>

namespace architecture {

/** Where a document does not hold any more:
 *  - a link to a file that is not there, told relative to the document's own folder,
 *  - a name in backticks, a word of capitals and small letters that could be a class or a file of ours, which no source
 *    has in its text or path.
 *  @param documents  Markdown, with paths below the root of the project
 *  @param sources    whatever names may come from
 *  @param paths      all files of the project, below its root */
std::vector<Violation> documentViolations(const std::vector<SourceFile> &documents,
                                          const std::vector<SourceFile> &sources,
                                          const std::vector<std::string> &paths);

} // namespace architecture
