#pragma once

#include <QByteArray>
#include <QStringList>

namespace bench {

/** What a process took, by the system's own account. */
struct ChildCost
{
    int exitCode = -1;      ///< -1: it was ended by a signal, or after the time limit
    double seconds = 0.0;   ///< of the processor, which the machine's other work does not add to
    double passed = 0.0;    ///< seconds from start to end
    double peakBytes = 0.0; ///< most memory that it had at one time
    QByteArray out;         ///< the first of its standard output
    QByteArray err;
    qint64 errBytes = 0; ///< all of what it wrote to standard error
};

/** Runs a program to its end, or until the limit; it gets 12 GiB of memory at most. This process must be small: a child's
 *  peak is at least what its parent had when it was made. So not all that it writes is kept here.
 *  @param file  what it writes goes into files of this name, with ".out" and ".err" behind */
ChildCost runChild(const QString &program, const QStringList &arguments, const QString &file, int limitSeconds);

} // namespace bench
