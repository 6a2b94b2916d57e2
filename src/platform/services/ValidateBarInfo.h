#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

/** Kinds of bars that a text can be told for. The host has more; any number is taken. */
enum TBarInfoType : int { kSlabBarInfo = 67 };

/** Whether a text tells bars of a kind: C12@150, 2C25+2C22, C8@100/200, 4C20/2.
 *
 *  It is one or more groups joined by "+". A group is an optional count, a grade letter A to G, a diameter in mm, and then
 *  each of these or not: "@" and a spacing in mm, "/" and a second spacing or a row. Numbers are above zero and plain; a
 *  diameter may have a fraction. Case does not matter, blanks are not allowed. All kinds are told alike. */
ORVCADPLATFORM_EXPORT bool ValidateBarInfo(TBarInfoType type, const QString &text);
