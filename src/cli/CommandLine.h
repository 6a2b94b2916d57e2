#pragma once

#include "cli/Command.h"

#include <memory>

namespace orvcad {

/** Everything that can be typed: groups, verbs, their arguments and examples. Help, manual pages and completion come from
 *  this one description. */
class CommandLine
{
public:
    CommandLine();
    ~CommandLine();
    CommandLine(const CommandLine &) = delete;
    CommandLine &operator=(const CommandLine &) = delete;

    CLI::App &app() { return *m_app; }

    /** Flags that may stand anywhere. */
    bool isJson() const { return m_isJson; }
    bool isQuiet() const { return m_isQuiet; }
    /** That of the verb that was chosen; empty before. */
    const Command &command() const { return m_command; }

private:
    std::unique_ptr<CLI::App> m_app;
    bool m_isJson = false;
    bool m_isQuiet = false;
    Command m_command;
};

} // namespace orvcad
