#pragma once

#include "ORVCADPlatformExport.h"

#include <QtGlobal>

class IHBXCurState;
class IHBXModel;

/** Front object of a host: gives the building model and what the user has selected.
 *
 *  Everything behind a service belongs to the host; pointers stay good until the object they name is removed. A host is
 *  used from one thread at a time. */
class ORVCADPLATFORM_EXPORT IHBXService
{
public:
    virtual ~IHBXService() = default;

    /** The model that this service fronts; never null. */
    virtual IHBXModel *model() = 0;
    /** Current state of the user interface; never null. */
    virtual IHBXCurState *curState() = 0;
    /** A setting of the host that travels through identify input as it comes. */
    virtual qint64 unnamedSetting() = 0;
};
