#include "cli/JsonShape.h"

#include "cli/Message.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvcad {

namespace {

using Fault = std::optional<JsonFault>;
using Kind = JsonShape::Kind;

bool isWhole32(const QJsonValue &value)
{
    constexpr int none = std::numeric_limits<int>::min();
    return value.isDouble() && value.toInt(none) != none;
}

bool isWhole(const QJsonValue &value)
{
    const double number = value.toDouble();
    return value.isDouble() && std::floor(number) == number;
}

bool isNumber(const QJsonValue &value)
{
    return value.isDouble() && value.toDouble() > std::numeric_limits<double>::lowest();
}

bool isOfKind(const QJsonValue &value, Kind kind)
{
    switch (kind) {
    case Kind::Text:
        return value.isString();
    case Kind::TextOrPassedOver:
        return true;
    case Kind::Whole:
        return isWhole(value);
    case Kind::Whole32:
        return isWhole32(value);
    case Kind::Number:
        return isNumber(value);
    case Kind::NumberOrNull:
        return value.isDouble() || value.isNull();
    case Kind::Object:
    case Kind::Map:
        return value.isObject();
    case Kind::List:
        return value.isArray();
    }
    return false;
}

/** What a value of a kind is not, in the order of the kinds. */
constexpr const char *kReasons[] = {
    QT_TRANSLATE_NOOP("orvcad", "is no text"),
    "",
    QT_TRANSLATE_NOOP("orvcad", "is no whole number"),
    QT_TRANSLATE_NOOP("orvcad", "is no whole number from -2147483647 to 2147483647"),
    QT_TRANSLATE_NOOP("orvcad", "is no number above -1.7976931348623157e+308"),
    QT_TRANSLATE_NOOP("orvcad", "is neither a number nor null"),
    QT_TRANSLATE_NOOP("orvcad", "is no object"),
    QT_TRANSLATE_NOOP("orvcad", "is no object"),
    QT_TRANSLATE_NOOP("orvcad", "is no array"),
};

QString reasonFor(const QJsonValue &value, Kind kind)
{
    if (kind == Kind::Number && !value.isDouble())
        return Message::tr("is no number");
    return Message::tr(kReasons[static_cast<int>(kind)]);
}

Fault faultIn(const QJsonValue &value, const JsonShape &shape);

QString step(const QString &key) { return QLatin1Char('.') + key; }
QString step(int index) { return QStringLiteral("[%1]").arg(index); }

/** A fault inside a member or an entry, with the step to it put in front. */
Fault below(const QString &step, Fault fault)
{
    if (fault)
        fault->place.prepend(step);
    return fault;
}

Fault faultAt(const QString &key, const QString &reason) { return JsonFault{step(key), reason}; }

Fault faultOfMember(const QJsonObject &object, const JsonShape::Member &member)
{
    const auto found = object.constFind(member.key);
    if (found != object.constEnd()) {
        Fault fault = faultIn(*found, *member.shape);
        return fault ? below(step(member.key), fault) : fault;
    }
    return member.missing == JsonShape::Missing::Taken ? Fault() : faultAt(member.key, Message::tr("is missing"));
}

Fault faultOfKeys(const QJsonObject &object, const JsonShape &shape)
{
    for (std::size_t i = 0; i < shape.memberCount; ++i)
        if (shape.members[i].missing == JsonShape::Missing::Refused && !object.contains(shape.members[i].key))
            return faultAt(shape.members[i].key, Message::tr("is missing"));
    for (auto member = object.begin(); member != object.end(); ++member)
        if (!shape.member(member.key()))
            return faultAt(member.key(), Message::tr("is no member of this format"));
    return {};
}

Fault faultOfObject(const QJsonObject &object, const JsonShape &shape)
{
    if (shape.mayBeEmpty && object.isEmpty())
        return {};
    Fault fault = shape.closed ? faultOfKeys(object, shape) : Fault();
    for (std::size_t i = 0; i < shape.memberCount && !fault; ++i)
        fault = faultOfMember(object, shape.members[i]);
    return fault;
}

Fault faultOfMap(const QJsonObject &object, const JsonShape &shape)
{
    for (auto member = object.begin(); member != object.end(); ++member)
        if (const Fault fault = faultIn(*member, *shape.element))
            return below(step(member.key()), fault);
    return {};
}

Fault faultOfList(const QJsonArray &list, const JsonShape &shape)
{
    if (shape.length >= 0 && list.size() != shape.length)
        return JsonFault{QString(), Message::tr("is no array of %1 entries").arg(shape.length)};
    for (int i = 0; i < list.size(); ++i)
        if (const Fault fault = faultIn(list.at(i), *shape.element))
            return below(step(i), fault);
    return {};
}

Fault faultIn(const QJsonValue &value, const JsonShape &shape)
{
    if (shape.mayBeEmpty && shape.kind == Kind::List && value.isNull())
        return {};
    if (!isOfKind(value, shape.kind))
        return JsonFault{QString(), reasonFor(value, shape.kind)};
    if (shape.kind == Kind::Object)
        return faultOfObject(value.toObject(), shape);
    if (shape.kind == Kind::Map)
        return faultOfMap(value.toObject(), shape);
    if (shape.kind == Kind::List)
        return faultOfList(value.toArray(), shape);
    return {};
}

} // namespace

const JsonShape::Member *JsonShape::member(const QString &key) const
{
    const Member *end = members + memberCount;
    const Member *found = std::find_if(members, end, [&](const Member &one) { return one.key == key; });
    return found == end ? nullptr : found;
}

std::optional<JsonFault> firstFault(const QJsonValue &value, const JsonShape &shape)
{
    Fault fault = faultIn(value, shape);
    if (fault && fault->place.startsWith(QLatin1Char('.')))
        fault->place.remove(0, 1);
    return fault;
}

namespace {

using Faults = std::vector<JsonFault>;

void addUnknown(const QJsonValue &value, const JsonShape &shape, const QString &place, Faults &faults)
{
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const JsonShape::Member *known = shape.kind == Kind::Object ? shape.member(member.key()) : nullptr;
        const JsonShape *below = known ? known->shape : shape.element;
        if (shape.kind == Kind::Object && !known)
            faults.push_back({place + step(member.key()), Message::tr("is no member of this format, and not read")});
        else if (below)
            addUnknown(*member, *below, place + step(member.key()), faults);
    }
    const QJsonArray list = value.toArray();
    for (int i = 0; shape.kind == Kind::List && i < list.size(); ++i)
        addUnknown(list.at(i), *shape.element, place + step(i), faults);
}

} // namespace

std::vector<JsonFault> unknownMembers(const QJsonValue &value, const JsonShape &shape)
{
    Faults faults;
    addUnknown(value, shape, {}, faults);
    for (JsonFault &fault : faults)
        if (fault.place.startsWith(QLatin1Char('.')))
            fault.place.remove(0, 1);
    return faults;
}

} // namespace orvcad
