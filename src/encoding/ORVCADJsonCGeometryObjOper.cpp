#include "encoding/ORVCADJsonCGeometryObjOper.h"

#include "encoding/GeometryInfo.h"
#include "encoding/GeometryTextReader.h"
#include "encoding/PointText.h"

/** Without fields: it carries the reading routines. */
class ORVCADJsonCGeometryObjOper::Private : public GeometryTextReader
{};

ORVCADJsonCGeometryObjOper::ORVCADJsonCGeometryObjOper() : m_private(std::make_unique<Private>()) {}

ORVCADJsonCGeometryObjOper::~ORVCADJsonCGeometryObjOper() = default;

vks::CRefPtr<vks::CCurve2d> ORVCADJsonCGeometryObjOper::getCurveInfo(const QString &text) const
{
    return Private::curveOf(text);
}

QString ORVCADJsonCGeometryObjOper::getCurveInfo(vks::CCurve2d *curve) const { return ::getCurveInfo(curve); }

bool ORVCADJsonCGeometryObjOper::getCurveInfo(vks::CCurve2d *curve, QString &text) const
{
    if (!curve)
        return false;
    text = ::getCurveInfo(curve);
    return true;
}

vks::CRefPtr<vks::CPolygon> ORVCADJsonCGeometryObjOper::getPolyInfo(const QString &text) const
{
    return Private::polygonOf(text);
}

QString ORVCADJsonCGeometryObjOper::getPolyInfo(vks::CPolygon *polygon) const { return ::getPolyInfo(polygon); }

bool ORVCADJsonCGeometryObjOper::getPolyInfo(vks::CPolygon *polygon, QString &text) const
{
    text = ::getPolyInfo(polygon);
    return polygon != nullptr;
}

vks::CVec2<double> ORVCADJsonCGeometryObjOper::getVector2dInfo(const QString &text) const
{
    return encoding::pointOf(text);
}

QString ORVCADJsonCGeometryObjOper::getVector2dInfo(const vks::CVec2<double> &point) const
{
    return encoding::pointText(point);
}

bool ORVCADJsonCGeometryObjOper::getVector2dInfo(const vks::CVec2<double> &point, QString &text) const
{
    text = getVector2dInfo(point);
    return true;
}

bool ORVCADJsonCGeometryObjOper::getVector2dInfo(const QString &text, vks::CVec2<double> &point) const
{
    return encoding::readPoint(text, point);
}

std::vector<vks::CVec2<double>> ORVCADJsonCGeometryObjOper::getVector2dsInfo(const QString &text) const
{
    std::vector<vks::CVec2<double>> points;
    getVector2dsInfo(text, points);
    return points;
}

QString ORVCADJsonCGeometryObjOper::getVector2dsInfo(const std::vector<vks::CVec2<double>> &points) const
{
    QString text;
    getVector2dsInfo(points, text);
    return text;
}

bool ORVCADJsonCGeometryObjOper::getVector2dsInfo(const std::vector<vks::CVec2<double>> &points, QString &text) const
{
    text.clear();
    encoding::appendPoints(text, points);
    return !text.isEmpty();
}

bool ORVCADJsonCGeometryObjOper::getVector2dsInfo(const QString &text, std::vector<vks::CVec2<double>> &points) const
{
    return encoding::readPoints(text, points);
}
