#pragma once

#include "ORVCADModelDataExport.h"

#include <QStringView>

/** What the simplified text forms of geometry are made of: see docs/formats/geometry-text.md. */
namespace encoding {

/** True when the text is not empty and holds nothing but digits and - . e + , which is what the text of a line, a
 *  circle or an arc may hold. An upper-case E, a blank and a semicolon are refused. Says nothing of the order. */
ORVCADMODELDATA_EXPORT bool isCurveText(QStringView text);

/** The same with the semicolon: tells a polygon in simplified form from the kernel's own text. */
ORVCADMODELDATA_EXPORT bool isPolygonText(QStringView text);

} // namespace encoding
