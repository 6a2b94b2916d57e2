#include "cli/JsonFault.h"

#include "cli/Counted.h"
#include "cli/Message.h"

#include <QJsonObject>

namespace orvcad {

QJsonArray faultsToJson(const std::vector<JsonFault> &faults)
{
    QJsonArray array;
    for (const JsonFault &fault : faults)
        array.append(QJsonObject{{"place", fault.place}, {"reason", fault.reason}});
    return array;
}

QStringList faultLines(const QString &about, const std::vector<JsonFault> &faults)
{
    QStringList lines;
    for (const JsonFault &fault : faults)
        lines.append(QStringLiteral("%1: %2: %3").arg(about, fault.place, fault.reason));
    return lines;
}

QString writtenAgainText(std::size_t differences)
{
    return differences == 0 ? Message::tr("written again, it is the same document")
                            : Message::tr("written again, it differs at %1")
                                  .arg(counted(static_cast<int>(differences), Message::tr("place")));
}

} // namespace orvcad
