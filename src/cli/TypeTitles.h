#pragma once

#include <QString>

namespace orvcad {

/** English title of an element type, for summaries and legends: "brick wall"; "type" for an unknown one. */
QString typeTitle(qint64 type);

} // namespace orvcad
