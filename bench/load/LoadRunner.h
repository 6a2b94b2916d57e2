#pragma once

#include "load/LoadTable.h"
#include "support/ChildRun.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace load {

struct EntryText;

/** What a load run is asked for. */
struct LoadOptions
{
    QString command; ///< the program orvcad
    QString self;    ///< this program, which is its own child
    QString folder;  ///< for all files
    QString only;    ///< part of the names of the steps to run; empty: all
    unsigned seed = 1;
    bool isSmall = false;
    bool isJson = false;
    bool isCompact = false; ///< record documents without a blank, and without a bound of memory to the document
};

/** What all steps have in common: files, children, and the table that they hand their runs to. */
class LoadRunner
{
public:
    LoadRunner(const LoadOptions &options, LoadTable &table) : m_options(options), m_table(table) {}

    const LoadOptions &options() const { return m_options; }
    bool isWanted(const QString &step) const { return step.contains(m_options.only); }
    QString path(const QString &file) const;
    double bytesOf(const QString &file) const;

    /** Runs orvcad with --json. */
    bench::ChildCost command(const QStringList &arguments) const;
    /** Runs orvcad as people do, with a summary in words. */
    bench::ChildCost commandForPeople(const QStringList &arguments) const;
    /** Runs a work of this program: see LoadWork.h. */
    bench::ChildCost work(const QStringList &arguments) const;
    /** A work that belongs to no step. Ends the program when it fails. @return the number that it tells */
    qint64 prepare(const QStringList &arguments) const;
    /** orvcad where it belongs to no step; ends the program when it fails. */
    void prepareByCommand(const QStringList &arguments) const;

    /** Why a command did not do what it should: it ended with another exit code, or the number at a path of keys ("project.drawObjects") in its
     *  summary is another one; a list counts by its entries. Empty where it did. To be asked before the next command. */
    QString failureOf(const bench::ChildCost &cost, const QString &keys, qint64 expected, int exitCode = 0) const;
    /** The same for a work, which prints a number alone. */
    static QString failureOf(const bench::ChildCost &cost, qint64 expected);

    /** The run of the least time: what else the machine does takes caches from it. Long ones are done once. */
    static Run leastOf(const std::function<Run()> &once);

    void add(Series series) { m_table.add(std::move(series), m_options.isJson); }

private:
    const LoadOptions &m_options;
    LoadTable &m_table;
};

} // namespace load
