#pragma once

#include "encoding/ObjectMembers.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QVariant>

#include <cmath>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

/** The one list of a record's fields, from which it is written to and read from a JSON object.
 *
 *  A record keeps a constexpr std::tuple of rows in a nested struct of its source:
 *
 *      struct Hole::Fields {
 *          static constexpr auto table = std::make_tuple(
 *              field(key::outline, &Hole::m_outline),
 *              fieldOr(key::grade, &Hole::m_grade, "C30"_key),
 *              fieldRequired(key::name, &Hole::m_name),
 *              field(key::id, &Hole::m_id, Flow::WriteOnly)); // meant: a hole in a reply is a new one
 *      };
 *
 *  and calls writtenFields(*this, Fields::table) and readFields(json, Fields::table, record). */
namespace encoding {

/** Which of the two directions a row takes part in. */
enum class Flow { Both, ReadOnly, WriteOnly };

/** How one type of field becomes a JSON value and is read from one. A kind has
 *    static QJsonValue toValue(const T &value);
 *    static T fromValue(const QJsonValue &json, const T &fallback);  // fallback for a missing or mistyped value
 *  A further type (polygon, enumeration) is one more specialisation; another way of reading a type that has one
 *  already is a struct of its own, named in fieldAs. */
template <typename T, typename = void> struct ValueKind;

/** Text as it is; a number is none. */
template <> struct ValueKind<QString>
{
    /** The null text becomes the empty one. */
    static QJsonValue toValue(const QString &value) { return value; }
    /** The fallback for whatever is no text. */
    static QString fromValue(const QJsonValue &json, const QString &fallback) { return json.toString(fallback); }
};

/** A number that is not whole or does not fit into 32 bits counts as mistyped. */
template <> struct ValueKind<int>
{
    /** Exact in memory and in text. */
    static QJsonValue toValue(int value) { return value; }
    /** The fallback for a text of digits, too. */
    static int fromValue(const QJsonValue &json, int fallback) { return json.toInt(fallback); }
};

/** A number parsed from text keeps its 64 bits; one put into an object keeps 53 of them, as Qt holds it as a double.
 *  A number that is not whole is rounded, one beyond 64 bits counts as mistyped. */
template <> struct ValueKind<qint64>
{
    /** Exact up to 53 bits. */
    static QJsonValue toValue(qint64 value) { return value; }
    /** The fallback for a text of digits, too. */
    static qint64 fromValue(const QJsonValue &json, qint64 fallback)
    {
        constexpr double firstBeyond = 9223372036854775808.0; // 2 to the 63rd
        constexpr int none = std::numeric_limits<int>::min();
        if (const int small = json.toInt(none); small != none)
            return small;
        if (!json.isDouble())
            return fallback;
        const QVariant number = json.toVariant(); // of the type qlonglong or double
        const bool fits = number.userType() == QMetaType::LongLong || std::fabs(json.toDouble()) < firstBeyond;
        return fits ? number.toLongLong() : fallback;
    }
};

/** A number that is not finite is written as null, as JSON knows no other way, and so reads as mistyped. */
template <> struct ValueKind<double>
{
    /** As it is: only text makes null of what is not finite. */
    static QJsonValue toValue(double value) { return value; }
    /** Any number; the fallback for null. */
    static double fromValue(const QJsonValue &json, double fallback) { return json.toDouble(fallback); }
};

/** true and false alone: 0 and 1 are numbers. */
template <> struct ValueKind<bool>
{
    /** Never 0 or 1. */
    static QJsonValue toValue(bool value) { return value; }
    /** The fallback for a number. */
    static bool fromValue(const QJsonValue &json, bool fallback) { return json.toBool(fallback); }
};

/** A record inside a record: its toJson() and its static fromJson(object). An object without keys is still read. */
template <typename T>
struct ValueKind<T, std::void_t<decltype(std::declval<const T &>().toJson()), decltype(T::fromJson(QJsonObject()))>>
{
    /** An object, if only an empty one. */
    static QJsonValue toValue(const T &value) { return value.toJson(); }
    /** A record of its own, not the fallback with changes. */
    static T fromValue(const QJsonValue &json, const T &fallback)
    {
        return json.isObject() ? T::fromJson(json.toObject()) : fallback;
    }
};

/** Array of the elements in list order. */
template <typename T> struct ValueKind<QList<T>>
{
    /** Each by the kind of its type. */
    static QJsonValue toValue(const QList<T> &values)
    {
        QJsonArray array;
        for (const T &value : values)
            array.append(ValueKind<T>::toValue(value));
        return array;
    }
    /** A mistyped element reads as T(). */
    static QList<T> fromValue(const QJsonValue &json, const QList<T> &fallback)
    {
        if (!json.isArray())
            return fallback;
        QList<T> values;
        const QJsonArray array = json.toArray();
        values.reserve(array.size());
        for (const QJsonValue element : array)
            values.append(ValueKind<T>::fromValue(element, T()));
        return values;
    }
};

/** Array of records that the list's owner deletes; null pointers are not written. */
template <typename T> struct ValueKind<QList<T *>>
{
    /** Each by its toJson. */
    static QJsonValue toValue(const QList<T *> &records)
    {
        QJsonArray array;
        for (const T *record : records)
            if (record)
                array.append(record->toJson());
        return array;
    }
    /** New records; an element that T::fromJson refuses with null is left out. */
    static QList<T *> fromValue(const QJsonValue &json, const QList<T *> &fallback)
    {
        if (!json.isArray())
            return fallback;
        QList<T *> records;
        const QJsonArray array = json.toArray();
        records.reserve(array.size());
        for (const QJsonValue element : array)
            if (T *record = T::fromJson(element.toObject()))
                records.append(record);
        return records;
    }
};

/** What a missing or mistyped key leads to. */
namespace detail {

/** The field stays as it is. */
struct KeepPresent
{};
/** The field becomes 0, false, empty or null. */
struct UseZero
{};

/** The value that the field has. */
template <typename T> const T &fallbackOf(KeepPresent, const T &present) { return present; }
/** T(), whatever the field has. */
template <typename T> T fallbackOf(UseZero, const T &) { return T(); }
/** The value that the row tells. */
template <typename T, typename Given> T fallbackOf(const Given &given, const T &) { return T(given); }

} // namespace detail

/** One row of a table. */
template <typename Kind, typename Record, typename T, typename Fallback> struct FieldRow
{
    using Value = T;          ///< of the field
    using KindOfValue = Kind; ///< how it becomes a JSON value

    QLatin1String key; ///< under which it stands in the object
    T Record::*member; ///< where it stands in the record
    Fallback fallback; ///< for a missing or mistyped key: KeepPresent, UseZero or the value itself
    Flow flow;         ///< looked at by those who walk the table, not by the row
    bool required;     ///< whether a missing key ends the reading

    /** False only when the key is required and missing; the record is untouched then.
     *  @tparam Members  QJsonObject or ObjectMembers */
    template <typename Members, typename Target> bool read(const Members &json, Target &record) const
    {
        const QJsonValue value = json.value(key);
        if (required && value.isUndefined())
            return false;
        T &present = record.*member;
        present = Kind::fromValue(value, detail::fallbackOf(fallback, std::as_const(present)));
        return true;
    }
    /** Takes the place of what stands under the key; an undefined value takes the key away. */
    template <typename Source> void write(const Source &record, QJsonObject &json) const
    {
        json.insert(key, Kind::toValue(record.*member));
    }
};

/** A missing or mistyped key leaves the field as it is: the default of the declaration in a fresh record. */
template <typename Record, typename T>
constexpr auto field(QLatin1String key, T Record::*member, Flow flow = Flow::Both)
{
    return FieldRow<ValueKind<T>, Record, T, detail::KeepPresent>{key, member, {}, flow, false};
}

/** A missing or mistyped key sets the field to 0, false or empty. */
template <typename Record, typename T> constexpr auto fieldOr(QLatin1String key, T Record::*member)
{
    return FieldRow<ValueKind<T>, Record, T, detail::UseZero>{key, member, {}, Flow::Both, false};
}

/** A missing or mistyped key sets the field to the given value. */
template <typename Record, typename T, typename Fallback>
constexpr auto fieldOr(QLatin1String key, T Record::*member, Fallback fallback, Flow flow = Flow::Both)
{
    return FieldRow<ValueKind<T>, Record, T, Fallback>{key, member, fallback, flow, false};
}

/** A missing key makes readFields fail; a mistyped value sets the field to 0, false or empty. */
template <typename Record, typename T>
constexpr auto fieldRequired(QLatin1String key, T Record::*member, Flow flow = Flow::Both)
{
    return FieldRow<ValueKind<T>, Record, T, detail::UseZero>{key, member, {}, flow, true};
}

/** As field, by a kind other than the one that the type has by itself. */
template <typename Kind, typename Record, typename T>
constexpr auto fieldAs(QLatin1String key, T Record::*member, Flow flow = Flow::Both)
{
    return FieldRow<Kind, Record, T, detail::KeepPresent>{key, member, {}, flow, false};
}

/** As fieldOr, by a kind other than the one that the type has by itself. */
template <typename Kind, typename Record, typename T>
constexpr auto fieldAsOr(QLatin1String key, T Record::*member, Flow flow = Flow::Both)
{
    return FieldRow<Kind, Record, T, detail::UseZero>{key, member, {}, flow, false};
}

/** Calls visit(row) for each row in order: what other text forms of the same record walk. */
template <typename Table, typename Visit> constexpr void forEachField(const Table &table, Visit &&visit)
{
    std::apply([&visit](const auto &...rows) { (visit(rows), ...); }, table);
}

/** Puts every row that is not read-only into the object; keys that are there already are overwritten. */
template <typename Record, typename Table> void writeFields(const Record &record, const Table &table, QJsonObject &json)
{
    forEachField(table, [&](const auto &row) {
        if (row.flow != Flow::ReadOnly)
            row.write(record, json);
    });
}

/** A new object with those rows. */
template <typename Record, typename Table> QJsonObject writtenFields(const Record &record, const Table &table)
{
    QJsonObject json;
    writeFields(record, table, json);
    return json;
}

/** Reads every row that is not write-only, in order.
 *  @return false when a required key is missing; rows behind it are not read then, those before it are */
template <typename Table, typename Record> bool readFields(const QJsonObject &json, const Table &table, Record &record)
{
    thread_local ObjectMembers::Places<std::tuple_size_v<Table>> places{}; // one key is sought for each row
    const ObjectMembers members(json, places);
    const auto readRow = [&](const auto &row) { return row.flow == Flow::WriteOnly || row.read(members, record); };
    return std::apply([&](const auto &...rows) { return (readRow(rows) && ...); }, table);
}

/** The same for a record that a caller may not have: null does nothing. */
template <typename Table, typename Record>
void readFieldsInto(Record *target, const Table &table, const QJsonObject &json)
{
    if (target)
        readFields(json, table, *target);
}

/** A fresh record, read; behind a required key that is missing it keeps its defaults. */
template <typename Record, typename Table> Record readRecord(const QJsonObject &json, const Table &table)
{
    Record record;
    readFields(json, table, record);
    return record;
}

} // namespace encoding
