#pragma once

#include <QString>

#include <random>

namespace bench {

class TextFile;

/** A building of any size, the same for the same seed. Each floor is a grid of bays; a bay has ten draw objects, of ten
 *  kinds that refer to each other: a slab with a hole, a bar and a negative bar, a column, two walls, of which one has a
 *  door, and two beams that are one chain with a span. Sizes, places within the bay and elevations vary. */
class Building
{
public:
    static constexpr int kObjectsOfBay = 10;
    static constexpr int kObjectsOfFloor = 1000;
    static constexpr const char *kRegion = "Tower";

    /** @param drawObjects  a multiple of those of a floor */
    Building(int drawObjects, unsigned seed) : m_floors(drawObjects / kObjectsOfFloor), m_random(seed) {}

    /** As hbx-project JSON, floor by floor. */
    void write(const QString &path);
    /** Doors of one element on the floor in the middle, one in each bay. @return how many */
    int writeDoors(const QString &path) const;

    int floors() const { return m_floors; }
    /** Code of the floor in the middle. */
    QString middleFloor() const { return QString::number(m_floors / 2 + 1); }

private:
    void writeFloor(TextFile &file, int floor);

    int m_floors;
    std::mt19937 m_random;
};

} // namespace bench
