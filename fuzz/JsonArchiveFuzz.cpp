// The JSON archive: every key of a document read as a record, a list and a map.

#include "encoding/ORVCADJsonFileSerialization.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = fuzz::textOf(data, size);
    ORVCADJsonFileSerialization archive(text);
    if (!archive.parse())
        return 0;
    QStringList keys = fuzz::objectOf(data, size).keys();
    keys.append(QString());
    ORVCADJsonFileSerialization copy{QString()};
    for (const QString &key : keys) {
        QString record;
        QStringList list;
        QMap<QString, QStringList> map;
        archive.readRecord(key, record);
        archive.readRecordList(key, list);
        archive.readRecordMap(key, map);
        copy.writeRecord(key, record);
        copy.writeRecordList(key, list);
        copy.writeRecordMap(key, map);
    }
    copy.save(QString());
    return 0;
}
