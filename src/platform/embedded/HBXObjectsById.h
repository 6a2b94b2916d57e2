#pragma once

#include <QtGlobal>

#include <memory>
#include <unordered_map>
#include <utility>

namespace hbx::embedded {

/** Owner of all objects of one kind in a building, by id. */
template <typename T> class HBXObjectsById
{
public:
    /** Null for an unknown id. */
    T *find(qint64 id) const
    {
        const auto found = m_objects.find(id);
        return found == m_objects.end() ? nullptr : found->second.get();
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
        m_objects.emplace(added.id(), std::move(object));
        return added;
    }
    void destroy(qint64 id) { m_objects.erase(id); }
    void clear() { m_objects.clear(); }

private:
    std::unordered_map<qint64, std::unique_ptr<T>> m_objects;
};

} // namespace hbx::embedded
