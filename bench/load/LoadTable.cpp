#include "load/LoadTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace load {

namespace {

constexpr double kMiB = 1024.0 * 1024.0;
constexpr double kLeastSeconds = 0.005;      // below it a process's time is the clock's own step
constexpr double kLeastBytes = 256 * 1024.0; // what pages and the allocator add at their will

/** The exponent k of cost = c * size^k between two runs, above what an empty process takes. */
double exponent(double small, double large, double empty, double least, double sizes)
{
    const double above = std::max(large - empty, least) / std::max(small - empty, least);
    return std::log(above) / std::log(sizes);
}

QString boundText(const Bounds &bounds)
{
    QStringList texts;
    const auto add = [&texts](const char *format, const std::optional<double> &bound) {
        if (bound)
            texts.append(QString::asprintf(format, *bound));
    };
    add("time^%.2f", bounds.timeGrowth);
    add("memory^%.2f", bounds.memoryGrowth);
    add("%.0fx document", bounds.ratio);
    add("%.0f s", bounds.seconds);
    return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(", "));
}

QString beyond(const char *what, double value, const std::optional<double> &bound)
{
    return bound && value > *bound ? QString::asprintf("%s %.2f is beyond %.2f", what, value, *bound) : QString();
}

} // namespace

void LoadTable::printHead() const
{
    std::printf("time: of the processor; growth: exponent of time and memory from the smallest size to the largest\n"
                "%-52s %9s %8s %8s %8s %9s %9s %6s %11s  %-28s %s\n",
                "step", "size", "passed s", "time s", "us/item", "peak MiB", "bytes/item", "x doc", "growth", "bound",
                "verdict");
}

void LoadTable::add(Series series, bool isQuiet)
{
    m_all.push_back(std::move(series));
    if (!isQuiet)
        print(m_all.back());
}

double LoadTable::ratioOf(const Run &run) const
{
    return run.documentBytes > 0.0 ? (run.cost.peakBytes - m_empty.peakBytes) / run.documentBytes : 0.0;
}

std::optional<LoadTable::Growth> LoadTable::growthOf(const Series &series) const
{
    if (series.runs.size() < 2)
        return std::nullopt;
    const Run &small = series.runs.front();
    const Run &large = series.runs.back();
    const double sizes = large.size / small.size;
    return Growth{exponent(small.cost.seconds, large.cost.seconds, m_empty.seconds, kLeastSeconds, sizes),
                  exponent(small.cost.peakBytes, large.cost.peakBytes, m_empty.peakBytes, kLeastBytes, sizes)};
}

QString LoadTable::verdict(const Series &series, const Run &run) const
{
    QStringList wrong{run.failure, beyond("memory to document", ratioOf(run), series.bounds.ratio),
                      beyond("seconds", run.cost.seconds, series.bounds.seconds)};
    const auto growth = &run == &series.runs.back() ? growthOf(series) : std::nullopt;
    if (growth) {
        wrong.append(beyond("growth of time", growth->time, series.bounds.timeGrowth));
        wrong.append(beyond("growth of memory", growth->memory, series.bounds.memoryGrowth));
    }
    wrong.removeAll(QString());
    return wrong.join(QStringLiteral("; "));
}

void LoadTable::print(const Series &series) const
{
    for (const Run &run : series.runs) {
        const auto growth = &run == &series.runs.back() ? growthOf(series) : std::nullopt;
        const QString growthText = growth ? QString::asprintf("%.2f / %.2f", growth->time, growth->memory) : QString();
        const QString ratioText = run.documentBytes > 0.0 ? QString::asprintf("%.2f", ratioOf(run)) : QString();
        const QString wrong = verdict(series, run);
        std::printf("%-52s %9.0f %8.2f %8.2f %8.2f %9.1f %9.0f %6s %11s  %-28s %s\n", qUtf8Printable(series.step),
                    run.size, run.cost.passed, run.cost.seconds, run.cost.seconds * 1e6 / run.size,
                    run.cost.peakBytes / kMiB, run.cost.peakBytes / run.size, qUtf8Printable(ratioText),
                    qUtf8Printable(growthText), qUtf8Printable(boundText(series.bounds)),
                    wrong.isEmpty() ? "good" : qUtf8Printable(QStringLiteral("BEYOND: ") + wrong));
    }
    std::fflush(stdout);
}

void LoadTable::printJson() const
{
    QJsonArray rows;
    for (const Series &series : m_all)
        for (const Run &run : series.runs) {
            const auto growth = &run == &series.runs.back() ? growthOf(series) : std::nullopt;
            const QString wrong = verdict(series, run);
            rows.append(QJsonObject{
                {"step", series.step},
                {"size", run.size},
                {"documentBytes", run.documentBytes},
                {"secondsPassed", run.cost.passed},
                {"seconds", run.cost.seconds},
                {"peakBytes", run.cost.peakBytes},
                {"growthOfTime", growth ? QJsonValue(growth->time) : QJsonValue()},
                {"growthOfMemory", growth ? QJsonValue(growth->memory) : QJsonValue()},
                {"bound", boundText(series.bounds)},
                {"isGood", wrong.isEmpty()},
                {"reason", wrong},
            });
        }
    const QJsonObject document{
        {"emptyProcess", QJsonObject{{"seconds", m_empty.seconds}, {"peakBytes", m_empty.peakBytes}}}, {"rows", rows}};
    std::fputs(QJsonDocument(document).toJson().constData(), stdout);
}

int LoadTable::exitCode() const
{
    for (const Series &series : m_all)
        for (const Run &run : series.runs)
            if (!verdict(series, run).isEmpty())
                return 1;
    return 0;
}

} // namespace load
