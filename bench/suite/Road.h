#pragma once

#include <QString>

#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/** Roads, each measured against the floor under it: the cost that no design can avoid. */
namespace bench {

/** One side of a comparison: what is timed, and what must be made ready before each run and is not timed. */
struct Work
{
    Work() = default; ///< nothing
    template <typename Run, typename = std::enable_if_t<std::is_invocable_v<Run>>>
    Work(Run runOnce) : run(std::move(runOnce)) // NOLINT(google-explicit-constructor): a lambda stands for its work
    {}
    Work(std::function<void()> prepareRun, std::function<void()> runOnce)
        : run(std::move(runOnce)), prepare(std::move(prepareRun))
    {}

    std::function<void()> run;
    std::function<void()> prepare;
};

/** What one run of a road handles. */
struct Load
{
    std::size_t size = 0;      ///< items of one document, floor or building
    std::size_t documents = 1; ///< that one run handles one after the other, all of them alike

    std::size_t items() const { return size * documents; }
};

/** A road with so much to do. The works own what they need. */
struct Sides
{
    Work ours = {};
    Work floor = {};            ///< none: times and memory are told alone
    double items = 0.0;         ///< of one run
    double documentBytes = 0.0; ///< that ours reads or writes in one run; 0: memory is told nowhere
    /** What keeps the figures from saying anything, or nothing; asked once, before all runs. */
    std::function<QString()> wrong = {};
};

/** Largest values that are good; 0 only tells the value. */
struct Bounds
{
    double ratio = 0.0;       ///< of our time to the floor's
    double growth = 0.0;      ///< of the time per item, from the smallest size to the largest
    double memory = 0.0;      ///< of the peak of memory to the bytes of the document, or a fifth above the floor's peak
    double allocations = 0.0; ///< for each item
};

/** What is timed: Cpu is the processor's time of this process, to which the machine's other work does not add; Wall the time
 *  that passes, for works that wait for a disk; Children the processor's time of the processes that a work starts. */
enum class Time { Cpu, Wall, Children };

/** What the smaller sizes are measured with. */
enum class Small {
    Alone, ///< one document
    Many   ///< as many documents as make the largest: growth tells of a document's size, and not of leaving the caches
};

struct Road
{
    std::string name;
    std::string floor; ///< what stands on the other side; empty: nothing
    std::vector<std::size_t> sizes;
    Bounds bounds;
    std::function<Sides(const Load &load)> make;
    Time time = Time::Cpu;
    Small small = Small::Alone;
};

using Roads = std::vector<Road>;

/** Keeps a result from being optimised away. */
template <typename T> void keep(const T &value) { asm volatile("" : : "r,m"(&value) : "memory"); }

// The usual sizes, in items; a ceiling that names others has its own.
inline const std::vector<std::size_t> kSizes{1'000, 10'000, 100'000};

} // namespace bench
