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
    /** Bound of peak memory to the bytes of the document; 0: the figure is told alone. A reader has the bytes, what the
     *  parser makes of them, and the records. */
    double memory = 8.0;
};

/** All families of records. */
const std::vector<RecordDocument> &recordDocuments();

} // namespace load
