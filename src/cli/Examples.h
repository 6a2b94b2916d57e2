#pragma once

#include "cli/Command.h"

#include <string>
#include <vector>

namespace orvcad {

/** A command as one would type it. */
struct Example
{
    const char *command; ///< "project import"; empty for the program as a whole
    const char *typed;
    ExitCode exitCode = kDone;
};

/** In an order in which each finds what those before it made. What they start from is a building, building.json, a project
 *  without elements, site.hbxdb, and documents: result.json, columns.json, drawing-set.json, floor-sdc.json. */
const std::vector<Example> &examples();

/** What was typed of the examples of a command. */
std::vector<std::string> examplesOf(const std::string &command);

/** "project import" of the verb import. */
std::string commandName(const CLI::App &verb);

/** Puts the examples under the help of the app and of what stands below it. */
void addExamples(CLI::App &app);

} // namespace orvcad
