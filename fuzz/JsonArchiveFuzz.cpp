// The JSON archive: every key of a document read as a record, a list and a map, and written again.

#include "encoding/ORVCADJsonFileSerialization.h"
#include "support/ArchiveCopy.h"
#include "support/FuzzInput.h"
#include "support/QtJsonLeaks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const fuzz::QtJsonLeaks leaks(fuzz::bytesOf(data, size));
    ORVCADJsonFileSerialization archive(fuzz::textOf(data, size));
    if (!archive.parse())
        return 0;
    ORVCADJsonFileSerialization copy{QString()};
    fuzz::copyArchive(archive, copy, fuzz::objectOf(data, size).keys() << QString());
    return 0;
}
