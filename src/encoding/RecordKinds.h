#pragma once

#include "encoding/RecordFields.h"

#include <QStringList>
#include <QUuid>

#include <limits>
#include <memory>
#include <string>

/** Further kinds of values for the rows of RecordFields.h: texts, numbers that are read another way than written, and
 *  lists to which reading adds. */
namespace encoding {

template <> struct ValueKind<std::wstring>
{
    static QJsonValue toValue(const std::wstring &value) { return QString::fromStdWString(value); }
    static std::wstring fromValue(const QJsonValue &json, const std::wstring &fallback)
    {
        return json.isString() ? json.toString().toStdWString() : fallback;
    }
};

/** The text form in braces; a text that is none reads as the null id. */
template <> struct ValueKind<QUuid>
{
    static QJsonValue toValue(const QUuid &value) { return value.toString(); }
    static QUuid fromValue(const QJsonValue &json, const QUuid &fallback)
    {
        return json.isString() ? QUuid(json.toString()) : fallback;
    }
};

/** Array of the texts; a mistyped entry reads as the empty text. */
template <> struct ValueKind<QStringList>
{
    static QJsonValue toValue(const QStringList &values) { return ValueKind<QList<QString>>::toValue(values); }
    static QStringList fromValue(const QJsonValue &json, const QStringList &fallback)
    {
        return ValueKind<QList<QString>>::fromValue(json, fallback);
    }
};

/** The number of an enumerator. Any number is read, named or not. */
template <typename T> struct ValueKind<T, std::enable_if_t<std::is_enum_v<T>>>
{
    static_assert(sizeof(T) == sizeof(int), "an enumeration is written as a 32-bit number");
    static QJsonValue toValue(T value) { return static_cast<int>(value); }
    static T fromValue(const QJsonValue &json, T fallback)
    {
        return static_cast<T>(json.toInt(static_cast<int>(fallback)));
    }
};

/** A shared record with toJsonObj() and fromJson(object): read into a new one. Null is not written. */
template <typename T> struct ValueKind<std::shared_ptr<T>>
{
    static QJsonValue toValue(const std::shared_ptr<T> &record)
    {
        return record ? QJsonValue(record->toJsonObj()) : QJsonValue(QJsonValue::Undefined);
    }
    static std::shared_ptr<T> fromValue(const QJsonValue &json, const std::shared_ptr<T> & /*fallback*/)
    {
        auto record = std::make_shared<T>();
        record->fromJson(json.toObject());
        return record;
    }
};

/** A record with toJson() and a static fromJson(target, object): read into a new one, which belongs to the reader's
 *  caller. Null is not written. */
template <typename T>
struct ValueKind<T *, std::void_t<decltype(T::fromJson(static_cast<T *>(nullptr), QJsonObject()))>>
{
    static QJsonValue toValue(const T *record)
    {
        return record ? QJsonValue(record->toJson()) : QJsonValue(QJsonValue::Undefined);
    }
    static T *fromValue(const QJsonValue &json, const T * /*fallback*/)
    {
        auto record = std::make_unique<T>();
        T::fromJson(record.get(), json.toObject());
        return record.release();
    }
};

/** A 64-bit number, written whole and read as one of 32 bits: what does not fit there counts as mistyped. */
struct NarrowInt64
{
    static QJsonValue toValue(qint64 value) { return value; }
    static qint64 fromValue(const QJsonValue &json, qint64 fallback)
    {
        constexpr qint64 least = std::numeric_limits<int>::min();
        constexpr qint64 greatest = std::numeric_limits<int>::max();
        return json.toInt(static_cast<int>(qBound(least, fallback, greatest)));
    }
};

/** A 64-bit number, read from whatever QVariant turns into one: a number, a text of digits, true as 1. */
struct LooseInt64
{
    static QJsonValue toValue(qint64 value) { return value; }
    static qint64 fromValue(const QJsonValue &json, qint64 fallback)
    {
        return json.isDouble() ? ValueKind<qint64>::fromValue(json, fallback) : json.toVariant().toLongLong();
    }
};

/** A number that is written as a double and read as an integer: one with a fraction counts as mistyped. */
struct DoubleReadAsInt
{
    static QJsonValue toValue(double value) { return value; }
    static double fromValue(const QJsonValue &json, double fallback)
    {
        const double value = json.toDouble(fallback);
        return json.isDouble() && json.toInt(0) != value ? fallback : value;
    }
};

/** A plain record as an object of its own, by the table of another struct. Reading goes on from the record at hand; what
 *  is no object reads as one without keys. */
template <typename Fields> struct Nested
{
    template <typename T> static QJsonValue toValue(const T &record) { return writtenFields(record, Fields::table); }
    template <typename T> static T fromValue(const QJsonValue &json, T record)
    {
        readFields(json.toObject(), Fields::table, record);
        return record;
    }
};

/** The same for a shared record, which is read into a new one. Null is not written. */
template <typename Fields> struct SharedNested
{
    template <typename T> static QJsonValue toValue(const std::shared_ptr<T> &record)
    {
        return record ? Nested<Fields>::toValue(*record) : QJsonValue(QJsonValue::Undefined);
    }
    template <typename T>
    static std::shared_ptr<T> fromValue(const QJsonValue &json, const std::shared_ptr<T> & /*fallback*/)
    {
        auto record = std::make_shared<T>();
        readFields(json.toObject(), Fields::table, *record);
        return record;
    }
};

/** A list of any kind of entries, written as an array of them. Reading adds to what the list holds, whatever the entries
 *  are, and adds nothing for a missing key or another value than an array. */
template <typename List, typename EntryKind = ValueKind<typename List::value_type>> struct Appended
{
    using Entry = typename List::value_type;
    using KindOfEntry = EntryKind;

    static QJsonValue toValue(const List &entries)
    {
        QJsonArray array;
        for (const auto &entry : entries) {
            const QJsonValue value = EntryKind::toValue(entry);
            if (!value.isUndefined())
                array.append(value);
        }
        return array;
    }
    static List fromValue(const QJsonValue &json, const List &present)
    {
        List entries = present;
        const QJsonArray array = json.toArray();
        entries.reserve(entries.size() + static_cast<decltype(entries.size())>(array.size()));
        for (const QJsonValue value : array)
            entries.push_back(EntryKind::fromValue(value, Entry()));
        return entries;
    }
};

/** A list that keeps what it holds and takes further entries from the array. */
template <typename Record, typename List> constexpr auto fieldAppended(QLatin1String key, List Record::*member)
{
    return fieldAs<Appended<List>>(key, member);
}

/** The same, its entries by a kind other than the one that their type has by itself. */
template <typename EntryKind, typename Record, typename List>
constexpr auto fieldAppendedAs(QLatin1String key, List Record::*member)
{
    return fieldAs<Appended<List, EntryKind>>(key, member);
}

} // namespace encoding
