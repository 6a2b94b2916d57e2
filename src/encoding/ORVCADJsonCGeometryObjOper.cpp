#include "encoding/ORVCADJsonCGeometryObjOper.h"

#include "encoding/GeometryInfo.h"
#include "encoding/GeometryTextReader.h"
#include "encoding/NumberText.h"

#include <QStringView>

#include <algorithm>

/** Without fields: it carries the reading routines. */
class ORVCADJsonCGeometryObjOper::Private : public GeometryTextReader
{};

namespace {

using Point = vks::CVec2<double>;

void appendPoint(QString &text, const Point &point)
{
    encoding::appendNumber(text, point.x);
    text.append(u',');
    encoding::appendNumber(text, point.y);
}

bool readPoint(QStringView text, Point &point)
{
    const QChar *const comma = std::find(text.begin(), text.end(), u',');
    if (comma == text.end())
        return false;
    bool xIsNumber = false;
    bool yIsNumber = false; // not with a second comma either
    const Point read(encoding::readNumber(QStringView(text.begin(), comma), &xIsNumber),
                     encoding::readNumber(QStringView(comma + 1, text.end()), &yIsNumber));
    if (!xIsNumber || !yIsNumber)
        return false;
    point = read;
    return true;
}

/** The text of a list without what follows its last semicolon, if that is blank. */
QStringView withoutBlankEnd(QStringView text)
{
    const auto semicolon = text.lastIndexOf(u';');
    return text.mid(semicolon + 1).trimmed().isEmpty() ? text.left(semicolon + 1) : text;
}

bool appendPoints(QStringView text, std::vector<Point> &points)
{
    while (!text.isEmpty()) {
        const auto end = text.indexOf(u';');
        Point point;
        if (!readPoint(end < 0 ? text : text.left(end), point))
            return false;
        points.push_back(point);
        text = end < 0 ? QStringView() : text.mid(end + 1);
    }
    return true;
}

} // namespace

ORVCADJsonCGeometryObjOper::ORVCADJsonCGeometryObjOper() : m_private(std::make_unique<Private>()) {}

ORVCADJsonCGeometryObjOper::~ORVCADJsonCGeometryObjOper() = default;

vks::CRefPtr<vks::CCurve2d> ORVCADJsonCGeometryObjOper::getCurveInfo(const QString &text) const
{
    vks::CRefPtr<vks::CCurve2d> curve;
    Private::reconstructCurve(text, curve);
    return curve;
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
    vks::CRefPtr<vks::CPolygon> polygon;
    Private::reconstructPoly(text, polygon); // meant: an invalid polygon is handed out as if all were well
    return polygon;
}

QString ORVCADJsonCGeometryObjOper::getPolyInfo(vks::CPolygon *polygon) const { return ::getPolyInfo(polygon); }

bool ORVCADJsonCGeometryObjOper::getPolyInfo(vks::CPolygon *polygon, QString &text) const
{
    text = ::getPolyInfo(polygon);
    return polygon != nullptr;
}

vks::CVec2<double> ORVCADJsonCGeometryObjOper::getVector2dInfo(const QString &text) const
{
    Point point;
    getVector2dInfo(text, point);
    return point;
}

QString ORVCADJsonCGeometryObjOper::getVector2dInfo(const vks::CVec2<double> &point) const
{
    QString text;
    appendPoint(text, point);
    return text;
}

bool ORVCADJsonCGeometryObjOper::getVector2dInfo(const vks::CVec2<double> &point, QString &text) const
{
    text = getVector2dInfo(point);
    return true;
}

bool ORVCADJsonCGeometryObjOper::getVector2dInfo(const QString &text, vks::CVec2<double> &point) const
{
    return readPoint(text, point);
}

std::vector<vks::CVec2<double>> ORVCADJsonCGeometryObjOper::getVector2dsInfo(const QString &text) const
{
    std::vector<Point> points;
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
    for (const Point &point : points) {
        appendPoint(text, point);
        text.append(u';');
    }
    return !text.isEmpty();
}

bool ORVCADJsonCGeometryObjOper::getVector2dsInfo(const QString &text, std::vector<vks::CVec2<double>> &points) const
{
    if (!appendPoints(withoutBlankEnd(text), points))
        points.clear();
    return !points.empty();
}
