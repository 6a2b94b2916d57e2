#pragma once

#include "platform/geometry/CBox2.h"

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace hbx::embedded {

class HBXElementDrawObj;

/** Finds objects that may stand in the same place: a hash of the lower corners of their world boxes. An object whose
 *  place changed is filed anew at the next question, so that a change costs nothing more. Does not own the objects. */
class HBXPlaceIndex
{
public:
    /** For a new object and for each change of its world box. */
    void placeChanged(HBXElementDrawObj &object) { m_unfiled.insert(&object); }
    void remove(HBXElementDrawObj &object);

    /** Objects whose boxes have their sides where this box has them, within a tolerance (mm); empty boxes match none. */
    std::vector<HBXElementDrawObj *> sameBox(const vks::CBox2<double> &box, double tolerance);

private:
    struct Cell
    {
        std::int64_t column;
        std::int64_t row;
        bool operator==(const Cell &other) const { return column == other.column && row == other.row; }
    };
    struct CellHash
    {
        std::size_t operator()(const Cell &cell) const;
    };

    static Cell cellOf(const vks::CVec2<double> &corner);
    void fileAll();
    void unfile(HBXElementDrawObj *object);

    std::unordered_map<Cell, std::vector<HBXElementDrawObj *>, CellHash> m_cells;
    std::unordered_map<HBXElementDrawObj *, Cell> m_filed;
    std::unordered_set<HBXElementDrawObj *> m_unfiled;
};

} // namespace hbx::embedded
