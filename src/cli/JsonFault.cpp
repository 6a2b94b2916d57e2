#include "cli/JsonFault.h"

#include <QJsonObject>

namespace orvcad {

QJsonArray faultsToJson(const std::vector<JsonFault> &faults)
{
    QJsonArray array;
    for (const JsonFault &fault : faults)
        array.append(QJsonObject{{"place", fault.place}, {"reason", fault.reason}});
    return array;
}

} // namespace orvcad
