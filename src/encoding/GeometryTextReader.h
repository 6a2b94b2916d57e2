#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

/** Readers of curves and polygons in their text forms: see docs/formats/geometry-text.md.
 *
 *  Each routine tells by its result whether the text could be read, and lets go of what the output held before it looks
 *  at the text, so that after a failure the output is null. The one exception: a polygon that could be built and is not
 *  valid (all checks) gives false and stays in the output. Nothing checks the geometry of a curve.
 *  The class has no state; others carry its routines under names of their own. */
class ORVCADMODELDATA_EXPORT GeometryTextReader
{
public:
    using Curve = vks::CRefPtr<vks::CCurve2d>;   ///< of a line, circle or arc; null for bad text
    using Polygon = vks::CRefPtr<vks::CPolygon>; ///< of a text in any form

    /** One vertex of a polygon text: where an edge starts, mm, and how it goes on to the next vertex. */
    struct Vertex
    {
        double x = 0.0;     ///< mm
        double y = 0.0;     ///< mm
        double bulge = 0.0; ///< tangent of a quarter of the swept angle, above 0 counter-clockwise; 0 is straight
        bool isArc = false; ///< a third number was there, also when it is 0
    };

    /** Line, Circle or Arc text; the number of parts between commas (4, 3, 5) tells which. */
    static bool reconstructCurve(QStringView text, Curve &curve);
    /** The same for a text that owns its characters. */
    static bool reconstructCurve(const QString &text, Curve &curve)
    {
        return reconstructCurve(QStringView(text), curve);
    }
    /** The five parts of an arc: start, bulge, end. Another number of parts fails, here and below. */
    static bool reconstructCurve_Arc(const QStringList &parts, Curve &curve);
    /** The three parts of a circle: centre, radius. */
    static bool reconstructCurve_Circle(const QStringList &parts, Curve &curve);
    /** The four parts of a line: start, end. */
    static bool reconstructCurve_Line(const QStringList &parts, Curve &curve);
    /** Converts the parts from the last to the first and ends with false at the first that is no number; the numbers
     *  behind it are set then, those before it are not. An empty part is no number.
     *  @param numbers  place for as many numbers as there are parts */
    static bool reconstructCurve_StringToDouble(const QStringList &parts, double *numbers);

    /** Any polygon form. A text of digits, signs, commas and semicolons is a simplified one; every other text is given
     *  to the kernel. */
    static bool reconstructPoly(const QString &text, Polygon &polygon);
    /** Text of a single curve; only a closed one is a polygon. */
    static bool reconstructPoly_Simplified_NoSemicolon(const QString &text, Polygon &polygon);
    /** Vertices in loop order, each ended by a semicolon. */
    static bool reconstructPoly_Simplified_Normal(const QString &text, Polygon &polygon);
    /** The vertices of a text, two at least, of two or three numbers each. What follows the last semicolon is dropped,
     *  whatever it holds. The list is emptied first, and is empty after a failure. */
    static bool reconstructPoly_Simplified_Normal_StringToDouble(const QString &text, std::vector<Vertex> &vertices);
    /** The kernel's own text. */
    static bool reconstructPoly_WithAsString(const QString &text, Polygon &polygon);

    /** What reconstructCurve makes of a text; null when it is bad. */
    static Curve curveOf(QStringView text);
    /** What reconstructPoly makes of a text; null only when nothing can be built. A polygon that is built and not valid
     *  is given all the same, and nothing tells so. */
    static Polygon polygonOf(const QString &text);
};
