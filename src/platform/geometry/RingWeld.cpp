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

/** Cells beyond what an integer holds share the last one. */
std::uint64_t cellNumber(double cell)
{
    constexpr double last = 9e18;
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(std::max(-last, std::min(last, cell))));
}

double rounded(double value, double grid) { return grid > 0.0 ? std::nearbyint(value / grid) * grid : value; }

} // namespace

RingWeld::RingWeld(std::size_t expected, double tolerance, double grid)
    : m_tolerance(tolerance), m_grid(grid), m_cell(kCellPerTolerance * tolerance), m_heads(tableSize(expected), -1)
{
    m_kept.reserve(expected);
    m_next.reserve(expected);
}

std::size_t RingWeld::slotOf(double column, double row) const
{
    constexpr std::uint64_t mixer = 0x9E3779B97F4A7C15ULL;
    const std::uint64_t mixed = (cellNumber(column) * mixer ^ cellNumber(row)) * mixer;
    return static_cast<std::size_t>(mixed >> 32) & (m_heads.size() - 1);
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
    const double firstColumn = std::floor((point.x - m_tolerance) / m_cell);
    const double firstRow = std::floor((point.y - m_tolerance) / m_cell);
    const bool twoColumns = std::floor((point.x + m_tolerance) / m_cell) > firstColumn;
    const bool twoRows = std::floor((point.y + m_tolerance) / m_cell) > firstRow;
    int found = -1;
    for (int i = 0; i <= (twoColumns ? 1 : 0); ++i)
        for (int j = 0; j <= (twoRows ? 1 : 0); ++j)
            searchCell(slotOf(firstColumn + i, firstRow + j), point, found);
    if (found < 0) {
        found = static_cast<int>(m_kept.size());
        m_kept.push_back(point);
        const std::size_t slot = slotOf(std::floor(point.x / m_cell), std::floor(point.y / m_cell));
        m_next.push_back(m_heads[slot]);
        m_heads[slot] = found;
    }
    return {rounded(m_kept[found].x, m_grid), rounded(m_kept[found].y, m_grid)};
}

} // namespace vks
