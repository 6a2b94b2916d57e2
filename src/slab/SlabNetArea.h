#pragma once

#include "platform/geometry/CPolygon.h"
#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"

#include <vector>

/** Areas of boards and holes without what beams, walls and columns under them take away.
 *
 *  Keeps the last union of supports, since slabs that are compared mostly lie on the same ones: good for one comparison
 *  after another, as long as no element changes. */
class SlabNetArea
{
public:
    /** @param search  where the supports are found; has to live longer */
    explicit SlabNetArea(const ORVCADBoardLocalModelSearchService_Sample &search);

    /** The outline, less the supports that overlap it or lie inside it. A support that holds the outline, or overlaps it
     *  by no more than 1 mm, takes nothing. Meant: nor does a beam or wall whose line does not touch the outline's box,
     *  even where its section reaches in.
     *  @return a new polygon; null for null and when nothing is left */
    vks::CRefPtr<vks::CPolygon> of(const vks::CPolygon *outline);

private:
    using Object = ORVCADBoardLocalModel_Sample::Object;
    using Polygon = vks::CRefPtr<vks::CPolygon>;

    /** Supports that take area, each with its polygon. */
    struct Supports
    {
        std::vector<const Object *> elements;
        std::vector<Polygon> polygons;
    };

    Supports supportsIn(const vks::CPolygon &outline) const;
    Polygon unionOf(const Supports &supports);

    const ORVCADBoardLocalModelSearchService_Sample &m_search;
    std::vector<const Object *> m_united; // of m_union
    Polygon m_union;
};
