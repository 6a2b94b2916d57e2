#include "cli/CommandLine.h"
#include "cli/Files.h"
#include "cli/Language.h"
#include "cli/Message.h"
#include "cli/Progress.h"
#include "cli/Terminal.h"
#include "cli/UsageFault.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextCodec>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <new>
#include <optional>
#include <sstream>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace {

struct Flags
{
    bool json = false;
    bool quiet = false;
};

void printError(const QString &text)
{
    const QByteArray bytes = orvcad::painted(text, STDERR_FILENO).toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

QString indented(const QJsonObject &json) { return QString::fromUtf8(QJsonDocument(json).toJson()).trimmed(); }

/** What is done although the summary cannot be printed. */
QString whatStands(const QJsonObject &summary)
{
    if (summary["saved"].toBool())
        return orvcad::Message::tr("; the project is saved all the same");
    const QString output = summary["output"].toString();
    return output.isEmpty() ? QString() : orvcad::Message::tr("; %1 is written all the same").arg(output);
}

void print(const orvcad::Summary &summary, const Flags &flags)
{
    if (!flags.json)
        for (const QString &failure : summary.failures)
            printError(QStringLiteral("orvcad: ") + failure);
    const QString text = flags.json ? indented(summary.json) : flags.quiet ? QString() : summary.text;
    if (text.isEmpty())
        return;
    if (summary.documentOnStdout)
        printError(text);
    else
        orvcad::writeToStandardOutput(orvcad::painted(text, STDOUT_FILENO).toUtf8() + '\n', whatStands(summary.json));
}

int run(const orvcad::Command &command, const Flags &flags)
{
    if (flags.quiet)
        orvcad::Progress::hide();
    try {
        const orvcad::Summary summary = command();
        print(summary, flags);
        return summary.exitCode;
    } catch (const orvcad::CommandFailure &failure) {
        printError(flags.json ? indented(failure.toJson()) : QStringLiteral("orvcad: ") + failure.message());
        return failure.code();
    }
}

int tellWrongUsage(const CLI::App &app, const CLI::ParseError &error, bool asJson)
{
    const orvcad::CommandFailure failure(orvcad::kWrongUsage, orvcad::UsageFault(app, error).message());
    if (asJson)
        printError(indented(failure.toJson()));
    else
        printError(QStringLiteral("orvcad: %1\n%2").arg(failure.message(), QString::fromStdString(app.help())));
    return failure.code();
}

/** Prints the help or the version that was asked for. */
int tellAbout(const CLI::App &app, const CLI::Error &request)
{
    std::ostringstream text;
    app.exit(request, text, text);
    const auto print = [&text] {
        orvcad::writeToStandardOutput(QByteArray::fromStdString(text.str()));
        return orvcad::Summary();
    };
    return run(print, Flags());
}

/** Known before the arguments are read, since their help has a language and their faults have a form. */
bool asksForJson(int argc, char **argv) { return std::count(argv + 1, argv + argc, std::string_view("--json")) > 0; }

int parseAndRun(int argc, char **argv)
{
    std::optional<orvcad::Language> language;
    if (!asksForJson(argc, argv))
        language.emplace();
    orvcad::CommandLine line;
    try {
        line.app().parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0)
            return tellAbout(line.app(), error);
        return tellWrongUsage(line.app(), error, asksForJson(argc, argv));
    }
    return run(line.command(), {line.isJson(), line.isQuiet()});
}

/** A standard stream that is closed would be the number of the first file that is opened, and what is printed would go
 *  into that file. Printing to what takes its place fails, as it would have done without. */
void keepStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", O_RDONLY | O_CLOEXEC); // gets the lowest number that is free
}

/** A pipe without a reader and a file beyond its limit are told as any other failure, not by the end of the process. */
void ignoreSignalsOfWriting()
{
    for (const int signal : {SIGPIPE, SIGXFSZ})
        std::signal(signal, SIG_IGN);
}

} // namespace

int main(int argc, char **argv)
try {
    keepStandardStreams();
    ignoreSignalsOfWriting();
    const QCoreApplication qt(argc, argv);
    // Names and texts of a building are UTF-8, whatever the terminal's locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return parseAndRun(argc, argv);
} catch (const std::bad_alloc &) {
    std::fputs("orvcad: there is not enough memory\n", stderr);
    return orvcad::kBadInput;
} catch (const std::exception &error) {
    std::fprintf(stderr, "orvcad: %s\n", error.what());
    return orvcad::kBadInput;
}
