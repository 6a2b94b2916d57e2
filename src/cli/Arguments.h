#pragma once

#include "cli/Command.h"

#include <CLI/CLI.hpp>

#include <QString>

#include <memory>
#include <string>

namespace orvcad {

/** The arguments that verbs share; one object per verb, filled while arguments are read. */
struct Arguments
{
    std::string project;
    std::string region;
    std::string floor;
    std::string input;
    std::string output;
    std::string kind;
    std::string drawing;
    std::string ids;
    int parts = 0;
    bool strict = false;
    bool asNew = false;

    static QString text(const std::string &value) { return QString::fromStdString(value); }
};

/** A verb with arguments of its own. */
inline std::shared_ptr<Arguments> newArguments() { return std::make_shared<Arguments>(); }

/** What a verb does with its arguments. */
using Verb = Summary (*)(const Arguments &);

/** A verb of a group, which stores itself in command when it is chosen. */
inline CLI::App *addVerb(CLI::App &group, Command &command, const std::string &name, const std::string &description,
                         const std::shared_ptr<Arguments> &arguments, Verb run)
{
    CLI::App *verb = group.add_subcommand(name, description);
    verb->callback([&command, arguments, run] { command = [arguments, run] { return run(*arguments); }; });
    return verb;
}

inline void addProject(CLI::App *verb, const std::shared_ptr<Arguments> &arguments)
{
    verb->add_option("PROJECT", arguments->project, "Project file (.hbxdb)")->required();
}

inline void addOutput(CLI::App *verb, const std::shared_ptr<Arguments> &arguments, const std::string &what)
{
    verb->add_option("-o,--output", arguments->output, what + "; standard output if absent");
}

/** --kind brick|force. */
inline void addWallKind(CLI::App *verb, const std::shared_ptr<Arguments> &arguments)
{
    verb->add_option("--kind", arguments->kind, "Kind of walls: brick or force")
        ->required()
        ->check(CLI::IsMember({"brick", "force"}));
}

inline void addPlace(CLI::App *verb, const std::shared_ptr<Arguments> &arguments, bool floorRequired)
{
    verb->add_option("--region", arguments->region, "Name of the region; may be absent where there is only one");
    auto *floor = verb->add_option("--floor", arguments->floor, "Name or code of the floor");
    if (floorRequired)
        floor->required();
}

} // namespace orvcad
