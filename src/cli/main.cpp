#include "cli/Command.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextCodec>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

struct Flags
{
    bool json = false;
    bool quiet = false;
};

void printLine(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

QString indented(const QJsonObject &json) { return QString::fromUtf8(QJsonDocument(json).toJson()).trimmed(); }

void print(const orvcad::Summary &summary, const Flags &flags)
{
    std::FILE *stream = summary.documentOnStdout ? stderr : stdout;
    if (flags.json)
        printLine(stream, indented(summary.json));
    else if (!flags.quiet && !summary.text.isEmpty())
        printLine(stream, summary.text);
}

int run(const orvcad::Command &command, const Flags &flags)
{
    try {
        const orvcad::Summary summary = command();
        print(summary, flags);
        return summary.exitCode;
    } catch (const orvcad::CommandFailure &failure) {
        printLine(stderr, flags.json ? indented(failure.toJson()) : QStringLiteral("orvcad: ") + failure.message());
        return failure.code();
    }
}

void describe(CLI::App &app, Flags &flags, orvcad::Command &command)
{
    app.require_subcommand(1);
    app.fallthrough();
    app.set_version_flag("--version", "orvcad " ORVCAD_VERSION);
    app.add_flag("--json", flags.json, "Print the summary as one JSON object");
    app.add_flag("--quiet", flags.quiet, "Print no summary");
    orvcad::addDemoCommand(app, command);
    orvcad::addProjectCommands(app, command);
    orvcad::addFloorsCommands(app, command);
    orvcad::addOpeningCommands(app, command);
    orvcad::addSlabCommands(app, command);
    orvcad::addBeamCommands(app, command);
    orvcad::addWallCommands(app, command);
    orvcad::addColumnCommands(app, command);
    orvcad::addDrawingCommands(app, command);
    orvcad::addDrawingsCommands(app, command);
    orvcad::addDrawCommand(app, command);
}

/** What was wrong with the arguments; names the first one that nothing took. */
std::string usageProblem(const CLI::App &app, const CLI::Error &error)
{
    const std::vector<std::string> notTaken = app.remaining(true);
    return notTaken.empty() ? error.what() : '"' + notTaken.front() + "\" is not understood here";
}

int tellWrongUsage(const CLI::App &app, const CLI::Error &error, bool asJson)
{
    const orvcad::CommandFailure failure(orvcad::kWrongUsage, QString::fromStdString(usageProblem(app, error)));
    if (asJson)
        printLine(stderr, indented(failure.toJson()));
    else
        printLine(stderr, QStringLiteral("orvcad: %1\n%2").arg(failure.message(), QString::fromStdString(app.help())));
    return failure.code();
}

int parseAndRun(int argc, char **argv)
{
    CLI::App app("Moves buildings between a host model, recognition payloads and replies.", "orvcad");
    Flags flags;
    orvcad::Command command;
    describe(app, flags, command);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0)
            return app.exit(error); // prints the help or the version that was asked for
        // The flags may not have been read yet when the arguments fail.
        return tellWrongUsage(app, error, std::count(argv + 1, argv + argc, std::string_view("--json")) > 0);
    }
    return run(command, flags);
}

} // namespace

int main(int argc, char **argv)
try {
    const QCoreApplication qt(argc, argv);
    // Names and texts of a building are UTF-8, whatever the terminal's locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return parseAndRun(argc, argv);
} catch (const std::exception &error) {
    std::fprintf(stderr, "orvcad: %s\n", error.what());
    return orvcad::kBadInput;
}
