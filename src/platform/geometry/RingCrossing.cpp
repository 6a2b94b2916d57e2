#include "platform/geometry/RingCrossing.h"

#include <algorithm>

namespace vks {

namespace {

std::size_t after(std::size_t index, const Ring &ring) { return index + 1 < ring.size() ? index + 1 : 0; }

/** An edge by its place, with its left end, by which edges are sorted. */
struct Edge
{
    double left;
    const Ring *ring;
    std::size_t index;

    const CVec2<double> &start() const { return (*ring)[index]; }
    const CVec2<double> &end() const { return (*ring)[after(index, *ring)]; }
    double right() const { return std::max(start().x, end().x); }
};

std::vector<Edge> edgesByLeftEnd(const std::vector<Ring> &rings)
{
    std::vector<Edge> edges;
    std::size_t count = 0;
    for (const Ring &ring : rings)
        count += ring.size();
    edges.reserve(count);
    for (const Ring &ring : rings)
        for (std::size_t i = 0; i < ring.size(); ++i)
            edges.push_back({std::min(ring[i].x, ring[after(i, ring)].x), &ring, i});
    std::sort(edges.begin(), edges.end(), [](const Edge &a, const Edge &b) { return a.left < b.left; });
    return edges;
}

bool reachesInto(const Edge &edge, double low, double high)
{
    const double start = edge.start().y;
    const double end = edge.end().y;
    return std::max(start, end) >= low && std::min(start, end) <= high;
}

/** 1 and -1 for the sides of an edge, 0 on its line. */
int sideOf(const Edge &edge, const CVec2<double> &point)
{
    const double cross = (edge.end() - edge.start()).Cross(point - edge.start());
    return (cross > 0.0) - (cross < 0.0);
}

bool isNext(const Edge &edge, const Edge &next)
{
    return edge.ring == next.ring && next.index == after(edge.index, *edge.ring);
}

/** An edge that runs back on the one before it. */
bool turnsBack(const Edge &edge, const Edge &next)
{
    const CVec2<double> along = next.end() - next.start();
    const CVec2<double> before = edge.end() - edge.start();
    return before.Cross(along) == 0.0 && before.Dot(along) < 0.0;
}

bool meetWrongly(const Edge &a, const Edge &b)
{
    if (isNext(a, b))
        return turnsBack(a, b);
    if (isNext(b, a))
        return turnsBack(b, a);
    return sideOf(a, b.start()) * sideOf(a, b.end()) <= 0 && sideOf(b, a.start()) * sideOf(b, a.end()) <= 0;
}

} // namespace

bool ringsCross(const std::vector<Ring> &rings)
{
    const std::vector<Edge> edges = edgesByLeftEnd(rings);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const double right = edges[i].right();
        const double low = std::min(edges[i].start().y, edges[i].end().y);
        const double high = std::max(edges[i].start().y, edges[i].end().y);
        for (std::size_t j = i + 1; j < edges.size() && edges[j].left <= right; ++j)
            if (reachesInto(edges[j], low, high) && meetWrongly(edges[i], edges[j]))
                return true;
    }
    return false;
}

} // namespace vks
