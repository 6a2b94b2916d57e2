// The XML archive: elements of short names and of wall documents read as a record, a list and a map, and written again.

#include "encoding/ORVCADXmlFileSerialization.h"
#include "support/ArchiveCopy.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QStringList keys{"a", "b", "CadLineEdoDataInfo", "DWGXBaseOptions", "BrickWallIdentifyData"};
    ORVCADXmlFileSerialization archive(fuzz::textOf(data, size));
    if (!archive.parse())
        return 0;
    ORVCADXmlFileSerialization copy{QString()};
    fuzz::copyArchive(archive, copy, keys);
    return 0;
}
