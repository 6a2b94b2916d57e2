#pragma once

#include "load/EntryText.h"

#include <QString>

#include <vector>

namespace load {

/** A kind of document that is a list of records: how it is written in any size, and how the library reads it. */
struct RecordDocument
{
    const char *name;
    EntryText text;
    /** Reads a file of these. All records stay in memory until they are counted. JSON is read as the command line reads it,
     *  which includes its strict look. */
    qint64 (*count)(const QString &path);
    bool isHeld = true; ///< to the bound of memory; of the others the figure is told alone
};

/** All families of records. */
const std::vector<RecordDocument> &recordDocuments();

} // namespace load
