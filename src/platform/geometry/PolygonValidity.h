#pragma once

#include "platform/geometry/CPolygon.h"

#include <vector>

namespace vks {

/** The checks behind CPolygon::IsValid. */
class PolygonValidity
{
public:
    /** @param polygon  not owned, and not to change meanwhile
     *  @param mask     what to check, by bit (CPolygon::EnValidity) */
    PolygonValidity(const CPolygon &polygon, unsigned mask) : m_polygon(polygon), m_loops(polygon.Loops()), m_mask(mask)
    {}

    /** True when the geometry is finite and every check that the mask names is passed. */
    bool passes() const;

private:
    bool asksFor(CPolygon::EnValidity check) const { return (m_mask & check) != 0; }
    bool isFinite() const;
    bool isNotEmpty() const;
    bool isClosed() const;
    bool hasNoShortEdge() const;
    bool hasNoCrossing() const;
    bool hasHolesInside() const;
    bool hasArea() const;

    const CPolygon &m_polygon;
    const std::vector<CRefPtr<CLoop>> &m_loops;
    unsigned m_mask;
};

} // namespace vks
