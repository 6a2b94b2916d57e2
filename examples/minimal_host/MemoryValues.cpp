#include "MemoryValues.h"

#include <platform/host/HBXModelException.h>
#include <platform/host/IHBXFloor.h>
#include <platform/host/IHBXProperty.h>

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace {

using Curve = vks::CRefPtr<vks::CCurve2d>;
using Point = vks::CVec2<double>;
using Polygon = vks::CRefPtr<vks::CPolygon>;

enum class Kind { Integer, Number, Text, Elevation, Point, Curve, Polygon };

struct PropertyOfTypes
{
    const wchar_t *name;
    Kind kind;
    std::vector<qint64> types;
};

const std::vector<qint64> kWalls = {0, 1, 202, 1001, 1003};
const std::vector<qint64> kOpenings = {4, 5, 6, 7};
const std::vector<qint64> kBeams = {15, 17, 18, 47};
const std::vector<qint64> kSlabs = {19, 48};

const PropertyOfTypes kProperties[] = {
    {L"OpeningWidth", Kind::Integer, kOpenings},
    {L"OpeningHeight", Kind::Integer, kOpenings},
    {L"AboveFloorHeight", Kind::Integer, kOpenings},
    {L"WinDoorWidth", Kind::Integer, {6}},
    {L"WindDoorFloorHeight", Kind::Integer, {6}},
    {L"Thickness", Kind::Number, {0, 1, 19, 48, 202, 1001, 1003}},
    {L"SectionWidth", Kind::Number, kBeams},
    {L"SectionHeight", Kind::Number, kBeams},
    {L"AxisOffset", Kind::Number, {0, 1, 15, 17, 18, 47, 202, 1001, 1003}},
    {L"HoopBar", Kind::Text, kBeams},
    {L"InsertPt", Kind::Point, {15, 17, 18, 25, 47}},
    {L"SectionPoly", Kind::Polygon, {4, 5, 6, 7, 15, 17, 18, 25, 47, 1002}},
    {L"TopElev", Kind::Elevation, kSlabs},
    {L"CurveData", Kind::Curve, {22, 23}},
};

const PropertyOfTypes *findRow(qint64 type, const std::wstring &name)
{
    const auto *row =
        std::find_if(std::begin(kProperties), std::end(kProperties), [&](const PropertyOfTypes &property) {
            return property.name == name && std::count(property.types.begin(), property.types.end(), type) > 0;
        });
    return row == std::end(kProperties) ? nullptr : row;
}

// ---- Elevations: metres above zero, or above the top or bottom of the object's floor.

/** Nothing for a text that is no finite number in decimal. */
std::optional<double> numberOf(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

/** mm; nothing for a text that is no elevation. */
std::optional<double> elevationOf(const QString &text, const IHBXFloor &floor)
{
    const std::pair<QString, double> bases[] = {{QString::fromUtf8("层顶标高"), floor.topElev()},
                                                {QString::fromUtf8("层底标高"), floor.bottomElev()}};
    QString rest = text.trimmed();
    double base = 0.0;
    for (const auto &[word, elevation] : bases) {
        if (!rest.startsWith(word))
            continue;
        base = elevation;
        rest.remove(0, word.size());
        if (rest.isEmpty())
            return base * 1000.0;
        if (!rest.startsWith(QLatin1Char('+')) && !rest.startsWith(QLatin1Char('-')))
            return std::nullopt;
    }
    const std::optional<double> metres = numberOf(rest);
    return metres ? std::optional((base + *metres) * 1000.0) : std::nullopt;
}

// ---- What becomes of a value that is written to a property of a kind; no value where something would be lost.

QString textOf(const MemoryValue &value)
{
    if (const int *whole = std::get_if<int>(&value))
        return QString::number(*whole);
    if (const double *number = std::get_if<double>(&value))
        return QString::number(*number, 'g', QLocale::FloatingPointShortest);
    const QString *text = std::get_if<QString>(&value);
    return text ? *text : QString();
}

bool isGeometry(const MemoryValue &value)
{
    return std::holds_alternative<Point>(value) || std::holds_alternative<Curve>(value) ||
           std::holds_alternative<Polygon>(value);
}

MemoryValue wholeOrNothing(const MemoryValue &value)
{
    const std::optional<double> number = numberOf(textOf(value));
    const bool fits = number && *number == std::trunc(*number) && *number >= std::numeric_limits<int>::min() &&
                      *number <= std::numeric_limits<int>::max();
    return fits ? MemoryValue(static_cast<int>(*number)) : MemoryValue();
}

MemoryValue converted(Kind kind, const MemoryValue &value, const IHBXFloor &floor)
{
    const auto keptIf = [&value](bool isRight) { return isRight ? value : MemoryValue(); };
    switch (kind) {
    case Kind::Point:
        return keptIf(std::holds_alternative<Point>(value));
    case Kind::Curve:
        return keptIf(std::holds_alternative<Curve>(value));
    case Kind::Polygon:
        return keptIf(std::holds_alternative<Polygon>(value));
    default:
        break;
    }
    const std::optional<double> number = numberOf(textOf(value));
    if (isGeometry(value))
        return {};
    if (kind == Kind::Integer)
        return wholeOrNothing(value);
    if (kind == Kind::Number)
        return number ? MemoryValue(*number) : MemoryValue();
    if (kind == Kind::Elevation && !elevationOf(textOf(value), floor))
        return {};
    return textOf(value);
}

/** One value as an object of its own. */
class MemoryProperty final : public IHBXProperty
{
public:
    MemoryProperty(MemoryValues &values, std::wstring name) : m_values(values), m_name(std::move(name)) {}

    bool hasValue() const override { return !m_values.isNull(m_name); }
    int intValue() const override { return m_values.asInt(m_name); }
    void setInt(int value, bool) override { write(value); }
    void setString(const QString &value, bool) override { write(value); }
    void revert() override
    {
        if (m_before)
            m_values.takeOver(m_name, *m_before);
    }

private:
    void write(const MemoryValue &value)
    {
        m_before = m_values.own(m_name);
        m_values.set(m_name, value);
    }

    MemoryValues &m_values;
    std::wstring m_name;
    std::optional<MemoryValue> m_before; // the last write
};

const MemoryValue kNothing;

} // namespace

bool MemoryValues::hasProperty(const std::wstring &name) const { return findRow(m_type, name) != nullptr; }

void MemoryValues::set(const std::wstring &name, const MemoryValue &value)
{
    const PropertyOfTypes *row = findRow(m_type, name);
    if (!row)
        return;
    MemoryValue kept = converted(row->kind, value, m_floor);
    if (std::holds_alternative<std::monostate>(kept))
        throw HBXModelException(
            QStringLiteral("%1 does not take \"%2\"").arg(QString::fromWCharArray(row->name), textOf(value)));
    m_values[name] = std::move(kept);
}

const MemoryValue &MemoryValues::own(const std::wstring &name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? kNothing : found->second;
}

const MemoryValue &MemoryValues::find(const std::wstring &name) const
{
    const MemoryValue &value = own(name);
    return m_below && std::holds_alternative<std::monostate>(value) ? m_below->find(name) : value;
}

template <typename T> T MemoryValues::valueAs(const std::wstring &name) const
{
    const T *value = std::get_if<T>(&find(name));
    return value ? *value : T();
}

std::shared_ptr<IHBXProperty> &MemoryValues::property(std::shared_ptr<IHBXProperty> &out, const std::wstring &name)
{
    return out = hasProperty(name) ? std::make_shared<MemoryProperty>(*this, name) : nullptr;
}

bool MemoryValues::isNull(const std::wstring &name) const { return std::holds_alternative<std::monostate>(find(name)); }

int MemoryValues::asInt(const std::wstring &name) const
{
    const double number = asDouble(name);
    const double lowest = std::numeric_limits<int>::min();
    const double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(number, lowest, highest));
}

double MemoryValues::asDouble(const std::wstring &name) const
{
    const PropertyOfTypes *row = findRow(m_type, name);
    const QString text = textOf(find(name));
    const bool isElevation = row && row->kind == Kind::Elevation;
    return (isElevation ? elevationOf(text, m_floor) : numberOf(text)).value_or(0.0);
}

QString &MemoryValues::asString(QString &out, const std::wstring &name) const { return out = textOf(find(name)); }

Point &MemoryValues::asPoint(Point &out, const std::wstring &name) const { return out = valueAs<Point>(name); }

Curve &MemoryValues::asCurve(Curve &out, const std::wstring &name) const { return out = valueAs<Curve>(name); }

Polygon &MemoryValues::asPolygon(Polygon &out, const std::wstring &name) const { return out = valueAs<Polygon>(name); }

void MemoryValues::setPoint(const std::wstring &name, const Point *value, bool)
{
    value ? set(name, *value) : takeOver(name, {});
}

void MemoryValues::setCurve(const std::wstring &name, const vks::CCurve2d *value, bool)
{
    value ? set(name, value->Clone()) : takeOver(name, {});
}

void MemoryValues::setPolygon(const std::wstring &name, const vks::CPolygon *value, bool)
{
    value ? set(name, value->Clone()) : takeOver(name, {});
}
