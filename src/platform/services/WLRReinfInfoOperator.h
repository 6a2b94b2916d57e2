#pragma once

#include "ORVCADPlatformExport.h"

class IHBXElementDrawObj;
class IHBXService;

/** Links between bars and the slabs that they lie in, which each side keeps in its property "ReinforcementInfo": the text
 *  "<id>,<kind>;" for each object of the other side.
 *
 *  An id that stands in the text already is not added again. Null objects, and those without the property, change
 *  nothing. */
class ORVCADPLATFORM_EXPORT WLRReinfInfoOperator
{
public:
    /** @param service  the host of the objects, not owned; may be null */
    explicit WLRReinfInfoOperator(IHBXService *service);

    /** Writes the slab down at the bar. */
    void addReinfInfo2Reinf(IHBXElementDrawObj *bar, IHBXElementDrawObj *slab, int kind);
    /** Writes the bar down at the slab. */
    void addReinfInfo2Slab(IHBXElementDrawObj *slab, IHBXElementDrawObj *bar, int kind);
};
