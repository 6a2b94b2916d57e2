#include "load/ReaderSteps.h"

#include "load/LoadRunner.h"
#include "load/RecordDocument.h"

#include <QFile>

namespace load {

namespace {

constexpr qint64 kMega = 1000 * 1000;
constexpr qint64 kSizes[] = {50 * kMega, 500 * kMega}; // bytes
constexpr qint64 kSmallSizes[] = {5 * kMega, 50 * kMega};
constexpr qint64 kToldSize = 100 * kMega; // of what is held to no bound of memory

constexpr double kToldAlone = 0.0;
constexpr double kTimeGrowth = 1.15; // over one order of magnitude
constexpr double kMemoryGrowth = 1.1;

const QString kFile = QStringLiteral("document");

/** A verb that reads a kind of document and writes nothing. */
struct ReadingVerb
{
    const char *document; ///< name of the kind
    QStringList words;    ///< in front of the file
    const char *list;     ///< key of the summary that has an entry for each record, or their number
    double memory;        ///< as that of a document
};
const ReadingVerb kVerbs[] = {
    {"floor exchange", {"drawings", "floors"}, "floors", kToldAlone},
    {"labels of beams", {"beam", "result"}, "labels", kToldAlone},
    {"results of columns", {"column", "check"}, "columns", kToldAlone},
};

qint64 sizeOf(const LoadRunner &runner, qint64 size, double memory)
{
    return memory > 0.0 || runner.options().isSmall ? size : std::min(size, kToldSize);
}

/** Runs of both sizes. @param run  takes the number of records and gives the run's cost and failure */
template <typename Cost, typename Failure>
void addSeries(LoadRunner &runner, const QString &step, std::size_t number, double memory, Cost cost, Failure failure)
{
    if (!runner.isWanted(step))
        return;
    Series series{step, {kTimeGrowth, kMemoryGrowth, {}, {}}, {}};
    if (memory > 0.0 && !runner.options().isCompact)
        series.bounds.ratio = memory;
    const QString file = runner.path(kFile);
    for (const qint64 bytes : runner.options().isSmall ? kSmallSizes : kSizes) {
        const QString size = QString::number(sizeOf(runner, bytes, memory));
        const qint64 records =
            runner.prepare({"bytes", QString::number(number), size, file, runner.options().isCompact ? "compact" : ""});
        series.runs.push_back(LoadRunner::leastOf([&] {
            Run run;
            run.size = static_cast<double>(records);
            run.documentBytes = runner.bytesOf(kFile);
            run.cost = cost(file);
            run.failure = failure(run.cost, records);
            return run;
        }));
    }
    runner.add(std::move(series));
    QFile::remove(file);
}

std::size_t numberOf(const char *name)
{
    const auto &all = recordDocuments();
    std::size_t number = 0;
    while (QLatin1String(all.at(number).name) != QLatin1String(name))
        ++number;
    return number;
}

} // namespace

void runReaderSteps(LoadRunner &runner)
{
    for (std::size_t number = 0; number < recordDocuments().size(); ++number) {
        const RecordDocument &document = recordDocuments()[number];
        addSeries(
            runner, QStringLiteral("reader: ") + QString::fromLatin1(document.name), number, document.memory,
            [&](const QString &file) {
                return runner.work({"read", QString::number(number), file});
            },
            [](const bench::ChildCost &cost, qint64 records) { return LoadRunner::failureOf(cost, records); });
    }
    for (const ReadingVerb &verb : kVerbs)
        addSeries(
            runner, QStringLiteral("verb: ") + verb.words.join(QLatin1Char(' ')), numberOf(verb.document), verb.memory,
            [&](const QString &file) { return runner.command(verb.words + QStringList{file}); },
            [&](const bench::ChildCost &cost, qint64 records) {
                return runner.failureOf(cost, QString::fromLatin1(verb.list), records);
            });
}

} // namespace load
