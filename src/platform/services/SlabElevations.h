#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

class IHBXElementDrawObj;

/** @file
 *  Elevations of slabs and of the bars in them, mm above the building's zero. */

/** An elevation property of a slab, such as "TopElev"; 0.0 for null and for a name that it lacks. */
ORVCADPLATFORM_EXPORT double getSlabElev(IHBXElementDrawObj *slab, const QString &property);

/** The elevation of a negative bar: "TopElev" of the slab (19) or raft (48) on its floor that "DependSlabID" names; 0.0 for
 *  null and when there is none. */
ORVCADPLATFORM_EXPORT double getNegReinfElev(IHBXElementDrawObj *bar);
