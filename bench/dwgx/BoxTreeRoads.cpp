#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "suite/Families.h"
#include "support/BareTree.h"
#include "support/FloorBoxes.h"

#include <iterator>
#include <memory>
#include <vector>

// Box queries against a look through all boxes and against a bare packed R-tree, as many queries as boxes.

namespace {

using bench::Load;
using bench::Sides;
using Box = vks::CBox2<double>;
using Entry = bench::TreeEntry<std::size_t>;
using BareTree = bench::BareTree<std::size_t>;

// Bounds.
constexpr double kLookThrough = 0.06;
constexpr double kBareTree = 1.6;
constexpr double kGrowth = 3.0; // a tree of 100,000 boxes is two levels higher than one of 1,000, and leaves the caches
const std::vector<std::size_t> kLookThroughSizes{10'000};

std::unique_ptr<dwgx::DWGXBaseBoxTree> treeOf(const std::vector<Box> &boxes)
{
    std::unique_ptr<dwgx::DWGXBaseBoxTree> tree(dwgx::DWGXBaseBoxTree::createObject());
    for (const Box &box : boxes)
        tree->add(box, const_cast<Box *>(&box));
    return tree;
}

std::vector<Entry> entriesOf(const std::vector<Box> &boxes)
{
    std::vector<Entry> entries;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        entries.emplace_back(bench::treeBox(boxes[i]), i);
    return entries;
}

/** A floor, and the queries on it. */
struct Floor
{
    explicit Floor(std::size_t size) : boxes(bench::floorBoxes(size, 1)), queries(bench::floorBoxes(size, 2)) {}

    void ask()
    {
        for (const Box &query : queries) {
            tree->getIntersectantData(query, found);
            bench::keep(found);
        }
    }
    void lookThrough()
    {
        for (const Box &query : queries) {
            found.clear();
            for (const Box &box : boxes)
                if (box.Intersects(query))
                    found.push_back(const_cast<Box *>(&box));
            bench::keep(found);
        }
    }
    void askBareTree()
    {
        for (const Box &query : queries) {
            foundEntries.clear();
            bareTree.query(boost::geometry::index::intersects(bench::treeBox(query)), std::back_inserter(foundEntries));
            bench::keep(foundEntries);
        }
    }
    void fill()
    {
        treeOf(boxes)->getIntersectantData(queries.front(), found);
        bench::keep(found);
    }
    void fillBareTree() { bench::keep(BareTree(entriesOf(boxes)).size()); }

    std::vector<Box> boxes;
    std::vector<Box> queries;
    std::unique_ptr<dwgx::DWGXBaseBoxTree> tree = treeOf(boxes);
    BareTree bareTree{entriesOf(boxes)};
    std::vector<void *> found;
    std::vector<Entry> foundEntries;
};

using Operation = void (Floor::*)();

/** An operation on each of the floors of a load, and the other way to the same. */
auto sidesOf(Operation ours, Operation bare)
{
    return [ours, bare](const Load &load) {
        const auto floors = std::make_shared<std::vector<Floor>>();
        floors->reserve(load.documents); // boxes stay where they are
        for (std::size_t i = 0; i < load.documents; ++i)
            floors->emplace_back(load.size);
        const auto each = [floors](Operation operation) {
            return [floors, operation] {
                for (Floor &floor : *floors)
                    (floor.*operation)();
            };
        };
        return Sides{each(ours), each(bare), static_cast<double>(load.items())};
    };
}

} // namespace

bench::Roads bench::boxTreeRoads()
{
    return {{"box tree: queries",
             "look through all boxes",
             kLookThroughSizes,
             {kLookThrough},
             sidesOf(&Floor::ask, &Floor::lookThrough)},
            {"box tree: queries",
             "bare packed R-tree",
             kSizes,
             {kBareTree, kGrowth},
             sidesOf(&Floor::ask, &Floor::askBareTree),
             Time::Cpu,
             Small::Many},
            {"box tree: filling and first query",
             "bare packed R-tree",
             kSizes,
             {kBareTree},
             sidesOf(&Floor::fill, &Floor::fillBareTree),
             Time::Cpu,
             Small::Many}};
}
