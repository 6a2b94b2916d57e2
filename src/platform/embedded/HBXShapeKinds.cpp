#include "platform/embedded/HBXShapeKinds.h"

#include "platform/services/HBXElementTypes.h"

#include <algorithm>
#include <iterator>

namespace hbx::embedded {
namespace {

struct TypeShape
{
    qint64 type;
    IHBXShape::Kind kind;
};

// clang-format off
constexpr TypeShape kTypeShapes[] = {
    {type::forceWall,              IHBXShape::kLine},
    {type::partitionWall,          IHBXShape::kLine},
    {type::door,                   IHBXShape::kPoint},
    {type::window,                 IHBXShape::kPoint},
    {type::doorWithWindow,         IHBXShape::kPoint},
    {type::wallOpening,            IHBXShape::kPoint},
    {type::beam,                   IHBXShape::kLine},
    {type::linkBeam,               IHBXShape::kLine},
    {type::tieBeam,                IHBXShape::kLine},
    {type::slab,                   IHBXShape::kFace},
    {type::slabBar,                IHBXShape::kPlanArea},
    {type::slabNegativeBar,        IHBXShape::kPlanLine},
    {type::slabHole,               IHBXShape::kSection},
    {type::column,                 IHBXShape::kPoint},
    {type::tieColumn,              IHBXShape::kPoint},
    {type::foundationBeam,         IHBXShape::kLine},
    {type::raft,                   IHBXShape::kFace},
    {type::raftBar,                IHBXShape::kPlanArea},
    {type::raftNegativeBar,        IHBXShape::kPlanLine},
    {type::isolatedFoundation,     IHBXShape::kPoint},
    {type::pileCap,                IHBXShape::kPoint},
    {type::pile,                   IHBXShape::kPoint},
    {type::axisGrid,               IHBXShape::kGrid},
    {type::axisLine,               IHBXShape::kPlanLine},
    {type::isolatedFoundationUnit, IHBXShape::kPoint},
    {type::pileCapUnit,            IHBXShape::kPoint},
    {type::retainingWall,          IHBXShape::kLine},
    {type::curtainWall,            IHBXShape::kLine},
    {type::masonryColumn,          IHBXShape::kPoint},
    {type::brickWall,              IHBXShape::kLine},
};
// clang-format on

} // namespace

std::optional<IHBXShape::Kind> shapeKindOfType(qint64 type)
{
    const auto *found = std::find_if(std::begin(kTypeShapes), std::end(kTypeShapes),
                                     [type](const TypeShape &row) { return row.type == type; });
    return found == std::end(kTypeShapes) ? std::nullopt : std::optional(found->kind);
}

} // namespace hbx::embedded
