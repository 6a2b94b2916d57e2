#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/ORVCADDrawingFloorMapping.h"

#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>
#include <QVarLengthArray>

#include <memory>

namespace drawing {

/** Records of a floor mapping set in list order, by a number that grows from record to record: so a record keeps its
 *  number when another one goes. */
using FloorMappingList = QMap<qint64, std::shared_ptr<ORVCADDrawingFloorMapping>>;

/** The records of a floor mapping set by place, region and drawing. Valid as long as the list that it was built from. */
class ORVCADMODELDATA_EXPORT FloorMappingIndex
{
public:
    /** A record and its place in the list. */
    struct Entry
    {
        qint64 number;                     ///< key in the list
        ORVCADDrawingFloorMapping *record; ///< not owned, never null
    };
    using Entries = QVarLengthArray<Entry, 1>; ///< in list order; most have one, which then needs no memory of its own

    /** Those of exactly that name in that region; none for another. */
    Entries ofFloor(qint64 region, const QString &floor) const { return m_byFloor.value({region, floor}); }
    /** Those of all floors of the region. */
    Entries ofRegion(qint64 region) const { return m_byRegion.value(region); }
    /** Those of all regions that hold the drawing. */
    Entries ofDrawing(const QString &drawing) const { return m_byDrawing.value(drawing); }
    /** Whether the record of that number holds the drawing. */
    bool holds(qint64 number, const QString &drawing) const;

    /** Forgets what it knew. */
    void build(const FloorMappingList &list);
    /** By its place and each of its drawings; one that is known already does not count twice. */
    void add(const Entry &entry);
    /** By the place and the drawings that it has then: to be called before they change. */
    void remove(const Entry &entry);
    /** For a drawing that a known record gets. */
    void addDrawing(const Entry &entry, const QString &drawing);
    /** For a drawing that a known record loses. */
    void removeDrawing(const Entry &entry, const QString &drawing);

private:
    QHash<QPair<qint64, QString>, Entries> m_byFloor;
    QHash<qint64, Entries> m_byRegion;
    QHash<QString, Entries> m_byDrawing;
};

} // namespace drawing
