#include "platform/embedded/ExchangeProperties.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/ExchangeGeometry.h"
#include "platform/embedded/HBXElevationText.h"
#include "platform/embedded/HBXPropertyValue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace hbx::embedded {
namespace {

constexpr int kNoDrawObject = -1;

std::optional<int> wholeInt(const QJsonValue &value)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    const bool fits = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return fits && std::floor(number) == number ? std::optional(static_cast<int>(number)) : std::nullopt;
}

PropertyValue readInteger(const QJsonValue &value, const JsonPlace &place)
{
    const std::optional<int> number = wholeInt(value);
    if (!number)
        place.refuse(dwgx::Reason::tr("is not an integer of 32 bits"));
    return *number;
}

PropertyValue readDouble(const QJsonValue &value, const JsonPlace &place)
{
    if (!value.isDouble())
        place.refuse(dwgx::Reason::tr("is not a number"));
    return value.toDouble();
}

PropertyValue readText(const QJsonValue &value, const JsonPlace &place)
{
    if (value.isDouble()) {
        const std::optional<int> whole = wholeInt(value);
        return whole ? textOf(*whole) : textOf(value.toDouble());
    }
    if (!value.isString())
        place.refuse(dwgx::Reason::tr("is neither a text nor a number"));
    return value.toString();
}

PropertyValue readElevation(const QJsonValue &value, const JsonPlace &place)
{
    if (!value.isString() || !HBXElevationText::parse(value.toString()))
        place.refuse(dwgx::Reason::tr("is not the text of an elevation"));
    return value.toString();
}

PropertyValue readPoint(const QJsonValue &value, const JsonPlace &place) { return pointFromJson(value, place); }

PropertyValue readCurve(const QJsonValue &value, const JsonPlace &place) { return curveFromJson(value, place); }

PropertyValue readPolygon(const QJsonValue &value, const JsonPlace &place) { return polygonFromJson(value, place); }

using ReadValue = PropertyValue (*)(const QJsonValue &value, const JsonPlace &place);

/** In the order of PropertyKind. */
constexpr std::array<ReadValue, 7> kReaders{readInteger, readDouble, readText,   readElevation,
                                            readPoint,   readCurve,  readPolygon};

/** Whether a property that names draw objects is one id and nothing else. */
bool isOneId(const PropertyEntry &entry) { return entry.kind == PropertyKind::Integer; }

/** A key, or a list of keys; an integer in front of the import's ids can only say that there is none. */
PropertyValue readReference(const QJsonValue &value, const JsonPlace &place, const PropertyEntry &entry)
{
    const bool isSingle = isOneId(entry);
    if (isSingle && wholeInt(value) == kNoDrawObject)
        return kNoDrawObject;
    if (!value.isString())
        place.refuse(isSingle ? dwgx::Reason::tr("is neither the key of a draw object nor -1")
                              : dwgx::Reason::tr("is not a text"));
    return value.toString();
}

/** Writes one value; a reference that means nothing any more makes no part of it. */
struct ValueToJson
{
    QJsonValue operator()(std::monostate) const { return QJsonValue(QJsonValue::Null); }
    QJsonValue operator()(int number) const { return number; }
    QJsonValue operator()(double number) const { return number; }
    QJsonValue operator()(const QString &text) const { return text; }
    QJsonValue operator()(const vks::CVec2<double> &point) const { return pointToJson(point); }
    template <typename T> QJsonValue operator()(const vks::CRefPtr<T> &geometry) const
    {
        return geometryToJson(geometry.get());
    }
};

QJsonValue referenceToJson(PropertyRole role, const PropertyValue &value, const ReferenceMap &keyOfId)
{
    if (const QString *text = std::get_if<QString>(&value))
        return ExchangeReferenceText(role, *text).mapped(keyOfId);
    const int *id = std::get_if<int>(&value);
    if (!id)
        return QJsonValue(QJsonValue::Null);
    const std::optional<QString> key = keyOfId(QString::number(*id));
    return key ? QJsonValue(*key) : QJsonValue(kNoDrawObject);
}

QJsonValue valueToJson(const PropertyValue &value, const PropertyEntry *entry, const ReferenceMap &keyOfId)
{
    if (entry && entry->namesDrawObjs())
        return referenceToJson(entry->role, value, keyOfId);
    return std::visit(ValueToJson(), value);
}

/** Reads one object's properties. */
class PropertiesReader
{
public:
    PropertiesReader(const JsonPlace &place, std::vector<KeyUse> &keyUses) : m_place(place), m_keyUses(keyUses) {}

    void read(const QString &name, const QJsonValue &value, const PropertyEntry *entry)
    {
        if (!entry)
            m_place.refuse(dwgx::Reason::tr("has the unknown property \"%1\"").arg(name));
        if (std::any_of(m_records.begin(), m_records.end(),
                        [&](const auto &each) { return each.first == entry->name; }))
            m_place.refuse(dwgx::Reason::tr("has the property \"%1\" under two names").arg(entry->name));
        const QByteArray latinName = name.toLatin1();
        const JsonPlace place(m_place, QLatin1String(latinName));
        m_records.emplace_back(entry->name, valueAt(value, place, *entry));
    }
    PropertyRecords takeRecords() { return std::move(m_records); }

private:
    PropertyValue valueAt(const QJsonValue &value, const JsonPlace &place, const PropertyEntry &entry)
    {
        if (value.isNull())
            return {};
        if (!entry.namesDrawObjs())
            return kReaders[static_cast<std::size_t>(entry.kind)](value, place);
        PropertyValue reference = readReference(value, place, entry);
        if (std::holds_alternative<QString>(reference))
            m_keyUses.push_back({static_cast<int>(m_records.size()), &entry, place.text()});
        return reference;
    }

    const JsonPlace &m_place;
    std::vector<KeyUse> &m_keyUses;
    PropertyRecords m_records;
};

[[noreturn]] void refuseUnknown(const KeyUse &use, const QString &key)
{
    throw dwgx::JsonRefusal{use.place, dwgx::Reason::tr("names the unknown draw object \"%1\"").arg(key)};
}

PropertyValue resolvedId(const QString &key, const KeyUse &use, const ReferenceMap &map)
{
    const std::optional<QString> id = map(key);
    if (!id)
        refuseUnknown(use, key);
    return id->toInt();
}

PropertyValue resolvedText(const QString &text, const KeyUse &use, const ReferenceMap &map)
{
    const ExchangeReferenceText references(use.entry->role, text);
    if (const std::optional<QString> unknown = references.firstUnknown(map))
        refuseUnknown(use, *unknown);
    return references.mapped(map);
}

} // namespace

PropertyRecords propertiesFromJson(const QJsonValue &value, const JsonPlace &place, const TypeProperties &type,
                                   bool forDrawObject, std::vector<KeyUse> &keyUses)
{
    if (!value.isObject())
        place.refuse(dwgx::Reason::tr("is not an object"));
    const QJsonObject json = value.toObject();
    PropertiesReader reader(place, keyUses);
    for (auto member = json.constBegin(); member != json.constEnd(); ++member) {
        const QString name = member.key();
        reader.read(name, member.value(), type.find(name, forDrawObject));
    }
    return reader.takeRecords();
}

void resolveKeys(PropertyRecords &properties, const std::vector<KeyUse> &keyUses, const ReferenceMap &map)
{
    for (const KeyUse &use : keyUses) {
        PropertyValue &value = properties[static_cast<std::size_t>(use.property)].second;
        const QString text = std::get<QString>(value);
        value = isOneId(*use.entry) ? resolvedId(text, use, map) : resolvedText(text, use, map);
    }
}

QJsonObject propertiesToJson(const PropertyRecords &properties, const TypeProperties *type, const ReferenceMap &keyOfId)
{
    QJsonObject json;
    for (const auto &[name, value] : properties)
        json.insert(name, valueToJson(value, type ? type->find(name, true) : nullptr, keyOfId));
    return json;
}

} // namespace hbx::embedded
