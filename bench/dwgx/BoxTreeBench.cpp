// Box queries against a look through all boxes and against a bare packed R-tree that keeps no order.

#define BOOST_ALLOW_DEPRECATED_HEADERS // which the R-tree of Boost 1.74 itself includes

#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "support/FloorBoxes.h"
#include "support/RatioBench.h"

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <iterator>
#include <memory>
#include <vector>

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using Box = vks::CBox2<double>;
using TreePoint = bg::model::point<double, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;
using TreeEntry = std::pair<TreeBox, std::size_t>;
using BareTree = bgi::rtree<TreeEntry, bgi::quadratic<16>>;

constexpr std::size_t kCount = 10000;
constexpr double kQueryCeiling = 0.06;   // of a look through all boxes
constexpr double kBareTreeCeiling = 1.6; // of the bare tree

TreeBox treeBox(const Box &box) { return {TreePoint(box.minPt.x, box.minPt.y), TreePoint(box.maxPt.x, box.maxPt.y)}; }

std::unique_ptr<dwgx::DWGXBaseBoxTree> treeOf(const std::vector<Box> &boxes)
{
    std::unique_ptr<dwgx::DWGXBaseBoxTree> tree(dwgx::DWGXBaseBoxTree::createObject());
    for (const Box &box : boxes)
        tree->add(box, const_cast<Box *>(&box));
    return tree;
}

std::vector<TreeEntry> entriesOf(const std::vector<Box> &boxes)
{
    std::vector<TreeEntry> entries;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        entries.emplace_back(treeBox(boxes[i]), i);
    return entries;
}

/** Calls an operation with each query box. */
template <typename Ask> auto forEachQuery(const std::vector<Box> &queries, Ask ask)
{
    return [&queries, ask] {
        for (const Box &query : queries)
            ask(query);
    };
}

} // namespace

int main()
{
    const std::vector<Box> boxes = bench::floorBoxes(kCount, 1);
    const std::vector<Box> queries = bench::floorBoxes(kCount, 2);
    const auto tree = treeOf(boxes);
    const BareTree bareTree(entriesOf(boxes));
    std::vector<void *> found;
    std::vector<TreeEntry> foundEntries;

    const auto ours = forEachQuery(queries, [&](const Box &query) {
        tree->getIntersectantData(query, found);
        bench::keep(found);
    });
    const auto bruteForce = forEachQuery(queries, [&](const Box &query) {
        found.clear();
        for (const Box &box : boxes)
            if (box.Intersects(query))
                found.push_back(const_cast<Box *>(&box));
        bench::keep(found);
    });
    const auto bare = forEachQuery(queries, [&](const Box &query) {
        foundEntries.clear();
        bareTree.query(bgi::intersects(treeBox(query)), std::back_inserter(foundEntries));
        bench::keep(foundEntries);
    });
    const auto oursFromNothing = [&] {
        treeOf(boxes)->getIntersectantData(queries.front(), found);
        bench::keep(found);
    };
    const auto bareFromNothing = [&] {
        const BareTree fresh(entriesOf(boxes));
        bench::keep(fresh.size());
    };

    bench::RatioTable table("Box tree of 10,000 boxes");
    table.row("queries / looking through all boxes", kCount, ours, bruteForce, kQueryCeiling);
    table.row("queries / bare packed R-tree", kCount, ours, bare, kBareTreeCeiling);
    table.row("filling and first query / bare R-tree", kCount, oursFromNothing, bareFromNothing);
    return table.print();
}
