#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CVec2.h"

class IHBXElement;

/** Insertion point of a column element within its section, mm, by "SectionTypeID":
 *
 *      0  from "SectionWidth", "SectionHeight" and the point in the text "SectionInfo" (see stringToParamPoly), in whole
 *         millimetres: the point less half the size; without a text (0, 0). Of an odd width or height half a millimetre is
 *         taken away as well, meant so: such a section is not centred on a whole number.
 *      2  "InsertPt"
 *      3  the point in "SectionInfo"
 *
 *  Everything else, null included, gives (0, 0), and so does a number that cannot be read. */
ORVCADMODELDATA_EXPORT vks::CVec2<double> getColumnEntInsertPt(IHBXElement *element);
