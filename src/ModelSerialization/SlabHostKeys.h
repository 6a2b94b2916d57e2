#pragma once

#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

#include <QSet>

/** Names and numbers that slabs, rafts, holes and their bars have in the host. */
namespace slabhost {

/** Properties and element types of the host. */
namespace property = hbx::property;
namespace type = hbx::type;

/** Types that are asked for at once. */
namespace types {
inline const QSet<qint64> rafts = {type::raft};
inline const QSet<qint64> boards = {type::slab};
inline const QSet<qint64> boardHoles = {type::slabHole};
inline const QSet<qint64> raftBars = {type::raftBar};
inline const QSet<qint64> raftNegativeBars = {type::raftNegativeBar};
inline const QSet<qint64> bars = {type::slabBar};
inline const QSet<qint64> negativeBars = {type::slabNegativeBar};
inline const QSet<qint64> columns = {type::column, type::tieColumn};
inline const QSet<qint64> beams = {type::beam, type::linkBeam, type::tieBeam, type::foundationBeam};
inline const QSet<qint64> walls = {type::forceWall, type::partitionWall, type::retainingWall};
} // namespace types

namespace subtype {
constexpr qint64 slab = 13;
constexpr qint64 raft = 67;
using namespace hbx::subtype;
constexpr qint64 bar = 171;
constexpr qint64 negativeBar = 173;
constexpr qint64 raftNegativeBar = 177;
constexpr qint64 raftBar = 190;
} // namespace subtype

} // namespace slabhost
