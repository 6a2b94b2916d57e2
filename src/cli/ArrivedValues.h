#pragma once

#include "cli/Applied.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvcad {

/** Whether a value of a reply is the one that the host tells when it is asked for it. Numbers may differ by what an elevation
 *  loses as a text of six digits, texts by their case and the blanks around them, outlines by the corner at which they begin
 *  and lines by their direction. An empty text was nothing to write, and is any value's like. */
bool isSameValue(const QJsonValue &sent, const QJsonValue &arrived);

/** Adds the keys of a record whose value the host has otherwise than it was sent, of those that are named. A key that was
 *  not sent is passed over.
 *  @param place  of the record in the reply
 *  @param name   of the element */
void leaveOutChanged(const QJsonObject &sent, const QJsonObject &arrived, const QStringList &keys, const QString &place,
                     const QString &name, std::vector<LeftOut> &leftOut);

} // namespace orvcad
