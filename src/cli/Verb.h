#pragma once

#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/FileBatch.h"

#include <memory>
#include <string>

namespace orvcad {

/** A verb while it is described: each operation adds an argument, in the order in which the help lists them. Verbs belong
 *  to their group, and the arguments live as long as the command that they stand in; this object may go. */
class Verb
{
public:
    /** What holds for a verb that writes a file when none is named. */
    enum class NoOutput { StandardOutput, NothingIsWritten, WrongUsage };

    /** Adds the verb to a group. Chosen by the user, it stores its action in command, which must outlive the group. */
    Verb(CLI::App &group, Command &command, const std::string &name, const std::string &description,
         const Action &action);

    Verb &project();     ///< PROJECT
    Verb &projects();    ///< PROJECT, one or many
    Verb &region();      ///< --region
    Verb &pickedFloor(); ///< --region and --floor, which is required
    Verb &anyFloors();   ///< the same, both of which may be absent
    Verb &wallKind();    ///< --kind brick|force
    /** What the verb reads, under a name in capitals; required. */
    Verb &input(const std::string &name, const std::string &description);
    /** The same, one or many. */
    Verb &inputs(const std::string &name, const std::string &description);
    /** -o FILE, and -o DIR of a verb that takes many files.
     *  @param ending  of the names of files in DIR */
    Verb &output(const std::string &description, const std::string &ending, NoOutput none = NoOutput::StandardOutput);
    /** The same with an ending that other arguments tell. */
    Verb &output(const std::string &description, FileBatch::Ending ending, NoOutput none = NoOutput::StandardOutput);
    /** --strict, of a verb that writes a document into a project.
     *  @param document  what people call it: "reply" */
    Verb &strict(const std::string &document);

    /** For arguments that a single verb takes. */
    CLI::App &app() { return *m_app; }
    /** To be filled while arguments are read; what stands here before is what holds without an argument. */
    Arguments &arguments() { return *m_arguments; }

private:
    Verb &files(const std::string &name, const std::string &description, std::string Arguments::*file);

    CLI::App *m_app;
    std::shared_ptr<Arguments> m_arguments;
    std::shared_ptr<FileBatch> m_batch;
};

/** A group of verbs, one of which must be chosen. */
CLI::App &addGroup(CLI::App &app, const std::string &name, const std::string &description);

} // namespace orvcad
