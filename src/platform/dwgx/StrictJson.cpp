#include "platform/dwgx/StrictJson.h"

#include "platform/dwgx/Reason.h"

#include <algorithm>

namespace dwgx {

QString lineAndColumn(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    const int line = before.count('\n') + 1;
    const int column = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1;
    return Reason::tr("line %1, column %2").arg(line).arg(column);
}

QString JsonPlace::text() const
{
    QString text;
    for (const JsonPlace *place = this; place->m_parent; place = place->m_parent) {
        const bool inArray = place->m_index >= 0;
        const bool needsDot = !text.isEmpty() && !text.startsWith(QLatin1Char('['));
        const QString step = inArray ? QStringLiteral("[%1]").arg(place->m_index) : QString(place->m_key);
        text.prepend(needsDot ? step + QLatin1Char('.') : step);
    }
    return text;
}

void JsonPlace::refuse(const QString &reason) const { throw JsonRefusal{text(), reason}; }

StrictObject::StrictObject(const QJsonValue &value, const JsonPlace &place,
                           std::initializer_list<QLatin1String> knownKeys)
    : m_object(value.toObject()), m_place(place)
{
    if (!value.isObject())
        place.refuse(Reason::tr("is not an object"));
    const auto isKnown = [&](const QString &key) {
        return std::any_of(knownKeys.begin(), knownKeys.end(), [&](QLatin1String known) { return key == known; });
    };
    for (auto member = m_object.constBegin(); member != m_object.constEnd(); ++member)
        if (!isKnown(member.key()))
            place.refuse(Reason::tr("has the unknown member \"%1\"").arg(member.key()));
}

QJsonValue StrictObject::value(QLatin1String key) const
{
    const auto member = m_object.constFind(key);
    if (member == m_object.constEnd())
        m_place.refuse(Reason::tr("has no \"%1\"").arg(key));
    return *member;
}

QString StrictObject::text(QLatin1String key) const
{
    const QJsonValue member = value(key);
    if (!member.isString())
        JsonPlace(m_place, key).refuse(Reason::tr("is not a text"));
    return member.toString();
}

double StrictObject::number(QLatin1String key) const
{
    const QJsonValue member = value(key);
    if (!member.isDouble())
        JsonPlace(m_place, key).refuse(Reason::tr("is not a number"));
    return member.toDouble();
}

qint64 StrictObject::integer(QLatin1String key, qint64 low, qint64 high) const
{
    const double found = number(key);
    // Compared as doubles first: a number beyond 64 bits must not be cast.
    const bool inside = found >= static_cast<double>(low) && found <= static_cast<double>(high);
    if (!inside || static_cast<double>(static_cast<qint64>(found)) != found)
        JsonPlace(m_place, key).refuse(Reason::tr("is not an integer from %1 to %2").arg(low).arg(high));
    return static_cast<qint64>(found);
}

QJsonArray StrictObject::array(QLatin1String key) const
{
    const QJsonValue member = value(key);
    if (!member.isArray())
        JsonPlace(m_place, key).refuse(Reason::tr("is not an array"));
    return member.toArray();
}

std::vector<double> StrictObject::numbers(QLatin1String key, int count) const
{
    const QJsonArray members = array(key);
    const bool sound = members.size() == count &&
                       std::all_of(members.begin(), members.end(), [](const auto &each) { return each.isDouble(); });
    if (!sound)
        JsonPlace(m_place, key).refuse(Reason::tr("is not an array of %1 numbers").arg(count));
    std::vector<double> numbers;
    for (const QJsonValue member : members)
        numbers.push_back(member.toDouble());
    return numbers;
}

} // namespace dwgx
