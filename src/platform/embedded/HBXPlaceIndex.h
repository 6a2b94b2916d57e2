#pragma once

#include "platform/geometry/CBox2.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace hbx::embedded {

class HBXElementDrawObj;

/** A cell of a place index. Cells of one level have sides of twice those of the level below; a box lies in the lowest level
 *  whose sides are at least twice its own, so that it reaches no further than into the next cell. */
struct HBXPlaceCell
{
    int level;
    std::int64_t column;
    std::int64_t row;
    bool operator==(const HBXPlaceCell &other) const
    {
        return level == other.level && column == other.column && row == other.row;
    }
};

/** Where an index has an object. The object keeps it: asking a table for each object would be most of the work. */
struct HBXPlaceFiling
{
    std::optional<HBXPlaceCell> cell; ///< none: its box keeps it out, or it is new
    std::optional<std::size_t> turn;  ///< in the queue of those whose place changed
};

/** Finds objects by where their boxes lie: a hash of the lower corners, in cells that are larger than the boxes in them. An
 *  object whose place changed is filed anew at the next question, so that a change costs nothing more. Does not own the
 *  objects. */
class HBXPlaceIndex
{
public:
    using Box = vks::CBox2<double>;
    using Objects = std::vector<HBXElementDrawObj *>;

    /** What an object is filed by. It is in one index of each kind at most. A box that is not valid keeps it out. */
    enum Kind { kWorldBoxes, kBarMiddles };

    explicit HBXPlaceIndex(Kind kind = kWorldBoxes) : m_kind(kind) {}

    /** For a new object and for each change of its box. */
    void placeChanged(HBXElementDrawObj &object);
    void remove(HBXElementDrawObj &object);

    /** Objects whose boxes share a point with this box or come within a tolerance of it (mm), in no particular order;
     *  an empty box meets none, one without bounds may meet all. */
    Objects meeting(const Box &box, double tolerance);
    /** Those of them whose boxes have their sides where this box has them, within the tolerance. */
    Objects sameBox(const Box &box, double tolerance);
    static bool areSameBoxes(const Box &a, const Box &b, double tolerance);

private:
    enum { kLevelCount = 24 };
    using Cell = HBXPlaceCell;
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
    void file(HBXElementDrawObj *object);
    void unfile(HBXElementDrawObj *object);
    Box boxOf(const HBXElementDrawObj &object) const;
    HBXPlaceFiling &filingOf(HBXElementDrawObj &object) const;
    void addMeeting(int level, const Box &reach, Objects &found) const;
    void addMeetingOneByOne(int level, const Box &reach, Objects &found) const;
    static void addTouching(const std::vector<Entry> &cell, const Box &reach, Objects &found);

    Kind m_kind;
    std::unordered_map<Cell, std::vector<Entry>, CellHash> m_cells;
    std::size_t m_count = 0;                         ///< filed objects
    std::array<std::size_t, kLevelCount> m_counts{}; ///< the same by level
    std::vector<HBXElementDrawObj *> m_queue;        ///< whose places changed; null for one that is gone since
};

} // namespace hbx::embedded
