#pragma once

#include "IdentifyInputModel/Wall/IdentifyResultData.h"

#include <list>
#include <map>

namespace wall {

/** Identified walls, each an element with its pieces, in the order of the elements' addresses. The elements are deleted
 *  with it, so it cannot be copied. */
template <typename Element> class OwnedWalls
{
public:
    using Map = std::map<Element *, std::list<IdentifyResultData>>;

    OwnedWalls() = default;
    ~OwnedWalls()
    {
        for (const auto &entry : m_map)
            delete entry.first;
    }
    OwnedWalls(const OwnedWalls &) = delete;
    OwnedWalls &operator=(const OwnedWalls &) = delete;

    /** Entries of elements that the map has already are replaced, its others stay. */
    void copyInto(Map &walls) const
    {
        for (const auto &[element, pieces] : m_map)
            walls[element] = pieces;
    }
    void append(Element *element, const IdentifyResultData &piece) { m_map[element].push_back(piece); }

    const Map &map() const { return m_map; }
    Map &map() { return m_map; } ///< an element that is put in belongs to this; one that is taken out, to the caller

private:
    Map m_map;
};

} // namespace wall
