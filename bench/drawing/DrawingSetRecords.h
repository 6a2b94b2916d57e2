#pragma once

#include <QJsonObject>
#include <QStringList>

#include <cstddef>
#include <vector>

class ORVCADDisposeInfoData;

namespace bench {

/** The texts of one drawing, made once: both sides take them as they are. */
struct Drawing
{
    QString name;
    QString path;
    QString floor;
    QStringList layers; ///< 4, of 20 ids each
    QStringList cells;  ///< 6, of each of the 20 rows of its table
};

/** The drawings of a set and the floors that they are of. */
struct Drawings
{
    Drawings(std::size_t drawings, std::size_t floors);

    std::vector<Drawing> list;
    /** In the order of a hash of their paths, as a set keeps its sub-drawings: out of the caches for both sides. */
    std::vector<const Drawing *> hashed;
    QStringList floorNames;
    QStringList tableNames; ///< one for each drawing
    QStringList rowNumbers;
};

/** Records of one kind in a drawing set: a stage. */
struct DrawingSetFamily
{
    const char *name;
    const char *key;       ///< in the document
    std::size_t ofDrawing; ///< records of each drawing
    std::size_t ofFloor;
    void (*fill)(const Drawings &drawings, ORVCADDisposeInfoData &set); ///< the stage, in a set without it
    QJsonValue (*byHand)(const Drawings &drawings); ///< what the stage writes, with every text ready
    void (*read)(const QJsonValue &json); ///< makes the records and gives them up; null where there is no reader

    std::size_t records(const Drawings &drawings) const
    {
        return ofDrawing * drawings.list.size() + ofFloor * static_cast<std::size_t>(drawings.floorNames.size());
    }
};

/** All of them. */
const std::vector<DrawingSetFamily> &drawingSetFamilies();

/** A document as a reader demands it: groups of layers have a key that is not written. */
QJsonObject readable(QJsonObject document);

} // namespace bench
