#pragma once

#include <QList>

#include <algorithm>
#include <utility>
#include <vector>

namespace hbx::embedded {

/** Objects in id order, found by id, and removed without moving the others each time: a removed one leaves a gap, and
 *  gaps are closed when a position is asked for or when they are half of the list. Does not own the objects. */
template <typename T> class HBXIdList
{
public:
    /** Ids mostly come in rising order; any other takes its place among them. An id stands once. */
    void insert(qint64 id, T *object)
    {
        if (m_entries.empty() || m_entries.back().first < id) {
            m_entries.emplace_back(id, object);
            return;
        }
        const auto place = placeOf(id);
        if (place->first == id)
            m_gaps -= std::exchange(place->second, object) ? 0 : 1;
        else
            m_entries.emplace(place, id, object);
    }
    void remove(qint64 id)
    {
        const auto place = placeOf(id);
        if (place == m_entries.end() || place->first != id || !place->second)
            return;
        place->second = nullptr;
        if (++m_gaps > m_entries.size() / 2)
            closeGaps();
    }

    /** Null for an id that the list does not have. */
    T *find(qint64 id) const
    {
        const auto place = placeIn(m_entries, id);
        return place == m_entries.end() || place->first != id ? nullptr : place->second;
    }

    int count() const { return static_cast<int>(m_entries.size() - m_gaps); }
    bool isEmpty() const { return m_entries.size() == m_gaps; }
    /** Null for a position out of range. */
    T *at(int position)
    {
        if (position < 0 || position >= count())
            return nullptr;
        closeGaps();
        return m_entries[static_cast<std::size_t>(position)].second;
    }
    /** Calls work with each object in id order; it must not change the list. */
    template <typename Work> void forEach(Work work) const
    {
        for (std::size_t i = 0; i < m_entries.size(); ++i)
            if (m_entries[i].second)
                work(*m_entries[i].second);
    }
    /** Replaces a query's result by the objects of some lists, in id order. Goes by the ids of the lists: in a large building
     *  the objects lie out of the caches. */
    template <typename Interface>
    static void merge(const std::vector<const HBXIdList *> &lists, QList<Interface *> &out)
    {
        std::vector<Entry> entries;
        for (const HBXIdList *list : lists)
            entries.insert(entries.end(), list->m_entries.begin(), list->m_entries.end());
        if (lists.size() > 1)
            std::sort(entries.begin(), entries.end());
        out.clear();
        out.reserve(static_cast<int>(entries.size()));
        for (const Entry &entry : entries)
            if (entry.second)
                out.append(entry.second);
    }
    /** The objects of the moment, for work that removes them. */
    std::vector<T *> objects() const
    {
        std::vector<T *> all;
        all.reserve(static_cast<std::size_t>(count()));
        forEach([&all](T &object) { all.push_back(&object); });
        return all;
    }

private:
    using Entry = std::pair<qint64, T *>;

    template <typename Entries> static auto placeIn(Entries &entries, qint64 id)
    {
        return std::lower_bound(entries.begin(), entries.end(), id,
                                [](const Entry &entry, qint64 wanted) { return entry.first < wanted; });
    }
    auto placeOf(qint64 id) { return placeIn(m_entries, id); }
    void closeGaps()
    {
        if (m_gaps == 0)
            return;
        const auto isGap = [](const Entry &entry) { return !entry.second; };
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isGap), m_entries.end());
        m_gaps = 0;
    }

    std::vector<Entry> m_entries;
    std::size_t m_gaps = 0;
};

} // namespace hbx::embedded
