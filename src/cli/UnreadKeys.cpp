#include "cli/UnreadKeys.h"

#include "cli/Message.h"
#include "cli/NearestName.h"

namespace orvcad {

QString whyUnread(const QString &key, const QStringList &known)
{
    const QString reason = Message::tr("is no key of this record, and not read");
    const QString meant = nearestName(key, known);
    return meant.isEmpty() ? reason : Message::tr("%1: %2 is one").arg(reason, meant);
}

QStringList unreadIn(const QJsonObject &record, const QStringList &known)
{
    QStringList unread;
    for (const QString &key : record.keys())
        if (!known.contains(key))
            unread.append(QStringLiteral("%1: %2").arg(key, whyUnread(key, known)));
    return unread;
}

void leaveOutUnread(const QJsonObject &record, const QStringList &known, const QString &place, const QString &name,
                    std::vector<LeftOut> &leftOut)
{
    for (const QString &key : record.keys())
        if (!known.contains(key))
            leftOut.push_back({place.isEmpty() ? key : place + u'.' + key, name, whyUnread(key, known), false});
}

} // namespace orvcad
