#pragma once

#include "cli/Applied.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvcad {

/** Why a value is not read: none of a record's keys is the one that it stands under. The nearest one is named, since it
 *  is likely to be meant. */
QString whyUnread(const QString &key, const QStringList &known);

/** Each key of a record that nothing reads, with the reason behind it. */
QStringList unreadIn(const QJsonObject &record, const QStringList &known);

/** Adds each key of a record that nothing reads, and with it the value that does not arrive.
 *  @param place  of the record; empty for the document itself
 *  @param name   of the element that it is about */
void leaveOutUnread(const QJsonObject &record, const QStringList &known, const QString &place, const QString &name,
                    std::vector<LeftOut> &leftOut);

} // namespace orvcad
