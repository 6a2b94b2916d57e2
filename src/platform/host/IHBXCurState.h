#pragma once

#include "ORVCADPlatformExport.h"

class IHBXFloor;
class IHBXRegion;

/** What the user has selected. */
class ORVCADPLATFORM_EXPORT IHBXCurState
{
public:
    virtual ~IHBXCurState() = default;

    /** The current region and floor; null when none is selected. */
    virtual IHBXRegion *region() = 0;
    /** A floor of that region; null when none is selected. */
    virtual IHBXFloor *floor() = 0;
    /** Current layer for a draw object; the argument picks a kind of layer, -1 any. */
    virtual int currentLayer(int kind) = 0;
    /** Layer of the current state for new draw objects. */
    virtual int layer() = 0;
};
