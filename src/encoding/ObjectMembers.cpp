#include "encoding/ObjectMembers.h"

namespace encoding {

QJsonValue ObjectMembers::value(QLatin1String key) const
{
    const int place = placeOf(key);
    return place < m_size ? (m_object.begin() + place).value() : QJsonValue(QJsonValue::Undefined);
}

bool ObjectMembers::contains(QLatin1String key) const { return placeOf(key) < m_size; }

int ObjectMembers::placeOf(QLatin1String key) const
{
    const auto search = [&] { return m_object.find(key) - m_object.begin(); };
    if (m_next == m_end)
        return search();
    int &place = *m_next++;
    const bool isThere = place >= 0 && place < m_size && (m_object.begin() + place).key() == key;
    return isThere ? place : place = search();
}

} // namespace encoding
