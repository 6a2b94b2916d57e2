#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CBox2.h"
#include "platform/geometry/CRefObject.h"
#include "platform/geometry/CRefPtr.h"
#include "platform/geometry/CVec2.h"

#include <string>

/** The plane geometry kernel (docs/kernel.md): mm and rad, angles counter-clockwise. */
namespace vks {

/** Curve, loop or polygon in the plan, in millimetres. */
class ORVCADPLATFORM_EXPORT CGeometry : public CRefObject
{
public:
    /** Least box that holds the geometry, exact for arcs; empty for an empty geometry. */
    virtual CBox2<double> Box() const = 0;

    /** Moves in place, mm. */
    virtual void Translate(const CVec2<double> &move) = 0;
    /** Turns counter-clockwise about a point, rad. */
    virtual void Rotate(const CVec2<double> &centre, double angle) = 0;
    /** Mirrors at the y axis: x becomes -x. Curves keep their order of travel, so left becomes right. */
    virtual void MirrorX() = 0;

    /** Well-known text of the geometry with the fewest digits that read back exactly:
     *  `LINESTRING(x y, x y)`, `CIRCULARSTRING(start, middle, end)`, `POLYGON(...)`, `CURVEPOLYGON(...)`. */
    std::string ToText() const;
    /** ToText as a zero-ended buffer from `malloc`, which the caller gives back with `free`. */
    char *AsString() const;

    /** The curve (CCurve2d) or polygon (CPolygon) of a text in the form of ToText, null for any other text:
     *  bad syntax, numbers that are not finite, a curve of more than one piece, an unknown kind. Null text gives null.
     *  Nothing checks the geometry itself: a line of no length or an open ring is built as it stands. */
    static CRefPtr<CGeometry> LoadFromStr(const char *text);

protected:
    /** Appends the text form. */
    virtual void writeText(std::string &text) const = 0;
};

} // namespace vks
