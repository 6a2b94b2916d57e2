#pragma once

#include "platform/geometry/CBox2.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace hbx::embedded {

class HBXElementDrawObj;

/** Finds objects by where their boxes lie: a hash of the lower corners, in cells that are as large as the boxes in them. An
 *  object whose place changed is filed anew at the next question, so that a change costs nothing more. Does not own the
 *  objects. */
class HBXPlaceIndex
{
public:
    using Box = vks::CBox2<double>;
    using Objects = std::vector<HBXElementDrawObj *>;

    /** The box by which an object is filed; one that is not valid keeps it out. */
    using BoxOf = Box (*)(const HBXElementDrawObj &object);

    static Box worldBoxOf(const HBXElementDrawObj &object);

    explicit HBXPlaceIndex(BoxOf boxOf = worldBoxOf) : m_boxOf(boxOf) {}

    /** For a new object and for each change of its box. */
    void placeChanged(HBXElementDrawObj &object) { m_unfiled.insert(&object); }
    void remove(HBXElementDrawObj &object);

    /** Objects whose boxes share a point with this box or come within a tolerance of it (mm), in no particular order;
     *  an empty box meets none, one without bounds may meet all. */
    Objects meeting(const Box &box, double tolerance);
    /** Those of them whose boxes have their sides where this box has them, within the tolerance. */
    Objects sameBox(const Box &box, double tolerance);
    static bool areSameBoxes(const Box &a, const Box &b, double tolerance);

private:
    /** Cells of one level have sides of twice those of the level below; a box lies in the lowest level whose sides are not
     *  shorter than its own, so that it reaches no further than into the next cell. */
    enum { kLevelCount = 24 };
    struct Cell
    {
        int level;
        std::int64_t column;
        std::int64_t row;
        bool operator==(const Cell &other) const
        {
            return level == other.level && column == other.column && row == other.row;
        }
    };
    /** The box as it was filed: a question looks at many boxes and at few objects. */
    struct Entry
    {
        HBXElementDrawObj *object;
        Box box;
    };
    struct CellHash
    {
        std::size_t operator()(const Cell &cell) const;
    };

    static Cell cellOf(const Box &box);
    void fileAll();
    void unfile(HBXElementDrawObj *object);
    void addMeeting(int level, const Box &reach, Objects &found) const;
    void addMeetingOneByOne(int level, const Box &reach, Objects &found) const;
    static void addTouching(const std::vector<Entry> &cell, const Box &reach, Objects &found);

    BoxOf m_boxOf;
    std::unordered_map<Cell, std::vector<Entry>, CellHash> m_cells;
    std::unordered_map<HBXElementDrawObj *, Cell> m_filed;
    std::array<std::size_t, kLevelCount> m_counts{}; ///< filed objects by level
    std::unordered_set<HBXElementDrawObj *> m_unfiled;
};

} // namespace hbx::embedded
