#include "cli/Command.h"

#include <CLI/CLI.hpp>

namespace orvcad {

void addWallCommands(CLI::App &app, Command &command)
{
    CLI::App *group = app.add_subcommand("wall", "Brick walls and load-bearing concrete walls");
    group->require_subcommand(1);
    addWallExportCommand(*group, command);
    addWallReplyCommands(*group, command);
}

} // namespace orvcad
