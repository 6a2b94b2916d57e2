#include "cli/Counted.h"

namespace orvcad {

QString counted(int number, const QString &singular)
{
    return QStringLiteral("%1 %2%3").arg(number).arg(singular, number == 1 ? QString() : QStringLiteral("s"));
}

} // namespace orvcad
