#include "foundation/Object_AI.h"
#include "suite/Families.h"
#include "support/BuiltModels.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// Building, reading and destroying a model of objects with properties, against the same data in plain structures where
// there are such, and how the cost per object grows with the size of the model.

namespace {

using bench::Load;
using bench::Sides;

// Bounds.
constexpr double kBuild = 1.5;
constexpr double kDestroy = 1.5;
constexpr double kAllocations = 1.01;
constexpr double kGrowth = 1.8; // large models leave the caches, in plain structures, too
constexpr double kBuildGrowth = 1.3;

// The first places of the list of children are allocations of their own, which show in a small model.
const std::vector<std::size_t> kCountedSizes{10'000, 100'000};

const QString kName = QStringLiteral("name");
const QString kThickness = QStringLiteral("thickness");
const QString kElevation = QStringLiteral("elevation");

/** As the elements of a model are: two properties bound to fields, one stored. */
struct Slab : cv::Object_AI
{
    explicit Slab(cv::Object_AI *parent) : cv::Object_AI(parent)
    {
        setProperty(
            kThickness, [this] { return Any(thickness); },
            [this](const Any &value) { thickness = value.to<double>(); });
        setProperty(
            kElevation, [this] { return Any(elevation); },
            [this](const Any &value) { elevation = value.to<double>(); });
        setProperty(kName, QStringLiteral("slab"));
    }
    double thickness = 120.0;
    double elevation = 3.0;
};

/** The same by hand. */
struct PlainSlab
{
    struct Property
    {
        std::function<Any()> getter;
        std::function<void(Any)> setter;
        Any value;
    };

    PlainSlab()
    {
        properties[kThickness] = {
            [this] { return Any(thickness); }, [this](const Any &value) { thickness = value.to<double>(); }, {}};
        properties[kElevation] = {
            [this] { return Any(elevation); }, [this](const Any &value) { elevation = value.to<double>(); }, {}};
        properties[kName] = {{}, {}, QStringLiteral("slab")};
    }
    PlainSlab *parent = nullptr;
    double thickness = 120.0;
    double elevation = 3.0;
    QString name;
    std::map<QString, Property> properties;
};

using Model = std::unique_ptr<cv::Object_AI>;
using PlainModel = std::vector<std::unique_ptr<PlainSlab>>;

Model built(std::size_t size)
{
    Model model = std::make_unique<cv::Object_AI>();
    for (std::size_t i = 0; i < size; ++i)
        new Slab(model.get());
    return model;
}
PlainModel plainBuilt(std::size_t size)
{
    PlainModel model;
    for (std::size_t i = 0; i < size; ++i)
        model.push_back(std::make_unique<PlainSlab>());
    return model;
}
/** Objects without properties. */
Model bareBuilt(std::size_t size)
{
    Model model = std::make_unique<cv::Object_AI>();
    for (std::size_t i = 0; i < size; ++i)
        new cv::Object_AI(model.get());
    return model;
}

Sides building(const Load &load)
{
    return {bench::modelsOf(load, &built)->building(), bench::modelsOf(load, &plainBuilt)->building(),
            static_cast<double>(load.items())};
}
Sides destroying(const Load &load)
{
    return {bench::modelsOf(load, &built)->destroying(), bench::modelsOf(load, &plainBuilt)->destroying(),
            static_cast<double>(load.items())};
}
Sides bareBuilding(const Load &load)
{
    return {bench::modelsOf(load, &bareBuilt)->building(), {}, static_cast<double>(load.items())};
}

/** A reader that goes through a whole model. */
struct Reader
{
    const char *name;
    void (*read)(const Model &model);
};

void readPayloads(const Model &model) { bench::keep(model->children(FindWholeSubtree)); }
void findAll(const Model &model)
{
    bench::keep(model->findChildren_if([](const auto *object) { return object->childCount() == 0; }, FindWholeSubtree));
}
void findNone(const Model &model) { bench::keep(model->findChild(kName, FindWholeSubtree)); }
void indexOfNone(const Model &model) { bench::keep(model->indexOf(nullptr)); }
void readProperties(const Model &model)
{
    for (const auto *node : model->childNodes())
        bench::keep(node->data()->property(kThickness).to<double>());
}
void readInherited(const Model &model)
{
    for (const auto *node : model->childNodes())
        bench::keep(node->data()->inherited_property(kThickness).to<double>());
}
void listProperties(const Model &model)
{
    for (const auto *node : model->childNodes())
        bench::keep(node->data()->properties());
}

constexpr Reader kReaders[] = {
    {"children of the subtree", &readPayloads},
    {"all found by predicate", &findAll},
    {"name not found", &findNone},
    {"payload not found", &indexOfNone},
    {"property", &readProperties},
    {"inherited property", &readInherited},
    {"all properties", &listProperties},
};

bench::Road readingRoad(const Reader &reader)
{
    const auto make = [read = reader.read](const Load &load) {
        const auto models = bench::modelsOf(load, &built);
        models->build();
        return Sides{models->each(read), {}, static_cast<double>(load.items())};
    };
    return {std::string("object tree: ") + reader.name,
            {},
            bench::kSizes,
            {0.0, kGrowth},
            make,
            bench::Time::Cpu,
            bench::Small::Many};
}

} // namespace

bench::Roads bench::objectTreeRoads()
{
    Roads roads{
        {"object tree: built", "plain structures", kSizes, {kBuild, kBuildGrowth}, &building, Time::Cpu, Small::Many},
        {"object tree: destroyed",
         "plain structures",
         kSizes,
         {kDestroy, kGrowth},
         &destroying,
         Time::Cpu,
         Small::Many},
        {"object tree: built without properties",
         {},
         kCountedSizes,
         {0.0, kBuildGrowth, 0.0, kAllocations},
         &bareBuilding,
         Time::Cpu,
         Small::Many}};
    for (const Reader &reader : kReaders)
        roads.push_back(readingRoad(reader));
    return roads;
}
