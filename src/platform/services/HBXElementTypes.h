#pragma once

#include <QtGlobal>

#include <algorithm>
#include <iterator>

/** Numbers of the element types. What is said of each type by name stands in HBXElementTypeTable.h. */
namespace hbx::type {

inline constexpr qint64 forceWall = 0;
inline constexpr qint64 partitionWall = 1;
inline constexpr qint64 door = 4;
inline constexpr qint64 window = 5;
inline constexpr qint64 doorWithWindow = 6;
inline constexpr qint64 wallOpening = 7;
inline constexpr qint64 beam = 15;
inline constexpr qint64 linkBeam = 17;
inline constexpr qint64 tieBeam = 18;
inline constexpr qint64 slab = 19;
inline constexpr qint64 slabBar = 22;
inline constexpr qint64 slabNegativeBar = 23;
inline constexpr qint64 slabHole = 24;
inline constexpr qint64 column = 25;
inline constexpr qint64 tieColumn = 26;
inline constexpr qint64 foundationBeam = 47;
inline constexpr qint64 raft = 48;
inline constexpr qint64 raftBar = 49;
inline constexpr qint64 raftNegativeBar = 50;
inline constexpr qint64 isolatedFoundation = 52;
inline constexpr qint64 pileCap = 53;
inline constexpr qint64 pile = 54;
inline constexpr qint64 axisGrid = 74;
inline constexpr qint64 axisLine = 75;
inline constexpr qint64 isolatedFoundationUnit = 82;
inline constexpr qint64 pileCapUnit = 83;
inline constexpr qint64 retainingWall = 202;
inline constexpr qint64 curtainWall = 1001;
inline constexpr qint64 masonryColumn = 1002;
inline constexpr qint64 brickWall = 1003;

} // namespace hbx::type

/** Kinds of a type's section, those that are known at more than one place. */
namespace hbx::subtype {

inline constexpr qint64 rectangularHole = 153;
inline constexpr qint64 roundHole = 154;
inline constexpr qint64 otherHole = 167;

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
