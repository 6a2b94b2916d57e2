#pragma once

#include "ORVCADPlatformExport.h"

#include <QtGlobal>

class WLRBeamSpans;

/** The span sets that are stored in the current building. */
class ORVCADPLATFORM_EXPORT WLRBeamSpansRepository
{
public:
    /** The one of the process; never null. It follows the current building. */
    static WLRBeamSpansRepository *getInstance();

    /** The spans of the chain that holds a draw object, as a fresh set that the caller deletes. Null when none are stored,
     *  for an unknown id and without a building. */
    WLRBeamSpans *getBeamSpans(qint64 drawObjId) const;

private:
    WLRBeamSpansRepository() = default;
};
