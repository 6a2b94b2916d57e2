#pragma once

#include "encoding/FlatItemText.h"
#include "encoding/FlatRecord.h"
#include "encoding/RecordFields.h"

/** Flat records from the same tables of rows that RecordFields.h has for JSON objects:
 *
 *      constexpr auto hole = std::make_tuple(field(key::edoId, &Hole::edoId), field(key::width, &Hole::width));
 *
 *      QString record = encoding::flatRecord(oneHole, hole);   // "edoId:12/width:900"
 *      encoding::readFlatRecord(record, hole, oneHole);
 *
 *  Items stand in the order of the rows, and how a field becomes text is told by ItemText. */
namespace encoding {

/** Appends one item; the colon is left out when the value is empty. */
template <typename T> void appendField(QString &record, QLatin1String key, const T &value)
{
    record.append(key);
    record.append(kValueStart);
    const int start = record.size();
    ItemText<T>::append(record, value);
    if (record.size() == start)
        record.chop(1);
    record.append(kItemEnd);
}

/** The text of one record after another, each without a "/" at its end, put together in one place: a text of its own would
 *  keep the room that it grew in. */
class FlatRecordWriter
{
public:
    FlatRecordWriter()
    {
        constexpr int usualSize = 256; // characters
        m_text.reserve(usualSize);
    }

    template <typename Record, typename Table> QString text(const Record &record, const Table &table)
    {
        m_text.resize(0);
        forEachField(table, [&](const auto &row) { appendField(m_text, row.key, record.*row.member); });
        cutLastSeparator(m_text);
        return QString(m_text.constData(), m_text.size());
    }

private:
    QString m_text;
};

template <typename Record, typename Table> QString flatRecord(const Record &record, const Table &table)
{
    return FlatRecordWriter().text(record, table);
}

/** Sets every field of the table. One that the text lacks is set to what the empty value reads as: 0, empty, null. */
template <typename Table, typename Record> void readFlatRecord(const QString &text, const Table &table, Record &record)
{
    const FlatItems items(text);
    forEachField(table, [&](const auto &row) {
        using Value = typename std::decay_t<decltype(row)>::Value;
        record.*row.member = ItemText<Value>::read(items.value(row.key));
    });
}

} // namespace encoding
