#pragma once

#include "cli/JsonFault.h"

#include <QByteArray>

#include <optional>

namespace orvcad {

/** The first fault of a JSON text, its place told as line and column. The library's own reader accepts texts that are no JSON, keeps the last of two members
 *  of one name, and rounds whole numbers beyond 2^53: whoever wrote such a document did not mean what would be read. So a
 *  text is read once more here, by the letter of the standard:
 *    - syntax, numbers, escapes, control characters and UTF-8 are as JSON has them,
 *    - an object has each member once,
 *    - a number is finite, and a whole one is kept to its last digit.
 *  A byte order mark at the start is allowed. Nesting is followed to any depth without recursion. */
std::optional<JsonFault> firstTextFault(const QByteArray &text);

} // namespace orvcad
