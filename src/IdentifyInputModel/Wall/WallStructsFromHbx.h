#pragma once

#include "IdentifyInputModel/Wall/IdentifyResultData.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "ORVCADModelDataExport.h"

#include <string>

class IHBXElement;
class IHBXElementDrawObj;

/** @file
 *  Walls that stand in the host, in the form in which the identification tells of the ones it found. */

/** Everything but the material is told as a reply has it: the material stays a number. Bars are read from
 *  "VertDistributionBar" and "HoriDistributionBar", which replies are written to; a bar whose property the element lacks
 *  stays as it was. The sub-types 314 and 315 become 316. Null changes nothing. */
ORVCADMODELDATA_EXPORT void loadORVCADCloudEntBrickWallStructFromHbx(IHBXElement *element,
                                                                     ORVCADCloudEntBrickWallStruct *wall);

/** The same for load-bearing walls, with "TieBar" besides. The sub-types 8 and 9 become 7. */
ORVCADMODELDATA_EXPORT void loadORVCADCloudEntForceWallStructFromHbx(IHBXElement *element,
                                                                     ORVCADCloudEntForceWallStruct *wall);

/** A placed wall: centre line in the world, the four elevations as the host has them, region and floor. Outline, text and
 *  segments stay as they were.
 *  @param width  mm; with the name it goes into the result as it is
 *  @return false for an object that has no line solid or no properties; only width and name are set then. False, and
 *          nothing set, without a result */
ORVCADMODELDATA_EXPORT bool loadORVCADWallEdoIdentifyResStructFromHbx(double width, const std::wstring &name,
                                                                      IHBXElementDrawObj *object,
                                                                      IdentifyResultData *result);
