#include "platform/geometry/RingCrossing.h"

#include <algorithm>

namespace vks {

namespace {

/** An edge between two corners of a ring, with its range: edges are sorted by their left ends, and most are told apart by
 *  their ranges alone. */
struct Edge
{
    Edge(const CVec2<double> &from, const CVec2<double> &to)
        : left(std::min(from.x, to.x)), right(std::max(from.x, to.x)), low(std::min(from.y, to.y)),
          high(std::max(from.y, to.y)), start(&from), end(&to)
    {}

    double left;
    double right;
    double low;
    double high;
    const CVec2<double> *start;
    const CVec2<double> *end;
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
            edges.emplace_back(ring[i], ring[i + 1 < ring.size() ? i + 1 : 0]);
    std::sort(edges.begin(), edges.end(), [](const Edge &a, const Edge &b) { return a.left < b.left; });
    return edges;
}

CVec2<double> wayOf(const Edge &edge) { return *edge.end - *edge.start; }

/** 1 and -1 for the sides of an edge, 0 on its line. */
int sideOf(const Edge &edge, const CVec2<double> &point)
{
    const double cross = wayOf(edge).Cross(point - *edge.start);
    return (cross > 0.0) - (cross < 0.0);
}

/** The next edge starts at the very corner, not merely at an equal one. */
bool isNext(const Edge &edge, const Edge &next) { return next.start == edge.end; }

/** An edge that runs back on the one before it. */
bool turnsBack(const Edge &edge, const Edge &next)
{
    const CVec2<double> along = wayOf(next);
    const CVec2<double> before = wayOf(edge);
    return before.Cross(along) == 0.0 && before.Dot(along) < 0.0;
}

bool meetWrongly(const Edge &a, const Edge &b)
{
    if (isNext(a, b))
        return turnsBack(a, b);
    if (isNext(b, a))
        return turnsBack(b, a);
    return sideOf(a, *b.start) * sideOf(a, *b.end) <= 0 && sideOf(b, *a.start) * sideOf(b, *a.end) <= 0;
}

} // namespace

bool ringsCross(const std::vector<Ring> &rings)
{
    const std::vector<Edge> edges = edgesByLeftEnd(rings);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const Edge &edge = edges[i];
        for (std::size_t j = i + 1; j < edges.size() && edges[j].left <= edge.right; ++j)
            if (edges[j].high >= edge.low && edges[j].low <= edge.high && meetWrongly(edge, edges[j]))
                return true;
    }
    return false;
}

} // namespace vks
