#pragma once

#include "architecture/SourceTree.h"

#include <string_view>
#include <vector>

namespace architecture {

/** What a folder of src may include beside itself and the standard library. */
struct FolderRule
{
    std::string_view folder;                 ///< below src
    std::vector<std::string_view> folders;   ///< other folders of src
    std::vector<std::string_view> libraries; ///< as libraryOf names them
};

/** The table of docs/architecture.md, lowest layer first. */
const std::vector<FolderRule> &folderRules();

/** The rule of the folder that a path below src stands in, null where none does. */
const FolderRule *ruleOf(std::string_view path);

/** Library that a foreign header belongs to: "standard", "system", "Qt", "GEOS" and so on; empty for an unknown one. */
std::string_view libraryOf(std::string_view header);

/** Everything in a file's include lines that the table does not allow. */
std::vector<Violation> includeViolations(const SourceFile &file);

} // namespace architecture
