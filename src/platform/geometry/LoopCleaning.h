#pragma once

#include "platform/geometry/CLoop.h"
#include "platform/geometry/RingWeld.h"

namespace vks {

/** Tolerances of cleaning. */
struct CleaningTolerance
{
    double distance; ///< mm
    double angle;    ///< rad
};

/** A loop with its vertices welded, without edges shorter than the distance tolerance, cut apart where it comes back to
 *  one of its vertices, neighbouring edges joined that go on in one line or on one circle, and without parts that have
 *  no area; the largest part first. Curves that need no change are copied as they are. A gap is closed by a line. */
ORVCADPLATFORM_EXPORT std::vector<CRefPtr<CLoop>> cleanedLoops(const CLoop &loop, RingWeld &weld,
                                                               const CleaningTolerance &tolerance);

} // namespace vks
