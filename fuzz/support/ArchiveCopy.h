#pragma once

#include "encoding/ORVCADFileSerialization.h"

namespace fuzz {

/** Takes what an archive holds under some keys over into a new one, each as a record, a list and a map. */
inline void copyArchive(ORVCADFileSerialization &from, ORVCADFileSerialization &into, const QStringList &keys)
{
    for (const QString &key : keys) {
        QString record;
        QStringList list;
        QMap<QString, QStringList> map;
        from.readRecord(key, record);
        from.readRecordList(key, list);
        from.readRecordMap(key, map);
        into.writeRecord(key, record);
        into.writeRecordList(key, list);
        into.writeRecordMap(key, map);
    }
    into.save(QString());
}

} // namespace fuzz
