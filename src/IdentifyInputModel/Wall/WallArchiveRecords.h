#pragma once

#include "encoding/FlatRecordFields.h"
#include "encoding/ORVCADFileSerialization.h"

#include <QMap>
#include <QStringList>

#include <list>

/** Typed records into and out of an archive, by their tables. */
namespace wall {

template <typename Record, typename Table> QStringList flatRecords(const std::list<Record> &records, const Table &table)
{
    QStringList texts;
    texts.reserve(static_cast<int>(records.size()));
    encoding::FlatRecordWriter writer;
    for (const Record &record : records)
        texts.append(writer.text(record, table));
    return texts;
}

template <typename Record, typename Table>
void appendRecords(const QStringList &texts, const Table &table, std::list<Record> &records)
{
    for (const QString &text : texts)
        encoding::readFlatRecord(text, table, records.emplace_back());
}

template <typename Record, typename Table>
void writeList(ORVCADFileSerialization &archive, QLatin1String key, const std::list<Record> &records,
               const Table &table)
{
    archive.writeRecordList(key, flatRecords(records, table));
}

/** Appends. */
template <typename Record, typename Table>
void readList(ORVCADFileSerialization &archive, QLatin1String key, std::list<Record> &records, const Table &table)
{
    QStringList texts;
    archive.readRecordList(key, texts);
    appendRecords(texts, table, records);
}

} // namespace wall
