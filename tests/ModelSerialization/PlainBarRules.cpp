#include "ModelSerialization/PlainBarRules.h"

#include "platform/geometry/CBooleanOperate2D.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace plainbars {
namespace {

constexpr double kNear = 1e-5;              // mm
constexpr double kProbeLength = 100.0;      // mm
constexpr double kSupportAllowance = 150.0; // mm
constexpr double kNoThickness = 0.001;      // mm on the mean
constexpr double kClearThickness = 0.05;

/** Where the line through a point meets the boundary, along it. Straight edges alone. */
std::vector<double> meetings(const vks::CPolygon &area, const Point &point, const Point &direction)
{
    std::vector<vks::CCurve2d *> edges;
    area.GetCurves(edges);
    std::vector<double> along;
    for (const vks::CCurve2d *edge : edges) {
        const Point side = edge->EndPoint() - edge->StartPoint();
        const double turn = direction.Cross(side);
        if (std::fabs(turn) < kNear * edge->Length())
            continue; // runs along it: its neighbours are met at its ends
        const double part = direction.Cross(point - edge->StartPoint()) / turn;
        const double noise = kNear / edge->Length();
        if (part > -noise && part < 1 + noise)
            along.push_back((edge->StartPoint() + side * part - point).Dot(direction));
    }
    std::sort(along.begin(), along.end());
    return along;
}

/** The row of each of some bars: their places in a group, in the order of a key. */
template <typename Bar, typename IsInGroupOf, typename KeyOf>
std::vector<int> rowsBy(const std::vector<Bar> &bars, const IsInGroupOf &isInGroupOf, const KeyOf &keyOf)
{
    std::vector<std::vector<std::size_t>> groups;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const auto group = std::find_if(groups.begin(), groups.end(), [&](const auto &members) {
            return isInGroupOf(bars[members.front()], bars[i]);
        });
        if (group == groups.end())
            groups.push_back({i});
        else
            group->push_back(i);
    }
    std::vector<int> rows(bars.size());
    for (auto &group : groups) {
        std::stable_sort(group.begin(), group.end(),
                         [&](std::size_t a, std::size_t b) { return keyOf(bars[a]) < keyOf(bars[b]); });
        for (std::size_t place = 0; place < group.size(); ++place)
            rows[group[place]] = static_cast<int>(place);
    }
    return rows;
}

} // namespace

Segment segmentOf(const vks::CCurve2d &line) { return {line.StartPoint(), line.EndPoint()}; }

bool shareStretch(const Segment &a, const Segment &b)
{
    const Point along = a.along();
    const auto isOff = [&](const Point &point) { return std::fabs(along.Cross(point - a.start)) > kNear; };
    if (isOff(b.start) || isOff(b.end))
        return false;
    const double length = a.start.DistanceTo(a.end);
    const double first = along.Dot(b.start - a.start);
    const double second = along.Dot(b.end - a.start);
    return std::min(std::max(first, second), length) - std::max(std::min(first, second), 0.0) > kNear;
}

Segment through(const vks::CPolygon &area, const Point &point, const Point &direction)
{
    const std::vector<double> along = meetings(area, point, direction);
    if (along.empty())
        return {point, point + direction * kProbeLength};
    return {point + direction * along.front(), point + direction * along.back()};
}

double rowOffset(int row)
{
    constexpr double offsets[] = {0.0, -0.125, 0.125};
    return offsets[row];
}

Overlap overlap(const vks::CPolygon &area, const vks::CPolygon &outline)
{
    if (!area.Box().Intersects(outline.Box()))
        return Overlap::None;
    const auto common = vks::CBooleanOperate2D::Intersect(&area, &outline);
    const double thickness = common ? common->Area() / (common->Perimeter() / 2) : 0.0;
    if (thickness < kNoThickness)
        return Overlap::None;
    return thickness < kClearThickness ? Overlap::Thin : Overlap::Clear;
}

bool runsOver(const Segment &bar, const vks::CPolygon &outline)
{
    const double length = bar.start.DistanceTo(bar.end);
    if (length - 2 * kSupportAllowance < kNear)
        return false; // nothing is left of it
    for (double at = kSupportAllowance; at <= length - kSupportAllowance; at += 1.0)
        if (outline.Locate(bar.start + bar.along() * at, 0.5) > 0)
            return true;
    return false;
}

std::vector<bool> placesFree(const std::vector<TopBar> &bars)
{
    std::vector<bool> isFree;
    for (const TopBar &bar : bars) {
        bool isTaken = false;
        for (std::size_t i = 0; i < isFree.size() && !isTaken; ++i)
            isTaken = isFree[i] && std::fabs(bars[i].level - bar.level) < kNear &&
                      shareStretch(bars[i].line, bar.line) && shareStretch(bars[i].drawn, bar.drawn);
        isFree.push_back(!isTaken);
    }
    return isFree;
}

std::vector<int> rowsOf(const std::vector<AreaBar> &bars)
{
    return rowsBy(
        bars,
        [](const AreaBar &a, const AreaBar &b) {
            return a.slabs == b.slabs && a.position == b.position && std::fabs(a.direction.Dot(b.direction)) > 0.5;
        },
        [](const AreaBar &bar) { return bar.barInfo; });
}

std::vector<int> rowsOf(const std::vector<LineBar> &bars)
{
    return rowsBy(
        bars, [](const LineBar &a, const LineBar &b) { return a.side == b.side && shareStretch(a.line, b.line); },
        [](const LineBar &bar) { return std::make_tuple(bar.barInfo, bar.leftLabel, bar.rightLabel); });
}

} // namespace plainbars
