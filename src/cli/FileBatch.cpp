#include "cli/FileBatch.h"

#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "cli/Progress.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QMap>
#include <QStringList>

#include <algorithm>
#include <new>

namespace orvcad {

namespace {

/** How bad an end is: 3 is better than 2. */
int badness(ExitCode code)
{
    constexpr ExitCode kFromGoodToBad[] = {kDone, kLeftOut, kWrongUsage, kBadInput};
    return static_cast<int>(std::find(std::begin(kFromGoodToBad), std::end(kFromGoodToBad), code) - kFromGoodToBad);
}

/** Keeps account of the runs. */
class Verdicts
{
public:
    void add(const QString &file, const Summary &summary)
    {
        note(file, summary.exitCode, {{"summary", summary.json}});
        // Lines of their own under a heading, and what fits one line behind it.
        const QString between = summary.text.contains('\n') ? QStringLiteral(":\n") : QStringLiteral(": ");
        m_lines.append(file + between + summary.text);
    }
    void add(const QString &file, const CommandFailure &failure)
    {
        note(file, failure.code(), {{"error", failure.toJson()["error"]}});
        m_failures.append(failure.message());
    }
    Summary summary() const
    {
        Summary all;
        all.json = {{"files", m_files}, {"exitCode", m_worst}};
        all.text = (m_lines + QStringList(countsText())).join('\n');
        all.exitCode = m_worst;
        all.failures = m_failures;
        return all;
    }

private:
    void note(const QString &file, ExitCode code, QJsonObject json)
    {
        json["file"] = file;
        json["exitCode"] = code;
        m_files.append(json);
        ++m_counts[code];
        if (badness(code) > badness(m_worst))
            m_worst = code;
    }
    QString countsText() const
    {
        return Message::tr("%1: %2 done, %3 with something left out, %4 failed")
            .arg(counted(m_files.size(), Message::tr("file")))
            .arg(m_counts[kDone])
            .arg(m_counts[kLeftOut])
            .arg(m_counts[kBadInput]);
    }

    QJsonArray m_files;
    QStringList m_lines;
    QStringList m_failures;
    QMap<ExitCode, int> m_counts;
    ExitCode m_worst = kDone;
};

bool isDirectoryName(const std::string &output) { return !output.empty() && output.back() == '/'; }

[[noreturn]] void failOfUsage(const QString &reason) { throw CommandFailure(kWrongUsage, reason); }

/** Path of the result of a file in a directory. */
std::string resultIn(const std::string &directory, const std::string &file, const std::string &ending)
{
    const QString name = QFileInfo(Arguments::text(file)).completeBaseName() + Arguments::text(ending);
    return fileIn(Arguments::text(directory), name).toStdString();
}

void requireDifferentOutputs(const std::vector<Arguments> &runs, std::string Arguments::*file)
{
    QMap<QString, QString> files; // by their outputs
    for (const Arguments &run : runs) {
        const QString output = Arguments::text(run.output);
        if (files.contains(output))
            failOfUsage(Message::tr("%1 and %2 would both be written to %3")
                            .arg(files[output], Arguments::text(run.*file), output));
        files[output] = Arguments::text(run.*file);
    }
}

void runOne(const Action &action, const Arguments &arguments, const QString &file, Verdicts &verdicts)
{
    try {
        verdicts.add(file, action(arguments));
    } catch (const CommandFailure &failure) {
        if (failure.code() == kWrongUsage)
            throw; // of the command, not of this file
        verdicts.add(file, failure);
    } catch (const std::bad_alloc &) {
        verdicts.add(file, CommandFailure(kBadInput, file, {}, Message::tr("there is not enough memory")));
    }
}

} // namespace

void FileBatch::requireDirectory(const Arguments &arguments) const
{
    if (isOutputRequired && arguments.output.empty())
        failOfUsage(Message::tr("--output is required for several files: a directory"));
    if (arguments.output == "-")
        failOfUsage(Message::tr("--output -: several files would run into each other"));
    const QString output = Arguments::text(arguments.output);
    if (!output.isEmpty() && QFileInfo::exists(output) && !QFileInfo(output).isDir())
        throw CommandFailure(kBadInput, output, {}, Message::tr("is no directory, as several files need"));
}

std::vector<Arguments> FileBatch::runs(const Arguments &arguments) const
{
    const bool isDirectory = ending && !arguments.output.empty() && (isMany() || isDirectoryName(arguments.output));
    std::vector<Arguments> runs(files.size(), arguments);
    for (std::size_t i = 0; i < files.size(); ++i) {
        runs[i].*file = files[i];
        if (isDirectory)
            runs[i].output = resultIn(arguments.output, files[i], ending(arguments));
    }
    if (isDirectory)
        requireDifferentOutputs(runs, file);
    return runs;
}

Summary FileBatch::run(const Action &action, const Arguments &arguments) const
{
    if (!file)
        return action(arguments);
    if (isMany() && ending)
        requireDirectory(arguments);
    const std::vector<Arguments> all = runs(arguments);
    if (!isMany())
        return action(all.front());
    Verdicts verdicts;
    Progress progress(Message::tr("files"), static_cast<int>(all.size()));
    for (const Arguments &one : all) {
        runOne(action, one, Arguments::text(one.*file), verdicts);
        progress.step();
    }
    return verdicts.summary();
}

} // namespace orvcad
