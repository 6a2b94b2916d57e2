#pragma once

#include <QJsonValue>
#include <QString>

namespace orvcad {

/** What the reader of a record takes under a key; everything else reads as 0, false or empty. */
enum class Expected { Text, Integer, Number, Truth, Id };

/** A row of a table of a record's keys. */
struct KeyKind
{
    QLatin1String key;
    Expected kind;
    bool isRequired = false;
};

bool fits(const QJsonValue &value, Expected kind);
/** The kind in words, to stand behind "is not". */
QString wordFor(Expected kind);

} // namespace orvcad
