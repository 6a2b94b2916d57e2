#pragma once

#include "ORVCADPlatformExport.h"

class IHBXElementDrawObj;
class WLRBeamSpans;

/** Where the spans of a beam come from. */
enum LoadBeamSpansSytle { // meant: the host spells it so
    kLoadStoredBeamSpans = 0,
    kCutBeamSpans = 1, ///< cut anew at the supports under the chain
    kLoadStoredOrCutBeamSpans = 2
};

/** Makes the span sets of beams.
 *
 *  A chain is cut at the columns, walls and foundations of its floor that it meets, and at deeper beams of its type; what
 *  comes within 5 mm counts as met. A span runs between the middles of two supports, and where the beam sticks out of the
 *  first or last one, from or to its free end. Supports that overlap under the chain are one. What the beam lies on for
 *  more than half of its length is no support that it spans from. Sections, offsets and bars are those of the chain. */
class ORVCADPLATFORM_EXPORT ORVBeamPlanService
{
public:
    /** The spans of the chain that holds a beam object, as a fresh set that the caller deletes. Null when there are none,
     *  for null, for an object that is in no chain, and for another style. */
    WLRBeamSpans *createBeamSpans(IHBXElementDrawObj *beam, LoadBeamSpansSytle style) const;
};
