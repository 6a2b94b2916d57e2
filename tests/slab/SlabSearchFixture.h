#pragma once

#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"
#include "slab/SlabModelFixture.h"

#include <vector>

/** Short ways to fill slab local models; mm. */
namespace slabs {

using Model = ORVCADBoardLocalModel_Sample;
using Search = ORVCADBoardLocalModelSearchService_Sample;
using Object = Model::Object;
using Objects = std::vector<Object *>;
using Types = Object::Types;
using CurvePtr = vks::CRefPtr<vks::CCurve2d>;

constexpr int kAll = 8191;

/** An element with an outline. */
template <typename Section> Section *section(Model &model, const shapes::PolygonPtr &surface)
{
    auto *element = ORVCADBoardLocalModelTestAccess::add<Section>(model);
    element->surface = surface;
    return element;
}

inline Model::Board *board(Model &model, const shapes::PolygonPtr &surface)
{
    return section<Model::Board>(model, surface);
}

/** A beam or wall, by default of equal width on both sides of its line. */
template <typename Support> Support *support(Model &model, const CurvePtr &axis, double width, double distanceToLeft)
{
    auto *element = ORVCADBoardLocalModelTestAccess::add<Support>(model);
    element->line = axis;
    element->width = width;
    element->distanceToLeft = distanceToLeft;
    return element;
}
template <typename Support> Support *support(Model &model, const CurvePtr &axis, double width)
{
    return support<Support>(model, axis, width, width / 2);
}

/** A working bar of a slab or across slabs. */
template <typename Bar>
Bar *areaBar(Model &model, const shapes::PolygonPtr &surface, const shapes::Point &direction = {1, 0}, int rows = 1)
{
    auto *bar = section<Bar>(model, surface);
    bar->direction = direction;
    bar->rowNumber = rows;
    return bar;
}

inline Model::NegativeForcedBar *topBar(Model &model, const CurvePtr &axis, double left, double right, int rows = 1)
{
    auto *bar = ORVCADBoardLocalModelTestAccess::add<Model::NegativeForcedBar>(model);
    bar->line = axis;
    bar->leftStretchLength = left;
    bar->rightStretchLength = right;
    bar->rowNumber = rows;
    return bar;
}

} // namespace slabs

/** The model that is searched, and one with elements to ask for. */
class SlabSearchFixture : public SlabModelFixture
{
protected:
    /** Whether the model, as it stands now, holds the element of another model. */
    bool finds(const Object *query, int indexed = slabs::kAll) const { return !hits(query, indexed).empty(); }
    slabs::Objects hits(const Object *query, int indexed = slabs::kAll) const
    {
        return slabs::Search(&model, indexed).find(query->shape(), query->type());
    }

    Model recognised;
};
