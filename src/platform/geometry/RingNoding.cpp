#include "platform/geometry/RingNoding.h"

#include "platform/geometry/CBox2.h"

#include <algorithm>
#include <iterator>

namespace vks {

namespace {

using Point = CVec2<double>;

constexpr auto isLeftOf = [](const Point &a, const Point &b) { return a.x < b.x; };

CBox2<double> boxOf(const std::vector<Ring> &rings)
{
    CBox2<double> box;
    for (const Ring &ring : rings)
        for (const Point &corner : ring)
            box.Add(corner);
    return box;
}

/** Where corners can lie on edges: of two polygons where their boxes meet, of more anywhere. */
CBox2<double> rangeOf(const std::vector<std::vector<Ring>> &polygons)
{
    CBox2<double> range = polygons.empty() ? CBox2<double>() : boxOf(polygons.front());
    for (std::size_t i = 1; i < polygons.size(); ++i) {
        const CBox2<double> box = boxOf(polygons[i]);
        if (polygons.size() > 2)
            range.Add(box);
        else
            range = range.Common(box);
    }
    return range;
}

std::size_t cornerCount(const std::vector<std::vector<Ring>> &polygons)
{
    std::size_t count = 0;
    for (const std::vector<Ring> &rings : polygons)
        for (const Ring &ring : rings)
            count += ring.size();
    return count;
}

std::vector<Point> cornersFromLeft(const std::vector<std::vector<Ring>> &polygons, const CBox2<double> &range)
{
    std::vector<Point> corners;
    corners.reserve(cornerCount(polygons));
    for (const std::vector<Ring> &rings : polygons)
        for (const Ring &ring : rings)
            std::copy_if(ring.begin(), ring.end(), std::back_inserter(corners),
                         [&range](const Point &corner) { return range.Contains(corner); });
    std::sort(corners.begin(), corners.end(), isLeftOf);
    return corners;
}

/** Appends the corners on an edge, in order along it.
 *  @param corners  from left to right, all of them within the range */
void appendNodes(const Point &start, const Point &end, const std::vector<Point> &corners, const CBox2<double> &range,
                 double tolerance, Ring &ring)
{
    CBox2<double> box;
    box.Add(start);
    box.Add(end);
    if (!box.Touches(range, tolerance))
        return;
    const Point way = end - start;
    const double length = way.Length();
    if (!(length > 2 * tolerance))
        return;
    const double low = box.minPt.y - tolerance;
    const double high = box.maxPt.y + tolerance;
    const double last = box.maxPt.x + tolerance;
    const Point first(box.minPt.x - tolerance, low);
    const auto before = static_cast<std::ptrdiff_t>(ring.size());
    for (auto corner = std::lower_bound(corners.begin(), corners.end(), first, isLeftOf);
         corner != corners.end() && corner->x <= last; ++corner) {
        if (corner->y < low || corner->y > high || std::fabs(way.Cross(*corner - start)) > tolerance * length)
            continue;
        const double position = way.Dot(*corner - start) / length;
        if (position > tolerance && position < length - tolerance)
            ring.push_back(*corner);
    }
    std::sort(ring.begin() + before, ring.end(),
              [&way](const Point &a, const Point &b) { return way.Dot(a) < way.Dot(b); });
    ring.erase(std::unique(ring.begin() + before, ring.end()), ring.end());
}

} // namespace

void nodeRings(std::vector<std::vector<Ring>> &polygons, double tolerance)
{
    CBox2<double> range = rangeOf(polygons);
    range = {range.minPt - Point(tolerance, tolerance), range.maxPt + Point(tolerance, tolerance)};
    const std::vector<Point> corners = cornersFromLeft(polygons, range);
    if (corners.empty())
        return;
    for (std::vector<Ring> &rings : polygons)
        for (Ring &ring : rings) {
            Ring noded;
            noded.reserve(ring.size());
            for (std::size_t i = 0; i < ring.size(); ++i) {
                noded.push_back(ring[i]);
                appendNodes(ring[i], ring[i + 1 < ring.size() ? i + 1 : 0], corners, range, tolerance, noded);
            }
            ring = std::move(noded);
        }
}

} // namespace vks
