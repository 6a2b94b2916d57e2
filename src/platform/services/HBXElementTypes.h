#pragma once

#include <QtGlobal>

#include <algorithm>
#include <iterator>

/** Numbers of the element types. What is said of each type by name stands in HBXElementTypeTable.h. */
namespace hbx::type {

inline constexpr qint64 forceWall = 0;               ///< load-bearing concrete wall
inline constexpr qint64 partitionWall = 1;           ///< partition wall
inline constexpr qint64 door = 4;                    ///< door
inline constexpr qint64 window = 5;                  ///< window
inline constexpr qint64 doorWithWindow = 6;          ///< door and window in one
inline constexpr qint64 wallOpening = 7;             ///< opening in a wall
inline constexpr qint64 beam = 15;                   ///< beam
inline constexpr qint64 linkBeam = 17;               ///< beam between two walls
inline constexpr qint64 tieBeam = 18;                ///< tie beam of foundations
inline constexpr qint64 slab = 19;                   ///< slab
inline constexpr qint64 slabBar = 22;                ///< bars of an area of slabs
inline constexpr qint64 slabNegativeBar = 23;        ///< top bars of slabs, on a line
inline constexpr qint64 slabHole = 24;               ///< hole in a slab or raft
inline constexpr qint64 column = 25;                 ///< column
inline constexpr qint64 tieColumn = 26;              ///< tie column
inline constexpr qint64 foundationBeam = 47;         ///< foundation beam
inline constexpr qint64 raft = 48;                   ///< raft foundation
inline constexpr qint64 raftBar = 49;                ///< bars of an area of rafts
inline constexpr qint64 raftNegativeBar = 50;        ///< top bars of rafts, on a line
inline constexpr qint64 isolatedFoundation = 52;     ///< isolated foundation, with units below it
inline constexpr qint64 pileCap = 53;                ///< pile cap, with units below it
inline constexpr qint64 pile = 54;                   ///< pile
inline constexpr qint64 axisGrid = 74;               ///< axis grid
inline constexpr qint64 axisLine = 75;               ///< single axis line
inline constexpr qint64 isolatedFoundationUnit = 82; ///< unit of an isolated foundation
inline constexpr qint64 pileCapUnit = 83;            ///< unit of a pile cap
inline constexpr qint64 retainingWall = 202;         ///< retaining wall
inline constexpr qint64 curtainWall = 1001;          ///< curtain wall
inline constexpr qint64 masonryColumn = 1002;        ///< masonry column
inline constexpr qint64 brickWall = 1003;            ///< brick wall

} // namespace hbx::type

/** Kinds of a type's section, those that are known at more than one place. */
namespace hbx::subtype {

inline constexpr qint64 rectangularHole = 153; ///< rectangle
inline constexpr qint64 roundHole = 154;       ///< circle
inline constexpr qint64 otherHole = 167;       ///< any other outline

} // namespace hbx::subtype

namespace hbx {

/** In type arguments: objects of any. */
inline constexpr qint64 kAnyType = -1;

/** Types whose objects form chains of beam segments. */
inline constexpr qint64 kChainTypes[] = {type::beam, type::linkBeam, type::tieBeam, type::foundationBeam};

/** Whether a type or sub-type stands in a short list of them. */
template <typename Types> bool isOneOf(qint64 wanted, const Types &types)
{
    return std::find(std::begin(types), std::end(types), wanted) != std::end(types);
}

} // namespace hbx
