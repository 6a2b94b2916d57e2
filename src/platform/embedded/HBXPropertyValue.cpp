#include "platform/embedded/HBXPropertyValue.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/HBXElevationText.h"
#include "platform/embedded/StoredGeometry.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace hbx::embedded {
namespace {

using Point = vks::CVec2<double>;
using Curve = vks::CRefPtr<vks::CCurve2d>;
using Polygon = vks::CRefPtr<vks::CPolygon>;
using Kept = std::optional<PropertyValue>;

/** Plain digits for sizes that occur in a building, an exponent beyond. */
QString decimalText(double number)
{
    constexpr double kLeastPlain = 1e-6;
    constexpr double kGreatestPlain = 1e15;
    const double size = std::fabs(number);
    const bool isPlain = size == 0.0 || (size >= kLeastPlain && size < kGreatestPlain);
    return QString::number(number, isPlain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

Kept keptAsInteger(const PropertyValue &value)
{
    if (const int *number = std::get_if<int>(&value))
        return *number;
    if (const double *number = std::get_if<double>(&value))
        return *number == cutToInt(*number) ? Kept(cutToInt(*number)) : std::nullopt;
    if (const QString *text = std::get_if<QString>(&value)) {
        bool isNumber = false;
        const int number = text->toInt(&isNumber);
        return isNumber ? Kept(number) : std::nullopt;
    }
    return std::nullopt;
}

Kept keptAsDouble(const PropertyValue &value)
{
    if (const int *number = std::get_if<int>(&value))
        return static_cast<double>(*number);
    if (const double *number = std::get_if<double>(&value))
        return std::isfinite(*number) ? Kept(*number) : std::nullopt;
    if (const QString *text = std::get_if<QString>(&value)) {
        bool isNumber = false;
        const double number = text->toDouble(&isNumber);
        return isNumber && std::isfinite(number) ? Kept(number) : std::nullopt;
    }
    return std::nullopt;
}

Kept keptAsText(const PropertyValue &value)
{
    if (const double *number = std::get_if<double>(&value))
        return std::isfinite(*number) ? Kept(decimalText(*number)) : std::nullopt;
    if (const Curve *curve = std::get_if<Curve>(&value))
        return QString::fromStdString((*curve)->ToText());
    if (const Polygon *polygon = std::get_if<Polygon>(&value))
        return QString::fromStdString((*polygon)->ToText());
    return std::holds_alternative<Point>(value) ? std::nullopt : Kept(textOf(value));
}

Kept keptAsElevation(const PropertyValue &value)
{
    const bool isGeometry = std::holds_alternative<Curve>(value) || std::holds_alternative<Polygon>(value);
    const Kept text = isGeometry ? std::nullopt : keptAsText(value);
    return text && HBXElevationText::parse(std::get<QString>(*text)) ? text : std::nullopt;
}

Kept keptAsPoint(const PropertyValue &value)
{
    const Point *point = std::get_if<Point>(&value);
    return point && point->IsFinite() ? Kept(*point) : std::nullopt;
}

template <typename Geometry> Kept keptAsGeometry(const PropertyValue &value)
{
    const vks::CRefPtr<Geometry> *given = std::get_if<vks::CRefPtr<Geometry>>(&value);
    const QString *text = std::get_if<QString>(&value);
    const vks::CRefPtr<Geometry> geometry = given  ? *given
                                            : text ? storedGeometry<Geometry>(text->toStdString())
                                                   : nullptr;
    return geometry && isSound(*geometry) ? Kept(geometry) : std::nullopt;
}

struct KindRow
{
    PropertyKind kind;
    const char *name;
    Kept (*keep)(const PropertyValue &);
};
constexpr KindRow kKinds[] = {
    {PropertyKind::Integer, QT_TRANSLATE_NOOP("host", "whole number"), keptAsInteger},
    {PropertyKind::Double, QT_TRANSLATE_NOOP("host", "number"), keptAsDouble},
    {PropertyKind::Text, QT_TRANSLATE_NOOP("host", "text"), keptAsText},
    {PropertyKind::Elevation, QT_TRANSLATE_NOOP("host", "elevation"), keptAsElevation},
    {PropertyKind::Point, QT_TRANSLATE_NOOP("host", "point"), keptAsPoint},
    {PropertyKind::Curve, QT_TRANSLATE_NOOP("host", "curve"), keptAsGeometry<vks::CCurve2d>},
    {PropertyKind::Polygon, QT_TRANSLATE_NOOP("host", "polygon"), keptAsGeometry<vks::CPolygon>},
};

const KindRow &rowOf(PropertyKind kind)
{
    return *std::find_if(std::begin(kKinds), std::end(kKinds), [kind](const KindRow &row) { return row.kind == kind; });
}

} // namespace

std::optional<PropertyValue> keptAs(PropertyKind kind, const PropertyValue &value)
{
    return isNoValue(value) ? Kept(PropertyValue()) : rowOf(kind).keep(value);
}

PropertyValue valueOfText(PropertyKind kind, const QString &text)
{
    return keptAs(kind, text).value_or(PropertyValue());
}

bool isNoValue(const PropertyValue &value)
{
    const Curve *curve = std::get_if<Curve>(&value);
    const Polygon *polygon = std::get_if<Polygon>(&value);
    return std::holds_alternative<std::monostate>(value) || (curve && !curve->get()) || (polygon && !polygon->get());
}

int cutToInt(double number)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    if (std::isnan(number))
        return 0;
    return number <= lowest ? lowest : number >= highest ? highest : static_cast<int>(number);
}

int intOf(const PropertyValue &value)
{
    const int *number = std::get_if<int>(&value);
    return number ? *number : cutToInt(doubleOf(value));
}

double doubleOf(const PropertyValue &value)
{
    const Kept number = keptAsDouble(value);
    return number ? std::get<double>(*number) : 0.0;
}

QString textOf(const PropertyValue &value)
{
    if (const QString *text = std::get_if<QString>(&value))
        return *text;
    if (const int *number = std::get_if<int>(&value))
        return QString::number(*number);
    const double *number = std::get_if<double>(&value);
    return number ? decimalText(*number) : QString();
}

QString kindName(PropertyKind kind) { return dwgx::Reason::tr(rowOf(kind).name); }

} // namespace hbx::embedded
