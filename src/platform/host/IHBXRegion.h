#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

class IHBXFloors;

/** A building part with its floors. */
class ORVCADPLATFORM_EXPORT IHBXRegion
{
public:
    virtual ~IHBXRegion() = default;

    virtual qint64 id() const = 0;
    virtual QString name() const = 0;
    virtual IHBXFloors *floors() = 0;
};
