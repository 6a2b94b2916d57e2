#pragma once

#include "beam/BeamKeys.h"

#include <algorithm>
#include <iterator>

namespace beam {

/** An element type that a beam may rest on. */
struct BeamSeatType
{
    /** What a type is to a beam that rests on it. */
    enum Kind { kColumn, kWall, kFoundation, kBeam, kOther };

    qint64 number; ///< of the host
    Kind kind;     ///< how it is read as a seat
    /** Has units below it, whose outline counts in place of its own. */
    bool hasUnits;
    /** Array of its seats in JSON; empty: such a seat is never made anew, and so not written. */
    QLatin1String arrayKey;

    /** Whether such a seat is made anew in a host. */
    bool isRebuilt() const { return arrayKey.size() > 0; }
};

// clang-format off
/** In the order in which a host is asked for them. */
inline constexpr BeamSeatType kSeatTypes[] = {
    {type::column,             BeamSeatType::kColumn,     false, {}},
    {type::tieColumn,          BeamSeatType::kColumn,     false, {}},
    {type::masonryColumn,      BeamSeatType::kColumn,     false, {}},
    {type::forceWall,          BeamSeatType::kWall,       false, {}},
    {type::brickWall,          BeamSeatType::kWall,       false, {}},
    {type::pile,               BeamSeatType::kFoundation, false, key::piles},
    {type::isolatedFoundation, BeamSeatType::kFoundation, true,  key::isolatedFoundations},
    {type::pileCap,            BeamSeatType::kFoundation, true,  key::pileCaps},
    {type::beam,               BeamSeatType::kBeam,       false, {}},
    {type::linkBeam,           BeamSeatType::kBeam,       false, {}},
    {type::tieBeam,            BeamSeatType::kBeam,       false, key::tieBeams},
};
// clang-format on

/** The row of a type; for one that no host is asked for, a row without any of that. */
inline const BeamSeatType &seatType(qint64 number)
{
    static constexpr BeamSeatType other{-1, BeamSeatType::kOther, false, {}};
    const auto *found = std::find_if(std::begin(kSeatTypes), std::end(kSeatTypes),
                                     [number](const BeamSeatType &row) { return row.number == number; });
    return found == std::end(kSeatTypes) ? other : *found;
}

} // namespace beam
