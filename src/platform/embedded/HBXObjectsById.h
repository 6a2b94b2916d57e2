#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <unordered_map>
#include <utility>

namespace hbx::embedded {

/** Owner of all objects of one kind in a building, by id. Ids mostly come in a row, so neighbours share an entry: a table with
 *  an entry for each would be laid out anew again and again as a building grows. */
template <typename T> class HBXObjectsById
{
public:
    /** Null for an unknown id. */
    T *find(qint64 id) const
    {
        const auto page = m_pages.find(pageOf(id));
        return page == m_pages.end() ? nullptr : page->second[slotOf(id)].get();
    }
    /** The object itself when it is one of these, null for one of another building or kind and for null. */
    template <typename Interface> T *own(Interface *object) const
    {
        auto *known = dynamic_cast<T *>(object);
        return known && find(known->id()) == known ? known : nullptr;
    }

    /** No object may have the id yet. */
    T &add(std::unique_ptr<T> object)
    {
        T &added = *object;
        m_pages[pageOf(added.id())][slotOf(added.id())] = std::move(object);
        return added;
    }
    void destroy(qint64 id)
    {
        const auto page = m_pages.find(pageOf(id));
        if (page == m_pages.end())
            return;
        page->second[slotOf(id)].reset();
        const auto isFree = [](const std::unique_ptr<T> &slot) { return !slot; };
        if (std::all_of(page->second.begin(), page->second.end(), isFree))
            m_pages.erase(page);
    }
    void clear() { m_pages.clear(); }

private:
    static constexpr std::size_t kSlots = 16;
    using Page = std::array<std::unique_ptr<T>, kSlots>;

    // Of ids below 0, too, which a file may have.
    static quint64 pageOf(qint64 id) { return static_cast<quint64>(id) / kSlots; }
    static std::size_t slotOf(qint64 id) { return static_cast<quint64>(id) % kSlots; }

    std::unordered_map<quint64, Page> m_pages;
};

} // namespace hbx::embedded
