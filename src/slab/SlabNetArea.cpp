#include "slab/SlabNetArea.h"

#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/GPolygonBuilder.h"
#include "platform/services/HbxRelation.h"
#include "slab/SlabSearchTolerance.h"

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Polygon = vks::CRefPtr<vks::CPolygon>;

/** What an element covers as a support; null for one that is none. */
Polygon supportPolygon(const Model::Object &element)
{
    if (const auto *support = dynamic_cast<const Model::Support *>(&element))
        return vks::GPolygonBuilder::CreatePolygon(support->line, support->distanceToLeft,
                                                   support->width - support->distanceToLeft);
    const auto *column = dynamic_cast<const Model::Column *>(&element);
    return column ? column->surface : nullptr;
}

/** Whether a support overlaps an outline or lies inside it. */
bool takesArea(const vks::CPolygon &outline, const vks::CPolygon *support)
{
    const auto position = hbx::polyPolyPosition(&outline, support, slab::kSupportOverlap);
    return position == vks::kPolygonsOverlap || position == vks::kPolygonHolds;
}

} // namespace

SlabNetArea::SlabNetArea(const ORVCADBoardLocalModelSearchService_Sample &search) : m_search(search) {}

SlabNetArea::Polygon SlabNetArea::of(const vks::CPolygon *outline)
{
    if (!outline)
        return nullptr;
    const Supports supports = supportsIn(*outline);
    if (supports.elements.empty())
        return outline->Clone();
    const Polygon taken = unionOf(supports);
    return taken ? vks::CBooleanOperate2D::Subtract(outline, taken) : nullptr;
}

SlabNetArea::Supports SlabNetArea::supportsIn(const vks::CPolygon &outline) const
{
    Supports supports;
    for (const Object *element : m_search.find(outline.Box(), Object::AllKinds)) {
        Polygon polygon = supportPolygon(*element);
        if (!takesArea(outline, polygon))
            continue;
        supports.elements.push_back(element);
        supports.polygons.push_back(std::move(polygon));
    }
    return supports;
}

SlabNetArea::Polygon SlabNetArea::unionOf(const Supports &supports)
{
    if (supports.elements != m_united) {
        m_union = vks::CBooleanOperate2D::MultUnite({supports.polygons.begin(), supports.polygons.end()});
        m_united = supports.elements;
    }
    return m_union;
}
