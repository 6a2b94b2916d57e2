#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "suite/Families.h"
#include "support/BuiltModels.h"

#include <memory>
#include <vector>

// How the cost per element of a slab model grows with its size, and what the readers gain over a dynamic cast of every
// child.

namespace {

using bench::Load;
using bench::Sides;
using Model = ORVCADBoardLocalModel_Sample;
using ModelPtr = std::unique_ptr<Model>;

// Bounds.
constexpr double kGrowth = 1.3;
constexpr double kReader = 0.15;
const std::vector<std::size_t> kReaderSizes{1'000, 20'000};

template <typename Element> void add(Model *model) { new Element(model); }

/** Kinds in the order in which a floor is read from the host, and the share of each in tenths. */
struct Share
{
    void (*add)(Model *);
    std::size_t tenths;
};
constexpr Share kFloor[] = {
    {&add<Model::Board>, 2},
    {&add<Model::BoardHole>, 1},
    {&add<Model::ForcedBar>, 2},
    {&add<Model::StraddleForcedBar>, 1},
    {&add<Model::NegativeForcedBar>, 1},
    {&add<Model::Column>, 1},
    {&add<Model::Beam>, 1},
    {&add<Model::Wall>, 1},
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

/** What a reader would be without knowledge of the classes. */
template <typename Element> void scan(const ModelPtr &model)
{
    std::vector<const Element *> found;
    for (const auto *node : model->childNodes())
        if (const auto *element = dynamic_cast<const Element *>(node))
            found.push_back(element);
    bench::keep(found);
}

using Build = ModelPtr (*)(std::size_t size);

/** A reader and the scan that it saves. */
template <typename Element, auto reader> auto readingKinds(Build build)
{
    return [build](const Load &load) {
        const auto models = bench::modelsOf(load, build);
        models->build();
        return Sides{models->each([](const ModelPtr &model) { read<reader>(*model); }), models->each(&scan<Element>),
                     static_cast<double>(load.items())};
    };
}

/** Every reader; each goes through all models before the next does, so that none finds them in the caches. */
bench::Work readingAll(const std::shared_ptr<bench::BuiltModels<ModelPtr>> &models)
{
    std::vector<bench::Work> works;
    for (const Reader reader : kReaders)
        works.push_back(models->each([reader](const ModelPtr &model) { reader(*model); }));
    return [works] {
        for (const bench::Work &work : works)
            work.run();
    };
}

Sides building(const Load &load)
{
    return {bench::modelsOf(load, &built)->building(), {}, static_cast<double>(load.items())};
}
Sides destroying(const Load &load)
{
    return {bench::modelsOf(load, &built)->destroying(), {}, static_cast<double>(load.items())};
}
Sides living(const Load &load)
{
    const auto models = bench::modelsOf(load, &built);
    const bench::Work reading = readingAll(models);
    const auto live = [models, reading] { models->build(), reading.run(), models->destroy(); };
    return {live, {}, static_cast<double>(load.items())};
}
Sides reading(const Load &load)
{
    const auto models = bench::modelsOf(load, &built);
    models->build();
    return {readingAll(models), {}, static_cast<double>(load.items())};
}

bench::Road growthRoad(const char *name, Sides (*make)(const Load &load))
{
    return {name, {}, bench::kSizes, {0.0, kGrowth}, make, bench::Time::Cpu, bench::Small::Many};
}

} // namespace

bench::Roads bench::slabModelRoads()
{
    constexpr const char *kScan = "dynamic_cast scan";
    return {
        {"slab model: one kind, in order",
         kScan,
         kReaderSizes,
         {kReader},
         readingKinds<Model::Board, &Model::boards>(&built)},
        {"slab model: one kind, mixed",
         kScan,
         kReaderSizes,
         {kReader},
         readingKinds<Model::Board, &Model::boards>(&builtMixed)},
        {"slab model: all kinds, in order", kScan, kSizes, {}, readingKinds<Model::Object, &Model::objects>(&built)},
        {"slab model: all kinds, mixed", kScan, kSizes, {}, readingKinds<Model::Object, &Model::objects>(&builtMixed)},
        growthRoad("slab model: built", &building),
        growthRoad("slab model: destroyed", &destroying),
        growthRoad("slab model: built, read, destroyed", &living),
        growthRoad("slab model: read by every reader", &reading)};
}
