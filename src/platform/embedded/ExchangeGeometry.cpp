#include "platform/embedded/ExchangeGeometry.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/StoredGeometry.h"
#include "platform/geometry/KernelTolerance.h"

namespace hbx::embedded {
namespace {

using vks::CCurve2d;
using vks::CGeometry;
using vks::CPolygon;
using vks::CRefPtr;

struct PolygonRule
{
    unsigned check;
    const char *broken;
};

constexpr PolygonRule kPolygonRules[] = {
    {CPolygon::kNotEmpty, QT_TRANSLATE_NOOP("host", "has an empty ring")},
    {CPolygon::kClosed, QT_TRANSLATE_NOOP("host", "has an open ring")},
    {CPolygon::kNoShortEdge, QT_TRANSLATE_NOOP("host", "has an edge of no length")},
    {CPolygon::kNoCrossing, QT_TRANSLATE_NOOP("host", "crosses itself")},
    {CPolygon::kHasArea, QT_TRANSLATE_NOOP("host", "has no area")},
    {CPolygon::kHolesInside, QT_TRANSLATE_NOOP("host", "has a hole that is not inside or meets another")},
};

template <typename Geometry> CRefPtr<Geometry> read(const QJsonValue &value, const JsonPlace &place, const char *fault)
{
    const QByteArray text = value.toString().toUtf8();
    CRefPtr<Geometry> geometry = storedGeometry<Geometry>({text.constData(), static_cast<std::size_t>(text.size())});
    if (!geometry)
        place.refuse(dwgx::Reason::tr(fault));
    return geometry;
}

} // namespace

CRefPtr<CPolygon> polygonFromJson(const QJsonValue &value, const JsonPlace &place)
{
    if (value.isNull())
        return nullptr;
    CRefPtr<CPolygon> polygon = read<CPolygon>(value, place, QT_TRANSLATE_NOOP("host", "is not the text of a polygon"));
    if (isSound(*polygon))
        return polygon;
    for (const PolygonRule &rule : kPolygonRules)
        if (!polygon->IsValid(rule.check, nullptr, nullptr))
            place.refuse(dwgx::Reason::tr(rule.broken));
    place.refuse(dwgx::Reason::tr("is not a valid polygon"));
}

CRefPtr<CCurve2d> curveFromJson(const QJsonValue &value, const JsonPlace &place)
{
    return value.isNull() ? nullptr
                          : read<CCurve2d>(value, place, QT_TRANSLATE_NOOP("host", "is not the text of a curve"));
}

CRefPtr<CCurve2d> placedCurveFromJson(const QJsonValue &value, const JsonPlace &place)
{
    CRefPtr<CCurve2d> axis = curveFromJson(value, place);
    if (axis && !(axis->Length() > vks::g_DistEpsilon))
        place.refuse(dwgx::Reason::tr("has no length"));
    return axis;
}

vks::CVec2<double> pointFromJson(const QJsonValue &value, const JsonPlace &place)
{
    const QJsonArray terms = value.toArray();
    if (terms.size() != 2 || !terms.at(0).isDouble() || !terms.at(1).isDouble())
        place.refuse(dwgx::Reason::tr("is not an array of 2 numbers"));
    return {terms.at(0).toDouble(), terms.at(1).toDouble()};
}

QJsonValue geometryToJson(const CGeometry *geometry)
{
    if (!geometry)
        return QJsonValue(QJsonValue::Null);
    const std::string text = geometry->ToText();
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

QJsonArray pointToJson(const vks::CVec2<double> &point) { return {point.x, point.y}; }

} // namespace hbx::embedded
