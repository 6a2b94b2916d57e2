#include "suite/Measurement.h"

#include "suite/HeapCount.h"
#include "support/ForkedRun.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>

#include <sched.h>
#include <sys/resource.h>

namespace bench {

namespace {

constexpr double kLeastSample = 2e6; // ns: shorter ones are repeated to stand above the clock's jitter
constexpr double kTimeForARow = 1e9; // ns
constexpr double kFewestSamples = 3;
constexpr double kMostSamples = 41;
constexpr double kBytesPerUnit = 1024.0; // of ru_maxrss

double nanoseconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_usec) * 1e3;
}

rusage childrenUsage()
{
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return usage;
}

/** Nanoseconds since some moment. */
double now(Time time)
{
    if (time == Time::Children) {
        const rusage usage = childrenUsage();
        return nanoseconds(usage.ru_utime) + nanoseconds(usage.ru_stime);
    }
    timespec moment{};
    ::clock_gettime(time == Time::Cpu ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC, &moment);
    return static_cast<double>(moment.tv_sec) * 1e9 + static_cast<double>(moment.tv_nsec);
}

/** Nanoseconds of one run, over so many in a row. */
double timed(const Work &work, Time time, std::size_t runs)
{
    if (work.prepare)
        work.prepare();
    joinFreedMemory();
    const double start = now(time);
    for (std::size_t i = 0; i < runs; ++i)
        work.run();
    return (now(time) - start) / static_cast<double>(runs);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** One side, and how often it runs in each sample. */
class Side
{
public:
    Side(const Work &work, Time time) : m_work(work), m_time(time)
    {
        m_once = timed(m_work, m_time, 1); // also warms up
        if (!m_work.prepare)
            m_runs = static_cast<std::size_t>(std::max(1.0, kLeastSample / std::max(m_once, 1.0)));
    }

    double sampleTime() const { return m_once * static_cast<double>(m_runs); }
    double sample() const { return timed(m_work, m_time, m_runs); }

private:
    const Work &m_work;
    Time m_time;
    double m_once = 0.0;
    std::size_t m_runs = 1;
};

HeapUse heapUseOf(const Work &work)
{
    if (!work.run)
        return {};
    if (work.prepare)
        work.prepare();
    const HeapCount count;
    work.run();
    return count.use();
}

void countHeap(const Sides &sides, Measurement &result)
{
    const HeapUse ours = heapUseOf(sides.ours);
    result.allocations = static_cast<double>(ours.allocations) / sides.items;
    result.peakBytes = static_cast<double>(ours.peakBytes);
    result.floorPeakBytes = static_cast<double>(heapUseOf(sides.floor).peakBytes);
}

/** Both sides in turn. */
void timeSides(const Sides &sides, Time time, Effort effort, Measurement &result)
{
    const Work nothing([] {});
    Side ours(sides.ours, time);
    if (time == Time::Children) // before the floor's processes have run: the system keeps the largest of all
        result.peakBytes = static_cast<double>(childrenUsage().ru_maxrss) * kBytesPerUnit;
    Side floor(sides.floor.run ? sides.floor : nothing, time);
    const double pair = ours.sampleTime() + floor.sampleTime();
    const int samples =
        effort == Effort::Single ? 1 : static_cast<int>(std::clamp(kTimeForARow / pair, kFewestSamples, kMostSamples));
    std::vector<double> oursTimes;
    std::vector<double> floorTimes;
    std::vector<double> ratios;
    for (int i = 0; i < samples; ++i) {
        oursTimes.push_back(ours.sample());
        floorTimes.push_back(floor.sample());
        ratios.push_back(oursTimes.back() / floorTimes.back());
    }
    result.ours = median(std::move(oursTimes)) / sides.items;
    if (!sides.floor.run)
        return;
    result.floor = median(std::move(floorTimes)) / sides.items;
    result.ratio = median(std::move(ratios));
}

Load loadOf(const Road &road, std::size_t size)
{
    return {size, road.small == Small::Many ? std::max<std::size_t>(road.sizes.back() / size, 1) : 1};
}

Sides sidesOf(const Road &road, std::size_t size)
{
    keepFreedMemory();
    return road.make(loadOf(road, size));
}

/** The process stays on the core that it is on. */
void stayOnThisCore()
{
    cpu_set_t cores;
    CPU_ZERO(&cores);
    CPU_SET(static_cast<std::size_t>(::sched_getcpu()), &cores);
    ::sched_setaffinity(0, sizeof cores, &cores);
}

Measurement measureHere(const Road &road, std::size_t size, Effort effort)
{
    stayOnThisCore();
    Measurement result;
    result.size = size;
    const Sides sides = sidesOf(road, size);
    if (sides.wrong)
        result.failure = sides.wrong();
    if (!result.failure.isEmpty())
        return result;
    result.documentBytes = sides.documentBytes;
    timeSides(sides, road.time, effort, result);
    if (road.time != Time::Children)
        countHeap(sides, result);
    return result;
}

/** What goes from the measuring process to this one. */
struct Message
{
    double figures[7];
    char failure[200];
};

} // namespace

Measurement measure(const Road &road, std::size_t size, Effort effort)
{
    Message message{};
    const bool isDone = runForked(&message, sizeof message, [&] {
        const Measurement result = measureHere(road, size, effort);
        message = {{result.ours, result.floor, result.ratio, result.allocations, result.peakBytes,
                    result.floorPeakBytes, result.documentBytes},
                   {}};
        std::snprintf(message.failure, sizeof message.failure, "%s", qUtf8Printable(result.failure));
    });
    const auto &figures = message.figures;
    Measurement result{size, figures[0], figures[1], figures[2], figures[3], figures[4], figures[5], figures[6], {}};
    result.failure = isDone ? QString::fromUtf8(message.failure) : QStringLiteral("the process did not end by itself");
    return result;
}

Measurement medianOf(const std::vector<Measurement> &all)
{
    Measurement result = all.front();
    for (const auto figure : {&Measurement::ours, &Measurement::floor, &Measurement::ratio, &Measurement::allocations,
                              &Measurement::peakBytes, &Measurement::floorPeakBytes, &Measurement::documentBytes}) {
        std::vector<double> values(all.size());
        std::transform(all.begin(), all.end(), values.begin(),
                       [figure](const Measurement &one) { return one.*figure; });
        result.*figure = median(std::move(values));
    }
    for (const Measurement &one : all)
        if (!one.failure.isEmpty())
            result.failure = one.failure;
    return result;
}

void runForProfiler(const Road &road, std::size_t size, int times)
{
    const Sides sides = sidesOf(road, size);
    if (sides.wrong)
        sides.wrong(); // works may need what it makes
    for (int i = 0; i < times; ++i)
        timed(sides.ours, road.time, 1);
}

} // namespace bench
