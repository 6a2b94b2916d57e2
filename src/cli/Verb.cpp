#include "cli/Verb.h"

#include "cli/WallKind.h"

#include <CLI/CLI.hpp>

namespace orvcad {

Verb::Verb(CLI::App &group, Command &command, const std::string &name, const std::string &description, Action action)
    : m_app(group.add_subcommand(name, description)), m_arguments(std::make_shared<Arguments>())
{
    m_app->callback(
        [&command, arguments = m_arguments, action] { command = [arguments, action] { return action(*arguments); }; });
}

Verb &Verb::project()
{
    m_app->add_option("PROJECT", m_arguments->project, "Project file (.hbxdb)")->required();
    return *this;
}

Verb &Verb::region()
{
    m_app->add_option("--region", m_arguments->region, "Name of the region; may be absent where there is only one");
    return *this;
}

Verb &Verb::pickedFloor()
{
    anyFloors();
    m_app->get_option("--floor")->required();
    return *this;
}

Verb &Verb::anyFloors()
{
    region();
    m_app->add_option("--floor", m_arguments->floor, "Name or code of the floor");
    return *this;
}

Verb &Verb::wallKind()
{
    std::vector<std::string> words;
    for (const WallKind &kind : wallKinds())
        words.emplace_back(kind.word);
    m_app->add_option("--kind", m_arguments->kind, "Kind of walls: brick or force")
        ->required()
        ->check(CLI::IsMember(words));
    return *this;
}

Verb &Verb::input(const std::string &name, const std::string &description)
{
    m_app->add_option(name, m_arguments->input, description)->required();
    return *this;
}

Verb &Verb::output(const std::string &description, NoOutput none)
{
    const std::string without = none == NoOutput::StandardOutput ? "; standard output if absent" : "";
    m_app->add_option("-o,--output", m_arguments->output, description + without)
        ->required(none == NoOutput::WrongUsage);
    return *this;
}

Verb &Verb::strict(const std::string &document)
{
    m_app->add_flag("--strict", m_arguments->strict, "Save nothing when a member of the " + document + " is left out");
    return *this;
}

CLI::App &addGroup(CLI::App &app, const std::string &name, const std::string &description)
{
    CLI::App *group = app.add_subcommand(name, description);
    group->require_subcommand(1);
    return *group;
}

} // namespace orvcad
