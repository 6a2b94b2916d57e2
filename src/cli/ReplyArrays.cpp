#include "cli/ReplyArrays.h"

#include "cli/Command.h"
#include "cli/Message.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>

namespace orvcad {

namespace {

/** The keys in quotes, with "and" before the last. */
QString quotedKeys(const std::vector<ReplyArray> &arrays)
{
    QStringList keys;
    for (const ReplyArray &array : arrays)
        keys.append(QStringLiteral("\"%1\"").arg(array.key));
    const QString last = keys.takeLast();
    return Message::tr("%1 and %2").arg(keys.join(QStringLiteral(", ")), last);
}

} // namespace

void forEachMember(const QJsonObject &reply, const QString &file, const std::vector<ReplyArray> &arrays,
                   const QString &what, const TakeMember &take)
{
    const auto isThere = [&](const ReplyArray &array) { return reply.contains(array.key); };
    if (std::none_of(arrays.begin(), arrays.end(), isThere))
        throw CommandFailure(kBadInput, file, {},
                             Message::tr("has none of the keys %1: no %2").arg(quotedKeys(arrays), what));
    for (const ReplyArray &array : arrays) {
        const QJsonValue members = reply.value(array.key);
        if (isThere(array) && !members.isArray())
            throw CommandFailure(kBadInput, file, array.key, Message::tr("is no array"));
        int index = 0;
        for (const QJsonValue member : members.toArray())
            take(array, QStringLiteral("%1[%2]").arg(array.key).arg(index++), member);
    }
}

} // namespace orvcad
