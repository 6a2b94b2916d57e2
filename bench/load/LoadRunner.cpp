#include "load/LoadRunner.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

namespace load {

namespace {

constexpr int kLimitSeconds = 1800; // for anything: what takes longer hangs
constexpr int kTries = 3;
constexpr double kLongSeconds = 5.0;
constexpr int kMostShown = 300; // bytes of what a process said

// Files of what children write.
const QString kMeasured = QStringLiteral("command");
const QString kOther = QStringLiteral("work");

QString failedText(const bench::ChildCost &cost)
{
    return QStringLiteral("exit code %1: %2")
        .arg(cost.exitCode)
        .arg(QString::fromUtf8(cost.err.left(kMostShown)).simplified());
}

void require(const bench::ChildCost &cost, const QStringList &arguments)
{
    if (cost.exitCode == 0)
        return;
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(arguments.join(QLatin1Char(' '))),
                 qUtf8Printable(failedText(cost)));
    std::exit(EXIT_FAILURE);
}

} // namespace

QString LoadRunner::path(const QString &file) const { return QDir(m_options.folder).filePath(file); }

double LoadRunner::bytesOf(const QString &file) const { return static_cast<double>(QFileInfo(path(file)).size()); }

bench::ChildCost LoadRunner::command(const QStringList &arguments) const
{
    return commandForPeople(arguments + QStringList{QStringLiteral("--json")});
}

bench::ChildCost LoadRunner::commandForPeople(const QStringList &arguments) const
{
    return bench::runChild(m_options.command, arguments, path(kMeasured), kLimitSeconds);
}

bench::ChildCost LoadRunner::work(const QStringList &arguments) const
{
    return bench::runChild(m_options.self, QStringList{QStringLiteral("work")} + arguments, path(kOther),
                           kLimitSeconds);
}

qint64 LoadRunner::prepare(const QStringList &arguments) const
{
    const bench::ChildCost cost = work(arguments);
    require(cost, arguments);
    return cost.out.trimmed().toLongLong();
}

void LoadRunner::prepareByCommand(const QStringList &arguments) const { require(command(arguments), arguments); }

QString LoadRunner::failureOf(const bench::ChildCost &cost, const QString &keys, qint64 expected, int exitCode) const
{
    if (cost.exitCode != exitCode)
        return failedText(cost);
    // A summary may be large: a child looks into it.
    const bench::ChildCost look =
        bench::runChild(m_options.self, {"work", "number", keys, path(kMeasured) + QStringLiteral(".out")},
                        path(kOther), kLimitSeconds);
    const QString failure = failureOf(look, expected);
    return failure.isEmpty() ? failure : keys + QStringLiteral(": ") + failure;
}

Run LoadRunner::leastOf(const std::function<Run()> &once)
{
    Run least = once();
    for (int i = 1; i < kTries && least.failure.isEmpty() && least.cost.seconds < kLongSeconds; ++i) {
        Run next = once();
        if (!next.failure.isEmpty() || next.cost.seconds < least.cost.seconds)
            least = std::move(next);
    }
    return least;
}

QString LoadRunner::failureOf(const bench::ChildCost &cost, qint64 expected)
{
    if (cost.exitCode != 0)
        return failedText(cost);
    const qint64 told = cost.out.trimmed().toLongLong();
    return told == expected ? QString() : QStringLiteral("%1 counted, not %2").arg(told).arg(expected);
}

} // namespace load
