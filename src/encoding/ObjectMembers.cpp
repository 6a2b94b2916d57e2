#include "encoding/ObjectMembers.h"

namespace encoding {

QJsonValue ObjectMembers::value(QLatin1String key) const
{
    const auto member = find(key);
    return member != m_object.end() ? member.value() : QJsonValue(QJsonValue::Undefined);
}

bool ObjectMembers::contains(QLatin1String key) const { return find(key) != m_object.end(); }

QJsonObject::const_iterator ObjectMembers::find(QLatin1String key) const
{
    if (m_place == m_end)
        return m_object.find(key);
    int &place = *m_place++;
    if (place >= 0 && place < m_object.size()) {
        const auto guess = m_object.begin() + place;
        if (guess.key() == key)
            return guess;
    }
    const auto found = m_object.find(key);
    place = found != m_object.end() ? found - m_object.begin() : -1;
    return found;
}

} // namespace encoding
