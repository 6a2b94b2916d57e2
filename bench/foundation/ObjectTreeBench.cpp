#include "foundation/Object_AI.h"
#include "support/RatioBench.h"

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <vector>

// Building, reading and destroying a model of objects with properties, each against the same data in plain structures,
// and how the cost per object grows with the size of the model.

namespace {

std::size_t allocations = 0;

} // namespace

void *operator new(std::size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void *memory) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t) noexcept { std::free(memory); }

namespace {

constexpr std::size_t kSmall = 2000;
constexpr std::size_t kMiddle = 20000;
constexpr std::size_t kLarge = 200000;

// Ceilings of the ratios. Large models leave the caches, which is why growth is not 1.
constexpr double kBuild = 1.5;
constexpr double kDestroy = 1.5;
constexpr double kAllocations = 1.01;
constexpr double kGrowth = 1.8;
constexpr double kReadGrowth = 4.0; // a few ns per object, most of them the way to memory

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

bench::Work build(Model &model, std::size_t size)
{
    return {[&model] { model.reset(); }, [&model, size] { model = built(size); }};
}
bench::Work plainBuild(PlainModel &model, std::size_t size)
{
    return {[&model] { model.clear(); }, [&model, size] { model = plainBuilt(size); }};
}
bench::Work destroy(Model &model, std::size_t size)
{
    return {[&model, size] { model = built(size); }, [&model] { model.reset(); }};
}
bench::Work plainDestroy(PlainModel &model, std::size_t size)
{
    return {[&model, size] { model = plainBuilt(size); }, [&model] { PlainModel().swap(model); }};
}

/** A reader that goes through a whole model. */
struct Reader
{
    const char *name;
    void (*read)(const cv::Object_AI &model);
};

void readPayloads(const cv::Object_AI &model) { bench::keep(model.children(FindWholeSubtree)); }
void findAll(const cv::Object_AI &model)
{
    bench::keep(model.findChildren_if([](const auto *object) { return object->childCount() == 0; }, FindWholeSubtree));
}
void findNone(const cv::Object_AI &model) { bench::keep(model.findChild(kName, FindWholeSubtree)); }
void indexOfNone(const cv::Object_AI &model) { bench::keep(model.indexOf(nullptr)); }
void readProperties(const cv::Object_AI &model)
{
    for (const auto *node : model.childNodes())
        bench::keep(node->data()->property(kThickness).to<double>());
}
void readInherited(const cv::Object_AI &model)
{
    for (const auto *node : model.childNodes())
        bench::keep(node->data()->inherited_property(kThickness).to<double>());
}
void listProperties(const cv::Object_AI &model)
{
    for (const auto *node : model.childNodes())
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

void addGrowth(bench::RatioTable &table, std::size_t size)
{
    Model large;
    Model small;
    table.growth("built, growth", size, build(large, size), kSmall, build(small, kSmall), kGrowth);
    table.growth("destroyed, growth", size, destroy(large, size), kSmall, destroy(small, kSmall), kGrowth);
    large = built(size);
    small = built(kSmall);
    for (const Reader &reader : kReaders)
        table.growth(std::string(reader.name) + ", growth", size, {[&] { reader.read(*large); }}, kSmall,
                     {[&] { reader.read(*small); }}, kReadGrowth);
}

/** Allocations of a model of objects without properties, the list of the children among them. */
double allocationsPerObject()
{
    const std::size_t before = allocations;
    const Model model = std::make_unique<cv::Object_AI>();
    for (std::size_t i = 0; i < kLarge; ++i)
        new cv::Object_AI(model.get());
    return static_cast<double>(allocations - before) / static_cast<double>(kLarge);
}

} // namespace

int main()
{
    bench::RatioTable table("Object tree");
    Model model;
    PlainModel plain;
    table.row("built / plain structures", kLarge, build(model, kLarge), plainBuild(plain, kLarge), kBuild);
    table.row("destroyed / plain structures", kLarge, destroy(model, kLarge), plainDestroy(plain, kLarge), kDestroy);
    table.figure("allocations per object", allocationsPerObject(), 1.0, kAllocations);
    addGrowth(table, kMiddle);
    addGrowth(table, kLarge);
    return table.print();
}
