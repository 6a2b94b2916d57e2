#include "doorwindow/ORVCADWindoorDataOutputModel.h"

#include <QJsonArray>

void ORVCADWindoorDataOutputModel::saveToJson(const QString &key, QJsonObject *json) const
{
    if (!json)
        return;
    QJsonArray members;
    for (const auto &element : elements)
        members.append(element.toJson());
    for (const auto &edo : edos)
        members.append(edo.toJson());
    json->insert(key, members);
}
