#include "cli/ShownValue.h"

#include "cli/Applied.h"
#include "cli/Message.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace orvcad {

QString shownValue(const QJsonValue &value)
{
    if (value.isUndefined())
        return Message::tr("nothing");
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return shortened(QString::fromUtf8(json.mid(1, json.size() - 2)));
}

} // namespace orvcad
