#pragma once

#include "cli/Arguments.h"
#include "cli/Command.h"

#include <functional>
#include <string>
#include <vector>

namespace orvcad {

/** What a verb does with its arguments. */
using Action = std::function<Summary(const Arguments &)>;

/** The files that a verb is given, one or many. One file is one run of the verb. Of many, each has a run and a verdict of its
 *  own, and a failure ends none of the others. */
class FileBatch
{
public:
    /** What the name of a result ends with, in place of the ending of the file that it is made of: ".beams.json". */
    using Ending = std::function<std::string(const Arguments &)>;

    std::vector<std::string> files;         ///< as they were typed
    std::string Arguments::*file = nullptr; ///< gets one of them at a time; null for a verb that takes no such list
    Ending ending;                          ///< empty for a verb that writes no file
    bool isOutputRequired = false;          ///< of many: their results would run into each other on standard output

    /** Runs the verb for each file. With many files, or where --output ends with "/", that names a directory, which gets a
     *  file for each. Throws CommandFailure where one file fails, and for wrong usage. */
    Summary run(const Action &action, const Arguments &arguments) const;

private:
    bool isMany() const { return files.size() > 1; }
    void requireDirectory(const Arguments &arguments) const;
    std::vector<Arguments> runs(const Arguments &arguments) const;
};

} // namespace orvcad
