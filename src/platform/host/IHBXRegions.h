#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

class IHBXRegion;

/** All regions of a model, in id order. */
class ORVCADPLATFORM_EXPORT IHBXRegions
{
public:
    virtual ~IHBXRegions() = default;

    /** The region of that exact name; null when there is none. */
    virtual IHBXRegion *find(const QString &regionName) = 0;

    /** Number of regions. */
    virtual int count() const = 0;
    /** Null for a position out of range. */
    virtual IHBXRegion *at(int position) = 0;
};
