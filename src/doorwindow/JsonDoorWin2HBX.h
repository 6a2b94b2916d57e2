#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>

class IHBXElement;
class IHBXService;

/** Writes a reply of the identify service into the host: door and window elements, and their placed objects.
 *
 *  The reply holds an array under "eDoorWin", "ElementsAndEdos", read once in order; a member with "elementID" is an
 *  element, any other one a placed object (see ORVCADWinDoorElementStruct and ORVCADWinDoorEdoStruct). An element gets the
 *  fixed sub-type of its type. A placed object must stand behind its element; it is attached to the first wall whose box
 *  comes within 5 mm of its point in x and y, and stays unattached where there is none.
 *
 *  A member whose region, floor or element is unknown, or that the host refuses, is skipped without a word, and the walk
 *  goes on. Nothing is rolled back, and no batch is opened.
 *  @return always false, also after complete success */
ORVCADMODELDATA_EXPORT bool jsonDoorWin2HBX(IHBXService *service, const QJsonObject &reply);

/** The steps of writing openings that others take, too. */
namespace doorwindow {

/** Sub-type that an element of a type is made with: fixed for 4, 5 and 7, for others the one that the reply names. */
ORVCADMODELDATA_EXPORT qint64 openingSubType(qint64 elementType, qint64 namedSubType);

/** Sets "OpeningWidth" and "OpeningHeight", mm, of an element that has them. The inner divide of a combined door and window
 *  (type 6), "WinDoorWidth" and "WindDoorFloorHeight", moves to the middle of an opening that is not greater than it. */
ORVCADMODELDATA_EXPORT void setOpeningSize(IHBXElement &element, int width, int height);

/** To the nearest whole number, halves away from zero; meant: what is above 0.4 or below -0.4 is rounded, the rest is 0. */
ORVCADMODELDATA_EXPORT double roundHalf(double value);

} // namespace doorwindow
