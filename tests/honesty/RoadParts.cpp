#include "RoadParts.h"

#include <QJsonArray>

namespace honestytest {

CarriedKey when(CarriedKey row, std::function<bool(const QJsonObject &)> counts)
{
    row.counts = std::move(counts);
    return row;
}

CarriedKeys operator+(CarriedKeys keys, const CarriedKeys &more)
{
    keys.insert(keys.end(), more.begin(), more.end());
    return keys;
}

Members entries(const QJsonObject &document, const QString &key)
{
    Members members;
    int index = 0;
    for (const QJsonValue value : document[key].toArray())
        members.push_back({key, QStringLiteral("%1[%2]").arg(key).arg(index++), value});
    return members;
}

Members entriesOf(const QJsonObject &document, const QStringList &keys)
{
    Members members;
    for (const QString &key : keys)
        for (const Member &member : entries(document, key))
            members.push_back(member);
    return members;
}

QString recordsDifference(const QJsonValue &sent, const QJsonValue &arrived, const QString &key,
                          const CarriedKeys &keys)
{
    if (sent.toArray().size() != arrived.toArray().size())
        return QStringLiteral("%1: %2 were sent, %3 arrived")
            .arg(key)
            .arg(sent.toArray().size())
            .arg(arrived.toArray().size());
    for (int i = 0; i < sent.toArray().size(); ++i) {
        const QString why = whyNotTheSame(sent[i].toObject(), arrived[i].toObject(), keys);
        if (!why.isEmpty())
            return QStringLiteral("%1[%2].%3").arg(key).arg(i).arg(why);
    }
    return {};
}

void Sums::expect(const QString &what, int summary, int counted)
{
    if (summary != counted)
        m_text += QStringLiteral("%1: the summary says %2, and it is %3\n").arg(what).arg(summary).arg(counted);
}

int wholeLeftOut(const QJsonObject &summary, const QString &array)
{
    int count = 0;
    for (const QJsonValue entry : summary["leftOut"].toArray())
        if (entry["whole"].toBool() && entry["place"].toString().startsWith(array))
            ++count;
    return count;
}

int placedOf(const QJsonObject &summary) { return summary["placed"].toInt(); }

/** The document with a value changed; steps are keys and the numbers of entries. */
QJsonValue withValue(const QJsonValue &holder, QStringList steps, const QJsonValue &value)
{
    if (steps.isEmpty())
        return value;
    const QString step = steps.takeFirst();
    if (holder.isArray()) {
        QJsonArray array = holder.toArray();
        array[step.toInt()] = withValue(array.at(step.toInt()), steps, value);
        return array;
    }
    QJsonObject object = holder.toObject();
    object[step] = withValue(object[step], steps, value);
    return object;
}

} // namespace honestytest
