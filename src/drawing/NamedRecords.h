#pragma once

#include "drawing/RecordSearch.h"
#include "encoding/RecordFields.h"

#include <QHash>
#include <QList>
#include <QString>

namespace drawing {

/** A list of records that keep their name for life, and the first of a name found without a walk through a long list.
 *
 *  The list itself may be handed out and changed from outside. It is noticed by what Qt's lists share: the index keeps
 *  a copy of the list, and whatever changes the list parts it from that copy. Only writing through an iterator or a
 *  reference to an entry that is older than the last search is not noticed; it can hide the record written, and no more.
 *
 *  Says nothing of ownership: the class that has such a list does. Copies hold the very same records.
 *  @tparam Name  the record's getter of its name */
template <typename Record, const QString &(Record::*Name)() const> class NamedRecords
{
public:
    /** May be changed, null records included. */
    QList<Record *> &list() { return m_records; }
    /** The same, to be read. */
    const QList<Record *> &list() const { return m_records; }

    /** The index goes along. Null is kept and never found. */
    void append(Record *record)
    {
        const bool indexed = isIndexed();
        dropIndexUnless(indexed);
        m_indexed.clear(); // or the list would be copied now
        m_records.append(record);
        if (indexed) {
            note(m_records.size() - 1);
            m_indexed = m_records;
        }
    }

    /** First record of exactly that name, else null. */
    Record *first(const QString &name) const { return m_records.value(indexOf(name), nullptr); }

    /** Takes the first record of that name out of the list. @return the record, null when there is none */
    Record *takeFirst(const QString &name)
    {
        const int index = indexOf(name);
        if (index == m_records.size())
            return nullptr;
        dropIndexUnless(false);
        return m_records.takeAt(index);
    }

private:
    static constexpr int kShort = 16; ///< entries; a walk through so many is faster than a look into the index
    static constexpr int kWalksBeforeIndexing = 8; ///< so that a list that keeps changing is not indexed each time

    bool isIndexed() const { return m_records.isSharedWith(m_indexed); }
    bool isNamed(int index, const QString &name) const
    {
        const Record *record = m_records.value(index, nullptr);
        return record && (record->*Name)() == name;
    }

    /** Index of the first record of that name, the list's length without one. */
    int indexOf(const QString &name) const
    {
        const int size = m_records.size();
        if (size <= kShort || !isIndexed())
            return walkTo(name);
        const int index = m_places.value(name, size);
        return index == size || isNamed(index, name) ? index : walkTo(name);
    }
    int walkTo(const QString &name) const
    {
        const int index = indexOfFirst(m_records, [&](const Record &one) { return (one.*Name)() == name; });
        m_walked += index;
        if (m_records.size() > kShort && m_walked / kWalksBeforeIndexing >= m_records.size())
            buildIndex();
        return index;
    }

    void buildIndex() const
    {
        dropIndexUnless(false);
        m_places.reserve(m_records.size());
        for (int index = 0; index < m_records.size(); ++index)
            note(index);
        m_indexed = m_records;
    }
    void dropIndexUnless(bool valid) const
    {
        if (valid)
            return;
        m_indexed.clear();
        m_places.clear();
        m_walked = 0;
    }
    /** The first of a name stays. */
    void note(int index) const
    {
        const Record *record = m_records.at(index);
        if (record && !m_places.contains((record->*Name)()))
            m_places.insert((record->*Name)(), index);
    }

    QList<Record *> m_records;
    mutable QList<Record *> m_indexed; ///< shares its data with the list while the index holds
    mutable QHash<QString, int> m_places;
    mutable qint64 m_walked = 0; ///< entries passed since the index was dropped
};

} // namespace drawing

namespace encoding {

/** Array of the records, like that of a plain list of pointers. */
template <typename Record, const QString &(Record::*Name)() const> struct ValueKind<drawing::NamedRecords<Record, Name>>
{
    using Records = drawing::NamedRecords<Record, Name>; ///< of the field

    /** Each by its toJson; null records are not written. */
    static QJsonValue toValue(const Records &records) { return ValueKind<QList<Record *>>::toValue(records.list()); }
    /** New records, which belong to whoever has the list; the fallback for what is no array. */
    static Records fromValue(const QJsonValue &json, const Records &fallback)
    {
        if (!json.isArray())
            return fallback;
        Records records;
        records.list() = ValueKind<QList<Record *>>::fromValue(json, {});
        return records;
    }
};

} // namespace encoding
