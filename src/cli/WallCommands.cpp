#include "cli/Verb.h"

namespace orvcad {

void addWallCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "wall", "Brick walls and load-bearing concrete walls");
    addWallExportCommand(group, command);
    addWallReplyCommands(group, command);
}

} // namespace orvcad
