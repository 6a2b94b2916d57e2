#include "drawing/ORVCADFloors.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"
#include "drawing/FloorElevation.h"
#include "drawing/RecordSearch.h"

#include <QSet>

#include <memory>

using namespace encoding;
using namespace drawing::elevation;
using drawing::firstRecord;
namespace key = drawing::key;

struct ORVCADFloors::Fields
{
    static constexpr auto table = std::make_tuple(fieldRequired(key::areaName, &ORVCADFloors::m_areaName),
                                                  fieldRequired(key::floors, &ORVCADFloors::m_floors));
};

namespace {

using Floors = QList<ORVCADFloor *>;

/** The floor that no later one beats. */
template <typename Beats> ORVCADFloor *bestFloor(const Floors &floors, Beats beats)
{
    ORVCADFloor *best = nullptr;
    for (ORVCADFloor *floor : floors)
        if (floor && (!best || beats(floor->btmElev(), best->btmElev())))
            best = floor;
    return best;
}

/** Top of the last of the standard floors that a floor stands for, m. */
double topOfLastStandardFloor(const ORVCADFloor &floor)
{
    // Meant: the further standard floors of a floor without a height add nothing.
    const double further = floor.stdCount() > 1 ? (floor.stdCount() - 1) * floor.height() : 0.0;
    return floor.topElev() + further;
}

} // namespace

ORVCADFloors::~ORVCADFloors() { qDeleteAll(m_floors); }

void ORVCADFloors::addFloor(ORVCADFloor *floor)
{
    if (floor)
        m_floors.append(floor);
}

ORVCADFloor *ORVCADFloors::getFloor(int index) const { return m_floors.value(index, nullptr); }

ORVCADFloor *ORVCADFloors::getFloor(const QString &name) const
{
    return firstRecord(m_floors, [&](const ORVCADFloor &floor) { return floor.name() == name; });
}

ORVCADFloor *ORVCADFloors::getBaseFloor() const
{
    return firstRecord(m_floors, [](const ORVCADFloor &floor) { return floor.isBaseFloor(); });
}

ORVCADFloor *ORVCADFloors::getFirstFloor() const
{
    return firstRecord(m_floors, [](const ORVCADFloor &floor) { return floor.isFirstFloor(); });
}

ORVCADFloor *ORVCADFloors::getHighestFloor() const
{
    return bestFloor(m_floors, [](double later, double best) { return isGreater(later, best); });
}

ORVCADFloor *ORVCADFloors::getLowestFloor() const
{
    return bestFloor(m_floors, [](double later, double best) { return isGreater(best, later); });
}

ORVCADFloor *ORVCADFloors::getUpstairFloor(const ORVCADFloor *floor) const
{
    if (!floor)
        return nullptr;
    const double target = topOfLastStandardFloor(*floor);
    return firstRecord(m_floors, [=](const ORVCADFloor &above) { return isEqual(above.btmElev(), target); });
}

ORVCADFloor *ORVCADFloors::getDownstairFloor(const ORVCADFloor *floor) const
{
    if (!floor)
        return nullptr;
    // Meant: one standard floor of the candidate counts, whatever number it stands for.
    return firstRecord(m_floors, [=](const ORVCADFloor &below) { return isEqual(below.topElev(), floor->btmElev()); });
}

ORVCADFloor *ORVCADFloors::getMinGreaterZeroFloor() const
{
    QSet<const ORVCADFloor *> visited;
    ORVCADFloor *floor = getLowestFloor();
    while (floor &&
           !isGreaterOrEqual(floor->btmElev(), 0.0)) { // meant: a floor at exactly 0 is taken, despite the name
        if (visited.contains(floor))
            return nullptr; // negative heights can lead in a circle
        visited.insert(floor);
        floor = getUpstairFloor(floor);
    }
    return floor;
}

ORVCADFloor *ORVCADFloors::getHighOneFloor(int index) const
{
    const ORVCADFloor *from = getFloor(index);
    if (!from)
        return nullptr;
    ORVCADFloor *next = nullptr;
    double limit = getHighestFloor()->btmElev();
    for (ORVCADFloor *floor : m_floors) {
        if (!floor || !isGreater(floor->btmElev(), from->btmElev()) || !isLessOrEqual(floor->btmElev(), limit))
            continue;
        next = floor; // meant: the later one among equals, unlike getHighestFloor
        limit = floor->btmElev();
    }
    return next;
}

void ORVCADFloors::setCurrentFloor(const QString &name)
{
    if (ORVCADFloor *floor = getFloor(name))
        m_currentFloor = floor;
}

QJsonObject ORVCADFloors::toJson() const { return writtenFields(*this, Fields::table); }

ORVCADFloors *ORVCADFloors::fromJson(const QJsonObject &json)
{
    return drawing::readOrNull(std::make_unique<ORVCADFloors>(), Fields::table, json);
}
