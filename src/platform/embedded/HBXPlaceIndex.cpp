#include "platform/embedded/HBXPlaceIndex.h"

#include "platform/embedded/HBXElementDrawObj.h"

#include <algorithm>
#include <cmath>

namespace hbx::embedded {
namespace {

constexpr double kCellSide = 1000.0;   // mm: few parts of a building have their corners closer than this
constexpr double kFarthestCell = 1e15; // beyond, all share the outermost cells

std::int64_t lineOf(double coordinate)
{
    return static_cast<std::int64_t>(std::clamp(std::floor(coordinate / kCellSide), -kFarthestCell, kFarthestCell));
}

bool isNear(const vks::CVec2<double> &a, const vks::CVec2<double> &b, double tolerance)
{
    return std::fabs(a.x - b.x) <= tolerance && std::fabs(a.y - b.y) <= tolerance;
}

} // namespace

std::size_t HBXPlaceIndex::CellHash::operator()(const Cell &cell) const
{
    constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15u; // spreads neighbouring columns
    return static_cast<std::size_t>(static_cast<std::uint64_t>(cell.column) * kMix +
                                    static_cast<std::uint64_t>(cell.row));
}

HBXPlaceIndex::Cell HBXPlaceIndex::cellOf(const vks::CVec2<double> &corner)
{
    return {lineOf(corner.x), lineOf(corner.y)};
}

void HBXPlaceIndex::remove(HBXElementDrawObj &object)
{
    m_unfiled.erase(&object);
    unfile(&object);
}

void HBXPlaceIndex::unfile(HBXElementDrawObj *object)
{
    const auto filed = m_filed.find(object);
    if (filed == m_filed.end())
        return;
    std::vector<HBXElementDrawObj *> &cell = m_cells[filed->second];
    cell.erase(std::find(cell.begin(), cell.end(), object));
    m_filed.erase(filed);
}

void HBXPlaceIndex::fileAll()
{
    for (HBXElementDrawObj *object : m_unfiled) {
        unfile(object);
        const vks::CBox2<double> &box = object->placedShape().worldBox();
        if (!box.IsValid() || !box.minPt.IsFinite())
            continue;
        const Cell cell = cellOf(box.minPt);
        m_cells[cell].push_back(object);
        m_filed.emplace(object, cell);
    }
    m_unfiled.clear();
}

std::vector<HBXElementDrawObj *> HBXPlaceIndex::sameBox(const vks::CBox2<double> &box, double tolerance)
{
    std::vector<HBXElementDrawObj *> found;
    if (!box.IsValid() || !box.minPt.IsFinite())
        return found;
    fileAll();
    const Cell first = cellOf(box.minPt - vks::CVec2<double>(tolerance, tolerance));
    const Cell last = cellOf(box.minPt + vks::CVec2<double>(tolerance, tolerance));
    for (std::int64_t column = first.column; column <= last.column; ++column)
        for (std::int64_t row = first.row; row <= last.row; ++row)
            if (const auto cell = m_cells.find({column, row}); cell != m_cells.end())
                found.insert(found.end(), cell->second.begin(), cell->second.end());
    const auto isElsewhere = [&](const HBXElementDrawObj *object) {
        const vks::CBox2<double> &other = object->placedShape().worldBox();
        return !isNear(other.minPt, box.minPt, tolerance) || !isNear(other.maxPt, box.maxPt, tolerance);
    };
    found.erase(std::remove_if(found.begin(), found.end(), isElsewhere), found.end());
    return found;
}

} // namespace hbx::embedded
