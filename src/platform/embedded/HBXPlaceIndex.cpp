#include "platform/embedded/HBXPlaceIndex.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXPlacedShape.h"
#include "platform/embedded/HBXSameObject.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace hbx::embedded {
namespace {

constexpr double kCellSide = 8000.0;   // mm, of the lowest level: most parts of a building are not half as long
constexpr double kRoom = 2.0;          // sides of a cell to those of its boxes: some share it, and cells are fewer
constexpr double kFarthestCell = 1e15; // beyond, all share the outermost cells

double cellSide(int level) { return std::ldexp(kCellSide, level); }

std::int64_t lineOf(double coordinate, int level)
{
    return static_cast<std::int64_t>(
        std::clamp(std::floor(coordinate / cellSide(level)), -kFarthestCell, kFarthestCell));
}

bool isNear(const vks::CVec2<double> &a, const vks::CVec2<double> &b, double tolerance)
{
    return std::fabs(a.x - b.x) <= tolerance && std::fabs(a.y - b.y) <= tolerance;
}

bool isPlace(const vks::CBox2<double> &box) { return box.IsValid() && box.minPt.IsFinite() && box.maxPt.IsFinite(); }

} // namespace

HBXPlaceIndex::Box HBXPlaceIndex::boxOf(const HBXElementDrawObj &object) const
{
    return m_kind == kWorldBoxes ? object.placedShape().worldBox() : barMiddle(object);
}

HBXPlaceFiling &HBXPlaceIndex::filingOf(HBXElementDrawObj &object) const { return object.placeFiling(m_kind); }

std::size_t HBXPlaceIndex::CellHash::operator()(const Cell &cell) const
{
    constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15u; // spreads neighbouring columns
    const auto line = static_cast<std::uint64_t>(cell.column) * kMix + static_cast<std::uint64_t>(cell.level);
    return static_cast<std::size_t>(line * kMix + static_cast<std::uint64_t>(cell.row));
}

HBXPlaceIndex::Cell HBXPlaceIndex::cellOf(const Box &box)
{
    const double size = kRoom * std::max(box.Width(), box.Height());
    int level = 0;
    while (level < kLevelCount - 1 && cellSide(level) < size)
        ++level;
    return {level, lineOf(box.minPt.x, level), lineOf(box.minPt.y, level)};
}

void HBXPlaceIndex::placeChanged(HBXElementDrawObj &object)
{
    HBXPlaceFiling &filing = filingOf(object);
    if (filing.turn)
        return;
    filing.turn = m_queue.size();
    m_queue.push_back(&object);
}

void HBXPlaceIndex::remove(HBXElementDrawObj &object)
{
    unfile(&object);
    if (const auto turn = std::exchange(filingOf(object).turn, std::nullopt))
        m_queue[*turn] = nullptr;
}

void HBXPlaceIndex::unfile(HBXElementDrawObj *object)
{
    const auto cell = std::exchange(filingOf(*object).cell, std::nullopt);
    if (!cell)
        return;
    std::vector<Entry> &entries = m_cells[*cell];
    entries.erase(
        std::find_if(entries.begin(), entries.end(), [object](const Entry &entry) { return entry.object == object; }));
    --m_count;
    --m_counts[static_cast<std::size_t>(cell->level)];
}

void HBXPlaceIndex::file(HBXElementDrawObj *object)
{
    const Box box = boxOf(*object);
    if (!isPlace(box))
        return;
    const Cell cell = cellOf(box);
    filingOf(*object).cell = cell;
    m_cells[cell].push_back({object, box});
    ++m_count;
    ++m_counts[static_cast<std::size_t>(cell.level)];
}

void HBXPlaceIndex::fileAll()
{
    for (HBXElementDrawObj *&object : m_queue) {
        if (!object)
            continue;
        unfile(object);
        file(object);
        filingOf(*object).turn.reset();
        object = nullptr; // where one fails, those behind it keep their turn
    }
    m_queue.clear();
}

HBXPlaceIndex::Objects HBXPlaceIndex::meeting(const Box &box, double tolerance)
{
    Objects found;
    const Box reach = box.Grown(tolerance);
    if (!reach.IsValid()) // empty, or not a number
        return found;
    fileAll();
    for (int level = 0; level < kLevelCount; ++level)
        addMeeting(level, reach, found);
    return found;
}

void HBXPlaceIndex::addMeeting(int level, const Box &reach, Objects &found) const
{
    const std::size_t count = m_counts[static_cast<std::size_t>(level)];
    if (count == 0)
        return;
    // Boxes that begin one cell before may reach into the first one.
    const std::int64_t firstColumn = lineOf(reach.minPt.x, level) - 1;
    const std::int64_t firstRow = lineOf(reach.minPt.y, level) - 1;
    const std::int64_t lastColumn = lineOf(reach.maxPt.x, level);
    const std::int64_t lastRow = lineOf(reach.maxPt.y, level);
    const double cells =
        (static_cast<double>(lastColumn - firstColumn) + 1) * (static_cast<double>(lastRow - firstRow) + 1);
    // The boxes of the highest level may be of any size.
    if (level == kLevelCount - 1 || cells > static_cast<double>(m_count)) {
        addMeetingOneByOne(level, reach, found);
        return;
    }
    for (std::int64_t column = firstColumn; column <= lastColumn; ++column)
        for (std::int64_t row = firstRow; row <= lastRow; ++row)
            if (const auto cell = m_cells.find({level, column, row}); cell != m_cells.end())
                addTouching(cell->second, reach, found);
}

void HBXPlaceIndex::addMeetingOneByOne(int level, const Box &reach, Objects &found) const
{
    for (const auto &[cell, entries] : m_cells)
        if (cell.level == level)
            addTouching(entries, reach, found);
}

void HBXPlaceIndex::addTouching(const std::vector<Entry> &cell, const Box &reach, Objects &found)
{
    for (const Entry &entry : cell)
        if (entry.box.Touches(reach, 0.0))
            found.push_back(entry.object);
}

HBXPlaceIndex::Objects HBXPlaceIndex::sameBox(const Box &box, double tolerance)
{
    if (!isPlace(box))
        return {};
    Objects found = meeting({box.minPt, box.minPt}, tolerance);
    const auto isElsewhere = [&](const HBXElementDrawObj *object) {
        return !areSameBoxes(boxOf(*object), box, tolerance);
    };
    found.erase(std::remove_if(found.begin(), found.end(), isElsewhere), found.end());
    return found;
}

bool HBXPlaceIndex::areSameBoxes(const Box &a, const Box &b, double tolerance)
{
    return isNear(a.minPt, b.minPt, tolerance) && isNear(a.maxPt, b.maxPt, tolerance);
}

} // namespace hbx::embedded
