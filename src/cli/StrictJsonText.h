#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace orvcad {

/** Something in a JSON text that the library's reader would pass over or change without a word. */
struct JsonTextFault
{
    int line = 1;   ///< counted from 1
    int column = 1; ///< counted from 1, in characters
    QString reason;

    /** "line 3, column 14". */
    QString place() const;
};

/** The first fault of a JSON text. The library's own reader accepts texts that are no JSON, keeps the last of two members
 *  of one name, and rounds whole numbers beyond 2^53: whoever wrote such a document did not mean what would be read. So a
 *  text is read once more here, by the letter of the standard:
 *    - syntax, numbers, escapes, control characters and UTF-8 are as JSON has them,
 *    - an object has each member once,
 *    - a number is finite, and a whole one is kept to its last digit.
 *  A byte order mark at the start is allowed. Nesting is followed to any depth without recursion. */
std::optional<JsonTextFault> firstTextFault(const QByteArray &text);

} // namespace orvcad
