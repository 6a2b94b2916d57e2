#include "cli/DifferenceReport.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"

namespace orvcad {

namespace {

/** Tells all that differs, or writes it into a file and tells how much that is. */
Summary compareProjects(const Arguments &arguments)
{
    const QString output = Arguments::text(arguments.output);
    const auto before = openProject(Arguments::text(arguments.project));
    const auto after = openProject(Arguments::text(arguments.input));
    const ProjectDifference difference = differenceBetween(*before, *after);
    const DifferenceReport report(difference);

    Summary summary{report.headline(), report.json(), difference.isSame() ? kDone : kLeftOut};
    if (!output.isEmpty()) {
        summary.documentOnStdout = writeResult(output, report.json());
        summary.json["output"] = output;
    } else if (!difference.isSame()) {
        summary.text += '\n' + report.listing();
    }
    return summary;
}

} // namespace

void addDiffCommand(CLI::App &app, Command &command)
{
    Verb(app, command, "diff",
         Message::help("Tell what differs between two projects; exit code 3 where something does"), compareProjects)
        .project()
        .input("OTHER", Message::help("Project file that it is compared with"))
        .output(Message::help("JSON file to write the difference to"), ".difference.json",
                Verb::NoOutput::NothingIsWritten);
}

} // namespace orvcad
