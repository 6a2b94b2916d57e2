#pragma once

#include "support/Heap.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace bench {

/** One side of a comparison: what is timed, and what must be made ready before each run and is not timed. */
struct Work
{
    template <typename Run, typename = std::enable_if_t<std::is_invocable_v<Run>>>
    Work(Run runOnce) : run(std::move(runOnce)) // NOLINT(google-explicit-constructor): a lambda stands for its work
    {}
    Work(std::function<void()> prepareRun, std::function<void()> runOnce)
        : run(std::move(runOnce)), prepare(std::move(prepareRun))
    {}

    std::function<void()> run;
    std::function<void()> prepare;
};

/** Keeps a result from being optimised away. */
template <typename T> void keep(T &&value) { benchmark::DoNotOptimize(value); }

/** What is measured: Cpu is the processor's time of this process, which the machine's other work does not add to, Wall the
 *  time that passes, for works that wait for a disk. */
enum class Time { Wall, Cpu };

/** Ratios of medians, each of two works that take turns in this process, against their ceilings.
 *
 *      bench::RatioTable table("Geometry text");
 *      table.row("polygon written", polygons.size(), [&] { ours(); }, [&] { floor(); }, 0.5);
 *      return table.print(); */
class RatioTable
{
public:
    explicit RatioTable(std::string title, Time time = Time::Wall) : m_title(std::move(title)), m_time(time)
    {
        keepFreedMemory();
    }

    /** @param size     how many items one run of either work handles; times are printed per item
     *  @param ceiling  largest ratio of ours to floor that is good; 0 only tells the ratio */
    void row(std::string name, std::size_t size, const Work &ours, const Work &floor, double ceiling = 0.0)
    {
        measure({std::move(name), size, size, ceiling}, ours, floor);
    }
    /** How the cost per item grows: the ratio of the cost in a large run to that in a small one. */
    void growth(std::string name, std::size_t largeSize, const Work &large, std::size_t smallSize, const Work &small,
                double ceiling = 0.0)
    {
        measure({std::move(name), largeSize, smallSize, ceiling}, large, small);
    }
    /** A ratio of two figures that are no times (bytes, counts), measured elsewhere. */
    void figure(std::string name, double ours, double floor, double ceiling = 0.0)
    {
        m_rows.push_back({std::move(name), 0, 0, ceiling, ours, floor});
    }

    /** Prints all rows. @return exit code: 0 when every ratio is within its ceiling, else 1 */
    int print() const
    {
        std::printf("%s\n%-44s %9s %12s %12s %7s %8s\n", m_title.c_str(), "", "size", "ours", "floor", "ratio",
                    "ceiling");
        return std::count_if(m_rows.begin(), m_rows.end(), [](const Row &one) { return !printed(one); }) == 0 ? 0 : 1;
    }

private:
    struct Row
    {
        std::string name;
        std::size_t size;
        std::size_t floorSize;
        double ceiling;
        double ours = 0.0; // ns per item
        double floor = 0.0;
    };
    using Clock = std::chrono::steady_clock;

    static constexpr double kLeastSample = 2e6; // ns: shorter ones are repeated to stand above the clock's jitter
    static constexpr double kTimeForARow = 4e9; // ns
    static constexpr double kFewestSamples = 5;
    static constexpr double kMostSamples = 41;

    /** Nanoseconds since some moment. */
    double now() const
    {
        if (m_time == Time::Cpu)
            return static_cast<double>(std::clock()) * (1e9 / CLOCKS_PER_SEC);
        return std::chrono::duration<double, std::nano>(Clock::now().time_since_epoch()).count();
    }
    /** Nanoseconds of one run, over so many in a row. */
    double timed(const Work &work, std::size_t runs) const
    {
        if (work.prepare)
            work.prepare();
        const double start = now();
        for (std::size_t i = 0; i < runs; ++i)
            work.run();
        return (now() - start) / static_cast<double>(runs);
    }
    static std::size_t runsPerSample(const Work &work, double oneRun)
    {
        return work.prepare ? 1 : static_cast<std::size_t>(std::max(1.0, kLeastSample / std::max(oneRun, 1.0)));
    }
    static double median(std::vector<double> &samples)
    {
        const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
        std::nth_element(samples.begin(), middle, samples.end());
        return *middle;
    }

    void measure(Row row, const Work &ours, const Work &floor)
    {
        const double oursOnce = timed(ours, 1); // also warms up
        const double floorOnce = timed(floor, 1);
        const std::size_t oursRuns = runsPerSample(ours, oursOnce);
        const std::size_t floorRuns = runsPerSample(floor, floorOnce);
        const double pair = oursOnce * static_cast<double>(oursRuns) + floorOnce * static_cast<double>(floorRuns);
        const auto samples = static_cast<int>(std::clamp(kTimeForARow / pair, kFewestSamples, kMostSamples));

        std::vector<double> oursTimes;
        std::vector<double> floorTimes;
        for (int i = 0; i < samples; ++i) {
            oursTimes.push_back(timed(ours, oursRuns));
            floorTimes.push_back(timed(floor, floorRuns));
        }
        row.ours = median(oursTimes) / static_cast<double>(std::max<std::size_t>(row.size, 1));
        row.floor = median(floorTimes) / static_cast<double>(std::max<std::size_t>(row.floorSize, 1));
        m_rows.push_back(std::move(row));
    }

    /** @return whether the row is within its ceiling */
    static bool printed(const Row &row)
    {
        const double ratio = row.ours / row.floor;
        const bool good = row.ceiling <= 0.0 || ratio <= row.ceiling;
        const std::string unit = row.size > 0 ? " ns" : "";
        std::printf("%-44s %9zu %12s %12s %7.3f ", row.name.c_str(), row.size, (number(row.ours) + unit).c_str(),
                    (number(row.floor) + unit).c_str(), ratio);
        if (row.ceiling > 0.0)
            std::printf("%8.2f%s\n", row.ceiling, good ? "" : "  BEYOND");
        else
            std::printf("%8s\n", "-");
        return good;
    }
    static std::string number(double value)
    {
        char text[32];
        std::snprintf(text, sizeof text, value < 1000.0 ? "%.1f" : "%.0f", value);
        return text;
    }

    std::string m_title;
    Time m_time;
    std::vector<Row> m_rows;
};

} // namespace bench
