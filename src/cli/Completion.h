#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace orvcad {

/** What may stand at the end of a line that is being typed. */
struct Completion
{
    struct Candidate
    {
        std::string word;
        std::string description; ///< may be empty
    };

    std::vector<Candidate> candidates; ///< those that begin as the last word does
    bool isFile = false;               ///< a file may stand there
    std::string ending;                ///< of such files, ".hbxdb"; empty for any
};

/** Completes the last of the words, which are those behind the name of the program; it may be empty. Verbs, options and
 *  values to choose from are those of the description. Regions and floors are those of the project that is named last; none
 *  where that cannot be opened. */
Completion completed(const CLI::App &app, const std::vector<std::string> &words);

} // namespace orvcad
