#pragma once

#include <QByteArray>
#include <QList>

namespace orvcad {

/** Style sheet of element types on a page: lines of one width at every size, and colours for light and dark screens. Other
 *  rules follow it and take precedence. */
QByteArray typeStyle(const QList<qint64> &types);

} // namespace orvcad
