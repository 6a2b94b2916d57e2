#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"

#include "platform/dwgx/ORVBoxTreeImpl.h"
#include "platform/geometry/CPositionJudge.h"
#include "platform/services/HbxRelation.h"
#include "slab/SlabSameObject.h"
#include "slab/SlabSearchTolerance.h"

#include <algorithm>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Objects = std::vector<Model::Object *>;

/** Leaves those that pass a test, in their order. */
template <typename Test> Objects filtered(Objects objects, Test passes)
{
    objects.erase(std::remove_if(objects.begin(), objects.end(), [&](Model::Object *each) { return !passes(*each); }),
                  objects.end());
    return objects;
}

} // namespace

ORVCADBoardLocalModelSearchService_Sample::ORVCADBoardLocalModelSearchService_Sample(
    const ORVCADBoardLocalModel_Sample *model, int mask)
    : m_tree(new ORVBoxTreeImpl(slab::kSearchReach), [](ORVBoxTreeImpl *tree) { delete tree; })
{
    if (!model)
        return;
    for (const Object *object : model->findObjects(mask))
        m_tree->add(object->shape().box(), const_cast<Object *>(object)); // given out to those who may change the model
}

std::vector<ORVCADBoardLocalModelSearchService_Sample::Object *> ORVCADBoardLocalModelSearchService_Sample::find(
    const vks::CBox2<double> &box, int mask) const
{
    const std::vector<void *> hits = m_tree->getIntersectantData(box, {});
    std::vector<Object *> objects;
    objects.reserve(hits.size());
    for (void *data : hits) {
        auto *object = static_cast<Object *>(data);
        if (object->type() & mask)
            objects.push_back(object);
    }
    return objects;
}

std::vector<ORVCADBoardLocalModelSearchService_Sample::Object *> ORVCADBoardLocalModelSearchService_Sample::find(
    const vks::CPolygon *polygon, int mask) const
{
    if (!polygon)
        return {};
    return filtered(find(polygon->Box(), mask), [polygon](const Object &hit) {
        const auto *section = dynamic_cast<const Model::SectionObject *>(&hit);
        return section &&
               hbx::polyPolyPosition(polygon, section->surface, slab::kOutlineTolerance) == vks::kPolygonsSame;
    });
}

std::vector<ORVCADBoardLocalModelSearchService_Sample::Object *> ORVCADBoardLocalModelSearchService_Sample::find(
    const vks::CCurve2d *curve, int mask) const
{
    if (!curve)
        return {};
    vks::CPositionJudge judge;
    judge.SetDistEpsilon(slab::kSameLineTolerance);
    return filtered(find(curve->Box(), mask), [&](const Object &hit) {
        const auto *line = dynamic_cast<const Model::LineObject *>(&hit);
        return line && judge.GetCurveCurvePosition(curve, line->line) == vks::kCurvesOverlap;
    });
}

std::vector<ORVCADBoardLocalModelSearchService_Sample::Object *> ORVCADBoardLocalModelSearchService_Sample::find(
    const Object::Shape &shape, int mask) const
{
    SlabSameObject same(shape.owner(), *this);
    return filtered(find(shape.box(), mask), [&same](const Object &hit) { return same.holdsFor(hit); });
}
