#pragma once

#include <QList>

/** Search in lists of pointers, which callers can reach and may have put null into: null is never found. */
namespace drawing {

/** Index of the first record that the condition holds for, or of the end. */
template <typename Record, typename Condition>
int indexOfFirst(const QList<Record *> &records, Condition holds, int from = 0)
{
    int index = from;
    while (index < records.size() && !(records.at(index) && holds(*records.at(index))))
        ++index;
    return index;
}

/** The first record that the condition holds for, else null. */
template <typename Record, typename Condition> Record *firstRecord(const QList<Record *> &records, Condition holds)
{
    return records.value(indexOfFirst(records, holds), nullptr);
}

} // namespace drawing
