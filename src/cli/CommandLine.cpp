#include "cli/CommandLine.h"

#include "cli/Examples.h"

#include <CLI/CLI.hpp>

namespace orvcad {

namespace {

/** Groups, and verbs that stand alone, in the order of the help. */
constexpr void (*kGroups[])(CLI::App &, Command &) = {
    addDemoCommand,  addProjectCommands, addFloorsCommands,  addOpeningCommands,  addSlabCommands, addBeamCommands,
    addWallCommands, addColumnCommands,  addDrawingCommands, addDrawingsCommands, addDrawCommand,  addDiffCommand,
    addCopyCommand,  addCheckCommand,    addManualCommand,   addCompleteCommand,
};

} // namespace

CommandLine::CommandLine()
    : m_app(std::make_unique<CLI::App>("Moves buildings between a host model, recognition payloads and replies.",
                                       "orvcad"))
{
    m_app->require_subcommand(1);
    m_app->fallthrough();
    m_app->set_version_flag("--version", "orvcad " ORVCAD_VERSION);
    m_app->add_flag("--json", m_isJson, "Print the summary as one JSON object");
    m_app->add_flag("--quiet", m_isQuiet, "Print no summary");
    for (const auto addGroup : kGroups)
        addGroup(*m_app, m_command);
    addExamples(*m_app);
}

CommandLine::~CommandLine() = default;

} // namespace orvcad
