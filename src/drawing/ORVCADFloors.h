#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/ORVCADFloor.h"

#include <QJsonObject>
#include <QList>
#include <QString>

/** The floors of one area, in the order in which they were added; nothing sorts them, and the rules below go by
 *  elevation (m, equal within 1e-12), not by order, but where they say so.
 *  Its JSON form is the floors document; schema: schemas/floors.schema.json, docs/formats/floors.md.
 *
 *  The set owns its floors and deletes them. A copy holds the very same floors and the same current floor, so only one
 *  of the two may be destroyed while its list still has them. */
class ORVCADMODELDATA_EXPORT ORVCADFloors
{
public:
    ORVCADFloors() = default;
    ~ORVCADFloors();
    ORVCADFloors(const ORVCADFloors &) = default;
    ORVCADFloors &operator=(const ORVCADFloors &) = default; ///< the floors held before are not deleted

    /** Of the area that the floors are of. */
    const QString &getAreaName() const { return m_areaName; }
    /** Any text. */
    void setAreaName(const QString &name) { m_areaName = name; }

    /** Appends a floor and takes it over; null is ignored. */
    void addFloor(ORVCADFloor *floor);
    /** Number of floors. */
    int getCount() const { return m_floors.size(); }
    /** Null for an index out of range. */
    ORVCADFloor *getFloor(int index) const;
    /** First floor of exactly that name, else null. */
    ORVCADFloor *getFloor(const QString &name) const;
    /** The list itself. */
    QList<ORVCADFloor *> &getFloors() { return m_floors; }

    /** First floor in list order that is a base floor, else null. */
    ORVCADFloor *getBaseFloor() const;
    /** First floor in list order that is a first floor, else null. */
    ORVCADFloor *getFirstFloor() const;
    /** By bottom elevation, the earlier in the list among equals; null for an empty list. */
    ORVCADFloor *getHighestFloor() const;
    /** The same from below. */
    ORVCADFloor *getLowestFloor() const;
    /** First floor in list order that starts where the given one ends, counting all the standard floors that it stands
     *  for; null if there is none and for null. */
    ORVCADFloor *getUpstairFloor(const ORVCADFloor *floor) const;
    /** First floor in list order whose top elevation is the given one's bottom; null if there is none and for null.
     *  The candidate counts as one floor, though the way up counts all: no inverse for a standard floor. */
    ORVCADFloor *getDownstairFloor(const ORVCADFloor *floor) const;
    /** The first floor at or above elevation zero on the way up from the lowest; null when the way has a gap before, or
     *  leads in a circle. */
    ORVCADFloor *getMinGreaterZeroFloor() const;
    /** The floor next above the one at a list index, by bottom elevation, the later in the list among equals; null for
     *  an index out of range and when none lies above. */
    ORVCADFloor *getHighOneFloor(int index) const;

    /** Borrowed; null until set. Nothing checks that it is in the list. */
    ORVCADFloor *getCurrentFloor() const { return m_currentFloor; }
    /** Borrows a floor; null takes it away. */
    void setCurrentFloor(ORVCADFloor *floor) { m_currentFloor = floor; }
    /** First floor of exactly that name; an unknown name changes nothing. */
    void setCurrentFloor(const QString &name);

    /** Area name and floors, in list order. */
    QJsonObject toJson() const;
    /** A new set, which belongs to the caller; null when "AreaName" or "Floors" is missing. A floor that lacks a
     *  required key is left out. */
    static ORVCADFloors *fromJson(const QJsonObject &json);

private:
    struct Fields; // the one list, in the source

    QString m_areaName;
    ORVCADFloor *m_currentFloor = nullptr;
    QList<ORVCADFloor *> m_floors;
};
