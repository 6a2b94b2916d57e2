#pragma once

#include <QString>

#include <limits>

namespace load {

/** How JSON is laid out: without a blank, or with the line breaks and indents that the library writes. */
enum class Layout { Compact, Indented };

/** A text that is one entry over and over, between a start and an end. */
struct EntryText
{
    static constexpr qint64 kAnyCount = std::numeric_limits<qint64>::max();

    const char *start;
    const char *entry; ///< "#" is its number, from 0 on; compact
    const char *end;
    const char *between = ",";

    /** Writes a file of so many entries, or of as many as it takes to have so many bytes. @return the number of entries */
    qint64 write(const QString &path, qint64 bytes, qint64 entries = kAnyCount, Layout layout = Layout::Compact) const;
};

} // namespace load
