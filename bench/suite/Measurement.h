#pragma once

#include "suite/Road.h"

#include <QString>

namespace bench {

/** How long a measurement may take. */
enum class Effort {
    Full,  ///< medians of 5 to 41 runs of each side
    Single ///< one run of each: shows that the road works
};

/** What one size of a road costs. */
struct Measurement
{
    std::size_t size = 0;
    double ours = 0.0;        ///< ns for each item, as the floor
    double floor = 0.0;       ///< 0 without one
    double ratio = 0.0;       ///< median of the ratios of runs that stand side by side; 0 without a floor
    double allocations = 0.0; ///< for each item
    double peakBytes =
        0.0; ///< of the heap, beyond what was held before; of the whole process where processes are timed
    double floorPeakBytes = 0.0; ///< 0 without a floor, and where processes are timed
    double documentBytes = 0.0;
    QString failure; ///< why there are no figures; empty where there are

    double memory() const { return documentBytes > 0.0 ? peakBytes / documentBytes : 0.0; }
    double floorMemory() const { return documentBytes > 0.0 ? floorPeakBytes / documentBytes : 0.0; }
};

/** Measures a road at one size, in a process of its own, on one core: what other roads left of the heap does not count. */
Measurement measure(const Road &road, std::size_t size, Effort effort);

/** Of several measurements of one size, each figure's median; a failure of one is that of all.
 *  @param all  an odd number of them */
Measurement medianOf(const std::vector<Measurement> &all);

/** Runs our side of a road so many times in this process, for a profiler to look at. */
void runForProfiler(const Road &road, std::size_t size, int times);

} // namespace bench
