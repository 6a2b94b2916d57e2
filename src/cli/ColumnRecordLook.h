#pragma once

#include "cli/ExpectedValue.h"
#include "cli/JsonFault.h"
#include "cli/Message.h"
#include "cli/UnreadKeys.h"
#include "column/ColumnInputFields.h"
#include "column/ColumnResultFields.h"
#include "encoding/GeometryTextReader.h"
#include "encoding/PointText.h"
#include "platform/dwgx/StrictJson.h"

#include <QStringList>

#include <vector>

namespace orvcad {

/** Walks through a JSON value along the tables by which records are read, and notes what the readers pass over in
 *  silence. A missing key is only counted: what is missing reads as 0, false or empty, and nothing is lost. */
class ColumnRecordLook
{
public:
    using Place = dwgx::JsonPlace;

    const std::vector<JsonFault> &findings() const { return m_findings; }
    int missingKeys() const { return m_missingKeys; }

    void note(const Place &place, const QString &reason) { m_findings.push_back({place.text(), reason}); }

    /** A record whose fields stand in a table. */
    template <typename Table> void lookAtObject(const QJsonValue &value, const Table &table, const Place &place)
    {
        if (!value.isObject()) {
            note(place, Message::tr("is no object"));
            return;
        }
        const QJsonObject object = value.toObject();
        QStringList unknown = object.keys();
        QStringList known;
        encoding::forEachField(table, [&](const auto &row) {
            using Kind = typename std::decay_t<decltype(row)>::KindOfValue;
            known.append(row.key);
            unknown.removeOne(row.key);
            const auto member = object.constFind(row.key);
            if (member == object.constEnd())
                ++m_missingKeys;
            else
                lookAt(Tag<Kind>(), *member, Place(place, row.key));
        });
        for (const QString &key : qAsConst(unknown))
            noteUnknown(place, key, known);
    }

private:
    template <typename Kind> struct Tag
    {};
    template <typename T> using Plain = Tag<encoding::ValueKind<T>>;
    using Reader = GeometryTextReader;

    void expect(const QJsonValue &value, Expected kind, const Place &place)
    {
        if (!fits(value, kind))
            note(place, Message::tr("is not %1").arg(wordFor(kind)));
    }
    void noteUnknown(const Place &place, const QString &key, const QStringList &known)
    {
        const QString holder = place.text();
        m_findings.push_back({holder.isEmpty() ? key : holder + u'.' + key, whyUnread(key, known)});
    }

    void lookAt(Plain<QString>, const QJsonValue &value, const Place &place) { expect(value, Expected::Text, place); }
    void lookAt(Plain<int>, const QJsonValue &value, const Place &place) { expect(value, Expected::Integer, place); }
    void lookAt(Plain<double>, const QJsonValue &value, const Place &place) { expect(value, Expected::Number, place); }
    void lookAt(Plain<bool>, const QJsonValue &value, const Place &place) { expect(value, Expected::Truth, place); }
    void lookAt(Tag<encoding::NarrowInt64>, const QJsonValue &value, const Place &place)
    {
        expect(value, Expected::Integer, place);
    }
    void lookAt(Tag<encoding::LooseInt64>, const QJsonValue &value, const Place &place)
    {
        expect(value, Expected::Id, place);
    }

    /** The empty text is no outline, which a column may lack. */
    void lookAt(Plain<Reader::Polygon>, const QJsonValue &value, const Place &place)
    {
        Reader::Polygon polygon;
        if (!value.isString())
            expect(value, Expected::Text, place);
        else if (!value.toString().isEmpty() && !Reader::reconstructPoly(value.toString(), polygon))
            note(place, polygon ? Message::tr("is no valid outline") : Message::tr("is no text of an outline"));
    }
    void lookAt(Tag<column::AxisLineText>, const QJsonValue &value, const Place &place)
    {
        Reader::Curve curve;
        if (!value.isString())
            expect(value, Expected::Text, place);
        else if (!Reader::reconstructCurve(value.toString(), curve))
            note(place, Message::tr("is no text of a curve"));
    }
    void lookAt(Plain<vks::CVec2<double>>, const QJsonValue &value, const Place &place)
    {
        vks::CVec2<double> point;
        if (!value.isString())
            expect(value, Expected::Text, place);
        else if (!encoding::readPoint(value.toString(), point))
            note(place, Message::tr("is no text of a point"));
    }

    template <typename Fields> void lookAt(Tag<encoding::Nested<Fields>>, const QJsonValue &value, const Place &place)
    {
        lookAtObject(value, Fields::table, place);
    }
    template <typename Fields>
    void lookAt(Tag<encoding::SharedNested<Fields>>, const QJsonValue &value, const Place &place)
    {
        lookAtObject(value, Fields::table, place);
    }
    /** A kind of its own that names the fields of its object. */
    template <typename Kind, typename Fields = typename Kind::Fields>
    void lookAt(Tag<Kind>, const QJsonValue &value, const Place &place)
    {
        lookAtObject(value, Fields::table, place);
    }
    template <typename List, typename EntryKind>
    void lookAt(Tag<encoding::Appended<List, EntryKind>>, const QJsonValue &value, const Place &place)
    {
        if (!value.isArray())
            note(place, Message::tr("is no array"));
        const QJsonArray array = value.toArray();
        int index = 0;
        for (const QJsonValue entry : array)
            lookAt(Tag<EntryKind>(), entry, Place(place, index++));
    }

    std::vector<JsonFault> m_findings;
    int m_missingKeys = 0;
};

} // namespace orvcad
