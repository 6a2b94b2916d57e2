#pragma once

#include "ORVCADPlatformExport.h"

class IWLRBeamSpan;

/** The spans of a beam chain, from its head on. A copy of what the host has: it belongs to whoever asked for it. */
class ORVCADPLATFORM_EXPORT WLRBeamSpans
{
public:
    virtual ~WLRBeamSpans();

    /** Number of spans. */
    virtual int count() const = 0;
    /** Belongs to the set; null for a position out of range. */
    virtual IWLRBeamSpan *span(int position) = 0;
};
