#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/FloorMappingIndex.h"

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <utility>

/** Which floors each drawing belongs to: records of region, floor and drawing names, asked every way. Lookups take the
 *  same time in a short list and in a long one.
 *
 *  Nobody else sees the records. A copy of the set has a list of its own that holds the very same records, so a drawing
 *  added to one of them is in both sets; a record is deleted with the last set that has it. Format:
 *  docs/formats/drawing-set.md. */
class ORVCADMODELDATA_EXPORT ORVCADDrawingFloorMappings
{
public:
    /** Without records. */
    ORVCADDrawingFloorMappings();
    ~ORVCADDrawingFloorMappings() = default;
    ORVCADDrawingFloorMappings(const ORVCADDrawingFloorMappings &) = default;
    ORVCADDrawingFloorMappings &operator=(const ORVCADDrawingFloorMappings &) = default;

    /** Adds the drawing to the first record of region and floor, which is made if there is none, unless it holds the
     *  drawing already. An empty floor name finds no record, so each call makes one. */
    void addMapping(qint64 region, const QString &floor, const QString &drawing);

    /** Drawing names of all records of region and floor, in list order; empty for region -1 or an empty floor name. */
    QStringList getMappingDrawingNames(qint64 region, const QString &floor) const;
    /** Floor names of all records that hold the drawing, in list order, equal ones as often as they occur; empty for an
     *  empty name. */
    QStringList getMappingFloorNames(const QString &drawing) const;
    /** Floor names of all records of the region, in list order; empty for region -1. */
    QStringList getMappingFloorNames(qint64 region) const;
    /** Region and floor name of all records that hold the drawing, in list order; empty for an empty name. */
    QList<std::pair<qint64, QString>> getMappingFloors(const QString &drawing) const;

    /** Takes the drawing out of every record, and records that are empty then out of the list; but a record right behind
     *  one that went is not looked at. Nothing for an empty name. */
    void removeMapping(const QString &drawing);
    /** Takes out the first record of the region, and no other; nothing for region -1. */
    void removeMapping(qint64 region);
    /** Takes out the first record of region and floor; nothing for an empty floor name. */
    void removeMapping(qint64 region, const QString &floor);

    /** Array of the records. */
    QJsonValue toJson() const;
    /** A new set, which belongs to the caller, and is never null: empty for what is no array. A record that lacks
     *  "regionID", "FloorName" or "DrawingNames" is left out. Region ids are read as 32-bit numbers, and what does not
     *  fit there reads as 0. Floor name and drawing names are looked for under "DrawingFloorMappings", which toJson does
     *  not write: what was written comes back with region ids alone. */
    static ORVCADDrawingFloorMappings *fromJson(const QJsonValue &json);

private:
    using Record = std::shared_ptr<ORVCADDrawingFloorMapping>;
    using Index = drawing::FloorMappingIndex;

    /** Brought up to date where a set that shares the records has changed one. */
    const Index &index() const;
    Index::Entry addMapping(qint64 region, const QString &floor);
    /** Appends to the list alone. @return the record's number */
    qint64 addMapping(const Record &mapping);
    void removeDrawing(const Index::Entry &entry, const QString &drawing);
    /** The first of the records; nothing where there is none. */
    void removeFirst(const Index::Entries &entries);
    void remove(const Index::Entry &entry);
    void noteRecordChange();

    drawing::FloorMappingList m_mappings;
    std::shared_ptr<qint64> m_changes; ///< made to records, by whichever of the sets that share them

    mutable Index m_index;
    mutable qint64 m_indexedChanges = 0; ///< the index holds what the records were after so many changes
};
