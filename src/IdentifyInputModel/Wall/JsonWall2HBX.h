#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>

class IHBXService;

/** Writes a reply of the identify service into the host: wall elements and their placed pieces.
 *
 *  The document of brick walls stands under "eBrickWall", "ElementsAndEdos", that of force walls under "eWall",
 *  "ElementsAndEdos" (see ORVCADWallBrickDataOutputModel and ORVCADWallForceDataOutputModel). An element whose name any
 *  element on its floor has already gets a unique name. A wall of another type, of an unknown region or floor, or that the
 *  host refuses, is passed over without a word with all its pieces, and so is a single piece; the others are placed. What
 *  was made stays. Between the brackets of batches.
 *  @return always false, also after complete success */
ORVCADMODELDATA_EXPORT bool jsonBrickWall2HBX(IHBXService *service, const QJsonObject &reply);
/** The same for force walls. */
ORVCADMODELDATA_EXPORT bool jsonForceWall2HBX(IHBXService *service, const QJsonObject &reply);
