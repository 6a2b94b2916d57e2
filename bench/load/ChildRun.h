#pragma once

#include <QByteArray>
#include <QStringList>

namespace load {

/** What a process took, by the system's own account. */
struct ChildCost
{
    int exitCode = -1;      ///< -1: it was ended by a signal, or after the time limit
    double seconds = 0.0;   ///< of the processor, which the machine's other work does not add to
    double passed = 0.0;    ///< seconds from start to end
    double peakBytes = 0.0; ///< most memory that it had at one time
    QByteArray out;         ///< its standard output
    QByteArray err;
};

/** Runs a program to its end, or until the limit. What it writes goes into files of the folder, since a pipe would need
 *  somebody to read it. This process must be small: a child's peak is at least what its parent had when it was made. */
ChildCost runChild(const QString &program, const QStringList &arguments, const QString &folder, int limitSeconds);

} // namespace load
