#include "cli/Completion.h"
#include "cli/Message.h"
#include "cli/Verb.h"

#include <CLI/CLI.hpp>

#include <QStringList>

namespace orvcad {

namespace {

/** One candidate per line, with its description behind a tab; last, where a file may stand, ":files" and the ending of such
 *  files behind a blank. The scripts of the shells read this. */
Summary complete(const CLI::App &app, const std::vector<std::string> &words)
{
    const Completion completion = completed(app, words);
    QStringList lines;
    for (const Completion::Candidate &candidate : completion.candidates)
        lines.append(Arguments::text(candidate.word + '\t' + candidate.description));
    if (completion.isFile)
        lines.append(Arguments::text(":files " + completion.ending).trimmed());
    return {lines.join('\n'), {}};
}

} // namespace

void addCompleteCommand(CLI::App &app, Command &command)
{
    Verb verb(app, command, "complete", Message::help("Complete the last word of a line, for shells"),
              [&app](const Arguments &arguments) { return complete(app, arguments.words); });
    verb.app().add_option("WORD", verb.arguments().words,
                          Message::help("Words of the line behind the name of the program"));
    verb.app().group(""); // not in the help
}

} // namespace orvcad
