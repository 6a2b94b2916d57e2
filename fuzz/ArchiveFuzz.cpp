// Packed drawings: whatever the archive says, nothing is written outside the folder.

#include "platform/services/HBCZipFile.h"
#include "support/FuzzFile.h"

#include <QFileInfo>

namespace {

bool isEmpty(const QString &folder)
{
    return QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const fuzz::FuzzFile file(QStringLiteral("fuzzed.wzd"), fuzz::bytesOf(data, size));
    const QString folder = file.subfolder(QStringLiteral("unpacked"));
    if (!HBCZipFile::extractFiles(file.path(), folder))
        fuzz::require(isEmpty(folder), "what failed leaves nothing");
    HBCZipFile::uncompressFile(file.path(), QStringLiteral("drawing.cadi2"), file.beside(QStringLiteral("one.cadi2")));
    const QStringList there =
        QFileInfo(file.path()).dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString &name : there)
        fuzz::require(name == "fuzzed.wzd" || name == "unpacked" || name == "one.cadi2", "nothing lands outside");
    return 0;
}
