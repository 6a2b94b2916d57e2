#pragma once

#include "ORVCADPlatformExport.h"

/** Layer and state flag of a draw object; kept as given. */
class ORVCADPLATFORM_EXPORT IHBXDrawObjStatus
{
public:
    virtual ~IHBXDrawObjStatus() = default;

    virtual void setLayer(int layer) = 0;
    virtual void setState(int state) = 0;

    virtual int layer() const = 0;
    virtual int state() const = 0;
};
