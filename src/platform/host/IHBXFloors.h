#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

class IHBXFloor;

/** The floors of one region, in id order. */
class ORVCADPLATFORM_EXPORT IHBXFloors
{
public:
    virtual ~IHBXFloors() = default;

    /** The floor of that exact name; null when there is none. */
    virtual IHBXFloor *find(const QString &floorName) = 0;
    /** The floor of that exact code (IHBXFloor::code); null when there is none. */
    virtual IHBXFloor *findByCode(const QString &code) = 0;

    /** Number of floors. */
    virtual int count() const = 0;
    /** Null for a position out of range. */
    virtual IHBXFloor *at(int position) = 0;
};
