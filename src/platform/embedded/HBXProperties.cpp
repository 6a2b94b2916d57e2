#include "platform/embedded/HBXProperties.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/HBXElevationText.h"
#include "platform/embedded/HBXProperty.h"
#include "platform/embedded/HBXPropertyValue.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXFloor.h"

#include <algorithm>

namespace hbx::embedded {
namespace {

/** As messages tell it, geometry with its text. */
QString shownText(const PropertyValue &value)
{
    const std::optional<PropertyValue> text = keptAs(PropertyKind::Text, value);
    return textOf(text.value_or(value));
}

QStringView viewOf(const QString &name) { return name; }

std::wstring_view viewOf(const std::wstring &name) { return name; }

} // namespace

HBXProperties::HBXProperties(const TypeProperties *known, HBXPropertyHolder &holder, const HBXProperties *base)
    : m_known(known), m_holder(holder), m_base(base)
{}

bool HBXProperties::hasProperty(const std::wstring &name) const { return find(viewOf(name)) != nullptr; }

std::shared_ptr<IHBXProperty> &HBXProperties::property(std::shared_ptr<IHBXProperty> &out, const std::wstring &name)
{
    const PropertyEntry *entry = find(viewOf(name));
    out = entry ? std::make_shared<HBXProperty>(*this, *entry) : nullptr;
    return out;
}

bool HBXProperties::isNull(const std::wstring &name) const
{
    const PropertyEntry *entry = find(viewOf(name));
    return !entry || isNoValue(valueOf(*entry));
}

/** A value in the form of one of the reads by entry; that of nothing for a lacking name. */
template <typename Result, typename Name>
Result HBXProperties::readAs(Result (HBXProperties::*read)(const PropertyEntry &) const, const Name &name) const
{
    const PropertyEntry *entry = find(viewOf(name));
    return entry ? (this->*read)(*entry) : Result();
}

int HBXProperties::asInt(const QString &key) const { return readAs(&HBXProperties::intValue, key); }

int HBXProperties::asInt(const std::wstring &name) const { return readAs(&HBXProperties::intValue, name); }

double HBXProperties::asDouble(const QString &key) const { return readAs(&HBXProperties::doubleValue, key); }

double HBXProperties::asDouble(const std::wstring &name) const { return readAs(&HBXProperties::doubleValue, name); }

QString &HBXProperties::asString(QString &out, const QString &key) const
{
    return out = readAs(&HBXProperties::textValue, key);
}

QString &HBXProperties::asString(QString &out, const std::wstring &name) const
{
    return out = readAs(&HBXProperties::textValue, name);
}

/** Point or geometry; the given nothing for a lacking name and for a value of another kind. */
template <typename T, typename Name> T &HBXProperties::readOr(T &out, const Name &name, const T &nothing) const
{
    const PropertyEntry *entry = find(viewOf(name));
    const PropertyValue value = entry ? valueOf(*entry) : PropertyValue();
    const T *held = std::get_if<T>(&value);
    return out = held ? *held : nothing;
}

vks::CVec2<double> &HBXProperties::asPoint(vks::CVec2<double> &out, const std::wstring &name) const
{
    return readOr(out, name, {});
}

vks::CRefPtr<vks::CCurve2d> &HBXProperties::asCurve(vks::CRefPtr<vks::CCurve2d> &out, const QString &key) const
{
    return readOr(out, key, {});
}

vks::CRefPtr<vks::CCurve2d> &HBXProperties::asCurve(vks::CRefPtr<vks::CCurve2d> &out, const std::wstring &name) const
{
    return readOr(out, name, {});
}

vks::CRefPtr<vks::CPolygon> &HBXProperties::asPolygon(vks::CRefPtr<vks::CPolygon> &out, const std::wstring &name) const
{
    return readOr(out, name, {});
}

void HBXProperties::setInt(const std::wstring &name, int value, bool) { writeNamed(name, value); }

void HBXProperties::setDouble(const std::wstring &name, double value, bool) { writeNamed(name, value); }

void HBXProperties::setString(const std::wstring &name, const QString &value, bool) { writeNamed(name, value); }

void HBXProperties::setPoint(const std::wstring &name, const vks::CVec2<double> *value, bool)
{
    writeNamed(name, value ? PropertyValue(*value) : PropertyValue());
}

void HBXProperties::setCurve(const std::wstring &name, const vks::CCurve2d *value, bool)
{
    writeNamed(name, value ? PropertyValue(value->Clone()) : PropertyValue());
}

void HBXProperties::setPolygon(const std::wstring &name, const vks::CPolygon *value, bool)
{
    writeNamed(name, value ? PropertyValue(value->Clone()) : PropertyValue());
}

PropertyValue HBXProperties::valueOf(const PropertyEntry &entry) const
{
    if (const PropertyValue *given = givenValue(entry))
        return *given;
    return entry.defaultText ? valueOfText(entry.kind, *entry.defaultText) : PropertyValue();
}

const PropertyValue *HBXProperties::givenValue(const PropertyEntry &entry) const
{
    if (const PropertyValue *own = ownValue(entry))
        return own;
    if (!m_base || entry.owner == PropertyOwner::DrawObject)
        return nullptr;
    // A draw object may be of another type than its element: the name then decides.
    const PropertyEntry *ofBase = m_base->m_known == m_known ? &entry : m_base->find(viewOf(entry.name));
    return ofBase ? m_base->ownValue(*ofBase) : nullptr;
}

const PropertyValue *HBXProperties::ownValue(const PropertyEntry &entry) const
{
    const std::size_t place = placeOf(entry);
    return place < m_own.size() ? &m_own[place].second : nullptr;
}

int HBXProperties::intValue(const PropertyEntry &entry) const
{
    return entry.kind == PropertyKind::Elevation ? cutToInt(doubleValue(entry)) : intOf(valueOf(entry));
}

double HBXProperties::doubleValue(const PropertyEntry &entry) const
{
    const PropertyValue value = valueOf(entry);
    if (entry.kind != PropertyKind::Elevation)
        return doubleOf(value);
    const auto elevation = HBXElevationText::parse(textOf(value));
    const IHBXFloor *floor = m_holder.elevationFloor();
    return elevation ? elevation->millimetres(floor->topElev(), floor->bottomElev()) : 0.0;
}

QString HBXProperties::textValue(const PropertyEntry &entry) const
{
    const QString text = textOf(valueOf(entry));
    return entry.kind == PropertyKind::Elevation ? text.trimmed() : text;
}

void HBXProperties::writeNamed(const std::wstring &name, const PropertyValue &value)
{
    if (const PropertyEntry *entry = find(viewOf(name)))
        write(*entry, value);
}

void HBXProperties::write(const PropertyEntry &entry, const PropertyValue &value)
{
    std::optional<PropertyValue> kept = keptAs(entry.kind, value);
    if (!kept) {
        const QString reason = dwgx::Reason::tr("The property \"%1\" is of the kind %2 and cannot take \"%3\".")
                                   .arg(entry.name, kindName(entry.kind), shownText(value));
        m_holder.propertyRefused(reason);
        throw HBXModelException(reason);
    }
    keep(entry, std::move(*kept));
    m_holder.propertyWritten(entry);
}

void HBXProperties::restore(const PropertyEntry &entry, const std::optional<PropertyValue> &value)
{
    const std::size_t place = placeOf(entry);
    if (value)
        keep(entry, *value);
    else if (place < m_own.size())
        m_own.erase(m_own.begin() + static_cast<std::ptrdiff_t>(place));
    m_holder.propertyWritten(entry);
}

PropertyRecords HBXProperties::records() const
{
    PropertyRecords records;
    records.reserve(m_own.size());
    for (const OwnValue &own : m_own)
        records.emplace_back(m_known->entries()[static_cast<std::size_t>(own.first)].name, own.second);
    return records;
}

void HBXProperties::setRecords(const PropertyRecords &records)
{
    m_own.clear();
    m_own.reserve(records.size());
    for (const auto &[name, value] : records) {
        const PropertyEntry *entry = find(viewOf(name));
        std::optional<PropertyValue> kept = entry ? keptAs(entry->kind, value) : std::nullopt;
        if (kept)
            keep(*entry, std::move(*kept));
    }
}

std::size_t HBXProperties::placeOf(const PropertyEntry &entry) const
{
    const auto isOfEntry = [&entry](const OwnValue &own) { return own.first == entry.index; };
    return static_cast<std::size_t>(std::find_if(m_own.begin(), m_own.end(), isOfEntry) - m_own.begin());
}

void HBXProperties::keep(const PropertyEntry &entry, PropertyValue value)
{
    const std::size_t place = placeOf(entry);
    if (place < m_own.size())
        m_own[place].second = std::move(value);
    else
        m_own.emplace_back(entry.index, std::move(value));
}

} // namespace hbx::embedded
