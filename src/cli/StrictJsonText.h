#pragma once

#include "cli/JsonFault.h"

#include <QByteArray>

#include <optional>
#include <string>

namespace orvcad {

/** What becomes of a whole number beyond 2^53 that a double does not hold. */
enum class LargeNumbers {
    Refused,
    Taken ///< for verbs that tell themselves how it is read and written
};

/** The first fault of a JSON text, its place told as line and column. The library's own reader accepts texts that are no
 *  JSON, keeps the last of two members of one name, and rounds whole numbers beyond 2^53: whoever wrote such a document
 *  did not mean what would be read. So a text is read once more here, by the letter of the standard:
 *    - syntax, numbers, escapes, control characters and UTF-8 are as JSON has them,
 *    - an object has each member once,
 *    - a number is finite, and a whole one is kept to its last digit, unless large ones are taken.
 *  A byte order mark at the start is allowed. Nesting is followed to any depth without recursion. */
std::optional<JsonFault> firstTextFault(const QByteArray &text, LargeNumbers large = LargeNumbers::Refused);

/** Why a number is not read as it stands; empty for one that is. The text is a number as JSON has them. */
QString whyNumberIsLost(const std::string &number, LargeNumbers large);

} // namespace orvcad
