#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CGeometry.h"

#include <string>
#include <vector>

namespace vks {

class CLoop;

/** Well-known text of curves and polygons. Numbers have the fewest digits that read back exactly, whatever the locale;
 *  a zero has no sign, so that equal points give equal text.
 *
 *  A ring of lines is written as its corners, each edge's start and the end of the last one. Where an edge does not start
 *  exactly where the one before ends, the gap is written, and so reads back, as one more line. Empty loops are left out. */
class ORVCADPLATFORM_EXPORT GeometryText
{
public:
    /** LINESTRING(start, end). */
    static void appendLine(std::string &text, const CVec2<double> &start, const CVec2<double> &end);
    /** CIRCULARSTRING(start, middle, end). */
    static void appendArc(std::string &text, const CVec2<double> &start, const CVec2<double> &middle,
                          const CVec2<double> &end);
    /** POLYGON(...) for straight edges, CURVEPOLYGON(...) when there is an arc, POLYGON EMPTY without loops. */
    static void appendPolygon(std::string &text, const std::vector<CRefPtr<CLoop>> &loops);

    /** The curve or polygon of a text of this form; null for null and for any other text. */
    static CRefPtr<CGeometry> read(const char *text);
};

} // namespace vks
