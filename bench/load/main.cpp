#include "load/BuildingSteps.h"
#include "load/CrowdedFloorSteps.h"
#include "load/HostileSteps.h"
#include "load/LoadRunner.h"
#include "load/LoadWork.h"
#include "load/ReaderSteps.h"
#include "support/OptionTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

// What buildings and documents of great size take, in time and memory, as whole processes: see usage below. The exit code
// is 0 where every step did its work and is within its bounds, else 1.

namespace {

constexpr const char *kUsage =
    "usage: LoadRun [--small] [--json] [--compact] [--only STEP] [--seed N] [--dir DIR]\n"
    "  --small      a tenth of the sizes and less, in some minutes\n"
    "  --json       one JSON object in place of the table\n"
    "  --compact    record documents without a blank, for which no bound of memory holds\n"
    "  --only STEP  steps that have this in their name\n"
    "  --seed N     of the building (1)\n"
    "  --dir DIR    where the files go, some 2 GB at most (a new folder in the temporary one)\n";

int runAll(const load::LoadOptions &options)
{
    load::LoadTable table(bench::runChild(options.command, {QStringLiteral("--help")},
                                          QDir(options.folder).filePath(QStringLiteral("help")), 60));
    if (!options.isJson)
        table.printHead();
    load::LoadRunner runner(options, table);
    runBuildingSteps(runner);
    runCrowdedFloorSteps(runner);
    runReaderSteps(runner);
    runHostileSteps(runner);
    if (options.isJson)
        table.printJson();
    return table.exitCode();
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    if (arguments.value(0) == QLatin1String("work"))
        return load::runWork(arguments.mid(1));

    load::LoadOptions options;
    options.self = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    options.command = QFileInfo(options.self).dir().filePath(QStringLiteral("orvcad"));
    const bench::OptionTable table{
        {{"--small", &options.isSmall}, {"--json", &options.isJson}, {"--compact", &options.isCompact}},
        {{"--only", bench::textInto(options.only)},
         {"--seed", bench::numberInto(options.seed)},
         {"--dir", bench::textInto(options.folder)}}};
    if (!bench::takeOptions(arguments, table)) {
        std::fputs(kUsage, stderr);
        return 1;
    }
    const QTemporaryDir folder;
    if (options.folder.isEmpty())
        options.folder = folder.path();
    if (!QDir().mkpath(options.folder) || !QFileInfo(options.command).isExecutable()) {
        std::fprintf(stderr, "%s cannot be made, or %s is missing\n", qUtf8Printable(options.folder),
                     qUtf8Printable(options.command));
        return 1;
    }
    return runAll(options);
}
