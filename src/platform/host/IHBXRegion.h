#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

class IHBXFloors;

/** A building part with its floors. */
class ORVCADPLATFORM_EXPORT IHBXRegion
{
public:
    virtual ~IHBXRegion() = default;

    /** Names the region in the model. */
    virtual qint64 id() const = 0;
    /** As shown to the user, and by which it is found. */
    virtual QString name() const = 0;
    /** Its floors; never null. */
    virtual IHBXFloors *floors() = 0;
};
