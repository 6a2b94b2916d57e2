#pragma once

#include "ORVCADPlatformExport.h"

class IHBXCurState;
class IHBXElementDrawObj;

/** Finds what a slab hole is cut into. A helper for one hole; it changes nothing. */
class ORVCADPLATFORM_EXPORT ORVFindSlabHoleParentUtils
{
public:
    /** @param state  gives the floor of a hole that tells none; may be null
     *  @param hole   need not be entered; null has no parent */
    ORVFindSlabHoleParentUtils(IHBXCurState *state, IHBXElementDrawObj *hole);

    /** The slab (19), else the raft (48), on the hole's floor whose outer loop holds the insertion point or runs through
     *  it: the smallest by area, the first of equals. Null when there is none. */
    IHBXElementDrawObj *getSlabHoleParent() const;

private:
    IHBXCurState *m_state;
    IHBXElementDrawObj *m_hole;
};
