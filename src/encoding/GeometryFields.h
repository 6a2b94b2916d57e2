#pragma once

#include "encoding/GeometryInfo.h"
#include "encoding/GeometryTextReader.h"
#include "encoding/PointText.h"
#include "encoding/RecordFields.h"

/** Geometry as a value in the rows of RecordFields.h, in one of its two text forms. */
namespace encoding {

/** The short texts of docs/formats/geometry-text.md, null as the empty text. A bad or missing text reads as null, but
 *  a polygon that can be built and is not valid as that polygon. */
template <> struct ValueKind<vks::CRefPtr<vks::CCurve2d>>
{
    static QJsonValue toValue(const vks::CRefPtr<vks::CCurve2d> &curve) { return getCurveInfo(curve); }
    static vks::CRefPtr<vks::CCurve2d> fromValue(const QJsonValue &json, const vks::CRefPtr<vks::CCurve2d> & /*none*/)
    {
        return GeometryTextReader::curveOf(json.toString());
    }
};

template <> struct ValueKind<vks::CRefPtr<vks::CPolygon>>
{
    static QJsonValue toValue(const vks::CRefPtr<vks::CPolygon> &polygon) { return getPolyInfo(polygon); }
    static vks::CRefPtr<vks::CPolygon> fromValue(const QJsonValue &json, const vks::CRefPtr<vks::CPolygon> & /*none*/)
    {
        return GeometryTextReader::polygonOf(json.toString());
    }
};

/** A bad or missing text reads as the origin. */
template <> struct ValueKind<vks::CVec2<double>>
{
    static QJsonValue toValue(const vks::CVec2<double> &point) { return pointText(point); }
    static vks::CVec2<double> fromValue(const QJsonValue &json, const vks::CVec2<double> & /*none*/)
    {
        return pointOf(json.toString());
    }
};

/** The kernel's own text, exact, null as the empty text. A bad or missing text, and a text of other geometry, reads as
 *  null. */
struct KernelText
{
    static QString text(const vks::CGeometry *geometry)
    {
        return geometry ? QString::fromStdString(geometry->ToText()) : QStringLiteral("");
    }
    static vks::CRefPtr<vks::CPolygon> polygon(const QString &text)
    {
        return vks::CPolygon::LoadFromString(text.toUtf8().constData());
    }
    static vks::CRefPtr<vks::CCurve2d> curve(const QString &text)
    {
        const vks::CRefPtr<vks::CGeometry> geometry = vks::CGeometry::LoadFromStr(text.toUtf8().constData());
        return dynamic_cast<vks::CCurve2d *>(geometry.get());
    }

    static QJsonValue toValue(const vks::CGeometry *geometry) { return text(geometry); }
    static vks::CRefPtr<vks::CPolygon> fromValue(const QJsonValue &json, const vks::CRefPtr<vks::CPolygon> & /*none*/)
    {
        return polygon(json.toString());
    }
    static vks::CRefPtr<vks::CCurve2d> fromValue(const QJsonValue &json, const vks::CRefPtr<vks::CCurve2d> & /*none*/)
    {
        return curve(json.toString());
    }
};

} // namespace encoding
