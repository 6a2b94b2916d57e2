#pragma once

#include <QString>

namespace orvcad {

/** One step of the tour. */
struct TourStep
{
    QString typed; ///< the command, as one would type it
    QString outcome;
};

} // namespace orvcad
