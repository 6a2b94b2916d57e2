#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

/** Splits the text of a parametric section into its parts, as they stand between the semicolons:
 *
 *      100*9;100*7             grid of 9 times 100 mm along x and 7 times 100 mm along y
 *      100*9;100*7;400,300     the same, with the insertion point x,y in mm
 *
 *  Nothing is tested and nothing converted: the caller does both with the part that it needs. What stands behind a third
 *  semicolon is left out.
 *  @param xGrid        set to the first part; empty for an empty text
 *  @param kind         the caller's number of the kind of section; the text says nothing of it, so it stays as it is
 *  @param yGrid        set to the second part, empty without one
 *  @param insertPoint  set to the third part, empty without one */
ORVCADPLATFORM_EXPORT void stringToParamPoly(const QString &text, QString &xGrid, int &kind, QString &yGrid,
                                             QString &insertPoint);
