#include "platform/geometry/RingWeld.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace vks {

namespace {

/** Cells this much wider than the tolerance let most points look into one cell only. */
constexpr double kCellPerTolerance = 16.0;

std::size_t tableSize(std::size_t expected)
{
    std::size_t size = 16;
    while (size < 2 * expected)
        size *= 2;
    return size;
}

/** The largest whole number at or below a value; what an integer cannot hold counts as the last that it can. */
std::int64_t cellOf(double value)
{
    constexpr double last = 9e18;
    const double held = std::max(-last, std::min(last, value));
    const auto towardsZero = static_cast<std::int64_t>(held);
    return towardsZero - (static_cast<double>(towardsZero) > held ? 1 : 0);
}

std::size_t slotOf(std::int64_t column, std::int64_t row, std::size_t slotCount)
{
    constexpr std::uint64_t mixer = 0x9E3779B97F4A7C15ULL;
    const std::uint64_t mixed = (static_cast<std::uint64_t>(column) * mixer ^ static_cast<std::uint64_t>(row)) * mixer;
    return static_cast<std::size_t>(mixed >> 32) & (slotCount - 1);
}

/** The cell of a place, and all those that places within the tolerance of it may lie in. */
struct Cells
{
    explicit Cells(double place) : own(cellOf(place))
    {
        constexpr double edge = 1.25 / kCellPerTolerance; // more than the tolerance, for far places are rounded
        const double within = place - static_cast<double>(own);
        first = within < edge ? own - 1 : own;
        last = within > 1.0 - edge ? own + 1 : own;
    }

    std::int64_t own;
    std::int64_t first;
    std::int64_t last;
};

double rounded(double value, double grid) { return grid > 0.0 ? std::nearbyint(value / grid) * grid : value; }

} // namespace

RingWeld::RingWeld(std::size_t expected, double tolerance, double grid)
    : m_tolerance(tolerance), m_grid(grid), m_cellsPerMm(1.0 / (kCellPerTolerance * tolerance)),
      m_heads(tableSize(expected), -1)
{
    m_kept.reserve(expected);
    m_next.reserve(expected);
}

void RingWeld::searchCell(std::size_t slot, const CVec2<double> &point, int &found) const
{
    // A slot may hold vertices of other cells too: the distance decides.
    for (int i = m_heads[slot]; i >= 0; i = m_next[i])
        if ((found < 0 || i < found) && (m_kept[i] - point).SqrLength() <= m_tolerance * m_tolerance)
            found = i;
}

CVec2<double> RingWeld::weld(const CVec2<double> &point)
{
    const Cells columns(point.x * m_cellsPerMm);
    const Cells rows(point.y * m_cellsPerMm);
    int found = -1;
    for (std::int64_t column = columns.first; column <= columns.last; ++column)
        for (std::int64_t row = rows.first; row <= rows.last; ++row)
            searchCell(slotOf(column, row, m_heads.size()), point, found);
    if (found < 0) {
        found = static_cast<int>(m_kept.size());
        m_kept.push_back(point);
        const std::size_t slot = slotOf(columns.own, rows.own, m_heads.size());
        m_next.push_back(m_heads[slot]);
        m_heads[slot] = found;
    }
    return {rounded(m_kept[found].x, m_grid), rounded(m_kept[found].y, m_grid)};
}

} // namespace vks
