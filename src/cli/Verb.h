#pragma once

#include "cli/Arguments.h"
#include "cli/Command.h"

#include <memory>
#include <string>

namespace orvcad {

/** What a verb does with its arguments. */
using Action = Summary (*)(const Arguments &);

/** A verb while it is described: each operation adds an argument, in the order in which the help lists them. Verbs belong
 *  to their group, and the arguments live as long as the command that they stand in; this object may go. */
class Verb
{
public:
    /** What holds for a verb that writes a file when none is named. */
    enum class NoOutput { StandardOutput, NothingIsWritten, WrongUsage };

    /** Adds the verb to a group. Chosen by the user, it stores its action in command, which must outlive the group. */
    Verb(CLI::App &group, Command &command, const std::string &name, const std::string &description, Action action);

    Verb &project();     ///< PROJECT
    Verb &region();      ///< --region
    Verb &pickedFloor(); ///< --region and --floor, which is required
    Verb &anyFloors();   ///< the same, both of which may be absent
    Verb &wallKind();    ///< --kind brick|force
    /** What the verb reads, under a name in capitals; required. */
    Verb &input(const std::string &name, const std::string &description);
    /** -o FILE. */
    Verb &output(const std::string &description, NoOutput none = NoOutput::StandardOutput);
    /** --strict, of a verb that writes a document into a project.
     *  @param document  what it is called: "reply" */
    Verb &strict(const std::string &document);

    /** For arguments that a single verb takes. */
    CLI::App &app() { return *m_app; }
    /** To be filled while arguments are read; what stands here before is what holds without an argument. */
    Arguments &arguments() { return *m_arguments; }

private:
    CLI::App *m_app;
    std::shared_ptr<Arguments> m_arguments;
};

/** A group of verbs, one of which must be chosen. */
CLI::App &addGroup(CLI::App &app, const std::string &name, const std::string &description);

} // namespace orvcad
