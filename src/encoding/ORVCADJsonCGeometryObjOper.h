#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <QString>

#include <memory>
#include <vector>

/** Turns points, curves and polygons into the short texts that stand for them in JSON and XML values, and back.
 *
 *  The forms, all of numbers with six significant digits: a point "x,y"; a list of points "x,y;x,y;"; a line
 *  "x,y,x,y"; a circle "x,y,radius"; an arc "x,y,bulge,x,y"; a polygon "x,y;x,y,bulge;" by the starts of its edges.
 *  All lengths are in millimetres. docs/formats/geometry-text.md tells them in full.
 *
 *  Bad text is told by a false result, a null pointer or an empty value, never by an exception. What is written does
 *  not read back bit for bit, because of the six digits. Objects of this class have no state to be seen. */
class ORVCADMODELDATA_EXPORT ORVCADJsonCGeometryObjOper
{
public:
    /** Each object does the same. */
    ORVCADJsonCGeometryObjOper();
    ~ORVCADJsonCGeometryObjOper();
    ORVCADJsonCGeometryObjOper(const ORVCADJsonCGeometryObjOper &) = delete;
    ORVCADJsonCGeometryObjOper &operator=(const ORVCADJsonCGeometryObjOper &) = delete;

    /** Line, Circle or Arc of a text; null when the text is bad. Zero radius and zero length are built as told. */
    vks::CRefPtr<vks::CCurve2d> getCurveInfo(const QString &text) const;
    /** Text of a curve; empty for null. */
    QString getCurveInfo(vks::CCurve2d *curve) const;
    /** The same; false for null, which leaves the text as it was. */
    bool getCurveInfo(vks::CCurve2d *curve, QString &text) const;

    /** Polygon of a text in any form; null only when none can be built. A polygon that is built and not valid is given
     *  all the same, and nothing tells so. */
    vks::CRefPtr<vks::CPolygon> getPolyInfo(const QString &text) const;
    /** Text of a polygon; empty for null. */
    QString getPolyInfo(vks::CPolygon *polygon) const;
    /** The same; false for null. The text is emptied first. */
    bool getPolyInfo(vks::CPolygon *polygon, QString &text) const;

    /** Point of a text; (0, 0) when it is bad. White space around the numbers passes, unlike in curves. */
    vks::CVec2<double> getVector2dInfo(const QString &text) const;
    /** Text of a point, "x,y". */
    QString getVector2dInfo(const vks::CVec2<double> &point) const;
    /** Always true. */
    bool getVector2dInfo(const vks::CVec2<double> &point, QString &text) const;
    /** False when the text is bad, which leaves the point as it was. */
    bool getVector2dInfo(const QString &text, vks::CVec2<double> &point) const;

    /** Points of a text; none when one of them is bad. The last semicolon may be missing. */
    std::vector<vks::CVec2<double>> getVector2dsInfo(const QString &text) const;
    /** Text of points, "x,y;" for each; empty for none. */
    QString getVector2dsInfo(const std::vector<vks::CVec2<double>> &points) const;
    /** Empties the text first. @return whether there was a point to write */
    bool getVector2dsInfo(const std::vector<vks::CVec2<double>> &points, QString &text) const;
    /** Appends to the points, which are not emptied first; a bad item empties them all and gives false.
     *  @return otherwise whether there is any point, old ones included */
    bool getVector2dsInfo(const QString &text, std::vector<vks::CVec2<double>> &points) const;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};
