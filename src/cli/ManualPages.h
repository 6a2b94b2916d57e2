#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace orvcad {

/** A page of the manual's first section. */
struct ManualPage
{
    std::string name; ///< "orvcad-slab"
    std::string text; ///< roff with the macros of man(7)
};

/** One page for the program and one for each group and each verb that stands alone, made of what the help tells and in
 *  its language. */
std::vector<ManualPage> manualPages(const CLI::App &app);

} // namespace orvcad
