#pragma once

#include <QString>

namespace orvcad {

// What a stream shows to people. Files and pipes, and terminals that call themselves dumb, get plain text.

/** A terminal that goes back in its line. */
bool isTerminal(int stream);
/** One that shows colours, to users who have not asked for none (NO_COLOR). */
bool showsColours(int stream);

/** A message for a stream: "orvcad:" in red and "left out:" in yellow at the beginning of a line, where that shows. */
QString painted(const QString &text, int stream);

} // namespace orvcad
