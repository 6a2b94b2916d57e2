// The search of slab local models: its index against a bare packed R-tree and a look through all elements, and how many
// elements a second it compares on a large floor.

#define BOOST_ALLOW_DEPRECATED_HEADERS // which the R-tree of Boost 1.74 itself includes

#include "slab/GeneratedFloor.h"
#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"
#include "support/FloorBoxes.h"
#include "support/RatioBench.h"

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <chrono>
#include <cstdio>
#include <iterator>
#include <vector>

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using Model = ORVCADBoardLocalModel_Sample;
using Search = ORVCADBoardLocalModelSearchService_Sample;
using Object = Model::Object;
using Box = vks::CBox2<double>;
using Point = vks::CVec2<double>;
using TreePoint = bg::model::point<double, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;
using TreeEntry = std::pair<TreeBox, Object *>;
using BareTree = bgi::rtree<TreeEntry, bgi::quadratic<16>>;

constexpr std::size_t kCount = 10000;
constexpr double kReach = 2.0;           // mm between boxes that touch
constexpr double kBareTreeCeiling = 1.3; // of the bare tree
constexpr double kLookThroughCeiling = 0.06;

void addBoard(Model &model, const Box &box)
{
    const Point corners[] = {box.minPt, {box.maxPt.x, box.minPt.y}, box.maxPt, {box.minPt.x, box.maxPt.y}};
    auto *loop = new vks::CLoop;
    for (int i = 0; i < 4; ++i)
        loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % 4]), false);
    auto *board = new Model::Board(&model);
    board->surface = vks::CRefPtr<vks::CPolygon>(new vks::CPolygon);
    board->surface->AddLoop(loop, true);
}

TreeBox treeBox(const Box &box) { return {TreePoint(box.minPt.x, box.minPt.y), TreePoint(box.maxPt.x, box.maxPt.y)}; }

std::vector<TreeEntry> entriesOf(const std::vector<const Object *> &objects)
{
    std::vector<TreeEntry> entries;
    entries.reserve(objects.size());
    for (const Object *object : objects)
        entries.emplace_back(treeBox(object->shape().box()), const_cast<Object *>(object));
    return entries;
}

/** The index and its queries; the bare tree gets the same boxes and, as the search does, gives a new list each time. */
void measureIndex(bench::RatioTable &table)
{
    Model model;
    for (const Box &box : bench::floorBoxes(kCount, 1))
        addBoard(model, box);
    const std::vector<Box> queries = bench::floorBoxes(kCount, 2);
    const std::vector<const Object *> objects = model.objects();
    const Search search(&model, Object::AllKinds);
    const BareTree bareTree(entriesOf(objects));
    std::vector<Box> boxes;
    boxes.reserve(objects.size());
    for (const Object *object : objects)
        boxes.push_back(object->shape().box());

    const auto forEachQuery = [&queries](auto ask) {
        return [&queries, ask] {
            for (const Box &query : queries)
                bench::keep(ask(query));
        };
    };
    const auto ours = forEachQuery([&](const Box &query) { return search.find(query, Object::AllKinds); });
    const auto bare = forEachQuery([&](const Box &query) {
        std::vector<TreeEntry> found;
        bareTree.query(bgi::intersects(treeBox(query.Grown(kReach))), std::back_inserter(found));
        return found;
    });
    const auto lookThrough = forEachQuery([&](const Box &query) {
        std::vector<const Object *> found;
        for (std::size_t i = 0; i < boxes.size(); ++i)
            if (boxes[i].Intersects(query, kReach))
                found.push_back(objects[i]);
        return found;
    });
    const auto build = [&] { bench::keep(Search(&model, Object::AllKinds).find(queries.front(), Object::AllKinds)); };
    const auto buildBare = [&] { bench::keep(BareTree(entriesOf(model.objects())).size()); };

    table.row("index and first query / bare packed R-tree", kCount, build, buildBare, kBareTreeCeiling);
    table.row("box queries / bare packed R-tree", kCount, ours, bare, kBareTreeCeiling);
    table.row("box queries / looking through all boxes", kCount, ours, lookThrough, kLookThroughCeiling);
}

/** A floor of 2,000 boards with beams, walls and columns. */
GeneratedFloor largeFloor(double inset, double jitter)
{
    GeneratedFloor floor;
    floor.baysAlong = 50;
    floor.baysAcross = 40;
    floor.slabInset = inset;
    floor.jitter = jitter;
    return floor;
}

/** Asks for every board of another model, and prints how many of them a second. */
void measureComparison(const char *name, const Search &search, GeneratedFloor recognised)
{
    using Clock = std::chrono::steady_clock;
    Model model;
    recognised.fill(model);
    const std::vector<const Model::Board *> boards = model.boards();
    std::size_t found = 0;
    const auto start = Clock::now();
    for (const Model::Board *board : boards)
        found += search.find(board->shape(), Object::BoardKind).size();
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    std::printf("%-44s %9zu %12zu %12.0f\n", name, boards.size(), found, static_cast<double>(boards.size()) / seconds);
}

} // namespace

int main()
{
    bench::RatioTable table("Search of a slab model with 10,000 elements");
    measureIndex(table);
    const int verdict = table.print();

    Model model;
    largeFloor(0.0, 0.0).fill(model);
    const Search search(&model, Object::AllKinds);
    std::printf("\n%-44s %9s %12s %12s\n", "The same boards of another model", "asked", "found", "a second");
    measureComparison("as drawn", search, largeFloor(0.0, 0.0));
    measureComparison("corners 5 mm off", search, largeFloor(0.0, 5.0));
    measureComparison("corners 40 mm off: by net area", search, largeFloor(0.0, 40.0));
    measureComparison("up to the supports: by net area", search, largeFloor(GeneratedFloor::kSupportWidth / 2, 0.0));
    return verdict;
}
