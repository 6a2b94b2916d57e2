#pragma once

#include "encoding/RecordFields.h"

#include <memory>

/** Further rows of RecordFields.h, for what the drawing-set records read another way than they write. */
namespace drawing {

/** A key that must be there when reading and whose value means nothing. */
template <typename Record> struct PresenceRow
{
    QLatin1String key;
    encoding::Flow flow = encoding::Flow::ReadOnly;

    template <typename Members> bool read(const Members &json, Record & /*record*/) const { return json.contains(key); }
    void write(const Record & /*record*/, QJsonObject & /*json*/) const {}
};

template <typename Record> constexpr auto keyRequired(QLatin1String key) { return PresenceRow<Record>{key}; }

/** As fieldRequired, by a kind other than the one that the type has by itself. */
template <typename Kind, typename Record, typename T>
constexpr auto fieldRequiredAs(QLatin1String key, T Record::*member, encoding::Flow flow = encoding::Flow::Both)
{
    return encoding::FieldRow<Kind, Record, T, encoding::detail::UseZero>{key, member, {}, flow, true};
}

/** Reads a record that is new.
 *  @return the record, which belongs to the caller; null when a required key is missing */
template <typename Record, typename Table>
Record *readOrNull(std::unique_ptr<Record> record, const Table &table, const QJsonObject &json)
{
    return encoding::readFields(json, table, *record) ? record.release() : nullptr;
}

/** Ids of drawing objects, written whole and read as 32-bit numbers: what does not fit there reads as 0. */
struct NarrowIds
{
    static QJsonValue toValue(const QList<qint64> &ids) { return encoding::ValueKind<QList<qint64>>::toValue(ids); }
    static QList<qint64> fromValue(const QJsonValue &json, const QList<qint64> & /*fallback*/)
    {
        QList<qint64> ids;
        const QJsonArray array = json.toArray();
        ids.reserve(array.size());
        for (const QJsonValue id : array)
            ids.append(id.toInt());
        return ids;
    }
};

} // namespace drawing
