#pragma once

#include "ORVCADPlatformExport.h"

#include <QPair>
#include <QString>

/** Element types by name, out of the table in HBXElementTypeTable.h. */
class ORVCADPLATFORM_EXPORT dwgxCommonUtil
{
public:
    /** First the type's key in drawing-analysis JSON ("etBeam"), second its name in this system's JSON ("梁"); both empty
     *  for an unknown type. */
    static QPair<QString, QString> getElementTypeName(int type);
    /** The number of the type of exactly that name in this system's JSON; -1 for any other text. */
    static int getElementTypeByName(const QString &name);
};

/** Whether a CAD layer is of an element type: its name then holds one of the type's layer words, case ignored. A layer
 *  can be of several types.
 *  @return the layer's name as given and the type's colour, 0xRRGGBB; an empty name and 0 for a layer that is not of the
 *          type, and for an unknown type */
ORVCADPLATFORM_EXPORT QPair<QString, int> getCADLayerInfo(int type, const QString &layerName);
