#pragma once

#include "ORVCADPlatformExport.h"

/** Which drawing rule of reinforcement the current building goes by. */
class ORVCADPLATFORM_EXPORT ORVplaneRule
{
public:
    /** The one of the process; never null. It is asked anew each time, so it follows the current building. */
    static ORVplaneRule *getInstance();

    /** True when the rule is "11G" or "16G"; false for any other and without a building. */
    bool is11gor16gPlaneRule() const;

private:
    ORVplaneRule() = default;
};
