#pragma once

#include <QString>
#include <QStringList>

namespace orvcad {

/** The name that is likely meant by one that is none: the one that the fewest slips of typing lead to (a letter left out,
 *  put in, taken for another, or two that changed places), the case of letters being none. One slip is allowed for each
 *  three letters, and one in any name of two or more; of equals the first is taken. Empty when no name is that near. */
QString nearestName(const QString &name, const QStringList &known);

/** Slips of typing between two names, each letter in at most one of them; "limit + 1" when there are more than that. */
int slipsBetween(const QString &a, const QString &b, int limit);

} // namespace orvcad
