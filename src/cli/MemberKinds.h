#pragma once

#include <QJsonObject>
#include <QStringList>

namespace orvcad {

/** Why the values of a member of a reply cannot be taken; empty when they can. Readers take 0 or nothing for a value of the
 *  wrong kind, which would stand in the building then, so the command line looks first.
 *  @param pattern   the JSON of a fresh record: tells the kind that each key's value has
 *  @param whole     keys whose numbers are whole ones of 32 bits
 *  @param required  keys without which the record would mean something else */
QString wrongKey(const QJsonObject &member, const QJsonObject &pattern, const QStringList &whole,
                 const QStringList &required);

/** Why the text of an axis cannot be taken; empty when it can. An empty text is an object without an axis, which a building
 *  may have. */
QString whyNotAxis(QLatin1String key, const QString &text);

/** Why the text of an outline cannot be taken; empty when it can: it is closed, does not cross itself, and has an area. */
QString whyNotOutline(QLatin1String key, const QString &text);

} // namespace orvcad
