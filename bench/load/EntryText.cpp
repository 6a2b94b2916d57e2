#include "load/EntryText.h"

#include "load/TextFile.h"

namespace load {

namespace {

void writeEntry(TextFile &file, std::string_view entry, qint64 number)
{
    for (auto at = entry.find('#'); at != std::string_view::npos; at = entry.find('#')) {
        file << entry.substr(0, at) << number;
        entry.remove_prefix(at + 1);
    }
    file << entry;
}

} // namespace

qint64 EntryText::write(const QString &path, qint64 bytes, qint64 entries) const
{
    TextFile file(path);
    file << start;
    qint64 number = 0;
    for (; number < entries && file.size() < bytes; ++number) {
        if (number > 0)
            file << between;
        writeEntry(file, entry, number);
    }
    file << end;
    return number;
}

} // namespace load
