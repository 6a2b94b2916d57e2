#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Demo.h"

namespace orvcad {

void addDemoCommand(CLI::App &app, Command &command)
{
    auto arguments = newArguments();
    arguments->output = "orvcad-demo";
    CLI::App *verb = app.add_subcommand("demo", "Take a real building through every road, into a directory");
    verb->add_option("DIR", arguments->output, "Directory for what the tour makes")->capture_default_str();
    verb->callback(
        [&command, arguments] { command = [arguments] { return runDemo(Arguments::text(arguments->output)); }; });
}

} // namespace orvcad
