#pragma once

#include "encoding/GeometryFields.h"
#include "encoding/RecordFields.h"
#include "slab/AxisGrid_Sample.h"
#include "slab/TruncatedNumber.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <cmath>
#include <utility>
#include <vector>

/** How values of slab models stand in JSON, where that is not plain: kinds for the rows of encoding/RecordFields.h. A
 *  missing or mistyped value reads as 0, false, empty or null. */
namespace slab {

using encoding::KernelText;
using PolygonPtr = vks::CRefPtr<vks::CPolygon>;
using CurvePtr = vks::CRefPtr<vks::CCurve2d>;

/** Cut to 32 bits on the way in. */
struct NarrowId
{
    static QJsonValue toValue(qint64 value) { return value; }
    static qint64 fromValue(const QJsonValue &json, qint64) { return json.toInt(); }
};

/** Meant: written as a number and read from a text, so that what is written here reads as 0. */
struct IdReadFromText
{
    static QJsonValue toValue(qint64 value) { return value; }
    static qint64 fromValue(const QJsonValue &json, qint64) { return json.toString().toLongLong(); }
};

struct UuidText
{
    static QJsonValue toValue(const QUuid &value) { return value.toString(); }
    static QUuid fromValue(const QJsonValue &json, const QUuid &) { return QUuid(json.toString()); }
};

/** Meant: read from a number as the one character of that code, so that every text reads as the character of code 0. A
 *  number that is no code of one byte is 0 too. */
struct TextReadFromCode
{
    static QJsonValue toValue(const QString &value) { return value; }
    static QString fromValue(const QJsonValue &json, const QString &)
    {
        constexpr int lastCode = 255;
        const int code = truncated(json.toDouble());
        return QString(QChar(code >= 0 && code <= lastCode ? code : 0));
    }
};

/** A length that loses its fraction on the way in, where a plain whole number would read as 0. */
struct CutLength
{
    static QJsonValue toValue(qint32 value) { return value; }
    static qint32 fromValue(const QJsonValue &json, qint32) { return truncated(json.toDouble()); }
};

/** Written without its sign. */
struct Magnitude
{
    static QJsonValue toValue(double value) { return std::fabs(value); }
    static double fromValue(const QJsonValue &json, double) { return json.toDouble(); }
};

/** Any number, whether the enumeration has a name for it or not. */
struct EnumNumber
{
    template <typename Enum> static QJsonValue toValue(Enum value) { return static_cast<int>(value); }
    template <typename Enum> static Enum fromValue(const QJsonValue &json, Enum)
    {
        return static_cast<Enum>(json.toInt());
    }
};

/** Polygon texts, each with ";" behind it. What follows the last ";" is not read. */
struct PolygonListText
{
    static constexpr char16_t kEnd = u';';

    static QJsonValue toValue(const std::vector<PolygonPtr> &polygons)
    {
        QString text;
        for (const PolygonPtr &polygon : polygons)
            text += KernelText::text(polygon) + kEnd;
        return text;
    }
    /** As many polygons as there are ";", null for each text that is none. */
    static std::vector<PolygonPtr> fromValue(const QJsonValue &json, const std::vector<PolygonPtr> &)
    {
        QStringList texts = json.toString().split(kEnd);
        texts.removeLast();
        std::vector<PolygonPtr> polygons;
        polygons.reserve(static_cast<std::size_t>(texts.size()));
        for (const QString &text : texts)
            polygons.push_back(KernelText::polygon(text));
        return polygons;
    }
};

/** Axes of one direction: label, "$", curve text, "#", for each. An item of other than two parts is not read. */
struct AxisListText
{
    using Axes = std::vector<std::pair<QString, CurvePtr>>;
    static constexpr char16_t kEnd = u'#';
    static constexpr char16_t kSeparator = u'$';

    static QJsonValue toValue(const Axes &axes)
    {
        QString text;
        for (const auto &[label, curve] : axes)
            text += label + kSeparator + KernelText::text(curve) + kEnd;
        return text;
    }
    static Axes fromValue(const QJsonValue &json, const Axes &)
    {
        Axes axes;
        for (const QString &item : json.toString().split(kEnd)) {
            const QStringList parts = item.split(kSeparator);
            if (parts.size() == 2)
                axes.emplace_back(parts[0], KernelText::curve(parts[1]));
        }
        return axes;
    }
};

/** A row for a value inside a member, such as one coordinate of a point. */
template <typename Kind, typename Record, typename Whole, typename T> struct PartRow
{
    QLatin1String key;
    Whole Record::*whole;
    T Whole::*part;
    encoding::Flow flow = encoding::Flow::Both;

    template <typename Members, typename Target> bool read(const Members &json, Target &record) const
    {
        (record.*whole).*part = Kind::fromValue(json.value(key), T());
        return true;
    }
    template <typename Source> void write(const Source &record, QJsonObject &json) const
    {
        json.insert(key, Kind::toValue((record.*whole).*part));
    }
};

template <typename Record, typename Whole, typename T>
constexpr auto part(QLatin1String key, Whole Record::*whole, T Whole::*inside)
{
    return PartRow<encoding::ValueKind<T>, Record, Whole, T>{key, whole, inside};
}
template <typename Kind, typename Record, typename Whole, typename T>
constexpr auto partAs(QLatin1String key, Whole Record::*whole, T Whole::*inside)
{
    return PartRow<Kind, Record, Whole, T>{key, whole, inside};
}

/** A row of the grid of an axis net. A net without one is written as if it had an empty one. */
template <typename Row> struct GridRow
{
    Row row;
    encoding::Flow flow = encoding::Flow::Both;

    template <typename Members, typename Net> bool read(const Members &json, Net &net) const
    {
        return row.read(json, *net.axisGrid);
    }
    template <typename Net> void write(const Net &net, QJsonObject &json) const
    {
        row.write(net.axisGrid ? *net.axisGrid : AxisGrid_Sample(), json);
    }
};

template <typename Row> constexpr auto ofGrid(Row row) { return GridRow<Row>{row}; }

} // namespace slab
