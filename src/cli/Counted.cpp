#include "cli/Counted.h"

#include "cli/Message.h"

namespace orvcad {

QString counted(int number, const QString &singular)
{
    const QString counted = number == 1 ? Message::tr("%1 %2") : Message::tr("%1 %2s");
    return counted.arg(number).arg(singular);
}

QString countedInEnglish(int number, const QString &singular)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(number), singular, QLatin1String(number == 1 ? "" : "s"));
}

} // namespace orvcad
