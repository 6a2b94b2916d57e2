#include "platform/embedded/HBXShapeKinds.h"

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
    {0,    IHBXShape::kLine},     {1,    IHBXShape::kLine},     {4,    IHBXShape::kPoint},
    {5,    IHBXShape::kPoint},    {6,    IHBXShape::kPoint},    {7,    IHBXShape::kPoint},
    {15,   IHBXShape::kLine},     {17,   IHBXShape::kLine},     {18,   IHBXShape::kLine},
    {19,   IHBXShape::kFace},     {22,   IHBXShape::kPlanArea}, {23,   IHBXShape::kPlanLine},
    {24,   IHBXShape::kSection},  {25,   IHBXShape::kPoint},    {26,   IHBXShape::kPoint},
    {47,   IHBXShape::kLine},     {48,   IHBXShape::kFace},     {49,   IHBXShape::kPlanArea},
    {50,   IHBXShape::kPlanLine}, {52,   IHBXShape::kPoint},    {53,   IHBXShape::kPoint},
    {54,   IHBXShape::kPoint},    {74,   IHBXShape::kGrid},     {75,   IHBXShape::kPlanLine},
    {82,   IHBXShape::kPoint},    {83,   IHBXShape::kPoint},    {202,  IHBXShape::kLine},
    {1001, IHBXShape::kLine},     {1002, IHBXShape::kPoint},    {1003, IHBXShape::kLine},
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
