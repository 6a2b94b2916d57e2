#pragma once

#include "support/ChildRun.h"

#include <QString>

#include <optional>
#include <vector>

namespace load {

/** What a series of runs is held to; a bound that is absent is not asked about. */
struct Bounds
{
    std::optional<double> timeGrowth;   ///< exponent of time over size, from the smallest run to the largest
    std::optional<double> memoryGrowth; ///< the same of peak memory
    std::optional<double> ratio;        ///< peak memory to the bytes of the document
    std::optional<double> seconds;      ///< of the processor
};

/** One process. */
struct Run
{
    double size = 0.0;          ///< objects that it handles
    double documentBytes = 0.0; ///< of what it reads; 0 where that is told nowhere
    bench::ChildCost cost;
    QString failure; ///< why it did not do what it should; empty where it did
};

/** Runs of one step, by growing size. */
struct Series
{
    QString step;
    Bounds bounds;
    std::vector<Run> runs;
};

/** All series, as one table for people or one document for machines. Time and memory of a growth are those above what a
 *  process takes that does nothing. */
class LoadTable
{
public:
    /** @param empty  what a process takes that does nothing */
    explicit LoadTable(bench::ChildCost empty) : m_empty(std::move(empty)) {}

    void printHead() const;
    /** Takes a series over and prints its rows. */
    void add(Series series, bool isQuiet);
    /** Prints all of it as one JSON object. */
    void printJson() const;
    /** 0 where everything is within its bounds, else 1. */
    int exitCode() const;

private:
    struct Growth
    {
        double time = 0.0;
        double memory = 0.0;
    };

    /** Peak memory to the bytes of the document; 0 without one. */
    double ratioOf(const Run &run) const;
    std::optional<Growth> growthOf(const Series &series) const;
    /** What is wrong with a run; empty for nothing. The last run of a series answers for its growth. */
    QString verdict(const Series &series, const Run &run) const;
    void print(const Series &series) const;

    bench::ChildCost m_empty;
    std::vector<Series> m_all;
};

} // namespace load
