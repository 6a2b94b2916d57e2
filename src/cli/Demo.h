#pragma once

#include "cli/Command.h"

namespace orvcad {

/** The tour: a real building is imported, its floors are written and read, its doors and windows and the beams, slabs and
 *  brick walls of a floor are written out, taken as replies into a copy of the building that has lost them, and drawn before
 *  and after; so are the load-bearing walls of another building, whose drawing set and columns are read. Everything made stands in the directory; what the tour
 *  compares is compared, and a difference ends it with exit code 3. */
Summary runDemo(const QString &directory);

} // namespace orvcad
