#include "cli/JsonDifference.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVariant>

#include <algorithm>

namespace orvcad {

namespace {

bool isInt64(const QJsonValue &number) { return number.toVariant().userType() == QMetaType::LongLong; }

/** Qt compares numbers as doubles, for which a whole one beyond 53 bits is its neighbour. */
bool isSame(const QJsonValue &before, const QJsonValue &after)
{
    if (before != after || !before.isDouble() || !(isInt64(before) || isInt64(after)))
        return before == after;
    return before.toVariant().toLongLong() == after.toVariant().toLongLong();
}

class Comparison
{
public:
    explicit Comparison(AddedKeys added) : m_added(added) {}

    void compare(const QJsonValue &before, const QJsonValue &after, const QString &place)
    {
        if (before.isObject() && after.isObject())
            compareObjects(before.toObject(), after.toObject(), place);
        else if (before.isArray() && after.isArray())
            compareArrays(before.toArray(), after.toArray(), place);
        else if (!isSame(before, after))
            m_found.push_back({place, m_keys, before, after});
    }
    const std::vector<JsonDifference> &found() const { return m_found; }

private:
    void compareMember(const QJsonObject &before, const QJsonObject &after, const QString &key, const QString &place)
    {
        m_keys.append(key);
        compare(before.value(key), after.value(key), place.isEmpty() ? key : place + '.' + key);
        m_keys.removeLast();
    }
    void compareObjects(const QJsonObject &before, const QJsonObject &after, const QString &place)
    {
        for (const QString &key : before.keys())
            compareMember(before, after, key, place);
        if (m_added == AddedKeys::PassedOver)
            return;
        for (const QString &key : after.keys())
            if (!before.contains(key))
                compareMember(before, after, key, place);
    }
    void compareArrays(const QJsonArray &before, const QJsonArray &after, const QString &place)
    {
        if (before.size() != after.size())
            m_found.push_back({place, m_keys, before, after});
        for (int i = 0; i < std::min(before.size(), after.size()); ++i)
            compare(before.at(i), after.at(i), QStringLiteral("%1[%2]").arg(place).arg(i));
    }

    const AddedKeys m_added;
    QStringList m_keys;
    std::vector<JsonDifference> m_found;
};

} // namespace

std::vector<JsonDifference> differencesBetween(const QJsonValue &before, const QJsonValue &after, AddedKeys added)
{
    Comparison comparison(added);
    comparison.compare(before, after, QString());
    return comparison.found();
}

} // namespace orvcad
