#pragma once

#include "slab/SlabNetArea.h"

#include <optional>

/** Whether elements of a slab local model are the same as one that may stand in another model.
 *
 *  The test goes by the kind of the element of the model, and asks that the other one is of its class:
 *
 *  - boards: as many loops; the larger at most 3 times the smaller; outlines the same within 15 mm, else clearly
 *    overlapping with the same net area (SlabNetArea) within 15 mm;
 *  - holes: the same net area within 15 mm;
 *  - bars of slabs, straddling or not: the same rows, area within 10 mm, and direction within 10 degrees either way
 *    round; those of one slab also the same layer ("Position");
 *  - top bars: the same rows and line (isSameLine), reaching to the same side of it;
 *  - beams are always the same; elements of other kinds never are.
 *
 *  Geometry that is missing, and overlay that fails, makes elements differ. */
class SlabSameObject
{
public:
    using Model = ORVCADBoardLocalModel_Sample;
    using Object = Model::Object;
    using Search = ORVCADBoardLocalModelSearchService_Sample;

    /** @param query   the other element; null is the same as no element but beams
     *  @param search  where supports of slabs are found; both have to live longer */
    SlabSameObject(const Object *query, const Search &search);

    /** Whether an element of the model is the same as the query. */
    bool holdsFor(const Object &hit);

private:
    using Polygon = vks::CRefPtr<vks::CPolygon>;
    struct Tests;

    bool isSame(const Model::Board &hit, const Model::Board &query);
    bool isSame(const Model::BoardHole &hit, const Model::BoardHole &query);
    bool isSame(const Model::ForcedBar &hit, const Model::ForcedBar &query);
    bool isSame(const Model::AbstractForcedBar &hit, const Model::AbstractForcedBar &query);
    bool isSame(const Model::NegativeForcedBar &hit, const Model::NegativeForcedBar &query);
    bool haveSameNetArea(const Model::Board &hit, const Model::Board &query);

    const Object *m_query;
    SlabNetArea m_netArea;
    std::optional<Polygon> m_queryNetArea; // as the test of its kind needs it; worked out at the first asking
};
