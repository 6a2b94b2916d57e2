#include "slab/GeneratedFloor.h"
#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"
#include "suite/Families.h"
#include "support/BareTree.h"
#include "support/FloorBoxes.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

// The search of slab local models: its index against a bare packed R-tree and a look through all elements, as many queries
// as elements, and what it costs to compare a floor with another one of the same slabs.

namespace {

using bench::Load;
using bench::Sides;
using Model = ORVCADBoardLocalModel_Sample;
using Search = ORVCADBoardLocalModelSearchService_Sample;
using Object = Model::Object;
using Box = vks::CBox2<double>;
using Point = vks::CVec2<double>;
using Entry = bench::TreeEntry<Object *>;
using BareTree = bench::BareTree<Object *>;

constexpr double kReach = 2.0; // mm between boxes that touch

// Bounds.
constexpr double kBareTree = 1.3;
constexpr double kLargeBareTree = 2.0; // each hit is asked for its kind, and lies out of the caches there
constexpr double kLookThrough = 0.06;
constexpr double kComparisonGrowth = 1.3; // of which the tree is a part

const std::vector<std::size_t> kQuerySizes{1'000, 10'000};
const std::vector<std::size_t> kLargeSizes{100'000};
const std::vector<std::size_t> kLookThroughSizes{10'000};
const std::vector<std::size_t> kComparedSizes{1'000, 4'000};

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

std::vector<Entry> entriesOf(const std::vector<const Object *> &objects)
{
    std::vector<Entry> entries;
    entries.reserve(objects.size());
    for (const Object *object : objects)
        entries.emplace_back(bench::treeBox(object->shape().box()), const_cast<Object *>(object));
    return entries;
}

/** A floor of slabs, and the queries on it. Each answer is a list of its own, as the search gives it. */
class Floor
{
public:
    explicit Floor(std::size_t size) : m_queries(bench::floorBoxes(size, 2))
    {
        for (const Box &box : bench::floorBoxes(size, 1))
            addBoard(m_model, box);
        m_objects = m_model.objects();
        for (const Object *object : m_objects)
            m_boxes.push_back(object->shape().box());
        m_search = std::make_unique<Search>(&m_model, Object::AllKinds);
        m_bareTree = BareTree(entriesOf(m_objects));
    }

    void ask()
    {
        for (const Box &query : m_queries)
            bench::keep(m_search->find(query, Object::AllKinds));
    }
    void lookThrough()
    {
        for (const Box &query : m_queries) {
            std::vector<const Object *> found;
            for (std::size_t i = 0; i < m_boxes.size(); ++i)
                if (m_boxes[i].Intersects(query, kReach))
                    found.push_back(m_objects[i]);
            bench::keep(found);
        }
    }
    void askBareTree()
    {
        for (const Box &query : m_queries) {
            std::vector<Entry> found;
            const auto box = bench::treeBox(query.Grown(kReach));
            m_bareTree.query(boost::geometry::index::intersects(box), std::back_inserter(found));
            bench::keep(found);
        }
    }
    void fill() { bench::keep(Search(&m_model, Object::AllKinds).find(m_queries.front(), Object::AllKinds)); }
    void fillBareTree() { bench::keep(BareTree(entriesOf(m_model.objects())).size()); }

private:
    std::vector<Box> m_queries;
    Model m_model;
    std::vector<const Object *> m_objects;
    std::vector<Box> m_boxes;
    std::unique_ptr<Search> m_search;
    BareTree m_bareTree;
};

using Operation = void (Floor::*)();

/** An operation on each of the floors of a load, and the other way to the same. */
auto sidesOf(Operation ours, Operation bare)
{
    return [ours, bare](const Load &load) {
        const auto floors = std::make_shared<std::vector<std::unique_ptr<Floor>>>();
        for (std::size_t i = 0; i < load.documents; ++i)
            floors->push_back(std::make_unique<Floor>(load.size));
        const auto each = [floors](Operation operation) {
            return [floors, operation] {
                for (const auto &floor : *floors)
                    (floor.get()->*operation)();
            };
        };
        return Sides{each(ours), each(bare), static_cast<double>(load.items())};
    };
}

/** A floor of so many slabs with beams, walls and columns. */
std::unique_ptr<Model> floorOf(std::size_t slabs, double inset, double jitter)
{
    GeneratedFloor floor;
    floor.baysAcross = 40;
    floor.baysAlong = static_cast<int>(slabs) / floor.baysAcross;
    floor.slabInset = inset;
    floor.jitter = jitter;
    auto model = std::make_unique<Model>();
    floor.fill(*model);
    return model;
}

/** A model as it is held, and the same floor as recognition gives it. */
struct Comparison
{
    Comparison(std::size_t slabs, double inset, double jitter)
        : held(floorOf(slabs, 0.0, 0.0)), recognised(floorOf(slabs, inset, jitter))
    {}

    std::unique_ptr<Model> held;
    std::unique_ptr<Model> recognised;
    Search search{held.get(), Object::AllKinds};
    std::vector<const Model::Board *> boards = recognised->boards();
};

bench::Road comparison(const char *name, double inset, double jitter)
{
    const auto make = [inset, jitter](const Load &load) {
        const auto compared = std::make_shared<const Comparison>(load.size, inset, jitter);
        const auto run = [compared] {
            for (const Model::Board *board : compared->boards)
                bench::keep(compared->search.find(board->shape(), Object::BoardKind));
        };
        Sides sides{run, {}, static_cast<double>(compared->boards.size())};
        sides.wrong = [compared] {
            const auto isFound = [&](const Model::Board *board) {
                return !compared->search.find(board->shape(), Object::BoardKind).empty();
            };
            const bool isAny = std::any_of(compared->boards.begin(), compared->boards.end(), isFound);
            return isAny ? QString() : QStringLiteral("no slab is found");
        };
        return sides;
    };
    return {
        std::string("slab search: slab of another model, ") + name, {}, kComparedSizes, {0.0, kComparisonGrowth}, make};
}

} // namespace

bench::Roads bench::slabSearchRoads()
{
    const auto queries = sidesOf(&Floor::ask, &Floor::askBareTree);
    return {
        {"slab search: index and first query",
         "bare packed R-tree",
         kSizes,
         {kBareTree},
         sidesOf(&Floor::fill, &Floor::fillBareTree),
         Time::Cpu,
         Small::Many},
        {"slab search: box queries", "bare packed R-tree", kQuerySizes, {kBareTree}, queries, Time::Cpu, Small::Many},
        {"slab search: box queries on a large floor", "bare packed R-tree", kLargeSizes, {kLargeBareTree}, queries},
        {"slab search: box queries",
         "look through all boxes",
         kLookThroughSizes,
         {kLookThrough},
         sidesOf(&Floor::ask, &Floor::lookThrough)},
        comparison("as drawn", 0.0, 0.0),
        comparison("corners 5 mm off", 0.0, 5.0),
        comparison("corners 40 mm off: by net area", 0.0, 40.0),
        comparison("up to the supports: by net area", GeneratedFloor::kSupportWidth / 2, 0.0)};
}
