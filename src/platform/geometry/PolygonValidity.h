#pragma once

#include "platform/geometry/CPolygon.h"

#include <vector>

namespace vks {

/** The checks behind CPolygon::IsValid. */
class PolygonValidity
{
public:
    explicit PolygonValidity(const std::vector<CRefPtr<CLoop>> &loops) : m_loops(loops) {}

    /** True when the geometry is finite and every check that a bit of the mask names is passed. */
    bool passes(unsigned mask);

private:
    bool isFinite() const;
    bool isNotEmpty() const;
    bool isClosed() const;
    bool hasNoShortEdge() const;
    bool hasNoCrossing() const;
    bool hasHolesInside() const;
    bool hasArea() const;

    const std::vector<CRefPtr<CLoop>> &m_loops;
    unsigned m_mask = 0;
};

} // namespace vks
