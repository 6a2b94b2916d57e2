// The XML archive: the elements that wall documents have, read as a record, a list and a map.

#include "encoding/ORVCADXmlFileSerialization.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    ORVCADXmlFileSerialization archive(fuzz::textOf(data, size));
    if (!archive.parse())
        return 0;
    ORVCADXmlFileSerialization copy{QString()};
    for (const char *name : {"a", "b", "CadLineEdoDataInfo", "DWGXBaseOptions", "BrickWallIdentifyData"}) {
        const QString key = QString::fromLatin1(name);
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
