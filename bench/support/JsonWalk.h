#pragma once

#include <QJsonArray>
#include <QJsonObject>

namespace bench {

/** Looks at every key and value of a document, as no reader can avoid: texts and numbers are fetched as readers do. */
inline double walked(const QJsonValue &value)
{
    double sum = 0.0;
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            sum += walked(member.value()) + member.key().size();
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const QJsonValue entry : array)
            sum += walked(entry);
    } else {
        sum = value.isString() ? value.toString().size() : value.toDouble();
    }
    return sum;
}

} // namespace bench
