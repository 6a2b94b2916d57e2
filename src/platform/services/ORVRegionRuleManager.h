#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/HBXMaterial.h"

/** Rules of the current building's regions. */
class ORVCADPLATFORM_EXPORT ORVRegionRuleManager
{
public:
    /** The one of the process; never null. It is asked anew each time, so it follows the current building. */
    static ORVRegionRuleManager *getInstance();

    /** The material of that number; null for a number that the building has no material of, and without a building. It
     *  belongs to the building and holds until its materials change. */
    const HBXMaterial *findMaterial(int number) const;

private:
    ORVRegionRuleManager() = default;
};
