#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CVec2.h"

#include <cstddef>
#include <vector>

namespace vks {

/** Makes one of vertices that lie within a tolerance: each takes the earliest vertex kept that near to it. */
class ORVCADPLATFORM_EXPORT RingWeld
{
public:
    /** @param expected   number of vertices to come, for the size of the table; more may follow
     *  @param tolerance  mm; above zero
     *  @param grid       results are rounded to multiples of it, mm; 0 leaves them as they are */
    RingWeld(std::size_t expected, double tolerance, double grid);

    /** The vertex that stands for a point; a point without a kept one near is kept itself. */
    CVec2<double> weld(const CVec2<double> &point);

private:
    void searchCell(std::size_t slot, const CVec2<double> &point, int &found) const;

    double m_tolerance;
    double m_grid;
    double m_cellsPerMm; // of the table
    std::vector<CVec2<double>> m_kept;
    std::vector<int> m_next;  // the kept vertex before this one in the same slot, -1 for none
    std::vector<int> m_heads; // the last kept vertex by slot
};

} // namespace vks
