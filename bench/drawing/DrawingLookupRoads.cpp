#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADSubDrawingDataSet.h"
#include "suite/Families.h"
#include "support/BuiltModels.h"

#include <QHash>
#include <QPair>

#include <memory>

// What is asked of the records of a drawing set costs the same in a short list and in a long one.

namespace {

using bench::Load;
using bench::Sides;

// Bounds; flat is what misses of the processor's caches cost, where a walk would be some hundreds.
constexpr double kFlat = 3.0;
constexpr double kLookup = 3.0; // the records are asked for each floor name; the hashes hold ready answers

const std::vector<std::size_t> kLookupSizes{10, 10'000};
const std::vector<std::size_t> kAddingSizes{1'000, 10'000};
const std::vector<std::size_t> kHighSizes{50, 5'000}; // drawings, each on all floors

constexpr int kBeam = 15;
constexpr qint64 kRegion = 7;
constexpr int kFloors = 60;

QString numbered(const char *word, int number) { return QString::fromUtf8(word) + QString::number(number); }

/** Records of so many drawings, each of a floor and a region of its own. */
struct Mappings
{
    explicit Mappings(std::size_t count)
    {
        for (int i = 0; i < static_cast<int>(count); ++i) {
            names.append(numbered("S-", i));
            floorNames.append(numbered("F", i));
            elements.addMapping(names.last(), kBeam);
            floors.addMapping(i, floorNames.last(), names.last());
            ORVCADSubDrawingInfo part;
            part.drawingPath = QStringLiteral("/project/drawings/") + names.last() + QStringLiteral(".dwg");
            parts.addSubDrawing(part.drawingPath, part);
        }
    }

    QStringList names;
    QStringList floorNames;
    ORVCADDrawingElementMappings elements;
    ORVCADDrawingFloorMappings floors;
    ORVCADSubDrawingDataSet parts;
};

using MappingsPtr = std::unique_ptr<Mappings>;
MappingsPtr mapped(std::size_t size) { return std::make_unique<Mappings>(size); }

/** A road that asks for each record in turn. */
template <typename Look> bench::Road lookup(const char *name, Look look)
{
    const auto make = [look](const Load &load) {
        const auto models = bench::modelsOf(load, &mapped);
        models->build();
        const auto askEach = [look](const MappingsPtr &mappings) {
            for (int i = 0; i < mappings->names.size(); ++i)
                bench::keep(look(*mappings, i));
        };
        return Sides{models->each(askEach), {}, static_cast<double>(load.items())};
    };
    return {std::string("drawing look-up: ") + name,
            {},
            kLookupSizes,
            {0.0, kFlat},
            make,
            bench::Time::Cpu,
            bench::Small::Many};
}

Sides adding(const Load &load)
{
    return {bench::modelsOf(load, &mapped)->building(), {}, static_cast<double>(load.items())};
}

/** Every drawing of a large set on every floor of a high building, and the same pairs in hash tables that are made for the
 *  two questions. */
struct HighBuilding
{
    explicit HighBuilding(std::size_t drawings)
    {
        for (int floor = 0; floor < kFloors; ++floor)
            floorNames.append(numbered("F", floor));
        for (int drawing = 0; drawing < static_cast<int>(drawings); ++drawing) {
            names.append(numbered("S-", drawing));
            for (const QString &floor : qAsConst(floorNames)) {
                mappings.addMapping(kRegion, floor, names.last());
                floorsOf[names.last()].append({kRegion, floor});
            }
        }
        for (const QString &floor : qAsConst(floorNames))
            drawingsOf.insert({kRegion, floor}, names);
        mappings.getMappingFloors(names.last()); // the first look-up indexes
    }

    QStringList names;
    QStringList floorNames;
    ORVCADDrawingFloorMappings mappings;
    QHash<QPair<qint64, QString>, QStringList> drawingsOf;
    QHash<QString, QList<std::pair<qint64, QString>>> floorsOf;
};

/** Asks a question for each of some names. */
template <typename Look>
auto forEach(const std::shared_ptr<const HighBuilding> &building, const QStringList &names, Look look)
{
    return [building, names, look] {
        for (const QString &name : names)
            bench::keep(look(*building, name));
    };
}

Sides drawingsOfFloors(const Load &load)
{
    const auto building = std::make_shared<const HighBuilding>(load.size);
    const QStringList &floors = building->floorNames;
    const auto ours = [](const HighBuilding &one, const QString &floor) {
        return one.mappings.getMappingDrawingNames(kRegion, floor);
    };
    const auto byHash = [](const HighBuilding &one, const QString &floor) {
        return one.drawingsOf.value({kRegion, floor});
    };
    return {forEach(building, floors, ours), forEach(building, floors, byHash), kFloors};
}

Sides floorsOfDrawings(const Load &load)
{
    const auto building = std::make_shared<const HighBuilding>(load.size);
    const QStringList &names = building->names;
    const auto ours = [](const HighBuilding &one, const QString &name) { return one.mappings.getMappingFloors(name); };
    const auto byHash = [](const HighBuilding &one, const QString &name) {
        auto floors = one.floorsOf.value(name);
        floors.detach(); // an answer is a list of its own here, too
        return floors;
    };
    return {forEach(building, names, ours), forEach(building, names, byHash), static_cast<double>(load.size)};
}

} // namespace

bench::Roads bench::drawingLookupRoads()
{
    return {
        lookup("types of a drawing",
               [](const Mappings &one, int i) { return one.elements.getMatchElementType(one.names.at(i)); }),
        lookup("drawings of a floor",
               [](const Mappings &one, int i) { return one.floors.getMappingDrawingNames(i, one.floorNames.at(i)); }),
        lookup("floors of a drawing",
               [](const Mappings &one, int i) { return one.floors.getMappingFloors(one.names.at(i)); }),
        lookup("floors of a region", [](const Mappings &one, int i) { return one.floors.getMappingFloorNames(i); }),
        lookup("path of a sub-drawing",
               [](const Mappings &one, int i) { return one.parts.getSubDrawingCompletePath(one.names.at(i)); }),
        {"drawing look-up: records added", {}, kAddingSizes, {0.0, kFlat}, &adding, Time::Cpu, Small::Many},
        {"drawing look-up: drawings of each of 60 floors",
         "two hashes",
         kHighSizes,
         {kLookup, kFlat},
         &drawingsOfFloors},
        {"drawing look-up: 60 floors of each drawing", "two hashes", kHighSizes, {kLookup, kFlat}, &floorsOfDrawings}};
}
