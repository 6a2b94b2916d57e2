#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "support/RatioBench.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

// How the cost per element of a slab model grows with its size, and what the readers gain over a dynamic cast of every
// child.

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using ModelPtr = std::unique_ptr<Model>;

constexpr std::size_t kSmall = 2000;
constexpr std::size_t kMiddle = 20000;
constexpr std::size_t kLarge = 200000;

// Ceilings of the ratios.
constexpr double kGrowth = 1.5;
constexpr double kDestroyGrowth = 2.0; // logs are searched for first, which leaves a small model in the caches
constexpr double kReader = 0.15;

void addBeam(Model *model) { new Model::Beam(model); }
void addWall(Model *model) { new Model::Wall(model); }
void addColumn(Model *model) { new Model::Column(model); }
void addBoard(Model *model) { new Model::Board(model); }
void addBoardHole(Model *model) { new Model::BoardHole(model); }
void addForcedBar(Model *model) { new Model::ForcedBar(model); }
void addStraddleForcedBar(Model *model) { new Model::StraddleForcedBar(model); }
void addNegativeForcedBar(Model *model) { new Model::NegativeForcedBar(model); }

/** Kinds in the order in which a floor is read from the host, and the share of each in tenths. */
struct Share
{
    void (*add)(Model *);
    std::size_t tenths;
};
constexpr Share kFloor[] = {
    {&addBoard, 2},  {&addBoardHole, 1}, {&addForcedBar, 2}, {&addStraddleForcedBar, 1}, {&addNegativeForcedBar, 1},
    {&addColumn, 1}, {&addBeam, 1},      {&addWall, 1},
};

ModelPtr built(std::size_t size)
{
    auto model = std::make_unique<Model>();
    for (const Share &share : kFloor)
        for (std::size_t i = 0; i < size * share.tenths / 10; ++i)
            share.add(model.get());
    return model;
}
/** The same kinds in turn, as they come to stand when bars and slabs are worked on together. */
ModelPtr builtMixed(std::size_t size)
{
    auto model = std::make_unique<Model>();
    for (std::size_t i = 0; i < size; ++i)
        kFloor[i % std::size(kFloor)].add(model.get());
    return model;
}

using Reader = void (*)(const Model &);
template <auto reader> void read(const Model &model) { bench::keep((model.*reader)()); }
void findSlabs(const Model &model)
{
    bench::keep(model.findObjects(Model::Object::BoardKind | Model::Object::BoardHoleKind));
}

constexpr Reader kReaders[] = {
    &read<&Model::objects>,
    &read<&Model::beams>,
    &read<&Model::walls>,
    &read<&Model::columns>,
    &read<&Model::boards>,
    &read<&Model::boardHoles>,
    &read<&Model::rafts>,
    &read<&Model::forcedBars>,
    &read<&Model::straddleForcedBars>,
    &read<&Model::negativeForcedBars>,
    &read<&Model::raftMainForcedBars>,
    &read<&Model::raftMainStraddleForcedBars>,
    &read<&Model::raftNegativeForcedBars>,
    &read<&Model::axisNet>,
    &findSlabs,
};

/** Elements in models of one size. Both sides of a comparison hold the same number in all, so that it tells how the cost
 *  of an element grows with its model and not what it costs to leave the caches. */
struct Models
{
    std::size_t elements;
    std::size_t size; ///< of each
    std::vector<ModelPtr> list;

    void build()
    {
        for (std::size_t i = 0; i < elements / size; ++i)
            list.push_back(built(size));
    }
    void read() const
    {
        for (const Reader reader : kReaders)
            for (const ModelPtr &model : list)
                reader(*model);
    }
    void destroy() { list.clear(); }
};

bench::Work building(Models &models)
{
    return {[&models] { models.destroy(); }, [&models] { models.build(); }};
}
bench::Work destroying(Models &models)
{
    return {[&models] { models.destroy(), models.build(); }, [&models] { models.destroy(); }};
}
bench::Work living(Models &models)
{
    return {[&models] { models.destroy(); }, [&models] { models.build(), models.read(), models.destroy(); }};
}

void addGrowth(bench::RatioTable &table, std::size_t size)
{
    Models large{size, size, {}};
    Models small{size, kSmall, {}};
    table.row("built / in models of 2000", size, building(large), building(small), kGrowth);
    large.destroy();
    small.destroy();
    table.row("destroyed / in models of 2000", size, destroying(large), destroying(small), kDestroyGrowth);
    table.row("built, read, destroyed / in models of 2000", size, living(large), living(small), kGrowth);
    large.build();
    small.build();
    table.row(
        "read by every reader / in models of 2000", size, [&] { large.read(); }, [&] { small.read(); }, kGrowth);
}

/** What a reader would be without knowledge of the classes. */
template <typename Element> void scan(const Model &model)
{
    std::vector<const Element *> found;
    for (const auto *node : model.childNodes())
        if (const auto *element = dynamic_cast<const Element *>(node))
            found.push_back(element);
    bench::keep(found);
}

void addReaders(bench::RatioTable &table, const std::string &order, const Model &model)
{
    table.row(
        "one kind, " + order + " / scan", kMiddle, [&] { bench::keep(model.boards()); },
        [&] { scan<Model::Board>(model); }, kReader);
    table.row(
        "all kinds, " + order + " / scan", kMiddle, [&] { bench::keep(model.objects()); },
        [&] { scan<Model::Object>(model); });
}

} // namespace

int main()
{
    bench::RatioTable table("Slab model");
    addReaders(table, "in order", *built(kMiddle));
    addReaders(table, "mixed", *builtMixed(kMiddle));
    addGrowth(table, kMiddle);
    addGrowth(table, kLarge);
    return table.print();
}
