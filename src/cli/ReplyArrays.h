#pragma once

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

#include <functional>
#include <vector>

namespace orvcad {

/** An array of a reply, and the element type of its members. */
struct ReplyArray
{
    QLatin1String key;
    qint64 elementType;
};

using TakeMember = std::function<void(const ReplyArray &array, const QString &place, const QJsonValue &member)>;

/** Gives the members of a reply with their places, such as Beam[3], array by array as these are listed. Throws
 *  CommandFailure naming file and place when the reply has none of the arrays, or something else in place of one.
 *  @param arrays  two or more
 *  @param what    what people call such a document: "reply of beams" */
void forEachMember(const QJsonObject &reply, const QString &file, const std::vector<ReplyArray> &arrays,
                   const QString &what, const TakeMember &take);

} // namespace orvcad
