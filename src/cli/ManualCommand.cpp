#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/ManualPages.h"
#include "cli/Message.h"
#include "cli/Verb.h"

#include <CLI/CLI.hpp>

namespace orvcad {

namespace {

Summary writeManual(const CLI::App &app, const Arguments &arguments)
{
    const QString directory = Arguments::text(arguments.output);
    const std::vector<ManualPage> pages = manualPages(app);
    for (const ManualPage &page : pages)
        writeResult(fileIn(directory, Arguments::text(page.name) + ".1"), QByteArray::fromStdString(page.text));
    const auto count = static_cast<int>(pages.size());
    return {Message::tr("Wrote %1 into %2").arg(counted(count, Message::tr("manual page")), directory),
            {{"directory", directory}, {"pages", count}}};
}

} // namespace

void addManualCommand(CLI::App &app, Command &command)
{
    Verb verb(app, command, "manual", Message::help("Write the manual pages, for packagers"),
              [&app](const Arguments &arguments) { return writeManual(app, arguments); });
    verb.app().add_option("DIR", verb.arguments().output, Message::help("Directory for the pages"))->required();
    verb.app().group(""); // not in the help
}

} // namespace orvcad
