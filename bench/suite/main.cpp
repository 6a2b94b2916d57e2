#include "suite/Families.h"
#include "suite/RoadTable.h"
#include "support/OptionTable.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cstdio>

// Every road against the floor under it: see usage below.

namespace {

constexpr const char *kUsage =
    "usage: RoadBench [--only TEXT] [--size N] [--json] [--quick] [--list] [--run TIMES]\n"
    "  --only TEXT  roads that have this in their name\n"
    "  --size N     this size alone, of those that a road has\n"
    "  --json       one JSON object in place of the table\n"
    "  --quick      each side once: shows that the roads work, in a minute; only failures count\n"
    "  --list       the names of the roads\n"
    "  --run TIMES  our side of the chosen roads so many times in this process, for a profiler; nothing is measured\n"
    "The exit code is 1 where a ratio, a growth, a peak of memory or a failure is beyond its bound.\n";

struct Options
{
    QString only;
    std::size_t size = 0;
    bool isJson = false;
    bool isQuick = false;
    bool isList = false;
    int runs = 0;
};

/** A quick run tells no times, so no bound holds of them; and the smallest size shows as much as any. */
void makeQuick(bench::Road &road)
{
    road.bounds = {};
    road.sizes.resize(1);
}

std::vector<std::size_t> chosenSizes(const bench::Road &road, const Options &options)
{
    std::vector<std::size_t> sizes;
    for (const std::size_t size : road.sizes)
        if (options.size == 0 || options.size == size)
            sizes.push_back(size);
    return sizes;
}

bench::Roads chosen(const Options &options)
{
    bench::Roads roads;
    for (const auto family : bench::kFamilies)
        for (bench::Road &road : family()) {
            if (!QString::fromStdString(road.name).contains(options.only))
                continue;
            if (options.isQuick)
                makeQuick(road);
            if (!chosenSizes(road, options).empty())
                roads.push_back(std::move(road));
        }
    return roads;
}

std::vector<bench::Measurement> measuredOnce(const bench::Road &road, const Options &options)
{
    const auto effort = options.isQuick ? bench::Effort::Single : bench::Effort::Full;
    std::vector<bench::Measurement> sizes;
    for (const std::size_t size : chosenSizes(road, options))
        sizes.push_back(bench::measure(road, size, effort));
    return sizes;
}

/** Median by median of each size.
 *  @param all  measurements of the same sizes */
std::vector<bench::Measurement> mediansOf(const std::vector<std::vector<bench::Measurement>> &all)
{
    std::vector<bench::Measurement> medians(all.front().size());
    for (std::size_t size = 0; size < medians.size(); ++size) {
        std::vector<bench::Measurement> ofSize(all.size());
        std::transform(all.begin(), all.end(), ofSize.begin(), [size](const auto &sizes) { return sizes[size]; });
        medians[size] = bench::medianOf(ofSize);
    }
    return medians;
}

/** A road and all that was measured of it. */
struct Doubtful
{
    const bench::Road &road;
    std::vector<std::vector<bench::Measurement>> measured;
};

/** A road beyond a bound is measured six times more when all others are done, and the medians of the seven count: a machine
 *  that had something else to do for a while, or gave a process slow memory, is not taken for a slow road, and a slow road
 *  stays one. */
void measureAgain(std::vector<Doubtful> &doubtful, const Options &options)
{
    constexpr int kTimes = 6;
    for (int i = 0; i < kTimes; ++i)
        for (Doubtful &each : doubtful)
            each.measured.push_back(measuredOnce(each.road, options));
}

int run(const bench::Roads &roads, const Options &options)
{
    bench::RoadTable table(options.isJson ? bench::RoadTable::Form::Json : bench::RoadTable::Form::Table);
    std::vector<Doubtful> doubtful;
    for (const bench::Road &road : roads) {
        const std::vector<bench::Measurement> sizes = measuredOnce(road, options);
        if (options.isQuick || bench::RoadTable::isGood(road, sizes))
            table.add(road, sizes);
        else
            doubtful.push_back({road, {sizes}});
    }
    measureAgain(doubtful, options);
    for (const Doubtful &each : doubtful)
        table.add(each.road, mediansOf(each.measured));
    return table.finish();
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    Options options;
    const bench::OptionTable table{
        {{"--json", &options.isJson}, {"--quick", &options.isQuick}, {"--list", &options.isList}},
        {{"--only", bench::textInto(options.only)},
         {"--size", bench::numberInto(options.size)},
         {"--run", bench::numberInto(options.runs)}}};
    if (!bench::takeOptions(arguments, table)) {
        std::fputs(kUsage, stderr);
        return 1;
    }
    const bench::Roads roads = chosen(options);
    if (roads.empty()) {
        std::fprintf(stderr, "no road has \"%s\" in its name and such a size; --list shows them\n",
                     qUtf8Printable(options.only));
        return 1;
    }
    if (!options.isList && options.runs == 0)
        return run(roads, options);
    for (const bench::Road &road : roads) {
        std::printf("%s\n", road.name.c_str());
        if (options.isList)
            continue;
        for (const std::size_t size : chosenSizes(road, options))
            bench::runForProfiler(road, size, options.runs);
    }
    return 0;
}
